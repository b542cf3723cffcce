#pragma once

#include "../NITFDataSegment.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM {

/// The subheader of one image segment. NITF20ImageSubheader reads MIL-STD-2500A, NITF21ImageSubheader MIL-STD-2500C
/// (table A-3), which also serves NSIF 1.0.
class ORMO_CSM_API NITFImageSubheader : public NITFDataSegment
{
public:
    ~NITFImageSubheader() override;

    /// Position among the image segments of the file, from 0.
    int GetImageSegmentNumber() const noexcept { return GetSegmentNumber(); }
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
    bool AddImageSegmentTRE(TRE* aTre) { return AddTRE(aTre); }
    /// The subheader as raw metadata, built on demand; owned by the subheader.
    const RawNITFMetadataStdDataSegment* GetAllImageSegmentMetadata() const { return GetAllMetadata(); }

protected:
    NITFImageSubheader(const Layout& aLayout, Input& aInput);
    NITFImageSubheader(const NITFImageSubheader& aOther);

    using NITFDataSegment::operator=;
};

}  // namespace ORMO::SensorModel::CSM
