#pragma once

#include "../foundation/Export.h"
#include "../segments/NITFStdDataSegmentInfo.h"
#include "../segments/des/NITFDESSubheader.h"
#include "../segments/fileheader/NITFFileHeader.h"
#include "../segments/image/NITFImageSubheader.h"
#include "../segments/res/NITFRESSubheader.h"
#include "../segments/text/NITFTextSubheader.h"
#include "ImageSupportData.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace Detail {
class ByteSource;
struct TsmViews;
}  // namespace Detail

/// The image support data of a NITF or NSIF file: owns the file header and every segment that is read, and answers for
/// them by kind and index. Made and destroyed by the factories only. What is handed out by pointer lives as long as the
/// object.
class ORMO_CSM_API ImageSupportDataNITF : public ImageSupportData
{
public:
    ~ImageSupportDataNITF() override;

    /// The version that the first bytes of a file tell: 20, 21 (also for NSIF 1.0), or -1.
    static int Identify(const unsigned char* aHeaderBytes, std::size_t aLength);

    // The file.
    const NITFFileHeader* GetNITFFileHeader() const noexcept { return m_header.get(); }
    /// The real size in bytes, whatever the header says.
    std::uint64_t GetNITFFileSize() const noexcept;
    NITFCnst::Version GetNITFFileVersionCode() const noexcept { return m_version; }
    const char* GetNITFFileVersionNumber() const noexcept { return GetFormatVersion(); }
    /// "NITF02.10", "NITF02.00" or "NSIF01.00".
    const char* GetFileTypeAndVersion() const override;
    const char* GetNITFFileTitle() const noexcept { return m_header->GetFieldFTITLE(); }
    const char* GetNITFFileOriginatorName() const noexcept { return m_header->GetFileOriginatorName(); }
    const char* GetNITFFileOriginatorPhoneNumber() const noexcept { return m_header->GetFileOriginatorPhoneNumber(); }
    const char* GetNITFFileOriginatingStationID() const noexcept { return m_header->GetFileOriginatingStationID(); }
    const char* GetNITFFileSecurityClassification() const noexcept { return m_header->GetFileSecurityClassification(); }
    bool GetNITFFileBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept
    {
        return m_header->GetFileBackgroundColor(aRed, aGreen, aBlue);
    }
    Util::CSMCnst::ByteOrder GetRPFFileByteOrder() const noexcept { return m_header->GetRPFFileByteOrder(); }
    SupportedISD::Type GetIsdRasterFormat() override;
    /// The file as a stdio stream, opened when first asked for.
    std::FILE* GetFileHandle() const override;

    // The segments. An index outside gives null.
    const NITFStdDataSegmentInfos& GetSegmentInfos() const noexcept { return m_infos; }
    long GetNumOfImageSegments() const override;
    const NITFImageSubheader* GetImageSubheader(std::size_t aIndex) const noexcept;
    const NITFTextSubheader* GetTextSubheader(std::size_t aIndex) const noexcept;
    const NITFDESSubheader* GetDataExtensionSegment(std::size_t aIndex) const noexcept;
    const NITFRESSubheader* GetReservedExtensionSegment(std::size_t aIndex) const noexcept;
    /// The segment of a kind; the file header is the one segment of its kind. Null also for kinds that are not read.
    const NITFFieldSegment* GetSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept;
    /// The TREs of a segment by tag, as NITFStdDataSegment::GetTRE; false when there is no such segment.
    bool GetDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag, const TRE**& aArray,
                           std::size_t& aCount, bool aIncludeOverflow) const;
    bool GetAllDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const TRE**& aArray,
                               std::size_t& aCount, bool aIncludeOverflow) const;
    /// Whether the TREs of an overflow DES were handed to the segment that it names; else they stay on the DES.
    bool IsOverflowPlaced(std::size_t aDes) const noexcept { return aDes < m_placed.size() && m_placed[aDes]; }
    /// Writes the data of a segment, of any kind, to a stream in pieces. False with a text in GetErrorMessage when
    /// there is no such segment, its data are not all in the file, or writing fails.
    bool WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut);
    bool SetCurrentImageSegment(long aSegment) override;

    // A field by the name of its segment: "NITFFileHeader", "ImageSegment" (the current image segment, or the first) or
    // "ImageSegment:2". False with a text in GetErrorMessage.
    bool GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue) override;
    bool GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue) override;
    bool GetFieldAsLong(const char* aSegment, const char* aField, long& aValue) override;
    bool GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue, std::size_t& aLength) override;
    bool GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue) override;

    /// What was found on reading, one text per fault, in the order of the file. Capped; the last text then says how
    /// many more there were.
    const std::vector<std::string>& GetWarnings() const noexcept { return m_warnings; }

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

    const char* Serialize() override;
    bool RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings) override;
    /// The findings of the last rigorous validation, one line each, errors first.
    const std::vector<std::string>& GetValidationLines() const noexcept { return m_validationLines; }

protected:
    ImageSupportDataNITF(const char* aPath, NITFCnst::Version aVersion);

    /// Opens the file and reads everything. Raises ImageSupportDataConstructionException with all errors; hands the
    /// warnings out as a new text.
    void InitImageSupportDataNITF(bool aImageSegmentsOnly, bool aSpecificOnly, char** aErrors, char** aWarnings,
                                  int aImageSegment);

    // What a version supplies.
    virtual std::unique_ptr<NITFFileHeader> CreateNITFFileHeader(const std::string& aRaw, bool aStreaming,
                                                                 bool aSpecificOnly) const = 0;
    virtual std::unique_ptr<NITFImageSubheader> CreateNITFImageSubheader(const std::string& aRaw,
                                                                         const NITFStdDataSegmentInfo& aInfo,
                                                                         bool aSpecificOnly) const = 0;
    virtual std::unique_ptr<NITFTextSubheader> CreateNITFTextSubheader(const std::string& aRaw,
                                                                       const NITFStdDataSegmentInfo& aInfo,
                                                                       bool aSpecificOnly) const = 0;
    virtual std::unique_ptr<NITFDESSubheader> CreateNITFDESSubheader(const std::string& aRaw,
                                                                     const NITFStdDataSegmentInfo& aInfo,
                                                                     bool aSpecificOnly) const = 0;
    virtual std::unique_ptr<NITFRESSubheader> CreateNITFRESSubheader(const std::string& aRaw,
                                                                     const NITFStdDataSegmentInfo& aInfo,
                                                                     bool aSpecificOnly) const = 0;

    void CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const override;
    void SetHighestSecurityClassificationMarking() override;

    const std::shared_ptr<const Detail::ByteSource>& Source() const noexcept { return m_source; }
    const char* VersionText() const noexcept { return m_versionText.c_str(); }
    /// The byte order of binary TRE fields: that of the raster product format when the file is one.
    Util::CSMCnst::ByteOrder TreByteOrder() const noexcept;

private:
    void InitFileHeader(bool aSpecificOnly);
    void CheckLengths();
    void CheckSegmentPlaces();
    void InitImageSubheaders(bool aSpecificOnly);
    void ExtractTextSegments(bool aSpecificOnly);
    void ExtractDESs(bool aSpecificOnly);
    void ExtractRESs(bool aSpecificOnly);
    void CheckUnreadSegments();
    void SetDataSegmentsOverflowTREs();
    void PlaceOverflowTREs(std::size_t aDes, std::vector<std::string>& aTargets);
    void CheckOverflowNumbers();
    template<typename Subheader, typename Create>
    void ReadSegments(NITFCnst::DataSegmentType aKind, std::vector<std::unique_ptr<Subheader>>& aSegments,
                      Create aCreate);
    std::string RawSubheader(const NITFStdDataSegmentInfo& aInfo) const;
    NITFFieldSegment* Segment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept;
    NITFFieldSegment* SegmentOfName(const char* aName);
    template<typename Value, typename Ask>
    bool AskSegment(const char* aSegment, Value& aValue, Ask aAsk);
    void AddWarning(const std::string& aText);
    void AddSegmentWarning(const NITFStdDataSegment& aSegment, std::size_t aIndex);
    template<typename Subheader>
    void AppendSegments(std::string& aXml, const char* aGroup,
                        const std::vector<std::unique_ptr<Subheader>>& aSegments) const;

    NITFCnst::Version m_version;
    std::string m_versionText;
    std::shared_ptr<const Detail::ByteSource> m_source;
    std::unique_ptr<NITFFileHeader> m_header;
    NITFStdDataSegmentInfos m_infos;
    std::vector<std::unique_ptr<NITFImageSubheader>> m_images;
    std::vector<std::unique_ptr<NITFTextSubheader>> m_texts;
    std::vector<std::unique_ptr<NITFDESSubheader>> m_des;
    std::vector<std::unique_ptr<NITFRESSubheader>> m_res;
    std::vector<bool> m_placed;
    std::vector<std::string> m_warnings;
    std::vector<std::string> m_validationLines;
    std::size_t m_warningCount = 0;
    mutable std::FILE* m_stream = nullptr;
    std::unique_ptr<Detail::TsmViews> m_tsmViews;
};

}  // namespace ORMO::SensorModel::CSM
