#pragma once

#include "NITFFileHeader.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM {

/// The file header of NITF 2.1 (MIL-STD-2500C; also NSIF 1.0).
class ORMO_CSM_API NITF21FileHeader : public NITFFileHeader
{
public:
    /// Reads a raw header of as many bytes as HL says. `aStreaming` tells that it was put together with the replacement
    /// of a STREAMING_FILE_HEADER DES. With `aSpecificOnly`, TREs without a typed form are left out. Raises
    /// ImageSupportDataConstructionException with all that was wrong.
    NITF21FileHeader(const char* aFileName, const char* aRaw, std::size_t aLength, bool aStreaming = false,
                     bool aSpecificOnly = false);
    NITF21FileHeader(const NITF21FileHeader& aOther) = default;
    using NITFFileHeader::operator=;
    using NITFFileHeader::operator==;
    using NITFFileHeader::operator!=;
    NITF21FileHeader& operator=(const NITF21FileHeader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF21FileHeader& aOther) const { return NITFFileHeader::operator==(aOther); }
    bool operator!=(const NITF21FileHeader& aOther) const { return !(*this == aOther); }

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    /// FVER.
    const char* GetFieldValueFVER() const noexcept { return GetFileHeaderField("FVER"); }
    static const Layout& GetLayout() noexcept;
    /// Made by the reader of files.
    explicit NITF21FileHeader(Input&& aInput);
};

}  // namespace ORMO::SensorModel::CSM
