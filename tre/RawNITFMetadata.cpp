#include "tre/RawNITFMetadata.h"

#include "foundation/detail/Lazy.h"
#include "tre/detail/RawNITFMetadataArrays.h"

#include <algorithm>
#include <memory>
#include <new>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Arrays = RawNITFMetadata::Arrays;

struct ORMO_CSM_LOCAL RawNITFMetadata::State
{
    Detail::Lazy<std::unique_ptr<const Arrays>> arrays;
};

namespace {

/// Hands out one array, or null and false.
template<typename T>
bool HandOutMember(const Arrays* aArrays, std::unique_ptr<T[]> Arrays::*aMember, T*& aOut) noexcept
{
    aOut = aArrays == nullptr ? nullptr : (aArrays->*aMember).get();
    return aOut != nullptr;
}

template<typename T>
bool HandOutPair(const Arrays* aArrays, std::size_t Arrays::*aCountMember,
                 std::unique_ptr<const char*[]> Arrays::*aTagMember, std::unique_ptr<T[]> Arrays::*aMember,
                 const char**& aTags, T*& aOut, std::size_t& aCount) noexcept
{
    aCount = aArrays == nullptr ? 0 : aArrays->*aCountMember;
    const bool first = HandOutMember(aArrays, aTagMember, aTags);
    return HandOutMember(aArrays, aMember, aOut) && first;
}

}  // namespace

RawNITFMetadata::RawNITFMetadata(NITFCnst::NITFMetadataType aTypeCode, int aVersionNumber)
    : m_typeCode(aTypeCode), m_versionNumber(aVersionNumber), m_state(std::make_unique<State>())
{
}

RawNITFMetadata::RawNITFMetadata(const RawNITFMetadata& aOther)
    : m_typeCode(aOther.m_typeCode),
      m_versionNumber(aOther.m_versionNumber),
      m_noMetadata(aOther.m_noMetadata),
      m_rawData(aOther.m_rawData),
      m_rawDataDescription(aOther.m_rawDataDescription),
      m_state(std::make_unique<State>())
{
}

RawNITFMetadata& RawNITFMetadata::operator=(const RawNITFMetadata& aOther)
{
    if (this != &aOther) {
        std::string data = aOther.m_rawData;
        std::string description = aOther.m_rawDataDescription;
        m_typeCode = aOther.m_typeCode;
        m_versionNumber = aOther.m_versionNumber;
        m_noMetadata = aOther.m_noMetadata;
        m_rawData.swap(data);
        m_rawDataDescription.swap(description);
        CleanMetadataArrays();
    }
    return *this;
}

RawNITFMetadata::~RawNITFMetadata() = default;

void RawNITFMetadata::SetNoMetadata(bool aNone) noexcept
{
    m_noMetadata = aNone;
}

void RawNITFMetadata::SetRawDataStream(std::string aData, std::string aDescription)
{
    m_rawData = std::move(aData);
    m_rawDataDescription = std::move(aDescription);
}

const char* RawNITFMetadata::GetRawDataStream(std::size_t& aLength) const noexcept
{
    aLength = m_rawData.size();
    return m_rawData.empty() ? nullptr : m_rawData.c_str();
}

bool RawNITFMetadata::FillSource(Source& aSource) const noexcept
{
    try {
        return !m_noMetadata && GetMatadata(&aSource.dataType, &aSource.editability, &aSource.descriptions,
                                            &aSource.sizes, &aSource.tags, &aSource.values, &aSource.actualSizes,
                                            &aSource.longNames, &aSource.types, &aSource.binary);
    } catch (...) {
        return false;  // a query can only say that there is nothing, whatever a subclass threw
    }
}

bool RawNITFMetadata::InitMetadataArrays() const noexcept
{
    return BuiltArrays() != nullptr;
}

void RawNITFMetadata::CleanMetadataArrays() const noexcept
{
    m_state->arrays.Reset();
}

const Arrays* RawNITFMetadata::BuiltArrays() const noexcept
{
    if (m_noMetadata) {
        return nullptr;
    }
    if (const auto* const built = m_state->arrays.Made()) {
        return built->get();
    }
    try {
        Source source;
        std::unique_ptr<const Arrays> arrays = FillSource(source) ? Arrays::Build(source) : nullptr;
        // A failure is not kept, so that the next query starts afresh.
        return arrays == nullptr ? nullptr : m_state->arrays.Get([&arrays] { return std::move(arrays); }).get();
    } catch (const std::bad_alloc&) {
        return nullptr;  // as when an array cannot be had
    }
}

const char* RawNITFMetadata::GetDataType() const noexcept
{
    Source source;
    return FillSource(source) && source.dataType != nullptr ? source.dataType : "";
}

bool RawNITFMetadata::GetMetadataFieldName(const char**& aTags, const char**& aLongNames,
                                           std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::definedCount, &Arrays::tags, &Arrays::longNames, aTags, aLongNames,
                       aCount);
}

bool RawNITFMetadata::GetMetadataFieldType(const char**& aTags, const char**& aTypes,
                                           std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::definedCount, &Arrays::tags, &Arrays::types, aTags, aTypes, aCount);
}

bool RawNITFMetadata::GetMetadataFieldSize(const char**& aTags, int*& aSizes, std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::definedCount, &Arrays::tags, &Arrays::sizes, aTags, aSizes, aCount);
}

bool RawNITFMetadata::GetMetadataEditability(const char**& aTags, bool*& aEditability,
                                             std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::definedCount, &Arrays::tags, &Arrays::editability, aTags, aEditability,
                       aCount);
}

bool RawNITFMetadata::GetMetadataFieldDescription(const char**& aTags, const char**& aDescriptions,
                                                  std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::definedCount, &Arrays::tags, &Arrays::descriptions, aTags, aDescriptions,
                       aCount);
}

bool RawNITFMetadata::GetMetadataFieldValue(const char**& aTags, const char**& aValues,
                                            std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::presentCount, &Arrays::presentTags, &Arrays::values, aTags, aValues,
                       aCount);
}

bool RawNITFMetadata::GetMetadataActualFieldSize(const char**& aTags, int*& aSizes, std::size_t& aCount) const noexcept
{
    return HandOutPair(BuiltArrays(), &Arrays::presentCount, &Arrays::presentTags, &Arrays::actualSizes, aTags, aSizes,
                       aCount);
}

bool RawNITFMetadata::GetMetadataOrderedOutputFieldTags(const char**& aTags, std::size_t& aCount) const noexcept
{
    const Arrays* const arrays = BuiltArrays();
    aCount = arrays == nullptr ? 0 : arrays->presentCount;
    return HandOutMember(arrays, &Arrays::outputTags, aTags);
}

bool RawNITFMetadata::GetFieldValue(const char* aTag, const char*& aValue, std::size_t& aLength) const noexcept
{
    const Arrays* const arrays = BuiltArrays();
    const std::size_t place = arrays == nullptr || aTag == nullptr ? 0 : arrays->FindPresent(aTag);
    const bool found = arrays != nullptr && aTag != nullptr && place != arrays->presentCount;
    aValue = found ? arrays->values[place] : nullptr;
    aLength = found ? arrays->valueLengths[place] : 0;
    return found;
}

bool RawNITFMetadata::GetBinaryFieldList(bool*& aFlags, std::size_t& aCount) const noexcept
{
    const Arrays* const arrays = BuiltArrays();
    const bool known = HandOutMember(arrays, &Arrays::binary, aFlags);
    aCount = known ? arrays->definedCount : 0;
    return known;
}

bool RawNITFMetadata::GetBinaryFieldList(std::vector<bool>& aFlags) const
{
    bool* flags = nullptr;
    std::size_t count = 0;
    const bool known = GetBinaryFieldList(flags, count);
    aFlags.assign(flags, flags + count);
    return known;
}

bool RawNITFMetadata::ContainsBinaryFields() const noexcept
{
    bool* flags = nullptr;
    std::size_t count = 0;
    return GetBinaryFieldList(flags, count) && std::find(flags, flags + count, true) != flags + count;
}

}  // namespace ORMO::SensorModel::CSM
