#pragma once

#include "NITFImageSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The image subheader of NITF 2.0 (MIL-STD-2500A).
class ORMO_CSM_API NITF20ImageSubheader : public NITFImageSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF20ImageSubheader(Input& aInput);
    NITF20ImageSubheader(const NITF20ImageSubheader& aOther) = default;
    using NITFImageSubheader::operator=;
    using NITFImageSubheader::operator==;
    using NITFImageSubheader::operator!=;
    NITF20ImageSubheader& operator=(const NITF20ImageSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20ImageSubheader& aOther) const { return NITFImageSubheader::operator==(aOther); }
    bool operator!=(const NITF20ImageSubheader& aOther) const { return !(*this == aOther); }

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
