#pragma once

#include "tre/RawNITFMetadata.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// What GetMatadata hands out.
struct ORMO_CSM_LOCAL RawNITFMetadata::Source
{
    const char* dataType = nullptr;
    const EditabilityMap* editability = nullptr;
    const TextMap* descriptions = nullptr;
    const SizeMap* sizes = nullptr;
    const std::vector<std::string>* tags = nullptr;
    const TextMap* values = nullptr;
    const SizeMap* actualSizes = nullptr;
    const TextMap* longNames = nullptr;
    const TextMap* types = nullptr;
    const std::vector<bool>* binary = nullptr;
};

/// All arrays of one object. The texts stand in one block, each with a NUL behind it, and the arrays point into it.
struct ORMO_CSM_LOCAL RawNITFMetadata::Arrays
{
    std::size_t definedCount = 0;
    std::size_t presentCount = 0;
    std::unique_ptr<char[]> texts;

    std::unique_ptr<const char*[]> tags;
    std::unique_ptr<const char*[]> longNames;
    std::unique_ptr<const char*[]> types;
    std::unique_ptr<const char*[]> descriptions;
    std::unique_ptr<int[]> sizes;
    std::unique_ptr<bool[]> editability;
    std::unique_ptr<bool[]> binary;  // null when it is not known which fields are binary

    std::unique_ptr<const char*[]> presentTags;
    std::unique_ptr<const char*[]> values;
    std::unique_ptr<std::size_t[]> valueLengths;
    std::unique_ptr<int[]> actualSizes;
    std::unique_ptr<const char*[]> outputTags;

    /// The place of a tag among the present fields, or their number.
    std::size_t FindPresent(std::string_view aTag) const noexcept;

    /// Null when the source is incomplete, its containers disagree, or memory is short.
    static std::unique_ptr<Arrays> Build(const Source& aSource);
};

}  // namespace ORMO::SensorModel::CSM
