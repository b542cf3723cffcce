#include "segments/detail/Attachment.h"

#include <cstddef>
#include <unordered_map>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

enum class State : std::uint8_t
{
    Unknown,
    Followed,  ///< on the way that is being followed
    Known
};

}  // namespace

std::vector<AttachmentOffset> FollowAttachments(std::span<const DrawnPlace> aPlaces)
{
    std::unordered_map<std::uint64_t, std::size_t> byLevel;
    for (std::size_t i = 0; i != aPlaces.size(); ++i) {
        byLevel.try_emplace(aPlaces[i].displayLevel, i);
    }
    std::vector<AttachmentOffset> offsets(aPlaces.size());
    std::vector<State> states(aPlaces.size(), State::Unknown);
    std::vector<std::size_t> way;
    for (std::size_t i = 0; i != aPlaces.size(); ++i) {
        // Up to something known, to nothing, or round to a segment of this way.
        way.clear();
        std::size_t at = i;
        while (states[at] == State::Unknown) {
            states[at] = State::Followed;
            way.push_back(at);
            if (aPlaces[at].attachmentLevel == 0) {
                break;
            }
            const auto parent = byLevel.find(aPlaces[at].attachmentLevel);
            if (parent == byLevel.end()) {
                offsets[at].fault = AttachmentFault::NoParent;
                break;
            }
            if (states[parent->second] == State::Followed) {
                // Every segment of the round is at fault; those that only lead to it are not.
                const std::size_t first = parent->second;
                for (auto one = way.rbegin(); one != way.rend(); ++one) {
                    offsets[*one].fault = AttachmentFault::Cycle;
                    if (*one == first) {
                        break;
                    }
                }
                break;
            }
            at = parent->second;
        }
        for (auto one = way.rbegin(); one != way.rend(); ++one) {
            const DrawnPlace& place = aPlaces[*one];
            if (offsets[*one].fault == AttachmentFault::None && place.attachmentLevel != 0) {
                const std::size_t parent = byLevel[place.attachmentLevel];
                offsets[*one].row = offsets[parent].row + aPlaces[parent].row;
                offsets[*one].column = offsets[parent].column + aPlaces[parent].column;
            }
            states[*one] = State::Known;
        }
    }
    return offsets;
}

}  // namespace ORMO::SensorModel::CSM::Detail
