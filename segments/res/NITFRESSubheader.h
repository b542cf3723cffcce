#pragma once

#include "../NITFDataSegment.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

/// The subheader of one reserved extension segment. NITF20RESSubheader reads the layout that readers of NITF 2.0 files
/// agree on, NITF21RESSubheader MIL-STD-2500C (table A-9), which also serves NSIF 1.0.
class ORMO_CSM_API NITFRESSubheader : public NITFDataSegment
{
public:
    ~NITFRESSubheader() override;

    /// RESID without the blanks around it.
    std::string GetRESTypeID() const;
    /// RESDATA, read when first asked for; it belongs to the segment. False, with the reason appended to `aErrors` when
    /// that is given, when it is not all in the file.
    bool GetRESDATA(const char*& aData, std::size_t& aLength, std::string* aErrors = nullptr) const
    {
        return GetData(aData, aLength, aErrors);
    }

protected:
    NITFRESSubheader(const Layout& aLayout, Input& aInput);
    NITFRESSubheader(const NITFRESSubheader& aOther);

    using NITFDataSegment::operator=;
    void AppendDataElements(Document& aOut) const override;
    bool GetDataField(std::string_view aName, const char*& aValue, std::size_t& aLength) const override;
};

}  // namespace ORMO::SensorModel::CSM
