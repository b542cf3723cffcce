#pragma once

#include "segments/NITFDrawnSegment.h"
#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/cgm/detail/WordCursor.h"
#include "segments/detail/rules/HeaderView.h"

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// One element of a metafile as it stands in the stream; the parameters of one with several partitions are those of the
/// first.
struct CgmPiece
{
    int elementClass = -1;
    int id = -1;
    std::uint64_t offset = 0;  ///< of its header in the metafile
    std::string_view parameters;
    std::uint64_t length = 0;  ///< of the parameters in all partitions

    constexpr bool Is(int aClass, int aId) const noexcept { return elementClass == aClass && id == aId; }
};

/// The next element; false at the end and for one that goes beyond it.
[[nodiscard]] inline bool TakeCgmElement(WordCursor& aStream, CgmPiece& aOut)
{
    constexpr std::uint16_t LONG_FORM = 31;
    std::uint16_t word = 0;
    aOut.offset = aStream.Offset();
    if (!aStream.TakeWord(word)) {
        return false;
    }
    aOut.elementClass = word >> 12U;
    aOut.id = (word >> 5U) & 0x7F;
    std::uint16_t length = word & 0x1FU;
    if (length != LONG_FORM) {
        const bool taken = aStream.Take(length, aOut.parameters);
        aOut.length = length;
        aStream.SkipPad(length);
        return taken;
    }
    aOut.length = 0;
    bool first = true;
    bool more = true;
    while (more) {
        std::string_view part;
        if (!aStream.TakeWord(length) || !aStream.Take(length & 0x7FFFU, part)) {
            return false;
        }
        more = (length & 0x8000U) != 0;
        aStream.SkipPad(length & 0x7FFFU);
        aOut.length += part.size();
        aOut.parameters = first ? part : aOut.parameters;
        first = false;
    }
    return true;
}

/// Calls with every element of the metafile of a graphic or symbol, up to the first false.
template<typename Look>
void ForEachCgmElement(const HeaderView& aHeader, Look aLook)
{
    const NITFCGMMetaFile* const metafile = static_cast<const NITFDrawnSegment&>(aHeader.Segment()).GetCGMMetaFile();
    if (metafile == nullptr) {
        return;  // that it cannot have its place has been told
    }
    std::size_t size = 0;
    const char* const data = metafile->GetRawCGMDataStream(size);
    WordCursor stream(std::string_view(data, size));
    CgmPiece piece;
    while (TakeCgmElement(stream, piece) && aLook(piece)) {
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
