#pragma once

#include "NITFImageSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The image subheader of NITF 2.1 (MIL-STD-2500C, table A-3; also NSIF 1.0).
class ORMO_CSM_API NITF21ImageSubheader : public NITFImageSubheader
{
public:
    /// Reads a raw subheader that stands where `aInfo` says. `aByteOrder` is that of binary TRE fields. With
    /// `aSpecificOnly`, TREs without a typed form are left out. Raises ImageSupportDataConstructionException with all
    /// that was wrong.
    NITF21ImageSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo, const char* aVersionText,
                         Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly = false);
    NITF21ImageSubheader(const NITF21ImageSubheader& aOther) = default;
    using NITFImageSubheader::operator=;
    using NITFImageSubheader::operator==;
    using NITFImageSubheader::operator!=;
    NITF21ImageSubheader& operator=(const NITF21ImageSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF21ImageSubheader& aOther) const { return NITFImageSubheader::operator==(aOther); }
    bool operator!=(const NITF21ImageSubheader& aOther) const { return !(*this == aOther); }

    static const Detail::FieldTable& Table() noexcept;
    /// The smallest and largest width of a field; false for an unknown tag.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);

protected:
    const Detail::SegmentWords& Words() const override;
};

}  // namespace ORMO::SensorModel::CSM
