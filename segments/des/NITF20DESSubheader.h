#pragma once

#include "NITFDESSubheader.h"

#include <cstddef>

namespace ORMO::SensorModel::CSM {

/// The DES subheader of NITF 2.0 (MIL-STD-2500A, table XVIII).
class ORMO_CSM_API NITF20DESSubheader : public NITFDESSubheader
{
public:
    /// Made by the reader of files only.
    explicit NITF20DESSubheader(Input& aInput);
    NITF20DESSubheader(const NITF20DESSubheader& aOther) = default;
    using NITFDESSubheader::operator=;
    using NITFDESSubheader::operator==;
    using NITFDESSubheader::operator!=;
    NITF20DESSubheader& operator=(const NITF20DESSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20DESSubheader& aOther) const { return NITFDESSubheader::operator==(aOther); }
    bool operator!=(const NITF20DESSubheader& aOther) const { return !(*this == aOther); }

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;
};

}  // namespace ORMO::SensorModel::CSM
