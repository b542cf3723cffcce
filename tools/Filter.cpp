#include "tools/Filter.h"

#include "foundation/CSMUtilString.h"

#include <algorithm>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using ORMO::SensorModel::CSM::Util::CSMUtilString;

void Filter::AddOptions(CLI::App& aApp)
{
    aApp.add_option("--segment", m_segmentTexts,
                    "Only this segment, such as image:0, or these, such as image or header")
        ->type_name("SEGMENT")
        ->allow_extra_args(false);
    aApp.add_option("--tre", m_tres, "Only TREs of this tag")->type_name("TAG")->allow_extra_args(false);
}

bool Filter::Prepare(std::string& aReason)
{
    m_segments.clear();
    for (const std::string& text : m_segmentTexts) {
        if (!ParseSegment(text, m_segments.emplace_back(), aReason)) {
            return false;
        }
    }
    for (std::string& tag : m_tres) {
        tag = CSMUtilString::ToUpper(CSMUtilString::Trim(tag));
    }
    return true;
}

bool Filter::HasSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const
{
    return m_segments.empty() || std::any_of(m_segments.begin(), m_segments.end(),
                                             [&](const SegmentName& aName) { return aName.Holds(aKind, aIndex); });
}

bool Filter::HasTre(const std::string& aTag) const
{
    return m_tres.empty() || std::find(m_tres.begin(), m_tres.end(), CSMUtilString::Trim(aTag)) != m_tres.end();
}

}  // namespace OrmoNitf
