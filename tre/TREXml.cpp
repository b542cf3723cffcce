// The XML element of a TRE.

#include "fields/FieldXml.h"
#include "fields/Xml.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "nitf/NITFCnst.h"
#include "tre/TREStore.h"
#include "tre/detail/TreParts.h"

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* ELEMENT_INDENT = "      ";
constexpr const char* CHILD_INDENT = "        ";

void AppendFields(const Detail::FieldStore& aStore, std::string& aXml)
{
    constexpr const char* FIELD = "TREField";
    std::size_t position = 0;
    for (const Detail::FieldEntry& entry : aStore.Entries()) {
        aXml += CHILD_INDENT;
        aXml += '<';
        aXml += FIELD;
        Detail::AppendFieldAttributes(aStore, entry, Detail::FieldNaming::PositionAndTag, ++position, aXml);
        const std::string_view value = aStore.Value(entry);
        Detail::AppendXmlValueAndEnd(FIELD, aStore.Row(entry).IsBinary() ? value : Detail::Trimmed(value), aXml);
    }
}

void AppendData(std::string_view aData, std::string& aXml)
{
    const bool text = Detail::IsXmlText(aData);
    aXml += CHILD_INDENT;
    aXml += "<DATA";
    Detail::AppendXmlAttribute("base64Encoded", text ? "F" : "T", aXml);
    Detail::AppendXmlAttribute("editable", "F", aXml);
    aXml += '>';
    if (text) {
        Detail::AppendXmlText(aData, aXml);
    } else {
        Util::CSMUtilString::AppendBase64(aData, aXml);
    }
    aXml += "</DATA>\n";
}

}  // namespace

std::string TRE::GetRootNode(const char* aClassification, int aIndex) const
{
    const bool marked = aClassification != nullptr && *aClassification != '\0';
    std::string tag(ELEMENT_INDENT);
    tag += "<TRE";
    Detail::AppendXmlAttribute("index", std::to_string(aIndex), tag);
    Detail::AppendXmlAttribute("type", GetTRETypeString(m_parts->type), tag);
    Detail::AppendXmlAttribute("tag", m_parts->tag, tag);
    Detail::AppendXmlAttribute("name", GetTREName(), tag);
    Detail::AppendXmlAttribute("length", std::to_string(GetLengthOfDataField()), tag);
    Detail::AppendXmlAttribute("classification", marked ? aClassification : NITFCnst::TRE_TYPE_UNKNOWN, tag);
    Detail::AppendXmlAttribute("registerGroup", GetTRERegisterGroup(), tag);
    tag += ">\n";
    return tag;
}

std::string TRE::Element(bool aFields, const char* aClassification, int aIndex) const
{
    std::string xml = GetRootNode(aClassification, aIndex);
    if (aFields && GetNumOfFields() != 0) {
        AppendFields(m_parts->fields->Store(), xml);
    } else {
        AppendData(m_parts->Data(), xml);
    }
    xml += ELEMENT_INDENT;
    xml += "</TRE>\n";
    return xml;
}

bool TRE::SerializeTRE(std::string& aXml, const char* aClassification, int aIndex) const
{
    aXml += Element(true, aClassification, aIndex);
    return true;
}

bool TRE::Serialize(char** aXml, const char* aClassification, int aIndex) const
{
    if (aXml == nullptr) {
        return false;
    }
    *aXml = nullptr;
    std::string xml;
    return SerializeTRE(xml, aClassification, aIndex) && Detail::HandOut(xml, aXml);
}

bool TRE::SerializeTREData(char** aXml, bool aFields, const char* aClassification, int aIndex) const
{
    if (aXml == nullptr) {
        return false;
    }
    *aXml = nullptr;
    return Detail::HandOut(Element(aFields, aClassification, aIndex), aXml);
}

bool TRE::SerializeTREs(char** aXml, const TREStore& aStore, const char* aClassification)
{
    if (aXml == nullptr) {
        return false;
    }
    *aXml = nullptr;
    std::string xml;
    int index = 0;
    for (const TRE* const tre : aStore.InOrder()) {
        tre->SerializeTRE(xml, aClassification, index++);
    }
    return Detail::HandOut(xml, aXml);
}

}  // namespace ORMO::SensorModel::CSM
