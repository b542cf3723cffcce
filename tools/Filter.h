#pragma once

#include "tools/SegmentName.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace OrmoNitf {

/// Which segments and TREs a command shows; all without a filter.
class Filter
{
public:
    /// Adds --segment and --tre.
    void AddOptions(CLI::App& aApp);
    /// Understands what was given; false, with the reason, when a name is none.
    [[nodiscard]] bool Prepare(std::string& aReason);

    bool HasSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const;
    bool HasTre(const std::string& aTag) const;

private:
    std::vector<std::string> m_segmentTexts;
    std::vector<std::string> m_tres;
    std::vector<SegmentName> m_segments;
};

}  // namespace OrmoNitf
