#pragma once

#include "tre/RawNITFMetadata.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Detail {

/// What GetMatadata hands out.
struct RawNITFMetadataSource
{
    const char* dataType = nullptr;
    const RawNITFMetadata::EditabilityMap* editability = nullptr;
    const RawNITFMetadata::TextMap* descriptions = nullptr;
    const RawNITFMetadata::SizeMap* sizes = nullptr;
    const std::vector<std::string>* tags = nullptr;
    const RawNITFMetadata::TextMap* values = nullptr;
    const RawNITFMetadata::SizeMap* actualSizes = nullptr;
    const RawNITFMetadata::TextMap* longNames = nullptr;
    const RawNITFMetadata::TextMap* types = nullptr;
    const std::vector<bool>* binary = nullptr;
};

/// All arrays of one object. The texts stand in one block, each with a NUL behind it, and the arrays point into it.
struct RawNITFMetadataArrays
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
    static std::unique_ptr<RawNITFMetadataArrays> Build(const RawNITFMetadataSource& aSource);
};

}  // namespace ORMO::SensorModel::CSM::Detail
