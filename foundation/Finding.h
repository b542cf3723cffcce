#pragma once

#include "Export.h"

#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM {

/// Something that was found wrong with a file, as data: what, where, the value found and what is allowed. Every part
/// but the level and the sentence may be unknown.
struct ORMO_CSM_API Finding
{
    enum class Level : std::uint8_t
    {
        Warning,
        Error,
        Fatal
    };

    static constexpr std::uint64_t NO_OFFSET = UINT64_MAX;
    static constexpr int NO_INDEX = -1;

    Level level = Level::Error;
    std::string rule;                  ///< identifier of the rule that was broken; empty for a fault of reading
    std::string sentence;              ///< begins with "WARN: ", "ERROR: " or "FATAL: "; one line
    std::string owner;                 ///< whose field it is: "NITFFileHeader", "BLOCKA"
    std::string field;                 ///< "LON_4_1"; empty when it is about no field
    std::string detail;                ///< more than the sentence says, as a sentence of its own; one line
    std::string value;                 ///< the bytes found, the first of them when there are many
    std::string allowed;               ///< what may stand there
    std::string clause;                ///< the standard's clause or table
    std::string segment;               ///< "ImageSegment"; empty when it is about the file as a whole
    int index = NO_INDEX;              ///< of the segment among those of its kind, from 0
    std::string tre;                   ///< tag of the tagged record extension
    int turn = 0;                      ///< of the TRE among those of its tag in its area, from 1
    std::string area;                  ///< extension area, such as "IXSHD" or "TRE_OVERFLOW"
    std::uint64_t offset = NO_OFFSET;  ///< byte offset in the file

    /// All of it in one line, without a control byte: the sentence, and in brackets segment, TRE, area, field, byte
    /// offset, value, detail and what is allowed.
    std::string Line() const;
    /// The part of the line in brackets without them; empty when nothing of it is known.
    std::string Place() const;
};

}  // namespace ORMO::SensorModel::CSM
