#include "fields/FieldXml.h"

#include "fields/Xml.h"
#include "nitf/NITFCnst.h"

namespace ORMO::SensorModel::CSM::Detail {

void AppendFieldAttributes(const FieldStore& aFields, const FieldEntry& aEntry, FieldNaming aNaming,
                           std::size_t aPosition, std::string& aXml)
{
    const FieldRow& row = aFields.Row(aEntry);
    std::string tag;
    aFields.AppendName(aEntry, tag);
    if (aNaming == FieldNaming::TagAndLongName) {
        AppendXmlAttribute(NITFCnst::XML_ATTR_FIELD, tag, aXml);
        AppendXmlAttribute(NITFCnst::XML_ATTR_NAME, row.label, aXml);
    } else {
        AppendXmlAttribute(NITFCnst::XML_ATTR_FIELD, aPosition, aXml);
        AppendXmlAttribute(NITFCnst::XML_ATTR_NAME, tag, aXml);
    }
    AppendXmlAttribute(NITFCnst::XML_ATTR_SIZE, aEntry.length, aXml);
    AppendXmlAttribute(NITFCnst::XML_ATTR_TYPE,
                       NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need)), aXml);
    AppendXmlAttribute(
        NITFCnst::XML_ATTR_EDITABLE,
        aFields.Table().IsEditable(aEntry.row) ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE,
        aXml);
    if (aNaming == FieldNaming::PositionTagAndLongName) {
        AppendXmlAttribute(NITFCnst::XML_ATTR_LONG_NAME, row.label, aXml);
    }
}

void AppendFieldElement(const FieldStore& aFields, const FieldEntry& aEntry, FieldNaming aNaming, std::size_t aPosition,
                        const char* aIndent, const char* aElement, std::string& aXml)
{
    aXml += aIndent;
    aXml += '<';
    aXml += aElement;
    AppendFieldAttributes(aFields, aEntry, aNaming, aPosition, aXml);
    AppendXmlValueAndEnd(aElement, aFields.Value(aEntry), aXml);
}

}  // namespace ORMO::SensorModel::CSM::Detail
