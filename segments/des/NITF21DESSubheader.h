#pragma once

#include "NITFDESSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The DES subheader of NITF 2.1 (MIL-STD-2500C, table A-8; also NSIF 1.0).
class ORMO_CSM_API NITF21DESSubheader : public NITFDESSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF21DESSubheader(Input& aInput);
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

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
