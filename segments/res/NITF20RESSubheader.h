#pragma once

#include "NITFRESSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The RES subheader of NITF 2.0 (MIL-STD-2500A).
class ORMO_CSM_API NITF20RESSubheader : public NITFRESSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF20RESSubheader(Input& aInput);
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

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
