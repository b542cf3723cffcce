// The documents of a NITF file: all of it as XML, and the validation summary.

#include "fields/Xml.h"
#include "foundation/CSMCnst.h"
#include "isd/ImageSupportDataNITF.h"

#include <exception>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::string_view SCHEMA_INSTANCE = "http://www.w3.org/2001/XMLSchema-instance";
constexpr std::string_view SCHEMA_BASE = "http://ormo.example/schemas";

/// The declaration and a root start tag over five lines.
void OpenDocument(std::string& aXml, std::string_view aRoot, std::string_view aSchema, std::string_view aVersion)
{
    aXml += Util::CSMCnst::XML_VERSION_STR;
    aXml += "\n<";
    aXml += aRoot;
    aXml += "\n  xmlns=\"ORMO\"\n  xmlns:xsd=\"";
    aXml += SCHEMA_INSTANCE;
    aXml += "\"\n  xsd:schemaLocation=\"ORMO ";
    aXml += SCHEMA_BASE;
    aXml += aSchema;
    aXml += "\"\n  version=\"";
    aXml += aVersion;
    aXml += "\">\n";
}

void CloseDocument(std::string& aXml, std::string_view aRoot)
{
    aXml += "</";
    aXml += aRoot;
    aXml += ">\n";
}

void AppendSummary(std::string& aXml, std::string_view aKind, std::string_view aText)
{
    aXml += "  <Summary";
    Detail::AppendXmlAttribute("type", aKind, aXml);
    aXml += ">\n";
    std::string_view rest = aText;
    while (!rest.empty()) {
        const auto end = rest.find('\n');
        const std::string_view line = rest.substr(0, end);
        if (!line.empty()) {
            aXml += "      ";
            Detail::AppendXmlText(line, aXml);
            aXml += '\n';
        }
        rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + 1);
    }
    aXml += "    </Summary>\n";
}

/// Adds each line of a text behind the name of its segment.
void AppendLines(const std::string& aName, std::string_view aText, std::vector<std::string>& aLines)
{
    while (!aText.empty()) {
        const auto end = aText.find('\n');
        if (end != 0) {
            aLines.push_back((aName.empty() ? "" : aName + ": ") + std::string(aText.substr(0, end)));
        }
        aText = end == std::string_view::npos ? std::string_view{} : aText.substr(end + 1);
    }
}

}  // namespace

template<typename Subheader>
void ImageSupportDataNITF::AppendSegments(std::string& aXml, const char* aGroup,
                                          const std::vector<std::unique_ptr<Subheader>>& aSegments) const
{
    if (aSegments.empty()) {
        return;
    }
    aXml += "  <";
    aXml += aGroup;
    aXml += " total=\"" + std::to_string(aSegments.size()) + "\">\n";
    for (const auto& segment : aSegments) {
        const char* const text = segment->SerializeDataSegment("    ");
        if (text != nullptr) {
            aXml += text;
        }
    }
    aXml += "  </";
    aXml += aGroup;
    aXml += ">\n";
}

const char* ImageSupportDataNITF::Serialize()
{
    if (!m_keptText.empty()) {
        return m_keptText.c_str();
    }
    if (m_header == nullptr) {
        return nullptr;
    }
    std::string xml;
    OpenDocument(xml, NITFCnst::XML_ELEMENT_NITF, NITFCnst::XML_SCHEMA_FILE_ISD, GetFormatVersion());
    xml += m_header->SerializeDataSegment("  ");
    AppendSegments(xml, NITFCnst::XML_ELEMENT_IMAGE_SEGMENTS, m_images);
    AppendSegments(xml, NITFCnst::XML_ELEMENT_TEXT_SEGMENTS, m_texts);
    AppendSegments(xml, NITFCnst::XML_ELEMENT_DATA_EXTENSION_SEGMENTS, m_des);
    AppendSegments(xml, NITFCnst::XML_ELEMENT_RESERVED_EXTENSION_SEGMENTS, m_res);
    CloseDocument(xml, NITFCnst::XML_ELEMENT_NITF);
    m_keptText = std::move(xml);
    return m_keptText.c_str();
}

bool ImageSupportDataNITF::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    if (!m_rigorouslyValidated || m_validationSummaryReport.empty()) {
        m_validationErrorCount = 0;
        m_validationWarningCount = 0;
        m_validationLines.clear();
        std::vector<std::string> warningLines;
        std::string errors;
        std::string warnings;
        const auto validate = [&](NITFFieldSegment* aSegment, const std::string& aName) {
            unsigned long errorCount = 0;
            unsigned long warningCount = 0;
            if (aSegment == nullptr) {
                return;
            }
            aSegment->RigorousValidation(errorCount, warningCount);
            m_validationErrorCount += errorCount;
            m_validationWarningCount += warningCount;
            if (errorCount != 0) {
                AppendSummary(errors, "ERROR", aName + "\n" + aSegment->GetErrorMessage());
                AppendLines(aName, aSegment->GetErrorMessage(), m_validationLines);
            }
            if (warningCount != 0) {
                AppendSummary(warnings, "WARN", aName + "\n" + aSegment->GetWarningMessage());
                AppendLines(aName, aSegment->GetWarningMessage(), warningLines);
            }
        };
        std::string report;
        OpenDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY,
                     NITFCnst::XML_SCHEMA_FILE_VALIDATION_SUMMARY, "1.0");
        validate(m_header.get(), NITFCnst::XML_ELEMENT_NITF_FILE_HEADER);
        for (const NITFStdDataSegmentInfo* const info : m_infos.InFileOrder()) {
            validate(Segment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex())),
                     std::string(NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType())) + ' ' +
                         std::to_string(info->GetSegmentIndex()));
        }
        for (const std::string& warning : m_warnings) {
            ++m_validationWarningCount;
            AppendSummary(warnings, "WARN", warning);
            AppendLines("", warning, warningLines);
        }
        m_validationLines.insert(m_validationLines.end(), warningLines.begin(), warningLines.end());
        report += errors + warnings;
        CloseDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY);
        m_validationSummaryReport = std::move(report);
        m_rigorouslyValidated = true;
    }
    aErrors = m_validationErrorCount;
    aWarnings = m_validationWarningCount;
    return aErrors == 0;
}

}  // namespace ORMO::SensorModel::CSM
