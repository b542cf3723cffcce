#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// A segment that is drawn: its levels, and its location relative to the segment that it is attached to.
struct DrawnPlace
{
    std::uint64_t displayLevel = 0;
    std::uint64_t attachmentLevel = 0;
    long row = 0;
    long column = 0;
};

enum class AttachmentFault
{
    None,
    NoParent,  ///< no segment has the level that it is attached to
    Cycle      ///< it is attached to itself, by way of others or not
};

/// Where the segment stands to which another one is attached, in the common coordinate system. With a fault it counts
/// as attached to nothing.
struct AttachmentOffset
{
    long row = 0;
    long column = 0;
    AttachmentFault fault = AttachmentFault::None;
};

/// One answer for each place. Of segments with one display level the first is attached to. Takes one step per segment,
/// however they are attached.
std::vector<AttachmentOffset> FollowAttachments(std::span<const DrawnPlace> aPlaces);

}  // namespace ORMO::SensorModel::CSM::Detail
