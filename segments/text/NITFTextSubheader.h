#pragma once

#include "../NITFDataSegment.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM {

/// The subheader of one text segment. NITF20TextSubheader reads MIL-STD-2500A, NITF21TextSubheader MIL-STD-2500C (table
/// A-6), which also serves NSIF 1.0.
class ORMO_CSM_API NITFTextSubheader : public NITFDataSegment
{
public:
    ~NITFTextSubheader() override;

    /// The text, read when first asked for; it belongs to the segment. False, with the reason appended to `aErrors`
    /// when that is given, when it is not all in the file.
    bool GetTextData(const char*& aData, std::size_t& aLength, std::string* aErrors = nullptr) const
    {
        return GetData(aData, aLength, aErrors);
    }
    /// TXTFMT without blanks: "MTF", "STA", "UT1", "U8S" or "OTH".
    std::string GetTextFormat() const;
    /// TXSOFL: the number, from 1, of the DES that carries what did not fit into TXSHD; 0 for none.
    unsigned long GetOverflowTextExtendedSubheaderData() const noexcept;
    bool GetAllTextSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }

protected:
    NITFTextSubheader(const Layout& aLayout, Input& aInput);
    NITFTextSubheader(const NITFTextSubheader& aOther);

    using NITFDataSegment::operator=;
    std::string DataFaultText() const override;
    void AppendDataElements(Document& aOut) const override;
};

}  // namespace ORMO::SensorModel::CSM
