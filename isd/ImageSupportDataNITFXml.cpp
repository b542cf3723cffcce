// The documents of a NITF file: all of it as XML, and the validation summary.

#include "fields/Xml.h"
#include "foundation/CSMCnst.h"
#include "isd/detail/IsdParts.h"
#include "segments/detail/SegmentLayout.h"

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

/// A summary of what was found in one segment at one level: its name and a line for each finding.
void AppendSummary(std::string& aXml, std::string_view aLevel, std::string_view aName,
                   const std::vector<std::string>& aLines)
{
    if (aLines.empty()) {
        return;
    }
    aXml += "  <Summary";
    Detail::AppendXmlAttribute("type", aLevel, aXml);
    aXml += ">\n";
    if (!aName.empty()) {
        aXml += "      ";
        Detail::AppendXmlText(aName, aXml);
        aXml += '\n';
    }
    for (const std::string& line : aLines) {
        aXml += "      ";
        Detail::AppendXmlText(line, aXml);
        aXml += '\n';
    }
    aXml += "    </Summary>\n";
}

/// The summaries of all findings of a level; those of one segment follow each other.
void AppendSummaries(std::string& aXml, const Detail::FindingList& aFindings, bool aErrors)
{
    const char* const level = aErrors ? "ERROR" : "WARN";
    std::string name;
    std::vector<std::string> lines;
    for (std::size_t i = 0; i != aFindings.KeptCount(); ++i) {
        const Finding& finding = aFindings.Kept(i);
        if ((finding.level != Finding::Level::Warning) != aErrors) {
            continue;
        }
        std::string segment = finding.segment;
        segment += finding.index == Finding::NO_INDEX ? "" : ' ' + std::to_string(finding.index);
        if (segment != name) {
            AppendSummary(aXml, level, name, lines);
            lines.clear();
            name = std::move(segment);
        }
        lines.push_back(finding.Line());
    }
    if (!aErrors && aFindings.LeftOut() != 0) {
        lines.push_back(aFindings.LeftOutLine());
    }
    AppendSummary(aXml, level, name, lines);
}

/// The group of all segments of a kind that were read; nothing when there are none.
void AppendSegments(std::string& aXml, const Detail::SegmentKind& aKind, const ImageSupportDataNITF::Parts& aParts)
{
    std::string group;
    std::size_t total = 0;
    for (std::size_t i = 0; i != aParts.Count(aKind.kind); ++i) {
        NITFFieldSegment* const segment = aParts.Segment(aKind.kind, i);
        if (segment != nullptr) {
            ++total;
            group += segment->SerializeDataSegment("    ");
        }
    }
    if (total == 0) {
        return;
    }
    aXml += std::string("  <") + aKind.group + " total=\"" + std::to_string(total) + "\">\n";
    aXml += group;
    aXml += std::string("  </") + aKind.group + ">\n";
}

}  // namespace

const char* ImageSupportDataNITF::Serialize()
{
    if (!m_keptText.empty()) {
        return m_keptText.c_str();
    }
    if (m_parts->header == nullptr) {
        return nullptr;
    }
    std::string xml;
    OpenDocument(xml, NITFCnst::XML_ELEMENT_NITF, NITFCnst::XML_SCHEMA_FILE_ISD, GetFormatVersion());
    xml += m_parts->header->SerializeDataSegment("  ");
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        if (kind.version == m_parts->Version() && kind.mark[0] != '\0') {
            AppendSegments(xml, kind, *m_parts);
        }
    }
    CloseDocument(xml, NITFCnst::XML_ELEMENT_NITF);
    m_keptText = std::move(xml);
    return m_keptText.c_str();
}

bool ImageSupportDataNITF::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    if (!m_rigorouslyValidated || m_validationSummaryReport.empty()) {
        Detail::FindingList& findings = m_parts->validation;
        findings.Clear();
        Detail::CheckSegment(*m_parts->header, findings);
        for (const std::unique_ptr<NITFFieldSegment>& segment : m_parts->segments) {
            if (segment != nullptr) {
                Detail::CheckSegment(*segment, findings);
            }
        }
        findings.Add(m_parts->findings);
        std::string report;
        OpenDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY,
                     NITFCnst::XML_SCHEMA_FILE_VALIDATION_SUMMARY, "1.0");
        AppendSummaries(report, findings, true);
        AppendSummaries(report, findings, false);
        CloseDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY);
        m_validationErrorCount = findings.Errors();
        m_validationWarningCount = findings.Warnings();
        m_validationSummaryReport = std::move(report);
        m_rigorouslyValidated = true;
    }
    aErrors = m_validationErrorCount;
    aWarnings = m_validationWarningCount;
    return aErrors == 0;
}

}  // namespace ORMO::SensorModel::CSM
