#pragma once

#include "nitf/NITFCnst.h"

#include <cstddef>
#include <string>

namespace OrmoNitf {

using ORMO::SensorModel::CSM::NITFCnst;

/// A segment as users name it everywhere: the word of its kind (image, graphic, symbol, label, text, des, res, header)
/// and its index among those of its kind, from 0.
struct SegmentName
{
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    std::size_t index = 0;
    bool isIndexed = false;  ///< without an index all of the kind may be meant

    bool IsHeader() const noexcept { return kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER; }
    /// Whether a segment is the one, or one of those, that this names.
    bool Holds(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept
    {
        return aKind == kind && (!isIndexed || aIndex == index);
    }
};

/// What the help says of a segment's name.
inline constexpr const char* SEGMENT_WORDS = "image, graphic, symbol, label, text, des, res or header";

/// Reads "image", "image:2" or "header"; the names that json prints stand for their words ("ImageSegment:2"). False,
/// with the reason, for any other text.
[[nodiscard]] bool ParseSegment(const std::string& aText, SegmentName& aSegment, std::string& aReason);

/// Reads an index alone, or with the word of a kind that it can only be: "2" or "image:2". False, with the reason, for
/// any other text.
[[nodiscard]] bool ParseIndex(const std::string& aText, NITFCnst::DataSegmentType aKind, std::size_t& aIndex,
                              std::string& aReason);

/// "image 2", "header".
std::string ShownSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex);
/// "image"
std::string SegmentWord(NITFCnst::DataSegmentType aKind);

}  // namespace OrmoNitf
