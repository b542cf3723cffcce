#include "tre/detail/RawFields.h"

#include "nitf/NITFCnst.h"
#include "tre/detail/TreHelp.h"

#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

RawNITFMetadataFields RawFieldsOf(const FieldRecord& aRecord)
{
    const FieldStore& store = aRecord.Store();
    RawNITFMetadataFields fields;
    for (const FieldEntry& entry : store.Entries()) {
        const FieldRow& row = store.Row(entry);
        RawNITFMetadataField field;
        field.tag = store.Name(entry);
        field.longName = row.label;
        field.type = NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need));
        field.declaredSize = static_cast<int>(row.HasFixedWidth() ? row.width : entry.length);
        field.editable = store.Table().IsEditable(entry.row);
        field.binary = row.IsBinary();
        field.description = *row.explanation == '\0' ? row.label : FieldHelp(row, field.tag, entry.length);
        fields.AddPresent(field, store.Value(entry));
    }
    return fields;
}

}  // namespace ORMO::SensorModel::CSM::Detail
