#include "segments/detail/Findings.h"

#include "foundation/CSMUtilGeneric.h"

#include <algorithm>
#include <iterator>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

std::string Line(const char* aSentence, std::string_view aOwner, std::string_view aField, std::string_view aPlace)
{
    std::string line;
    Util::CSMUtilGeneric::ConstructMessage(false, (std::string(aSentence) + ' ').c_str(), std::string(aOwner).c_str(),
                                           std::string(aField).c_str(), line);
    if (!aPlace.empty()) {
        line += ' ';
        line += aPlace;
    }
    return line;
}

}  // namespace

void Findings::Lines::Add(std::string_view aLine)
{
    if (++count > MOST_LINES) {
        return;
    }
    if (!text.empty()) {
        text += '\n';
    }
    std::replace_copy(aLine.begin(), aLine.end(), std::back_inserter(text), '\n', ' ');
}

std::string Findings::Lines::Text() const
{
    return count <= MOST_LINES
               ? text
               : text + "\nWARN: " + std::to_string(count - MOST_LINES) + " further lines are left out.";
}

void Findings::AddError(const char* aSentence, std::string_view aOwner, std::string_view aField,
                        std::string_view aPlace)
{
    m_errors.Add(Line(aSentence, aOwner, aField, aPlace));
}

void Findings::AddWarning(const char* aSentence, std::string_view aOwner, std::string_view aField,
                          std::string_view aPlace)
{
    m_warnings.Add(Line(aSentence, aOwner, aField, aPlace));
}

void Findings::AddErrors(std::string_view aLines)
{
    while (!aLines.empty()) {
        const auto end = aLines.find('\n');
        if (end != 0) {
            m_errors.Add(aLines.substr(0, end));
        }
        aLines = end == std::string_view::npos ? std::string_view{} : aLines.substr(end + 1);
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
