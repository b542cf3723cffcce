#pragma once

#include "NITFDESSubheader.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// The DES subheader of NITF 2.0 (MIL-STD-2500A, table XVIII).
class ORMO_CSM_API NITF20DESSubheader : public NITFDESSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says; the data are read from `aSource`, those of an overflow DES
    /// at once and all others later. `aByteOrder` is that of binary TRE fields. With `aSpecificOnly`, TREs without a
    /// typed form are left out. Raises ImageSupportDataConstructionException with all that was wrong.
    NITF20DESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                       std::shared_ptr<const Detail::ByteSource> aSource, Util::CSMCnst::ByteOrder aByteOrder,
                       bool aSpecificOnly = false);
    NITF20DESSubheader(const NITF20DESSubheader& aOther) = default;
    using NITFDESSubheader::operator=;
    using NITFDESSubheader::operator==;
    using NITFDESSubheader::operator!=;
    NITF20DESSubheader& operator=(const NITF20DESSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20DESSubheader& aOther) const { return NITFDESSubheader::operator==(aOther); }
    bool operator!=(const NITF20DESSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
    bool IsNITF20() const noexcept override { return true; }
    bool IsOverflowType(std::string_view aType) const noexcept override;
};

}  // namespace ORMO::SensorModel::CSM
