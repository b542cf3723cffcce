#include "tools/FindingWords.h"

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

bool IsError(const Finding& aFinding) noexcept
{
    return aFinding.level != Finding::Level::Warning;
}

const char* LevelWord(const Finding& aFinding) noexcept
{
    return aFinding.level == Finding::Level::Warning ? "WARN"
           : aFinding.level == Finding::Level::Error ? "ERROR"
                                                     : "FATAL";
}

std::string Sentence(const Finding& aFinding)
{
    const auto colon = aFinding.sentence.find(": ");
    std::string text = aFinding.sentence.compare(0, colon, LevelWord(aFinding)) == 0
                           ? aFinding.sentence.substr(colon + 2)
                           : aFinding.sentence;
    if (!aFinding.field.empty() && (text.empty() || text.back() != '.')) {
        text += ' ' + aFinding.owner + "::" + aFinding.field;
    }
    return text;
}

namespace {

void AppendPart(std::string& aText, const char* aJoin, const std::string& aPart)
{
    if (!aPart.empty()) {
        aText += (aText.empty() ? "" : aJoin) + aPart;
    }
}

}  // namespace

std::string Facts(const Finding& aFinding)
{
    std::string text;
    if (!aFinding.tre.empty()) {
        AppendPart(text, "", "TRE " + aFinding.tre + (aFinding.turn > 1 ? ' ' + std::to_string(aFinding.turn) : ""));
        AppendPart(text, " in ", aFinding.area);
    }
    AppendPart(text, ", ", aFinding.field);
    Finding value;
    value.value = aFinding.value;
    AppendPart(text, " ", value.Place());
    AppendPart(text, ", ", aFinding.allowed.empty() ? "" : "wanted " + aFinding.allowed);
    if (aFinding.offset != Finding::NO_OFFSET) {
        AppendPart(text, " ", "(byte " + std::to_string(aFinding.offset) + ')');
    }
    AppendPart(text, ": ", aFinding.detail);
    return text;
}

std::string SegmentOf(const Finding& aFinding)
{
    return aFinding.index == Finding::NO_INDEX ? aFinding.segment
                                               : aFinding.segment + ' ' + std::to_string(aFinding.index);
}

}  // namespace OrmoNitf
