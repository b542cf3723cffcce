#pragma once

#include "../NITFDrawnSegment.h"
#include "NITF20LabelData.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// The subheader of one label segment of NITF 2.0 (MIL-STD-2500A, table XI), its text, and the metafile that the text
/// is made into.
class ORMO_CSM_API NITF20LabelSubheader : public NITFDrawnSegment
{
public:
    /// Made by the reader of files only.
    explicit NITF20LabelSubheader(Input& aInput);
    NITF20LabelSubheader(const NITF20LabelSubheader& aOther) = default;
    using NITFDrawnSegment::operator=;
    using NITFDrawnSegment::operator==;
    using NITFDrawnSegment::operator!=;
    NITF20LabelSubheader& operator=(const NITF20LabelSubheader& aOther)
    {
        Assign(aOther);
        return *this;
    }
    bool operator==(const NITF20LabelSubheader& aOther) const { return NITFDrawnSegment::operator==(aOther); }
    bool operator!=(const NITF20LabelSubheader& aOther) const { return !(*this == aOther); }

    /// Null when the text cannot be had. Owned by the segment and its copies.
    const NITF20LabelData* GetLabelData() const noexcept { return m_label.get(); }
    /// LXSOFL: the number, from 1, of the DES that carries what did not fit into LXSHD; 0 for none.
    unsigned long GetOverflowLabelExtendedSubheaderData() const noexcept;
    bool GetAllLabelSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
    {
        return GetAllTREs(aArray, aCount, aIncludeOverflow);
    }

    bool AppendSvg(std::string& aSvg) const override;

    /// The smallest and largest width of a field; false for an unknown tag. Widths given by another field are 0 to that
    /// field's largest value.
    static bool GetFieldLengths(const char* aTag, std::size_t& aSmallest, std::size_t& aLargest);
    static const Layout& GetLayout() noexcept;

protected:
    bool CloneObj(const NITFStdDataSegment& aOther) override;
    void Swap(NITFStdDataSegment& aOther) noexcept override;
    std::string DrawnElements(std::string_view aIndent) const override;

private:
    void InitNITF20LabelSubheader(Input& aInput);

    std::shared_ptr<const NITF20LabelData> m_label;
};

}  // namespace ORMO::SensorModel::CSM
