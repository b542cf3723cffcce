#pragma once

#include "../NITFFieldSegment.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The file header of a NITF or NSIF file: identification, security, originator, lengths, and one table per segment
/// kind with the lengths of every subheader and data part. NITF20FileHeader reads MIL-STD-2500A, NITF21FileHeader
/// MIL-STD-2500C, which also serves NSIF 1.0.
class ORMO_CSM_API NITFFileHeader : public NITFFieldSegment
{
public:
    ~NITFFileHeader() override;

    const char* GetFileName() const noexcept { return m_fileName.c_str(); }
    /// The raw bytes, as many as HL says.
    const char* GetFileHeader(std::size_t& aLength) const noexcept { return GetRawHeader(aLength); }
    /// HL: bytes of the file header.
    std::uint64_t GetFileHeaderLength() const noexcept;
    /// FL: bytes of the file as the header states them; 0 when invalid.
    std::uint64_t GetFileLength() const noexcept { return m_fileLength; }
    NITFCnst::Version GetVersion() const noexcept;

    // The stored text of a field; null when it is not there.
    const char* GetFieldFTITLE() const noexcept { return GetFileHeaderField("FTITLE"); }
    const char* GetFieldValueFDT() const noexcept { return GetFileHeaderField("FDT"); }
    const char* GetFieldValueFHDR() const noexcept { return GetFileHeaderField("FHDR"); }
    const char* GetFileOriginatingStationID() const noexcept { return GetFileHeaderField("OSTAID"); }
    const char* GetFileOriginatorName() const noexcept { return GetFileHeaderField("ONAME"); }
    const char* GetFileOriginatorPhoneNumber() const noexcept { return GetFileHeaderField("OPHONE"); }
    const char* GetFileSecurityClassification() const noexcept { return GetFileHeaderField("FSCLAS"); }
    const char* GetFileHeaderField(const char* aTag) const noexcept;
    /// False when CLEVEL is no number.
    bool GetFieldValueCLEVEL(int& aLevel) const noexcept;
    /// The three bytes of FBKGC; false when they are not there.
    bool GetFileBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept;

    std::size_t GetNumOfImageSegments() const noexcept { return CountOf("IM"); }
    std::size_t GetNumOfTextSegments() const noexcept { return CountOf("TE"); }
    std::size_t GetNumOfDataExtensionSegments() const noexcept { return CountOf("DE"); }
    std::size_t GetNumOfReservedExtensionSegments() const noexcept { return CountOf("RE"); }
    /// Graphic segments in NITF 2.1, symbol and label segments in NITF 2.0; 0 for a kind of the other version.
    std::size_t GetNumOfVersionSpecificDataSegment(NITFCnst::DataSegmentType aKind) const noexcept;

    // The data and subheader lengths of all segments of a kind, in file order; the vectors are cleared first.
    bool GetImageSegmentsInfo(std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const;
    bool GetTextSegmentsInfo(std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const;
    bool GetDataExtensionSegmentsInfo(std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const;
    bool GetReservedExtensionSegmentsInfo(std::vector<std::uint64_t>& aData,
                                          std::vector<std::uint32_t>& aHeaders) const;
    bool GetVersionSpecificSegmentsInfo(NITFCnst::DataSegmentType aKind, std::vector<std::uint64_t>& aData,
                                        std::vector<std::uint32_t>& aHeaders) const;
    /// The length tables of all kinds, in the order in which the segments stand in the file.
    const std::vector<NITFSegmentLengths>& GetSegmentLengths() const noexcept { return m_lengths; }

    /// UDHOFL: the number, from 1, of the DES that carries what did not fit into UDHD; 0 for none.
    unsigned long GetOverflowUserDefinedHeaderData() const noexcept;
    /// The same for XHD.
    unsigned long GetOverflowExtendedHeaderData() const noexcept;
    /// All TREs of the header; the array is the caller's (DeleteTREPointerArray).
    bool GetAllFileHeaderTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }
    /// Takes the TRE over; false for null.
    bool AddNITFFileHeaderTRE(TRE* aTre) { return AddTRE(aTre); }

    /// Whether an RPFHDR among the TREs marks the file as raster product format.
    bool IsRPFFile() const noexcept { return m_isRPF; }
    /// The byte order of the raster product format data; unknown when the file is not RPF.
    Util::CSMCnst::ByteOrder GetRPFFileByteOrder() const noexcept { return m_rpfByteOrder; }
    /// Whether a STREAMING_FILE_HEADER DES replaced the first header.
    bool HasStreamingFileHeader() const noexcept { return m_streaming; }

    /// The header as raw metadata, built on demand; owned by the header.
    const RawNITFMetadataStdDataSegment* GetAllFileHeaderMetadata() const { return GetAllMetadata(); }
    /// Everything that the table says, as GetFieldsMetadata.
    bool GetFileHeaderFieldsMetadata(const FieldTexts*& aEditability, const FieldLengths*& aLengths,
                                     const FieldTypes*& aTypes, const std::vector<const char*>*& aDescriptions,
                                     const std::vector<const char*>*& aTags, int& aVersion) const
    {
        return GetFieldsMetadata(aEditability, aLengths, aTypes, aDescriptions, aTags, aVersion);
    }
    void FreeRawMetaDataObject() noexcept;

    /// Replaces the raw copy of the header; false for null or no bytes.
    bool CloneRawFileHeader(const char* aBytes, std::size_t aLength);

    const char* SerializeDataSegment(const char* aIndent) override;
    void AppendElement(Document& aOut, std::string_view aIndent, int aIndex) const override;
    /// A new text with the XML element; the caller frees it with CSMUtilString::DeleteCString.
    bool Serialize(char** aXml, std::size_t& aLength) const;

    /// A new copy of a raw header; the caller frees it with delete[]. Null for null or no bytes.
    static char* CloneNITFFileHeader(const char* aBytes, std::size_t aLength);

protected:
    /// Reads and checks everything. Raises ImageSupportDataConstructionException with all that was wrong.
    NITFFileHeader(const Layout& aLayout, Input& aInput);
    NITFFileHeader(const NITFFileHeader& aOther);

    using NITFFieldSegment::operator=;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;

    /// What the public constructors of the versions take, as one.
    static Input MakeInput(const char* aFileName, const char* aRaw, std::size_t aLength, const char* aVersionText,
                           bool aStreaming, bool aSpecificOnly);

private:
    std::size_t CountOf(const char* aType) const noexcept;
    const NITFSegmentLengths* LengthsOf(const char* aType) const noexcept;
    bool CopyLengths(const char* aType, std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const;
    bool CheckVersion() const;
    void CheckForTreRPFHDR();

    std::string m_fileName;
    std::uint64_t m_fileLength = 0;
    std::vector<NITFSegmentLengths> m_lengths;
    bool m_isRPF = false;
    bool m_streaming = false;
    Util::CSMCnst::ByteOrder m_rpfByteOrder = Util::CSMCnst::BYTE_ORDER_UNKNOWN;
    std::string m_xml;
};

}  // namespace ORMO::SensorModel::CSM
