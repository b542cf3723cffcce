// What the levels of drawn segments say of one another.

#include "fields/MessageText.h"
#include "isd/detail/rules/FileView.h"

#include <algorithm>
#include <string>
#include <unordered_set>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using namespace RuleWords;

bool IsDrawn(const HeaderView& aSegment) noexcept
{
    return aSegment.Inside().layout->kind->drawing.displayLevel != nullptr;
}

std::uint64_t LevelOf(const HeaderView& aSegment) noexcept
{
    return aSegment.Segment().GetDataSegmentDisplayLevel();
}

std::uint64_t AttachmentOf(const HeaderView& aSegment) noexcept
{
    return aSegment.Segment().GetDataSegmentAttachmentLevel();
}

/// The drawn segment with the lowest display level, the first of several; null when nothing is drawn.
const HeaderView* Lowest(const FileView& aFile) noexcept
{
    const HeaderView* lowest = nullptr;
    for (const HeaderView& segment : aFile.Segments()) {
        if (IsDrawn(segment) && LevelOf(segment) != 0 && (lowest == nullptr || LevelOf(segment) < LevelOf(*lowest))) {
            lowest = &segment;
        }
    }
    return lowest;
}

bool HasLevel(const FileView& aFile, std::uint64_t aLevel) noexcept
{
    return std::ranges::any_of(aFile.Segments(), [aLevel](const HeaderView& aSegment) {
        return IsDrawn(aSegment) && LevelOf(aSegment) == aLevel;
    });
}

void AttachedBelow(const FileView& aFile, const Report& aReport)
{
    std::unordered_set<std::uint64_t> levels;
    const HeaderView* const lowest = Lowest(aFile);  // which has a rule of its own
    for (const HeaderView& segment : aFile.Segments()) {
        if (!IsDrawn(segment) || AttachmentOf(segment) == 0 || &segment == lowest) {
            continue;
        }
        if (levels.empty()) {
            for (const HeaderView& one : aFile.Segments()) {
                if (IsDrawn(one)) {
                    levels.insert(LevelOf(one));
                }
            }
        }
        const std::uint64_t to = AttachmentOf(segment);
        if (levels.count(to) == 0 || to >= LevelOf(segment)) {
            aReport(segment,
                    {.field = segment.Inside().layout->kind->drawing.attachmentLevel,
                     .allowed = "000 | the display level of another segment below " + std::to_string(LevelOf(segment)),
                     .detail = levels.count(to) == 0 ? "No segment has that level." : ""});
        }
    }
}

void LowestIsFree(const FileView& aFile, const Report& aReport)
{
    const HeaderView* const lowest = Lowest(aFile);
    if (lowest != nullptr && AttachmentOf(*lowest) != 0) {
        aReport(*lowest, {.field = lowest->Inside().layout->kind->drawing.attachmentLevel, .allowed = "000"});
    }
}

void InsideCommonCoordinates(const FileView& aFile, const Report& aReport)
{
    for (const HeaderView& segment : aFile.Segments()) {
        long row = 0;
        long column = 0;
        if (IsDrawn(segment) && segment.Segment().GetCCSColumnAndRow(column, row) && (row < 0 || column < 0)) {
            aReport(segment, {.field = segment.Inside().layout->kind->drawing.location,
                              .detail = "It stands at row " + std::to_string(row) + " and column " +
                                        std::to_string(column) + '.'});
        }
    }
}

void TextAttachment(const FileView& aFile, const Report& aReport)
{
    aFile.ForEach(Subject::Text, [&](const HeaderView& aText) {
        const std::uint64_t level = aText.Number("TXTALVL");
        if (level != 0 && !HasLevel(aFile, level)) {
            aReport(aText, {.field = "TXTALVL", .allowed = "000 | the display level of an image or graphic"});
        }
    });
}

// clang-format off
constexpr Rule RULES[] = {
    {"DL-01", ERROR, ALL, Subject::File, "IDLVL, SDLVL, LDLVL",
     "Two segments have the same display level.",
     "Display levels differ over all images, graphics, symbols and labels of the file: they say what is drawn over what. The order in the file decides else.",
     "MIL-STD-2500C 5.3.3"},
    Rule{"DL-02", ERROR, ALL, Subject::File, "IALVL, SALVL, LALVL",
     "A segment is attached to none that lies below it.",
     "An attachment level other than 000 is the display level of another segment with a lower one; its location counts from there.",
     "MIL-STD-2500C 5.3.3 and 5.3.4"}.ByFile(&AttachedBelow),
    Rule{"DL-03", ERROR, ALL, Subject::File, "lowest display level",
     "The lowest segment is attached to another.",
     "The segment with the lowest display level has attachment level 000.",
     "MIL-STD-2500C 5.3.4"}.ByFile(&LowestIsFree),
    Rule{"DL-04", WARN, ALL, Subject::File, "ILOC, SLOC, LLOC and levels",
     "A segment stands outside the common coordinate system.",
     "The sum of the locations along the chain of attachments has neither a negative row nor a negative column.",
     "MIL-STD-2500C 5.3.1"}.ByFile(&InsideCommonCoordinates),
    Rule{"DL-05", WARN, V21, Subject::File, "TXTALVL",
     "A text belongs to no segment of the file.",
     "TXTALVL is 000 or the display level of an image or graphic.",
     "MIL-STD-2500C table A-6, TXTALVL"}.ByFile(&TextAttachment),
};
// clang-format on

}  // namespace

RuleList LevelRules() noexcept
{
    return RULES;
}

}  // namespace ORMO::SensorModel::CSM::Detail
