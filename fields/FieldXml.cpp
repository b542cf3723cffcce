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
    const bool byPosition = aNaming == FieldNaming::PositionAndTag;
    AppendXmlAttribute(NITFCnst::XML_ATTR_FIELD, byPosition ? std::to_string(aPosition) : tag, aXml);
    AppendXmlAttribute(NITFCnst::XML_ATTR_NAME, byPosition ? tag.c_str() : row.label, aXml);
    AppendXmlAttribute(NITFCnst::XML_ATTR_SIZE, std::to_string(aEntry.length), aXml);
    AppendXmlAttribute(NITFCnst::XML_ATTR_TYPE,
                       NITFCnst::GetFieldTypeForDisplay(static_cast<NITFCnst::FieldType>(row.need)), aXml);
    AppendXmlAttribute(
        NITFCnst::XML_ATTR_EDITABLE,
        aFields.Table().IsEditable(aEntry.row) ? NITFCnst::NITF_FIELD_VALUE_TRUE : NITFCnst::NITF_FIELD_VALUE_FALSE,
        aXml);
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
