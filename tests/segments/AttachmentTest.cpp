#include "segments/detail/Attachment.h"

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Detail {
namespace {

std::string Shown(std::span<const DrawnPlace> aPlaces)
{
    std::string text;
    for (const AttachmentOffset& offset : FollowAttachments(aPlaces)) {
        text += text.empty() ? "" : " ";
        text += offset.fault == AttachmentFault::Cycle ? "cycle"
                : offset.fault == AttachmentFault::NoParent
                    ? "none"
                    : std::to_string(offset.row) + "," + std::to_string(offset.column);
    }
    return text;
}

TEST(AttachmentTest, LocationsAddUpAlongTheAttachmentsInWhateverOrderTheyStand)
{
    const DrawnPlace places[] = {{3, 2, 100, 200}, {1, 0, 1, 2}, {2, 1, -10, 20}, {4, 0, 7, 7}, {5, 2, 0, 0}};
    EXPECT_EQ("-9,22 0,0 1,2 0,0 -9,22", Shown(places));
    EXPECT_EQ("", Shown({}));
}

TEST(AttachmentTest, CyclesAndAbsentParentsAreNamedAndCountAsAttachedToNothing)
{
    const DrawnPlace places[] = {{1, 2, 1, 1}, {2, 3, 2, 2},     {3, 1, 3, 3},   {4, 1, 4, 4},
                                 {5, 5, 5, 5}, {6, 999, 6, 600}, {7, 6, 70, 70}, {8, 4, 0, 0}};
    EXPECT_EQ("cycle cycle cycle 1,1 cycle none 6,600 5,5", Shown(places));
    // Of one level twice the first is meant.
    const DrawnPlace twice[] = {{1, 0, 10, 10}, {1, 0, 20, 20}, {2, 1, 0, 0}, {1, 1, 0, 0}};
    EXPECT_EQ("0,0 0,0 10,10 10,10", Shown(twice));
}

TEST(AttachmentTest, LongChainsTakeOneStepPerSegment)
{
    std::vector<DrawnPlace> places;
    for (std::uint64_t level = 200000; level != 0; --level) {
        places.push_back({level, level - 1, 1, 2});
    }
    const auto offsets = FollowAttachments(places);
    EXPECT_EQ(199999, offsets.front().row);
    EXPECT_EQ(399998, offsets.front().column);
    places.back().attachmentLevel = 200000;
    EXPECT_EQ(AttachmentFault::Cycle, FollowAttachments(places).front().fault);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Detail
