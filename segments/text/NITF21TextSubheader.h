#pragma once

#include "NITFTextSubheader.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// The text subheader of NITF 2.1 (MIL-STD-2500C, table A-6; also NSIF 1.0).
class ORMO_CSM_API NITF21TextSubheader : public NITFTextSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says; the text is read from `aSource` later. `aByteOrder` is
    /// that of binary TRE fields. With `aSpecificOnly`, TREs without a typed form are left out. Raises
    /// ImageSupportDataConstructionException with all that was wrong.
    NITF21TextSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                        std::shared_ptr<const Detail::ByteSource> aSource, Util::CSMCnst::ByteOrder aByteOrder,
                        bool aSpecificOnly = false);
    NITF21TextSubheader(const NITF21TextSubheader& aOther) = default;
    using NITFTextSubheader::operator=;
    using NITFTextSubheader::operator==;
    using NITFTextSubheader::operator!=;
    NITF21TextSubheader& operator=(const NITF21TextSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF21TextSubheader& aOther) const { return NITFTextSubheader::operator==(aOther); }
    bool operator!=(const NITF21TextSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
};

}  // namespace ORMO::SensorModel::CSM
