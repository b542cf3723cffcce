#include "segments/NITFHeaderCatalogue.h"

#include "fields/RowHelp.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

using Detail::FieldRow;

namespace {

/// "NITF 2.1 and NSIF 1.0 image subheader"
std::string TitleOf(const NITFFieldSegment::Layout& aLayout)
{
    const bool is20 = aLayout.kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
    const bool isFile = aLayout.kind->kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
    return std::string(is20 ? "NITF 2.0" : "NITF 2.1 and NSIF 1.0") + ' ' +
           (isFile ? "file header" : aLayout.kind->word + std::string(" subheader"));
}

const char* NeedText(Detail::Need aNeed) noexcept
{
    switch (aNeed) {
        case Detail::Need::Conditional:
            return "stands when its condition is met";
        case Detail::Need::ConditionalBlank:
            return "stands when its condition is met, may be blank";
        case Detail::Need::RequiredBlank:
            return "always stands, may be blank";
        case Detail::Need::Optional:
            return "optional";
        default:
            return "always stands";
    }
}

}  // namespace

std::vector<std::string> NITFHeaderCatalogue::GetFieldNames(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion)
{
    std::vector<std::string> names;
    if (const NITFFieldSegment::Layout* const layout = Detail::LayoutOf(aKind, aVersion); layout != nullptr) {
        for (const FieldRow& row : layout->table.Rows()) {
            if (row.IsField()) {
                names.emplace_back(row.tag);
            }
        }
    }
    return names;
}

bool NITFHeaderCatalogue::DescribeHeader(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion,
                                         std::string& aText)
{
    const NITFFieldSegment::Layout* const layout = Detail::LayoutOf(aKind, aVersion);
    if (layout == nullptr) {
        return false;
    }
    aText = TitleOf(*layout) + "\n\nFields:\n";
    Detail::AppendRowList(layout->table, aText);
    return true;
}

bool NITFHeaderCatalogue::DescribeField(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion, const char* aField,
                                        std::string& aText)
{
    const NITFFieldSegment::Layout* const layout = Detail::LayoutOf(aKind, aVersion);
    const FieldRow* const row = layout == nullptr ? nullptr : Detail::FindRow(layout->table, Detail::Trimmed(aField));
    if (row == nullptr) {
        return false;
    }
    aText = std::string(row->tag) + " (" + TitleOf(*layout) + "): " + row->label + ".\n";
    aText += *row->explanation == '\0' ? "" : std::string(row->explanation) + '\n';
    aText += (row->width == 0 ? "" : Detail::WidthText(*row) + ", ") + NeedText(row->need) + ".\n";
    Detail::AppendRowDetails(*row, aText);
    return true;
}

const char* NITFHeaderCatalogue::GetValueRule(const NITFFieldSegment& aSegment, std::string_view aField) noexcept
{
    const Detail::FieldTable& table = aSegment.Inside().layout->table;
    Detail::Turns turns{};
    const std::uint16_t row = table.Resolve(aField, turns);
    return row == Detail::NO_ROW ? "" : table.Row(row).values;
}

}  // namespace ORMO::SensorModel::CSM
