#pragma once

#include "../NITFFieldSegment.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {

class RawNITFMetadata;
class RawNITFMetadataStdDataSegment;

/// The subheader of one image segment. NITF20ImageSubheader reads MIL-STD-2500A, NITF21ImageSubheader MIL-STD-2500C
/// (table A-3), which also serves NSIF 1.0.
class ORMO_CSM_API NITFImageSubheader : public NITFFieldSegment
{
public:
    ~NITFImageSubheader() override;

    /// Position among the image segments of the file, from 0.
    int GetImageSegmentNumber() const noexcept { return m_number; }
    /// The raw bytes of the subheader.
    const char* GetImageSubheader(long& aLength) const noexcept;
    /// The stored text of a field; null when it is not there.
    const char* GetImageSegmentField(const char* aTag) const noexcept;
    const char* GetImageSegmentSecurityClassification() const noexcept { return GetImageSegmentField("ISCLAS"); }
    /// NBANDS, or XBANDS when NBANDS is 0.
    unsigned long GetNumOfImageBands() const noexcept;
    /// UDOFL: the number, from 1, of the DES that carries what did not fit into UDID; 0 for none.
    unsigned long GetOverflowUserDefinedImageData() const noexcept;
    /// The same for IXSHD.
    unsigned long GetOverflowImageExtendedSubheaderData() const noexcept;
    /// All TREs of the image; the array is the caller's (DeleteTREPointerArray).
    bool GetAllImageSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }
    /// Takes the TRE over; false for null.
    bool AddImageSegmentTRE(TRE* aTre);
    /// The subheader as raw metadata, built on demand; owned by the subheader.
    const RawNITFMetadata* GetAllImageSegmentMetadata() const;

    const char* SerializeDataSegment(const char* aIndent) override;
    /// A new text with the XML element; the caller frees it with CSMUtilString::DeleteCString.
    bool Serialize(char** aXml, int aIndex, std::size_t* aLength) const;

protected:
    NITFImageSubheader(const char* aVersionText, const Detail::FieldTable& aTable);
    NITFImageSubheader(const NITFImageSubheader& aOther);

    using NITFFieldSegment::operator=;
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    std::string FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const override;

    /// Forgets what was read and takes the number. Raises ImageSupportDataConstructionException for a number above 999.
    void InitNITFImageSubheader(int aNumber);
    /// Checks what is to be read: a number below 999, a version that has image segments, 2 to 999999 bytes. Raises
    /// ImageSupportDataConstructionException otherwise; a copy of the text goes into `aErrors` when that is given.
    void InitNITFImageSegment(const char* aRaw, NITFCnst::Version aVersion, int aNumber, long aLength, char** aErrors);
    /// Reads the fields and the extension areas; raises ImageSupportDataConstructionException with all that was wrong.
    void ReadImageSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, bool aSpecificOnly,
                            Util::CSMCnst::ByteOrder aByteOrder, const char* aSource);

private:
    bool CloneRawNITFImageSubheader(const char* aRaw, long aLength);
    std::string Xml(const std::string& aIndent, int aIndex) const;

    int m_number = -1;
    std::string m_raw;
    std::string m_xml;
    mutable std::unique_ptr<RawNITFMetadataStdDataSegment> m_metadata;
};

}  // namespace ORMO::SensorModel::CSM
