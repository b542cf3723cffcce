// The validation of a NITF file and its report.

#include "fields/Xml.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/XmlFrame.h"
#include "segments/detail/SegmentLayout.h"

#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

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

}  // namespace

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
        Detail::OpenDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY,
                             NITFCnst::XML_SCHEMA_FILE_VALIDATION_SUMMARY, "1.0");
        AppendSummaries(report, findings, true);
        AppendSummaries(report, findings, false);
        Detail::CloseDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY);
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
