#pragma once

#include "fields/FieldRecord.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// What a validation finds: one line for each fault. All are counted; of the lines only so many are kept that a hostile
/// file cannot flood a report.
class Findings
{
public:
    static constexpr std::size_t MOST_LINES = 1000;

    /// A fixed sentence, without a blank at its end, about a field; `aPlace` says more when it is not empty.
    void AddError(const char* aSentence, std::string_view aOwner, std::string_view aField, std::string_view aPlace);
    void AddWarning(const char* aSentence, std::string_view aOwner, std::string_view aField, std::string_view aPlace);
    /// A line of its own; line feeds in it become blanks.
    void AddError(std::string_view aLine) { m_errors.Add(aLine); }
    void AddWarning(std::string_view aLine) { m_warnings.Add(aLine); }
    /// Lines that were composed and counted elsewhere.
    void AddErrors(std::string_view aLines);

    unsigned long ErrorCount() const noexcept { return m_errors.count; }
    unsigned long WarningCount() const noexcept { return m_warnings.count; }
    std::string Errors() const { return m_errors.Text(); }
    std::string Warnings() const { return m_warnings.Text(); }

private:
    struct Lines
    {
        std::string text;
        unsigned long count = 0;

        void Add(std::string_view aLine);
        std::string Text() const;
    };

    Lines m_errors;
    Lines m_warnings;
};

}  // namespace ORMO::SensorModel::CSM::Detail
