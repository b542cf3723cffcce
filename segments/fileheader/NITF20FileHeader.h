#pragma once

#include "NITFFileHeader.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM {

/// The file header of NITF 2.0 (MIL-STD-2500A).
class ORMO_CSM_API NITF20FileHeader : public NITFFileHeader
{
public:
    /// Reads a raw header of as many bytes as HL says. `aStreaming` tells that it was put together with the replacement
    /// of a STREAMING_FILE_HEADER DES. With `aSpecificOnly`, TREs without a typed form are left out. Raises
    /// ImageSupportDataConstructionException with all that was wrong.
    NITF20FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming = false,
                     bool aSpecificOnly = false);
    NITF20FileHeader(const NITF20FileHeader& aOther) = default;
    using NITFFileHeader::operator=;
    using NITFFileHeader::operator==;
    using NITFFileHeader::operator!=;
    NITF20FileHeader& operator=(const NITF20FileHeader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20FileHeader& aOther) const { return NITFFileHeader::operator==(aOther); }
    bool operator!=(const NITF20FileHeader& aOther) const { return !(*this == aOther); }

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    /// A new copy of a raw header; the caller frees it with delete[]. Null for null or no bytes.
    static char* CloneNITF20FileHeader(const char* aBytes, std::size_t aLength)
    {
        return CloneNITFFileHeader(aBytes, aLength);
    }
    static const Layout& GetLayout() noexcept;
    /// Made by the reader of files.
    explicit NITF20FileHeader(Input&& aInput);
};

}  // namespace ORMO::SensorModel::CSM
