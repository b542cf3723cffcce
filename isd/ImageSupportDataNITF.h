#pragma once

#include "../foundation/Export.h"
#include "../foundation/Finding.h"
#include "../segments/NITFStdDataSegmentInfo.h"
#include "../segments/des/NITFDESSubheader.h"
#include "../segments/fileheader/NITFFileHeader.h"
#include "../segments/graphic/NITF21GraphicSubheader.h"
#include "../segments/image/NITFImageSubheader.h"
#include "../segments/label/NITF20LabelSubheader.h"
#include "../segments/res/NITFRESSubheader.h"
#include "../segments/symbol/NITF20SymbolSubheader.h"
#include "../segments/text/NITFTextSubheader.h"
#include "ImageSupportData.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The image support data of a NITF or NSIF file: owns the file header and every segment that is read, and answers for
/// them by kind and index. Made and destroyed by the factories only. What is handed out by pointer lives as long as the
/// object.
class ORMO_CSM_API ImageSupportDataNITF : public ImageSupportData
{
public:
    // What only the library's own sources can look into: what is to be opened, and what was read of it.
    struct Request;
    struct Parts;

    ~ImageSupportDataNITF() override;

    /// The version that the first bytes of a file tell: 20, 21 (also for NSIF 1.0), or -1.
    static int Identify(const unsigned char* aHeaderBytes, std::size_t aLength);

    // The file.
    const NITFFileHeader* GetNITFFileHeader() const noexcept;
    /// The real size in bytes, whatever the header says.
    std::uint64_t GetNITFFileSize() const noexcept;
    NITFCnst::Version GetNITFFileVersionCode() const noexcept { return GetNITFFileHeader()->GetVersion(); }
    const char* GetNITFFileVersionNumber() const noexcept { return GetFormatVersion(); }
    /// "NITF02.10", "NITF02.00" or "NSIF01.00".
    const char* GetFileTypeAndVersion() const override;
    const char* GetNITFFileTitle() const noexcept { return GetNITFFileHeader()->GetFieldFTITLE(); }
    const char* GetNITFFileOriginatorName() const noexcept { return GetNITFFileHeader()->GetFileOriginatorName(); }
    const char* GetNITFFileOriginatorPhoneNumber() const noexcept
    {
        return GetNITFFileHeader()->GetFileOriginatorPhoneNumber();
    }
    const char* GetNITFFileOriginatingStationID() const noexcept
    {
        return GetNITFFileHeader()->GetFileOriginatingStationID();
    }
    const char* GetNITFFileSecurityClassification() const noexcept
    {
        return GetNITFFileHeader()->GetFileSecurityClassification();
    }
    bool GetNITFFileBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept
    {
        return GetNITFFileHeader()->GetFileBackgroundColor(aRed, aGreen, aBlue);
    }
    Util::CSMCnst::ByteOrder GetRPFFileByteOrder() const noexcept { return GetNITFFileHeader()->GetRPFFileByteOrder(); }
    SupportedISD::Type GetIsdRasterFormat() override;
    /// The file as a stdio stream, opened when first asked for.
    std::FILE* GetFileHandle() const override;

    // The segments. An index outside gives null.
    const NITFStdDataSegmentInfos& GetSegmentInfos() const noexcept;
    long GetNumOfImageSegments() const override;
    const NITFImageSubheader* GetImageSubheader(std::size_t aIndex) const noexcept;
    /// What reads the pixels of an image segment; null when there is no such segment.
    const NITFImagePixelReader* GetImagePixelReader(std::size_t aIndex) const noexcept;
    // Of an image segment, as NITFImageSubheader answers; what the base class says when there is no such segment.
    bool GetImageChipTransformCoeffs(bool& aIsChip, const double*& aChipToFull, const double*& aFullToChip,
                                     int aSegment) const override;
    bool GetImageSegmentAverageHeight(double& aHeight, long aSegment) const override;
    bool IsImageSegmentCoordGeographic(unsigned int aSegment) const override;
    bool IsUnityTransform(int aSegment) const override;
    const NITFTextSubheader* GetTextSubheader(std::size_t aIndex) const noexcept;
    /// NITF 2.1 and NSIF 1.0.
    const NITF21GraphicSubheader* GetGraphicSubheader(std::size_t aIndex) const noexcept;
    /// NITF 2.0.
    const NITF20SymbolSubheader* GetSymbolSubheader(std::size_t aIndex) const noexcept;
    /// NITF 2.0.
    const NITF20LabelSubheader* GetLabelSubheader(std::size_t aIndex) const noexcept;
    const NITFDESSubheader* GetDataExtensionSegment(std::size_t aIndex) const noexcept;
    const NITFRESSubheader* GetReservedExtensionSegment(std::size_t aIndex) const noexcept;
    /// The segment of a kind; the file header is the one segment of its kind. Null also for kinds that are not read.
    const NITFFieldSegment* GetSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept;

    // What is drawn over the images: graphics, or symbols and labels.
    /// Whether the file has any of them.
    bool HasGraphicalData() const noexcept;
    /// Graphics, or symbols and labels, in file order; those that could not be read are left out.
    std::vector<const NITFDrawnSegment*> GetDrawnSegments() const;
    /// The metafiles of them in file order, those that labels are made into included. They belong to the segments.
    std::vector<const NITFCGMMetaFile*> GetAllCGMMetaFiles() const;
    std::size_t GetNumOfCGMMetaFiles() const { return GetAllCGMMetaFiles().size(); }
    /// Images, graphics, symbols and labels in the order in which they are drawn, one over the other: by display level,
    /// equal ones in file order.
    std::vector<const NITFFieldSegment*> GetDisplayableDataSegmentOrderedByDisplayLevels() const;

    /// The TREs of a segment by tag, as NITFStdDataSegment::GetTRE; false when there is no such segment.
    bool GetDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag, const TRE**& aArray,
                           std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetAllDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const TRE**& aArray,
                               std::size_t& aCount, bool aIncludeOverflow) const;
    /// Whether the TREs of an overflow DES were handed to the segment that it names; else they stay on the DES.
    bool IsOverflowPlaced(std::size_t aDes) const noexcept;
    /// Writes the data of a segment, of any kind, to a stream in pieces. False with a text in GetErrorMessage when
    /// there is no such segment, its data are not all in the file, or writing fails.
    bool WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut);
    bool SetCurrentImageSegment(long aSegment) override;
    /// Such an object has the file header, the images and the DESs; all else, and the pixels, it does not hold.
    bool IsInitUsingTsmNITFISD() const override;

    // A field by the name of its segment: "NITFFileHeader", "ImageSegment" (the current image segment, or the first) or
    // "ImageSegment:2". False with a text in GetErrorMessage.
    bool GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue) override;
    bool GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue) override;
    bool GetFieldAsLong(const char* aSegment, const char* aField, long& aValue) override;
    bool GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue, std::size_t& aLength) override;
    bool GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue) override;

    /// What was found on reading, in the order in which it was met. Capped; GetWarnings says how many more there were.
    std::vector<Finding> GetFindings() const;
    /// The same as lines for a person.
    std::vector<std::string> GetWarnings() const;

    // The file as ISDs of the CSM API, which sensor-model plug-ins take. TREs of overflow DESs stand behind the own
    // ones of the header that they belong to; the DESs stay in the list of DESs. Data of a DES that are not all in the
    // file are left empty.

    /// A NITF_2_0_ISD or NITF_2_1_ISD with all that was read and, when there is a file, a filenameISD. Made when first
    /// asked for; they live until ClearTSMISDData. False, with null and 0, when memory is short.
    bool GetAllTsmISDs(const tsm_ISD**& aTsmISDs, std::size_t& aCount) const override;
    void ClearTSMISDData() noexcept;
    /// Replaces the content of an ISD of one of the five kinds (SupportedTSMISD). Of the images, a NITF ISD takes the
    /// one of this number, or all when it is negative. False, with the ISD as it was, for null, for any other class,
    /// for a NITF ISD of the other version, for a number that is no image's, when memory is short or the file cannot
    /// be read.
    bool SetTSMISD(int aImageSegment, tsm_ISD* aTsmISD) const;
    // Parts of a NITF ISD, under the same terms.
    bool PopulateTSMISDFileHeaderTREs(tsm_ISD* aTsmISD) const;
    bool PopulateTSMISDImageSegments(tsm_ISD* aTsmISD, int aImageSegment) const;
    bool PopulateTSMISDDESs(tsm_ISD* aTsmISD) const;
    bool PopulateCSMImageObject(::image& aImage, int aImageSegment) const;

    // Sensor models of the plug-ins that are registered with the CSM API, each asked with an ISD of this one image
    // and, when the file has only one, with the name of the file. The library's own plug-in builds none and is left
    // out.

    /// False, with nulls and 0, when there is no such image. A model name stands once, with the version of the plug-in
    /// registered first. The arrays live as long as the object.
    bool GetSensorModelsOfImageSegment(const char**& aNames, const char**& aVersions, std::size_t& aCount,
                                       std::size_t aSegment) const override;
    /// A new model, which the caller deletes, from the first plug-in that builds it; null when none does.
    TSMSensorModel* GetTSMSensorModel(const char* aSensorModelName, std::size_t aSegment) const override;

    // Host metadata by property key (PropertyKey); docs/properties.md lists what answers each. Keys that no field of
    // the file answers, and those that need a sensor model, have no answer. Images count from 0.

    /// Key to value.
    using OrmoMetadata = std::map<std::string, std::string>;

    /// The value without the blanks around it; null when there is none. It lives as long as the object.
    const char* GetOrmoMetadata(const char* aKey, std::size_t aImage) const noexcept;
    /// The same, with the source that answered: "image TRE USE00A field SUN_EL".
    bool FindOrmoMetadata(const char* aKey, std::size_t aImage, std::string& aValue, std::string& aSource) const;
    /// All that is answered for an image. Without that image what is known of the file.
    OrmoMetadata RetrieveOrmoMetadata(std::size_t aImage) const;
    /// Its three parts: what names file and image, what is known of sensor and sun, and texts about all of it.
    void RetrieveOrmoMetadataSet1(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;
    void RetrieveOrmoMetadataSet2(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;
    void RetrieveOrmoMetadataSet3(const NITFImageSubheader& aImage, OrmoMetadata& aMetadata) const;

    /// The file in some lines for a person: what it is, where it comes from, its segments and its first ten images.
    const char* GetImageSupportDataSummary() override;
    std::string ComposeSummary() const;
    /// Parts of it: the lines about the file; what an image is, empty when there is no such image.
    std::string GetFileSummary() const;
    std::string GetImageSummary(std::size_t aImage) const;

    const char* Serialize() override;
    bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings) override;
    /// The findings of the last rigorous validation, those of reading included, errors first.
    std::vector<Finding> GetValidationFindings() const;
    /// The same as lines for a person.
    std::vector<std::string> GetValidationLines() const;
    /// For the library's own sources.
    const Parts& Inside() const noexcept { return *m_parts; }

protected:
    /// Reads everything that the request asks for. Raises InitializationException for a path that leads to no file and
    /// ImageSupportDataConstructionException with all errors, which then stand in the request's findings too.
    explicit ImageSupportDataNITF(Request& aRequest);

    void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const override;
    void SetHighestSecurityClassificationMarking() override;

private:
    NITFFieldSegment* Segment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept;
    /// The same, with a text in GetErrorMessage when there is none.
    NITFFieldSegment* AskedSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex);
    NITFFieldSegment* SegmentOfName(const char* aName);
    template<typename Value, typename Ask>
    bool AskSegment(const char* aSegment, Value& aValue, Ask aAsk);

    std::unique_ptr<Parts> m_parts;
};

}  // namespace ORMO::SensorModel::CSM
