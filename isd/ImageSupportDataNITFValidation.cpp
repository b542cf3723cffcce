// The rigorous validation of a whole file: every header by itself, the rules across headers, and what reading found.

#include "isd/detail/IsdParts.h"
#include "isd/detail/rules/FileView.h"
#include "isd/detail/rules/ValidationReport.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

using Parts = ImageSupportDataNITF::Parts;

std::string MomentOfCall()
{
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    ::gmtime_r(&now, &utc);
    std::array<char, 16> text{};
    const std::size_t length = std::strftime(text.data(), text.size(), "%Y%m%d%H%M%S", &utc);
    return {text.data(), length};
}

/// Adds what reading found. Where a rule has looked itself, that says more; else the finding takes the level that the
/// rule has: a fault that does not keep a file from being read may be an error of the file.
void AddReading(const Detail::FindingList& aReading, Detail::FindingList& aFindings)
{
    for (std::size_t i = 0; i != aReading.KeptCount(); ++i) {
        const Detail::Rule* const rule = Detail::FindRule(aReading.Kept(i).rule);
        if (rule != nullptr && rule->HasCheck()) {
            continue;
        }
        Finding finding = aReading.Kept(i);
        if (rule != nullptr) {
            Detail::SetLevel(finding, std::max(finding.level, rule->level));
            finding.clause = rule->source;
        }
        aFindings.Add(std::move(finding));
    }
    aFindings.AddCounts(aReading.LeftOutByLevel());
}

/// Where a finding stands among the others: those of the file first, then the file header, then segments in file order.
std::size_t PlaceOf(const Finding& aFinding, const Parts& aParts)
{
    if (aFinding.segment.empty()) {
        return 0;
    }
    const NITFStdDataSegmentInfos::Infos* const kind = aParts.infos.Get(aFinding.segment.c_str());
    const auto index = static_cast<std::size_t>(std::max(aFinding.index, 0));
    return kind == nullptr || index >= kind->size()
               ? 1
               : 2 + static_cast<std::size_t>((*kind)[index]->GetGlobalSegmentIndex());
}

void Check(const Parts& aParts, std::string_view aNow, Detail::FindingList& aFindings)
{
    Detail::CheckSegment(*aParts.header, aFindings);
    for (const std::unique_ptr<NITFFieldSegment>& segment : aParts.segments) {
        if (segment != nullptr) {
            Detail::CheckSegment(*segment, aFindings);
        }
    }
    const Detail::FileView file(aParts, aNow);
    for (const auto family : Detail::FILE_RULES) {
        for (const Detail::Rule& rule : family()) {
            if (rule.checkFile != nullptr && rule.AppliesTo(file.Header().Version())) {
                rule.checkFile(file, Detail::Report(rule, aFindings));
            }
        }
    }
    AddReading(aParts.findings, aFindings);
    aFindings.SortBy([&aParts](const Finding& aFinding) { return PlaceOf(aFinding, aParts); });
}

/// Appends the sections of those findings that are wanted, and counts them. False when errors are among them.
template<typename Wanted>
bool ReportPart(const Detail::FindingList& aAll, Wanted aWanted, std::string& aReport, unsigned long& aErrors,
                unsigned long& aWarnings)
{
    Detail::FindingList part;
    for (std::size_t i = 0; i != aAll.KeptCount(); ++i) {
        if (aWanted(aAll.Kept(i))) {
            part.Add(aAll.Kept(i));
        }
    }
    aReport += Detail::ValidationSections(part);
    aErrors = part.Errors();
    aWarnings = part.Warnings();
    return aErrors == 0;
}

}  // namespace

bool ImageSupportDataNITF::Validate(const ValidationOptions& aOptions, unsigned long& aErrors, unsigned long& aWarnings)
{
    Detail::FindingList& findings = m_parts->validation;
    findings.Clear();
    findings.Ignore(aOptions.ignored);
    if (m_parts->header == nullptr) {
        m_validationSummaryReport = Detail::ValidationReport(
            "System failed to initialize properly. The NITF file header information is missing.");
        m_validationErrorCount = 1;
        m_validationWarningCount = 0;
    } else {
        try {
            Check(*m_parts, aOptions.now.empty() ? MomentOfCall() : aOptions.now, findings);
            m_validationSummaryReport = Detail::ValidationReport(findings);
            m_validationErrorCount = findings.Errors();
            m_validationWarningCount = findings.Warnings();
        } catch (const std::exception&) {
            findings.Clear();
            m_validationSummaryReport =
                Detail::ValidationReport("Exception caught while generating validation summary report.");
            m_validationErrorCount = 1;
            m_validationWarningCount = 0;
        }
    }
    m_rigorouslyValidated = true;
    aErrors = m_validationErrorCount;
    aWarnings = m_validationWarningCount;
    return aErrors == 0;
}

bool ImageSupportDataNITF::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    if (!m_rigorouslyValidated || m_validationSummaryReport.empty()) {
        return Validate({}, aErrors, aWarnings);
    }
    aErrors = m_validationErrorCount;
    aWarnings = m_validationWarningCount;
    return aErrors == 0;
}

bool ImageSupportDataNITF::RigorousValidationNITFGlobal(std::string& aReport, unsigned long& aErrors,
                                                        unsigned long& aWarnings)
{
    RigorousValidation(aErrors, aWarnings);
    return ReportPart(
        m_parts->validation,
        [](const Finding& aFinding) {
            return aFinding.segment.empty() || aFinding.segment == NITFCnst::XML_ELEMENT_NITF_FILE_HEADER;
        },
        aReport, aErrors, aWarnings);
}

bool ImageSupportDataNITF::RigorousValidationVersionSpecificDataSegments(std::string& aReport, unsigned long& aErrors,
                                                                         unsigned long& aWarnings)
{
    RigorousValidation(aErrors, aWarnings);
    return ReportPart(
        m_parts->validation,
        [this](const Finding& aFinding) {
            return Detail::IsVersionSpecific(NITFStdDataSegment::GetDataSegmentCode(aFinding.segment.c_str()),
                                             GetNITFFileVersionCode());
        },
        aReport, aErrors, aWarnings);
}

}  // namespace ORMO::SensorModel::CSM
