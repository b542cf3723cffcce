#pragma once

#include "NITFRESSubheader.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// The RES subheader of NITF 2.0 (MIL-STD-2500A).
class ORMO_CSM_API NITF20RESSubheader : public NITFRESSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says; the data are read from `aSource` later. A RES carries no
    /// TREs, so `aByteOrder` and `aSpecificOnly` say nothing. Raises ImageSupportDataConstructionException with all
    /// that was wrong.
    NITF20RESSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                       std::shared_ptr<const Detail::ByteSource> aSource, Util::CSMCnst::ByteOrder aByteOrder,
                       bool aSpecificOnly = false);
    NITF20RESSubheader(const NITF20RESSubheader& aOther) = default;
    using NITFRESSubheader::operator=;
    using NITFRESSubheader::operator==;
    using NITFRESSubheader::operator!=;
    NITF20RESSubheader& operator=(const NITF20RESSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20RESSubheader& aOther) const { return NITFRESSubheader::operator==(aOther); }
    bool operator!=(const NITF20RESSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
};

}  // namespace ORMO::SensorModel::CSM
