#include "tre/TRECatalogue.h"

#include "fields/FieldValue.h"
#include "fields/ValueRule.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreHelp.h"
#include "tre/detail/TreMaker.h"
#include "tre/groups/SupportedTreGroup.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

using Detail::FieldRow;
using Detail::FieldTable;
using Detail::RowKind;

namespace {

struct Found
{
    const SupportedTreGroup* group = nullptr;
    const Detail::TreEntry* entry = nullptr;
};

Found FindTag(const char* aTag)
{
    const std::string tag = Util::CSMUtilString::ToUpper(std::string(Detail::Trimmed(aTag)));
    for (const SupportedTreGroup* const group : SupportedTREs::GetGroups()) {
        const Detail::TreEntry* const entry = group->FindEntry(tag);
        if (entry != nullptr) {
            return {group, entry};
        }
    }
    return {};
}

std::string Adjusted(std::string_view aTag, std::int32_t aAdjust)
{
    std::string text(aTag);
    if (aAdjust != 0) {
        text += aAdjust < 0 ? " - " : " + ";
        text += std::to_string(aAdjust < 0 ? -aAdjust : aAdjust);
    }
    return text;
}

std::string WidthText(const FieldRow& aRow)
{
    if (aRow.width != 0) {
        return std::to_string(aRow.width) + (aRow.width == 1 ? " byte" : " bytes");
    }
    if (aRow.count != nullptr && aRow.sizeTag != nullptr) {
        return std::string("width by ") + aRow.sizeTag;
    }
    if (aRow.sizeTag != nullptr) {
        return Adjusted(aRow.sizeTag, aRow.sizeAdjust) + " bytes";
    }
    return aRow.rest ? "all bytes left" : "computed width";
}

/// What a mark says, as a person would put it.
std::string MarkText(const FieldRow& aRow)
{
    if (aRow.kind == RowKind::Repeat && aRow.rest) {
        return "repeat to the end of the data:";
    }
    if (aRow.kind == RowKind::Repeat) {
        return "repeat " +
               (aRow.number != 0        ? std::to_string(aRow.number)
                : aRow.count != nullptr ? std::string(aRow.label)
                                        : Adjusted(aRow.tag, aRow.sizeAdjust)) +
               " times:";
    }
    const std::string tag(aRow.tag);
    switch (aRow.test) {
        case Detail::Test::IsOneOf:
            return "when " + tag + " is " + aRow.values + ":";
        case Detail::Test::IsNoneOf:
            return "when " + tag + " is not " + aRow.values + ":";
        case Detail::Test::Filled:
            return "when " + tag + " is filled:";
        case Detail::Test::Positive:
            return "when " + tag + " is above 0:";
        case Detail::Test::AtLeast:
            return "when " + tag + " is at least " + std::to_string(aRow.number) + ":";
        case Detail::Test::AnyBit: {
            std::string bits;
            for (unsigned bit = 0; bit != 64; ++bit) {
                if (((aRow.number >> bit) & 1U) != 0) {
                    bits += (bits.empty() ? "" : " or ") + std::to_string(bit);
                }
            }
            return "when " + tag + " has bit " + bits + " set:";
        }
        default:
            return std::string("when ") + aRow.label + ":";
    }
}

/// The alternatives of a value rule, one line each when they carry meanings.
std::string ValuesText(const char* aValues)
{
    std::string text;
    std::string_view rest(aValues);
    while (!rest.empty()) {
        const std::string_view alternative = Detail::NextAlternative(rest);
        const auto mark = alternative.find('=', 1);
        text += text.empty() ? "" : "; ";
        text += alternative.substr(0, mark);
        if (mark != std::string_view::npos) {
            text += " (";
            text += alternative.substr(mark + 1);
            text += ')';
        }
    }
    return text;
}

/// What is known of a layout: its rows, indented as they nest, with the values where they are a list, and its sources.
void AppendLayout(const Detail::TreLayout& aLayout, std::string& aText)
{
    aText += Detail::LayoutHelp(aLayout) + "\nFields:\n";
    std::string indent = "  ";
    for (const FieldRow& row : aLayout.table.Rows()) {
        if (row.kind == RowKind::End) {
            indent.resize(indent.size() - 2);
        } else if (row.IsGroup()) {
            aText += indent + MarkText(row) + '\n';
            indent += "  ";
        } else {
            aText += indent + row.tag + "  " + row.label + " [" + WidthText(row) + ", " + Detail::NeedLetter(row.need);
            aText += *row.unit == '\0' ? "]\n" : std::string(", ") + row.unit + "]\n";
            if (std::string_view(row.values).find_first_of("=|", 1) != std::string_view::npos) {
                aText += indent + "    " + ValuesText(row.values) + '\n';
            }
        }
    }
    aText += '\n' + Detail::SourcesHelp(aLayout);
}

}  // namespace

std::vector<TRECatalogue::Tag> TRECatalogue::GetAllTags()
{
    std::vector<Tag> tags;
    for (const SupportedTreGroup* const group : SupportedTREs::GetGroups()) {
        std::size_t count = 0;
        const Detail::TreEntry* const entries = group->GetEntries(count);
        for (std::size_t i = 0; i != count; ++i) {
            tags.push_back({entries[i].tag, entries[i].IsTyped() ? entries[i].layout().name : "",
                            group->GetDescription(), entries[i].IsTyped()});
        }
    }
    return tags;
}

bool TRECatalogue::DescribeTag(const char* aTag, std::string& aText)
{
    const Found found = FindTag(aTag);
    if (found.entry == nullptr) {
        return false;
    }
    const bool registered = found.entry->type == TRE::TRE_TYPE_REGISTERED_EXTENSION;
    if (!found.entry->IsTyped()) {
        aText = registered ? "[Registered Extension]" : "[Controlled Extension]";
        aText += std::string("\nTagged Record Extension ") + found.entry->tag + ".\nThis TRE belongs to the " +
                 found.group->GetDescription() +
                 " TRE Group.\n\nIts layout is not known here: it is kept as its bytes.\n";
        return true;
    }
    const Detail::TreLayout& layout = found.entry->layout();
    aText = Detail::TagHead(layout, found.entry->tag, registered, found.group->GetDescription());
    AppendLayout(layout, aText);
    for (const Detail::TreLayout* other = layout.other; other != nullptr; other = other->other) {
        aText += "\nAnother layout, which the length of the record tells:\n\n";
        AppendLayout(*other, aText);
    }
    return true;
}

bool TRECatalogue::DescribeField(const char* aTag, const char* aField, std::string& aText)
{
    const Found found = FindTag(aTag);
    if (found.entry == nullptr || !found.entry->IsTyped()) {
        return false;
    }
    const FieldTable& table = found.entry->layout().table;
    const std::string field = Util::CSMUtilString::ToUpper(std::string(Detail::Trimmed(aField)));
    Detail::Turns turns{};
    std::uint16_t index = table.Resolve(field, turns);
    index = index == Detail::NO_ROW ? table.FindAny(field) : index;
    if (index == Detail::NO_ROW) {
        return false;
    }
    const FieldRow& row = table.Row(index);
    aText = Detail::FieldHelp(row, row.tag, row.width) + '\n';
    if (row.width == 0) {
        aText += "Width: " + WidthText(row) + ".\n";
    }
    if (*row.unit != '\0') {
        aText += std::string("Unit: ") + row.unit + ".\n";
    }
    if (*row.values != '\0') {
        aText += "Values: " + ValuesText(row.values) + ".\n";
    }
    if (row.alias != nullptr) {
        aText += std::string("Also spelled ") + row.alias + ".\n";
    }
    return true;
}

std::vector<TreDetailedInfo> TRECatalogue::GetFields(const char* aTag)
{
    std::vector<TreDetailedInfo> fields;
    const Found found = FindTag(aTag);
    if (found.entry == nullptr || !found.entry->IsTyped()) {
        return fields;
    }
    for (const FieldRow& row : found.entry->layout().table.Rows()) {
        if (row.IsField()) {
            fields.push_back(Detail::FieldInfo(row, row.tag, row.width));
        }
    }
    return fields;
}

}  // namespace ORMO::SensorModel::CSM
