#include "isd/detail/rules/ValidationReport.h"

#include "fields/Xml.h"
#include "isd/detail/XmlFrame.h"
#include "nitf/NITFCnst.h"

#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// A summary of what was found in one segment at one level: its name and a line for each finding.
void AppendSummary(std::string& aXml, std::string_view aLevel, std::string_view aName,
                   const std::vector<std::string>& aLines)
{
    if (aLines.empty()) {
        return;
    }
    aXml += "  <Summary";
    AppendXmlAttribute("type", aLevel, aXml);
    aXml += ">\n";
    if (!aName.empty()) {
        aXml += "      ";
        AppendXmlText(aName, aXml);
        aXml += '\n';
    }
    for (const std::string& line : aLines) {
        aXml += "      ";
        AppendXmlText(line, aXml);
        aXml += '\n';
    }
    aXml += "    </Summary>\n";
}

/// The summaries of all findings of a level; those of one segment follow each other.
void AppendSummaries(std::string& aXml, const FindingList& aFindings, bool aErrors)
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

std::string Document(const std::string& aSummaries)
{
    std::string report;
    OpenDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY, NITFCnst::XML_SCHEMA_FILE_VALIDATION_SUMMARY,
                 "1.0");
    report += aSummaries;
    CloseDocument(report, NITFCnst::XML_ELEMENT_NITF_VALIDATION_SUMMARY);
    return report;
}

}  // namespace

std::string ValidationSections(const FindingList& aFindings)
{
    std::string summaries;
    AppendSummaries(summaries, aFindings, true);
    AppendSummaries(summaries, aFindings, false);
    return summaries;
}

std::string ValidationReport(const FindingList& aFindings)
{
    return Document(ValidationSections(aFindings));
}

std::string ValidationReport(std::string_view aFailure)
{
    std::string summary;
    AppendSummary(summary, "ERROR", "", {std::string(aFailure)});
    return Document(summary);
}

}  // namespace ORMO::SensorModel::CSM::Detail
