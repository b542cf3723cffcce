#pragma once

#include "fields/Xml.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

struct XmlAttribute
{
    std::string_view name;
    std::string_view value;
};

/// Writes the XML elements of symbols and labels, one a line, each behind its indent.
class DrawingXml
{
public:
    explicit DrawingXml(std::string_view aIndent) : m_indent(aIndent) {}

    void Open(std::string_view aElement, std::initializer_list<XmlAttribute> aAttributes = {})
    {
        Start(aElement, aAttributes);
        m_xml += ">\n";
        m_indent += "  ";
    }
    void Close(std::string_view aElement)
    {
        m_indent.resize(m_indent.size() - 2);
        m_xml.append(m_indent).append("</").append(aElement).append(">\n");
    }
    void Text(std::string_view aElement, std::string_view aText, std::initializer_list<XmlAttribute> aAttributes = {})
    {
        Start(aElement, aAttributes);
        AppendXmlValueAndEnd(aElement, aText, m_xml);
    }

    const std::string& Xml() const noexcept { return m_xml; }

private:
    void Start(std::string_view aElement, std::initializer_list<XmlAttribute> aAttributes)
    {
        m_xml.append(m_indent).append("<").append(aElement);
        for (const XmlAttribute& attribute : aAttributes) {
            AppendXmlAttribute(attribute.name, attribute.value, m_xml);
        }
    }

    std::string m_indent;
    std::string m_xml;
};

/// Numbers with a blank between them.
template<typename... Numbers>
std::string NumberList(Numbers... aNumbers)
{
    std::string list;
    ((list += (list.empty() ? "" : " ") + std::to_string(aNumbers)), ...);
    return list;
}

}  // namespace ORMO::SensorModel::CSM::Detail
