#pragma once

#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// A file out of memory, opened and validated at a fixed moment.
class Validated
{
public:
    explicit Validated(const std::string& aBytes, const ValidationOptions& aOptions = {"20260601000000", {}})
    {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), true, "made.ntf", &isd, true, false);
        m_isd.reset(dynamic_cast<ImageSupportDataNITF*>(isd));
        m_isd->Validate(aOptions, m_errors, m_warnings);
        m_findings = m_isd->GetValidationFindings();
    }

    const std::vector<Finding>& Findings() const noexcept { return m_findings; }
    unsigned long Errors() const noexcept { return m_errors; }
    unsigned long Warnings() const noexcept { return m_warnings; }
    std::string Report() const { return m_isd->GetValidationSummaryReport(); }
    std::set<std::string> Rules() const
    {
        std::set<std::string> rules;
        for (const Finding& finding : m_findings) {
            rules.insert(finding.rule);
        }
        return rules;
    }
    std::string Lines() const
    {
        std::string text;
        for (const Finding& finding : m_findings) {
            text += finding.Line() + '\n';
        }
        return text;
    }

private:
    struct Destroyer
    {
        void operator()(ImageSupportDataNITF* aIsd) const
        {
            ImageSupportData* isd = aIsd;
            ImageSupportDataFactory::Destroy(&isd);
        }
    };

    std::unique_ptr<ImageSupportDataNITF, Destroyer> m_isd;
    std::vector<Finding> m_findings;
    unsigned long m_errors = 0;
    unsigned long m_warnings = 0;
};

}  // namespace ORMO::SensorModel::CSM::Tests
