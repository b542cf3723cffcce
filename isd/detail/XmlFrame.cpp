#include "isd/detail/XmlFrame.h"

#include "foundation/CSMCnst.h"
#include "nitf/NITFCnst.h"

namespace ORMO::SensorModel::CSM::Detail {

void OpenDocument(std::string& aXml, std::string_view aRoot, std::string_view aSchema, std::string_view aVersion)
{
    aXml.append(Util::CSMCnst::XML_VERSION_STR).append("\n<").append(aRoot);
    aXml.append("\n  ").append(NITFCnst::XML_ATTR_XMLNS).append("=\"").append(NITFCnst::XML_NAMESPACE);
    aXml.append("\"\n  ").append(NITFCnst::XML_ATTR_XMLNS_XSD).append("=\"");
    aXml.append(NITFCnst::XML_NAMESPACE_SCHEMA_INSTANCE);
    aXml.append("\"\n  ").append(NITFCnst::XML_ATTR_SCHEMA_LOCATION).append("=\"").append(NITFCnst::XML_NAMESPACE);
    aXml.append(" ").append(NITFCnst::XML_SCHEMA_BASE).append(aSchema);
    aXml.append("\"\n  ").append(NITFCnst::XML_ATTR_VERSION).append("=\"").append(aVersion).append("\">\n");
}

void CloseDocument(std::string& aXml, std::string_view aRoot)
{
    aXml.append("</").append(aRoot).append(">\n");
}

}  // namespace ORMO::SensorModel::CSM::Detail
