#pragma once

#include "NITFImageSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The image subheader of NITF 2.1 (MIL-STD-2500C, table A-3; also NSIF 1.0).
class ORMO_CSM_API NITF21ImageSubheader : public NITFImageSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF21ImageSubheader(Input& aInput);
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

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
