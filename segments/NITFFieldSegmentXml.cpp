// The XML of a header's fields and TREs.

#include "fields/FieldStore.h"
#include "fields/Xml.h"
#include "foundation/CSMUtilString.h"
#include "segments/NITFFieldSegment.h"
#include "segments/SegmentContents.h"

#include <memory>

namespace ORMO::SensorModel::CSM {

void NITFFieldSegment::AppendFieldElements(std::string& aXml) const
{
    const Detail::FieldStore& fields = Contents().fields;
    const Detail::SegmentWords& words = Words();
    std::string name;
    for (const Detail::FieldEntry& entry : fields.Entries()) {
        const Detail::FieldRow& row = fields.Row(entry);
        name.clear();
        fields.AppendName(entry, name);
        aXml += words.indent;
        aXml += '<';
        aXml += words.element;
        Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_FIELD, name, aXml);
        Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_NAME, row.label, aXml);
        Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_SIZE, std::to_string(entry.length), aXml);
        Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_TYPE,
                                   NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need)), aXml);
        Detail::AppendXmlAttribute(
            NITFCnst::XML_ATTR_EDITABLE,
            fields.Table().IsEditable(entry.row) ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE,
            aXml);
        Detail::AppendXmlValueAndEnd(words.element, fields.Value(entry), aXml);
    }
}

void NITFFieldSegment::AppendTREElements(std::string& aXml, const char* aClassification) const
{
    const std::size_t total = GetTREStore().Size() + GetOverflowTREStore().Size();
    if (total == 0) {
        return;
    }
    aXml += "    <TREs total=\"" + std::to_string(total) + "\">\n";
    int index = 0;
    for (const TREStore* const store : {&GetTREStore(), &GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            tre->AppendXml(aXml, aClassification, index++);
        }
    }
    aXml += "    </TREs>\n";
}

}  // namespace ORMO::SensorModel::CSM
