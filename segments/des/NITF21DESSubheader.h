#pragma once

#include "NITFDESSubheader.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// The DES subheader of NITF 2.1 (MIL-STD-2500C, table A-8; also NSIF 1.0).
class ORMO_CSM_API NITF21DESSubheader : public NITFDESSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says; the data are read from `aSource`, those of an overflow DES
    /// at once and all others later. `aByteOrder` is that of binary TRE fields. With `aSpecificOnly`, TREs without a
    /// typed form are left out. Raises ImageSupportDataConstructionException with all that was wrong.
    NITF21DESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                       std::shared_ptr<const Detail::ByteSource> aSource, Util::CSMCnst::ByteOrder aByteOrder,
                       bool aSpecificOnly = false);
    NITF21DESSubheader(const NITF21DESSubheader& aOther) = default;
    using NITFDESSubheader::operator=;
    using NITFDESSubheader::operator==;
    using NITFDESSubheader::operator!=;
    NITF21DESSubheader& operator=(const NITF21DESSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF21DESSubheader& aOther) const { return NITFDESSubheader::operator==(aOther); }
    bool operator!=(const NITF21DESSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
    bool IsNITF20() const noexcept override { return false; }
    bool IsOverflowType(std::string_view aType) const noexcept override;
};

}  // namespace ORMO::SensorModel::CSM
