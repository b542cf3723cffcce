#pragma once

#include "NITFTextSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The text subheader of NITF 2.1 (MIL-STD-2500C, table A-6; also NSIF 1.0).
class ORMO_CSM_API NITF21TextSubheader : public NITFTextSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF21TextSubheader(Input& aInput);
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

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
