// The lists and maps that a header hands out, made when somebody asks for them.

#include "segments/NITFFieldSegment.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentLayout.h"

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::FieldTable;

namespace {

/// One element of a list for each field of a table.
template<typename List, typename Add>
List ForEachField(const FieldTable& aTable, Add aAdd)
{
    List list;
    for (std::uint16_t row = 0; row != aTable.Size(); ++row) {
        if (aTable.Row(row).IsField()) {
            aAdd(list, aTable.Row(row), row);
        }
    }
    return list;
}

}  // namespace

const std::vector<const char*>* NITFFieldSegment::GetAllFieldTags() const
{
    return &m_parts->tags.Get([this] {
        return ForEachField<std::vector<const char*>>(
            m_parts->layout->table, [](auto& aList, const FieldRow& aRow, auto) { aList.push_back(aRow.tag); });
    });
}

const std::vector<const char*>* NITFFieldSegment::GetAllFieldDescriptions() const
{
    return &m_parts->descriptions.Get([this] {
        return ForEachField<std::vector<const char*>>(
            m_parts->layout->table, [](auto& aList, const FieldRow& aRow, auto) { aList.push_back(aRow.label); });
    });
}

const std::vector<bool>* NITFFieldSegment::GetBinaryFieldList() const
{
    return &m_parts->binary.Get([this] {
        std::vector<bool> flags;
        const Detail::FieldStore& fields = m_parts->record.Store();
        for (const FieldEntry& entry : fields.Entries()) {
            flags.push_back(fields.Row(entry).IsBinary());
        }
        return flags;
    });
}

const NITFStdDataSegment::FieldTexts* NITFFieldSegment::GetFieldEditabilityMap() const
{
    return &m_parts->editability.Get([this] {
        const FieldTable& table = m_parts->layout->table;
        return ForEachField<FieldTexts>(table, [&table](auto& aMap, const FieldRow& aRow, std::uint16_t aPlace) {
            aMap.emplace(aRow.tag,
                         table.IsEditable(aPlace) ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE);
        });
    });
}

bool NITFFieldSegment::GetFieldsMetadata(const FieldTexts*& aEditability, const FieldLengths*& aLengths,
                                         const FieldTypes*& aTypes, const std::vector<const char*>*& aDescriptions,
                                         const std::vector<const char*>*& aTags, int& aVersion) const
{
    aEditability = GetFieldEditabilityMap();
    aDescriptions = GetAllFieldDescriptions();
    aTags = GetAllFieldTags();
    aLengths = &m_parts->lengths.Get([this] {
        return ForEachField<FieldLengths>(m_parts->layout->table, [](auto& aMap, const FieldRow& aRow, auto) {
            aMap[aRow.tag] = static_cast<int>(aRow.width);
        });
    });
    aTypes = &m_parts->types.Get([this] {
        return ForEachField<FieldTypes>(m_parts->layout->table, [](auto& aMap, const FieldRow& aRow, auto) {
            aMap[aRow.tag] = static_cast<NITFCnst::FieldType>(aRow.need);
        });
    });
    aVersion = m_parts->layout->kind->version;
    return true;
}

}  // namespace ORMO::SensorModel::CSM
