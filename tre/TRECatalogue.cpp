#include "tre/TRECatalogue.h"

#include "fields/FieldValue.h"
#include "fields/RowHelp.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreHelp.h"
#include "tre/detail/TreMaker.h"
#include "tre/groups/SupportedTreGroup.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

using Detail::FieldRow;

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

/// What is known of a layout: its rows, indented as they nest, with the values where they are a list, and its sources.
void AppendLayout(const Detail::TreLayout& aLayout, std::string& aText)
{
    aText += Detail::LayoutHelp(aLayout) + "\nFields:\n";
    Detail::AppendRowList(aLayout.table, aText);
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
    for (const Detail::TreLayout* layout = &found.entry->layout(); layout != nullptr; layout = layout->other) {
        if (const FieldRow* const row = Detail::FindRow(layout->table, Detail::Trimmed(aField)); row != nullptr) {
            aText = Detail::FieldHelp(*row, row->tag, row->width) + '\n';
            Detail::AppendRowDetails(*row, aText);
            return true;
        }
    }
    return false;
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
