#include "isd/detail/rules/FileView.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

FileView::FileView(const ImageSupportDataNITF::Parts& aParts, std::string_view aNow)
    : m_parts(aParts), m_header(*aParts.header), m_now(aNow)
{
    m_segments.reserve(aParts.segments.size());
    for (const std::unique_ptr<NITFFieldSegment>& segment : aParts.segments) {
        if (segment != nullptr) {
            m_segments.emplace_back(*segment);
        }
    }
}

const Rule* FindRule(std::string_view aId) noexcept
{
    const auto find = [aId](const auto& aFamilies) -> const Rule* {
        for (const auto family : aFamilies) {
            for (const Rule& rule : family()) {
                if (aId == rule.id) {
                    return &rule;
                }
            }
        }
        return nullptr;
    };
    const Rule* const rule = find(FILE_RULES);
    return rule != nullptr ? rule : find(HEADER_RULES);
}

}  // namespace ORMO::SensorModel::CSM::Detail
