#pragma once

#include "isd/detail/IsdParts.h"
#include "segments/detail/rules/HeaderView.h"

#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// What a rule sees of a whole file.
class FileView
{
public:
    /// `aNow` is the moment of the validation as CCYYMMDDhhmmss.
    FileView(const ImageSupportDataNITF::Parts& aParts, std::string_view aNow);

    const ImageSupportDataNITF::Parts& Parts() const noexcept { return m_parts; }
    bool Is20() const noexcept { return m_header.Is20(); }
    const HeaderView& Header() const noexcept { return m_header; }
    /// Every segment that was read, in file order.
    const std::vector<HeaderView>& Segments() const noexcept { return m_segments; }
    std::string_view Now() const noexcept { return m_now; }

    template<typename Look>
    void ForEach(Subject aSubject, Look aLook) const
    {
        for (const HeaderView& segment : m_segments) {
            if (segment.Looks(aSubject)) {
                aLook(segment);
            }
        }
    }

private:
    const ImageSupportDataNITF::Parts& m_parts;
    HeaderView m_header;
    std::vector<HeaderView> m_segments;
    std::string_view m_now;
};

// The families that need more than one header.
RuleList FileRules() noexcept;
RuleList ComplexityRules() noexcept;
RuleList LevelRules() noexcept;

inline constexpr RuleList (*FILE_RULES[])() noexcept = {&FileRules, &ComplexityRules, &LevelRules};

/// The row of an identifier among all of them; null when there is none.
const Rule* FindRule(std::string_view aId) noexcept;

}  // namespace ORMO::SensorModel::CSM::Detail
