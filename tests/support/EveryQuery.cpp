#include "tests/support/EveryQuery.h"

#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/des/DesDESDATA.h"
#include "segments/des/DesDESSHF.h"
#include "segments/des/DesXmlProduct.h"
#include "segments/graphic/NITF21GraphicSubheader.h"
#include "segments/image/NITFImagePixelReader.h"
#include "segments/label/NITF20LabelSubheader.h"
#include "segments/symbol/NITF20SymbolSubheader.h"
#include "tre/TRE.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

using Corners = std::array<double, NITFImgExtent::NUM_OF_CORNERS>;

/// The queries that headers, TREs and DES records answer alike, for each of their fields.
template<typename Owner>
std::size_t AskFields(const Owner& aOwner)
{
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    std::size_t count = 0;
    for (; aOwner.GetFieldAt(count, name, value, length); ++count) {
        bool truth = false;
        double real = 0;
        long whole = 0;
        unsigned long natural = 0;
        aOwner.GetFieldAsString(name.c_str(), value, length);
        aOwner.GetFieldAsBool(name.c_str(), truth);
        aOwner.GetFieldAsDouble(name.c_str(), real);
        aOwner.GetFieldAsLong(name.c_str(), whole);
        aOwner.GetFieldAsUnsignedLong(name.c_str(), natural);
        aOwner.IsFieldEditable(name.c_str());
        aOwner.IsFieldValueInRange(name.c_str(), value);
    }
    return count;
}

void AskMetadata(const RawNITFMetadata* aMetadata)
{
    const char** tags = nullptr;
    const char** values = nullptr;
    std::size_t count = 0;
    if (aMetadata != nullptr) {
        aMetadata->GetMetadataFieldValue(tags, values, count);
        aMetadata->GetMetadataFieldName(tags, values, count);
        aMetadata->GetRawDataStream(count);
    }
}

void AskDes(const NITFDESSubheader& aDes)
{
    std::string errors;
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    long index = 0;
    aDes.GetOverflowTarget(kind, index, errors);
    if (const DesDESSHF* const fields = aDes.GetDESSHF(); fields != nullptr) {
        AskFields(*fields);
        fields->ValidateFieldValues(errors);
    }
    if (const DesDESDATA* const fields = aDes.GetDESDATAFields(&errors); fields != nullptr) {
        AskFields(*fields);
        fields->ValidateFieldValues(errors);
    }
    DesXmlProduct product;
    aDes.GetXmlProduct(product);
}

void AskDrawn(const NITFDrawnSegment& aSegment)
{
    std::string svg;
    CGMDrawing::Bounds bounds;
    const char* data = nullptr;
    std::size_t length = 0;
    aSegment.AppendSvg(svg);
    aSegment.GetDrawnBounds(bounds);
    aSegment.GetSegmentData(data, length);
}

void AskImage(const ImageSupportDataNITF& aIsd, std::size_t aImage)
{
    Corners latitudes{};
    Corners longitudes{};
    bool truth = false;
    const char* source = nullptr;
    aIsd.GetIGEOLOGeographicExtent(latitudes.data(), longitudes.data(), aImage);
    aIsd.GetBLOCKGeographicExtent(latitudes.data(), longitudes.data(), aImage);
    aIsd.GetGEOLOGeographicExtent(latitudes.data(), longitudes.data(), aImage);
    aIsd.GetCSCRNGeographicExtent(truth, latitudes.data(), longitudes.data(), aImage);
    aIsd.GetMostPreciseGeographicExtent(truth, source, latitudes.data(), longitudes.data(), aImage);
    aIsd.GetApproxGeographicCenterOfExtent(latitudes[0], longitudes[0], aImage);
    aIsd.GetApproxGeographicExtentBoundingBox(latitudes[0], longitudes[0], latitudes[1], longitudes[1], aImage);
    aIsd.GetImageSegmentAverageHeight(latitudes[0], static_cast<long>(aImage));
    const double* toFull = nullptr;
    const double* toChip = nullptr;
    aIsd.GetImageChipTransformCoeffs(truth, toFull, toChip, static_cast<int>(aImage));
    aIsd.IsUnityTransform(static_cast<int>(aImage));
    aIsd.GetICHIPTRE(aImage);
    std::array<std::array<double, 20>, 4> rpc{};
    long line = 0;
    long sample = 0;
    aIsd.GetRPC00Coefficients(rpc[0].data(), rpc[1].data(), rpc[2].data(), rpc[3].data(), aImage);
    aIsd.GetRPC00Offsets(latitudes[0], longitudes[0], latitudes[1], line, sample, aImage);
    aIsd.GetRPC00Scales(latitudes[0], longitudes[0], latitudes[1], line, sample, aImage);
    for (int band = 0; aIsd.GetImageBandInfo(band, aImage) != nullptr; ++band) {
        std::vector<NITFImgBandInfo::WideTable> tables;
        aIsd.GetLUTsOfImageBand(band, tables, aImage);
    }
    aIsd.GetPadPixelValueOfImageSegmentAsDouble(latitudes[0], aImage);
    aIsd.IsCloudCoverImageSegment(aImage);
    aIsd.GetImageSegmentIndex(aIsd.GetUniqueImageSegmentIdentifier(aImage));
    if (const NITFImagePixelReader* const pixels = aIsd.GetImagePixelReader(aImage); pixels != nullptr) {
        pixels->GetBytesPerSample();
    }
    aIsd.RetrieveOrmoMetadata(aImage);
}

}  // namespace

void AskEverything(const TRE& aTre)
{
    std::size_t length = 0;
    std::string errors;
    AskFields(aTre);
    aTre.GetTREDescription();
    aTre.GetTREName();
    aTre.GetAllTREFieldDescriptions();
    aTre.GetAllTreFieldInfos();
    aTre.GetTREKeyValuePairsMap();
    aTre.GetTREFieldWidthsMap();
    aTre.GetFieldEditabilityMap();
    aTre.GetRawTREDataString(length);
    aTre.ValidateFieldValues(errors);
    AskMetadata(aTre.GetAllTreMetadata());
}

std::size_t AskEverything(const NITFFieldSegment& aSegment)
{
    const std::size_t fields = AskFields(aSegment);
    long row = 0;
    long column = 0;
    aSegment.GetLocation(row, column);
    aSegment.GetCCSColumnAndRow(column, row);
    aSegment.GetFieldEditabilityMap();
    aSegment.GetAllFieldDescriptions();
    aSegment.GetBinaryFieldList();
    aSegment.GetAllFieldTags();
    AskMetadata(aSegment.GetAllMetadata());
    for (const TREStore* const store : {&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            AskEverything(*tre);
        }
    }
    if (const auto* const des = dynamic_cast<const NITFDESSubheader*>(&aSegment); des != nullptr) {
        AskDes(*des);
    }
    if (const auto* const drawn = dynamic_cast<const NITFDrawnSegment*>(&aSegment); drawn != nullptr) {
        AskDrawn(*drawn);
    }
    return fields;
}

std::size_t AskEverything(ImageSupportDataNITF& aIsd)
{
    std::size_t fields = AskEverything(*aIsd.GetNITFFileHeader());
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        const NITFFieldSegment* const segment =
            aIsd.GetSegment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
        fields += segment == nullptr ? 0 : AskEverything(*segment);
    }
    for (long i = 0; i != aIsd.GetNumOfImageSegments(); ++i) {
        AskImage(aIsd, static_cast<std::size_t>(i));
    }
    const tsm_ISD** views = nullptr;
    std::size_t count = 0;
    aIsd.GetAllTsmISDs(views, count);
    aIsd.GetFindings();
    aIsd.GetWarnings();
    aIsd.GetAllSecurityClassificationMarkings();
    aIsd.GetDisplayableDataSegmentOrderedByDisplayLevels();
    aIsd.GetAllCGMMetaFiles();
    aIsd.GetImageSupportDataSummary();
    return fields;
}

}  // namespace ORMO::SensorModel::CSM::Tests
