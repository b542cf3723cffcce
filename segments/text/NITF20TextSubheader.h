#pragma once

#include "NITFTextSubheader.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// The text subheader of NITF 2.0 (MIL-STD-2500A).
class ORMO_CSM_API NITF20TextSubheader : public NITFTextSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says; the text is read from `aSource` later. `aByteOrder` is
    /// that of binary TRE fields. With `aSpecificOnly`, TREs without a typed form are left out. Raises
    /// ImageSupportDataConstructionException with all that was wrong.
    NITF20TextSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                        std::shared_ptr<const Detail::ByteSource> aSource, Util::CSMCnst::ByteOrder aByteOrder,
                        bool aSpecificOnly = false);
    NITF20TextSubheader(const NITF20TextSubheader& aOther) = default;
    using NITFTextSubheader::operator=;
    using NITFTextSubheader::operator==;
    using NITFTextSubheader::operator!=;
    NITF20TextSubheader& operator=(const NITF20TextSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20TextSubheader& aOther) const { return NITFTextSubheader::operator==(aOther); }
    bool operator!=(const NITF20TextSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
};

}  // namespace ORMO::SensorModel::CSM
