// What a file answers for its image segments by their number: fields, bands, pixels, place and identifier.

#include "fields/MessageText.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

using Image = NITFImageSubheader;

const char* ImageSupportDataNITF::GetImageSegmentField(const char* aTag, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    const char* value = nullptr;
    std::size_t length = 0;
    return image != nullptr && Told(image->GetFieldAsString(aTag, value, length), *image) ? value : nullptr;
}

bool ImageSupportDataNITF::GetImageSegmentFieldAsDouble(const char* aTag, double& aValue, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && Told(image->GetFieldAsDouble(aTag, aValue), *image);
}

const char* ImageSupportDataNITF::GetImageSegmentSecurityClassification(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image == nullptr ? nullptr : image->GetImageSegmentSecurityClassification();
}

const char* ImageSupportDataNITF::GetImageFieldIC(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image == nullptr ? nullptr : image->GetImageCompressionCode();
}

bool ImageSupportDataNITF::GetImageFieldICORDS(char& aIcords, std::size_t aIndex) const
{
    if (!IsImageFieldICORDSAvailable(aIndex)) {
        return false;
    }
    aIcords = GetImageSubheader(aIndex)->GetFieldICORDS();
    return true;
}

bool ImageSupportDataNITF::IsImageFieldICORDSAvailable(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->IsFieldICORDSAvailable();
}

bool ImageSupportDataNITF::GetImageFieldXBANDS(unsigned long& aBands, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetFieldXBANDS(aBands);
}

bool ImageSupportDataNITF::GetImageSegmentNumOfBands(unsigned long& aBands, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    if (image == nullptr) {
        return false;
    }
    aBands = image->GetNumOfImageBands();
    return true;
}

const NITFImgBandInfo* ImageSupportDataNITF::GetImageBandInfo(int aBand, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    const NITFImgBandInfo* const band = image == nullptr ? nullptr : image->GetImageBandInfo(aBand);
    if (image != nullptr && band == nullptr) {
        RefuseQuery("ERROR: There is no band " + std::to_string(aBand) + " in " +
                    Detail::SegmentName(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex) + ", which has " +
                    std::to_string(image->GetNumOfImageBands()) + '.');
    }
    return band;
}

bool ImageSupportDataNITF::HasLUTsForImageBand(int aBand, std::size_t aIndex) const
{
    return GetImageBandInfo(aBand, aIndex) != nullptr && GetImageSubheader(aIndex)->HasLUTsForBand(aBand);
}

bool ImageSupportDataNITF::GetLUTsOfImageBand(int aBand, std::vector<NITFImgBandInfo::WideTable>& aTables,
                                              std::size_t aIndex) const
{
    return GetImageBandInfo(aBand, aIndex) != nullptr && GetImageSubheader(aIndex)->GetLUTs(aBand, aTables);
}

bool ImageSupportDataNITF::GetImageSegmentColumnsAndRows(unsigned long& aColumns, unsigned long& aRows,
                                                         std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetImageSignificantColumnsAndRows(aColumns, aRows);
}

bool ImageSupportDataNITF::GetPadPixelValueOfImageSegmentAsDouble(double& aValue, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetPadPixelValueAsDouble(aValue);
}

bool ImageSupportDataNITF::GetPadPixelComplexOfImageSegment(double& aReal, double& aImaginary, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetPadPixelComplex(aReal, aImaginary);
}

const NITFImagePixelReader* ImageSupportDataNITF::GetImagePixelReader(std::size_t aIndex) const
{
    return GetImageSubheader(aIndex);
}

bool ImageSupportDataNITF::IsCloudCoverImageSegment(std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->IsCloudCoverImageSegment();
}

bool ImageSupportDataNITF::GetImageSegmentCCS(long& aColumn, long& aRow, std::size_t aIndex) const
{
    const Image* const image = GetImageSubheader(aIndex);
    return image != nullptr && image->GetCCSColumnAndRow(aColumn, aRow);
}

const char* ImageSupportDataNITF::GetUniqueImageSegmentIdentifier(std::size_t aSegment) const
{
    return GetImageSubheader(aSegment) == nullptr ? nullptr : m_parts->ImageIdentifiers(m_fileName)[aSegment].c_str();
}

long ImageSupportDataNITF::GetImageSegmentIndex(const char* aIdentifier) const
{
    ClearMessages();
    const std::vector<std::string>& identifiers = m_parts->ImageIdentifiers(m_fileName);
    const auto place = std::find(identifiers.begin(), identifiers.end(), Detail::Trimmed(aIdentifier));
    if (place == identifiers.end()) {
        RefuseQuery("ERROR: There is no image segment of the identifier " +
                    Detail::Quoted(Detail::ViewOf(aIdentifier)) + '.');
        return NO_IMAGE_SEGMENT;
    }
    return static_cast<long>(place - identifiers.begin());
}

bool ImageSupportDataNITF::CompareUniqueImageSegmentIDs(const ImageSupportDataNITF& aOther) const
{
    return m_parts->ImageIdentifiers(m_fileName) == aOther.m_parts->ImageIdentifiers(aOther.m_fileName);
}

const std::vector<std::string>& ImageSupportDataNITF::Parts::ImageIdentifiers(const std::string& aFile) const
{
    return imageIdentifiers.Get([&] {
        std::vector<std::string> identifiers(Count(NITFCnst::DATA_SEGMENT_TYPE_IMAGE));
        for (std::size_t i = 0; i != identifiers.size(); ++i) {
            identifiers[i] = "NITF_IM:" + std::to_string(i) + ':' + aFile;
        }
        return identifiers;
    });
}

}  // namespace ORMO::SensorModel::CSM
