#include "tre/detail/RawNITFMetadataArrays.h"

#include "foundation/detail/HandOut.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM {

namespace {

using Arrays = RawNITFMetadata::Arrays;
using Source = RawNITFMetadata::Source;

template<typename T>
[[nodiscard]] bool Allocate(std::unique_ptr<T[]>& aArray, std::size_t aCount) noexcept
{
    T* array = nullptr;
    const std::size_t made = Detail::HandOutArray(&array, aCount);
    aArray.reset(array);
    return made == aCount;
}

/// All containers are there, agree in their numbers of entries, and no tag is defined twice.
bool IsConsistent(const Source& aSource)
{
    if (aSource.dataType == nullptr || aSource.editability == nullptr || aSource.descriptions == nullptr ||
        aSource.sizes == nullptr || aSource.tags == nullptr || aSource.values == nullptr ||
        aSource.actualSizes == nullptr || aSource.longNames == nullptr || aSource.types == nullptr) {
        return false;
    }
    const std::size_t defined = aSource.tags->size();
    const std::size_t present = aSource.values->size();
    if (defined == 0 || present == 0 || aSource.editability->size() != defined ||
        aSource.descriptions->size() != defined || aSource.sizes->size() != defined ||
        aSource.types->size() != defined || aSource.longNames->size() != defined ||
        aSource.actualSizes->size() != present || (aSource.binary != nullptr && aSource.binary->size() != defined)) {
        return false;
    }
    std::vector<std::string_view> tags(aSource.tags->begin(), aSource.tags->end());
    std::sort(tags.begin(), tags.end());
    return std::adjacent_find(tags.begin(), tags.end()) == tags.end();
}

/// Bytes of all texts, each with its NUL.
std::size_t TextSize(const Source& aSource) noexcept
{
    std::size_t size = 0;
    for (const std::string& tag : *aSource.tags) {
        size += tag.size() + 1;
    }
    for (const auto* const map : {aSource.descriptions, aSource.longNames, aSource.types}) {
        for (const auto& [tag, text] : *map) {
            size += text.size() + 1;
        }
    }
    for (const auto& [tag, value] : *aSource.values) {
        size += tag.size() + 1 + value.size() + 1;
    }
    return size;
}

bool AllocateAll(const Source& aSource, Arrays& aArrays) noexcept
{
    const std::size_t defined = aArrays.definedCount = aSource.tags->size();
    const std::size_t present = aArrays.presentCount = aSource.values->size();
    return Allocate(aArrays.texts, TextSize(aSource)) && Allocate(aArrays.tags, defined) &&
           Allocate(aArrays.longNames, defined) && Allocate(aArrays.types, defined) &&
           Allocate(aArrays.descriptions, defined) && Allocate(aArrays.sizes, defined) &&
           Allocate(aArrays.editability, defined) && (aSource.binary == nullptr || Allocate(aArrays.binary, defined)) &&
           Allocate(aArrays.presentTags, present) && Allocate(aArrays.values, present) &&
           Allocate(aArrays.valueLengths, present) && Allocate(aArrays.actualSizes, present) &&
           Allocate(aArrays.outputTags, present);
}

/// Copies texts into the block one behind the other. The block is zeroed, so each already has its NUL.
class TextWriter
{
public:
    explicit TextWriter(char* aBlock) noexcept : m_next(aBlock) {}

    const char* Copy(std::string_view aText) noexcept
    {
        const char* const start = m_next;
        m_next = std::copy(aText.begin(), aText.end(), m_next) + 1;
        return start;
    }

private:
    char* m_next;
};

/// False when a map lacks a tag: maps of the right size may still be of other fields.
bool FillDefined(const Source& aSource, TextWriter& aWriter, Arrays& aArrays)
{
    for (std::size_t i = 0; i != aArrays.definedCount; ++i) {
        const std::string& tag = (*aSource.tags)[i];
        const auto longName = aSource.longNames->find(tag);
        const auto type = aSource.types->find(tag);
        const auto description = aSource.descriptions->find(tag);
        const auto size = aSource.sizes->find(tag);
        const auto editable = aSource.editability->find(tag);
        if (longName == aSource.longNames->end() || type == aSource.types->end() ||
            description == aSource.descriptions->end() || size == aSource.sizes->end() ||
            editable == aSource.editability->end()) {
            return false;
        }
        aArrays.tags[i] = aWriter.Copy(tag);
        aArrays.longNames[i] = aWriter.Copy(longName->second);
        aArrays.types[i] = aWriter.Copy(type->second);
        aArrays.descriptions[i] = aWriter.Copy(description->second);
        aArrays.sizes[i] = size->second;
        aArrays.editability[i] = editable->second;
        if (aSource.binary != nullptr) {
            aArrays.binary[i] = (*aSource.binary)[i];
        }
    }
    return true;
}

/// False when a present field has no actual size.
bool FillPresent(const Source& aSource, TextWriter& aWriter, Arrays& aArrays)
{
    std::size_t i = 0;
    for (const auto& [tag, value] : *aSource.values) {
        const auto size = aSource.actualSizes->find(tag);
        if (size == aSource.actualSizes->end()) {
            return false;
        }
        aArrays.presentTags[i] = aWriter.Copy(tag);
        aArrays.values[i] = aWriter.Copy(value);
        aArrays.valueLengths[i] = value.size();
        aArrays.actualSizes[i] = size->second;
        ++i;
    }
    return true;
}

/// Present fields in the order of their definition, then those that the definition does not know.
void FillOutputOrder(Arrays& aArrays)
{
    std::vector<bool> placed(aArrays.presentCount, false);
    std::size_t next = 0;
    for (std::size_t i = 0; i != aArrays.definedCount; ++i) {
        const std::size_t place = aArrays.FindPresent(aArrays.tags[i]);
        if (place != aArrays.presentCount) {
            placed[place] = true;
            aArrays.outputTags[next++] = aArrays.presentTags[place];
        }
    }
    for (std::size_t place = 0; place != aArrays.presentCount; ++place) {
        if (!placed[place]) {
            aArrays.outputTags[next++] = aArrays.presentTags[place];
        }
    }
}

}  // namespace

std::size_t Arrays::FindPresent(std::string_view aTag) const noexcept
{
    const char* const* const first = presentTags.get();
    const char* const* const last = first + presentCount;
    const char* const* const found =
        std::lower_bound(first, last, aTag, [](const char* aLeft, std::string_view aRight) { return aLeft < aRight; });
    return static_cast<std::size_t>((found != last && aTag == *found ? found : last) - first);
}

std::unique_ptr<Arrays> Arrays::Build(const Source& aSource)
{
    if (!IsConsistent(aSource)) {
        return nullptr;
    }
    auto arrays = std::make_unique<Arrays>();
    if (!AllocateAll(aSource, *arrays)) {
        return nullptr;
    }
    TextWriter writer(arrays->texts.get());
    if (!FillDefined(aSource, writer, *arrays) || !FillPresent(aSource, writer, *arrays)) {
        return nullptr;
    }
    FillOutputOrder(*arrays);
    return arrays;
}

}  // namespace ORMO::SensorModel::CSM
