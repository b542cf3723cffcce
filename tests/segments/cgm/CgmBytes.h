#pragma once

#include "segments/cgm/NITFCGMMetaFile.h"

#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM::Tests {

/// Big-endian words, written without anything of the library's.
inline std::string CgmWords(std::initializer_list<int> aWords)
{
    std::string bytes;
    for (const int word : aWords) {
        bytes += static_cast<char>(word >> 8 & 0xFF);
        bytes += static_cast<char>(word & 0xFF);
    }
    return bytes;
}

inline std::string CgmElementBytes(int aClass, int aId, std::string_view aParameters, bool aLongForm = false)
{
    const int length = static_cast<int>(aParameters.size());
    const bool longForm = aLongForm || length > 30;
    std::string bytes = CgmWords({aClass << 12 | aId << 5 | (longForm ? 31 : length)});
    bytes += longForm ? CgmWords({length}) : "";
    bytes += aParameters;
    bytes.append(aParameters.size() % 2, '\0');
    return bytes;
}

inline std::string CgmElementBytes(int aClass, int aId, std::initializer_list<int> aWords)
{
    return CgmElementBytes(aClass, aId, CgmWords(aWords));
}

inline std::string CgmText(std::string_view aText)
{
    return static_cast<char>(aText.size()) + std::string(aText);
}

inline NITFCGMMetaFile Metafile(const std::string& aBytes)
{
    return {aBytes.data(), 0, 1, 0, 0, aBytes.size()};
}

/// All lines of clear text without their indent, each ended by a line feed.
inline std::string ClearText(const NITFCGMMetaFile& aMetafile)
{
    std::string text;
    for (std::size_t i = 0; i != aMetafile.GetNumOfClearTextLines(); ++i) {
        text += aMetafile.GetClearTextLine(i).substr(6);
        text += '\n';
    }
    return text;
}

/// A second reader of element headers: how many elements of each class and id stand in the bytes. The count of {-1, -1}
/// is the number of bytes that no element holds.
inline std::map<std::pair<int, int>, std::size_t> CountCgmElements(std::string_view aBytes)
{
    std::map<std::pair<int, int>, std::size_t> counts;
    const auto word = [&](std::size_t aAt) {
        return static_cast<std::size_t>(static_cast<unsigned char>(aBytes[aAt]) * 256 +
                                        static_cast<unsigned char>(aBytes[aAt + 1]));
    };
    std::size_t at = 0;
    while (at + 2 <= aBytes.size()) {
        const std::size_t header = word(at);
        std::size_t length = header % 32;
        at += 2;
        if (length == 31) {
            length = word(at);
            at += 2;
        }
        at += length + length % 2;
        ++counts[{static_cast<int>(header / 4096), static_cast<int>(header / 32 % 128)}];
    }
    counts[{-1, -1}] = aBytes.size() - at;
    return counts;
}

}  // namespace ORMO::SensorModel::CSM::Tests
