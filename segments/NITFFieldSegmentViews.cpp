// The lists and maps that a header hands out, made when somebody asks for them.

#include "foundation/detail/OnFirstUse.h"
#include "segments/NITFFieldSegment.h"
#include "segments/detail/SegmentContents.h"

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::FieldTable;
using Detail::OnFirstUse;
using Detail::SegmentViews;

SegmentViews& NITFFieldSegment::Views() const
{
    return Detail::ViewsOf(m_views);
}

const std::vector<const char*>* NITFFieldSegment::GetAllFieldTags() const
{
    SegmentViews& views = Views();
    return OnFirstUse(views, views.tags, [this](std::vector<const char*>& aTags) {
        for (const FieldRow& row : GetFieldTable().Rows()) {
            if (row.IsField()) {
                aTags.push_back(row.tag);
            }
        }
    });
}

const std::vector<const char*>* NITFFieldSegment::GetAllFieldDescriptions() const
{
    SegmentViews& views = Views();
    return OnFirstUse(views, views.descriptions, [this](std::vector<const char*>& aTexts) {
        for (const FieldRow& row : GetFieldTable().Rows()) {
            if (row.IsField()) {
                aTexts.push_back(row.label);
            }
        }
    });
}

const std::vector<bool>* NITFFieldSegment::GetBinaryFieldList() const
{
    SegmentViews& views = Views();
    return OnFirstUse(views, views.binary, [this](std::vector<bool>& aFlags) {
        for (const FieldEntry& entry : m_contents->fields.Entries()) {
            aFlags.push_back(m_contents->fields.Row(entry).IsBinary());
        }
    });
}

const NITFStdDataSegment::FieldTexts* NITFFieldSegment::GetFieldEditabilityMap() const
{
    SegmentViews& views = Views();
    return OnFirstUse(views, views.editability, [this](FieldTexts& aMap) {
        const FieldTable& table = GetFieldTable();
        for (std::uint16_t row = 0; row != table.Size(); ++row) {
            if (table.Row(row).IsField()) {
                const bool editable = table.IsEditable(row);
                aMap.emplace(table.Row(row).tag,
                             editable ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE);
            }
        }
    });
}

bool NITFFieldSegment::GetFieldsMetadata(const FieldTexts*& aEditability, const FieldLengths*& aLengths,
                                         const FieldTypes*& aTypes, const std::vector<const char*>*& aDescriptions,
                                         const std::vector<const char*>*& aTags, int& aVersion) const
{
    SegmentViews& views = Views();
    aEditability = GetFieldEditabilityMap();
    aDescriptions = GetAllFieldDescriptions();
    aTags = GetAllFieldTags();
    aLengths = OnFirstUse(views, views.lengths, [this](FieldLengths& aMap) {
        for (const FieldRow& row : GetFieldTable().Rows()) {
            if (row.IsField()) {
                aMap[row.tag] = static_cast<int>(row.width);
            }
        }
    });
    aTypes = OnFirstUse(views, views.types, [this](FieldTypes& aMap) {
        for (const FieldRow& row : GetFieldTable().Rows()) {
            if (row.IsField()) {
                aMap[row.tag] = static_cast<NITFCnst::FieldType>(row.need);
            }
        }
    });
    const bool is20 = std::string_view(GetNITFVersion()) == NITFCnst::STR_NITF_0200;
    aVersion = is20 ? NITFCnst::NITF_VERSION_NUMBER_20 : NITFCnst::NITF_VERSION_NUMBER_21;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
