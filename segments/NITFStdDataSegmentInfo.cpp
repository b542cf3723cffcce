#include "segments/NITFStdDataSegmentInfo.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/detail/Ascii.h"
#include "segments/NITFStdDataSegment.h"
#include "segments/detail/SegmentKind.h"

#include <string_view>
#include <tuple>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr std::uint64_t LEAST_FILE_LENGTH = 40;
constexpr std::uint64_t MOST_FILE_LENGTH = 999999999999;
constexpr std::size_t TYPE_LENGTH = 2;

bool IsKnownVersion(NITFCnst::Version aVersion) noexcept
{
    return aVersion == NITFCnst::NSIF_VERSION_NUMBER_10 || aVersion == NITFCnst::NITF_VERSION_NUMBER_11 ||
           aVersion == NITFCnst::NITF_VERSION_NUMBER_20 || aVersion == NITFCnst::NITF_VERSION_NUMBER_21;
}

NITFCnst::DataSegmentType KindOf(std::string_view aType, NITFCnst::Version aVersion) noexcept
{
    const Detail::SegmentKind* const kind = Detail::FindKind(aType, aVersion);
    // NITF 1.1 has the marks of later versions, but none for drawings.
    const bool drawn = kind != nullptr && kind->kind == NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC;
    return kind == nullptr || (drawn && aVersion == NITFCnst::NITF_VERSION_NUMBER_11)
               ? NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN
               : kind->kind;
}

}  // namespace

bool NITFStdDataSegmentInfo::SetGlobalSegmentIndex(std::int32_t aIndex) noexcept
{
    m_globalIndex = aIndex < 0 ? m_globalIndex : aIndex;
    return aIndex >= 0;
}

bool NITFStdDataSegmentInfo::SetSegmentIndex(std::int32_t aIndex) noexcept
{
    m_index = aIndex < 0 ? m_index : aIndex;
    return aIndex >= 0;
}

bool NITFStdDataSegmentInfo::SetSegmentDataSize(std::uint64_t aBytes) noexcept
{
    m_dataSize = aBytes;
    return true;
}

bool NITFStdDataSegmentInfo::SetSegmentDataStart(std::uint64_t aOffset) noexcept
{
    m_dataStart = aOffset;
    return true;
}

bool NITFStdDataSegmentInfo::SetSegmentHeaderStart(std::uint64_t aOffset) noexcept
{
    m_headerStart = aOffset;
    return true;
}

bool NITFStdDataSegmentInfo::SetSegmentHeaderSize(std::uint32_t aBytes) noexcept
{
    m_headerSize = aBytes;
    return true;
}

bool NITFStdDataSegmentInfo::SetSegmentType(const char* aType, NITFCnst::Version aVersion)
{
    const std::string_view type = Detail::Trimmed(aType);
    if (type.size() != TYPE_LENGTH || !IsKnownVersion(aVersion)) {
        return false;
    }
    m_version = aVersion;
    m_kind = KindOf(type, aVersion);
    m_type = m_kind == NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN ? std::string_view{} : type;
    return m_kind != NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
}

bool NITFStdDataSegmentInfo::operator==(const NITFStdDataSegmentInfo& aOther) const noexcept
{
    const auto all = [](const NITFStdDataSegmentInfo& aInfo) {
        return std::tie(aInfo.m_globalIndex, aInfo.m_index, aInfo.m_version, aInfo.m_kind, aInfo.m_type,
                        aInfo.m_dataSize, aInfo.m_dataStart, aInfo.m_headerStart, aInfo.m_headerSize);
    };
    return all(*this) == all(aOther);
}

NITFStdDataSegmentInfos::NITFStdDataSegmentInfos(const NITFStdDataSegmentInfos& aOther) : m_end(aOther.m_end)
{
    for (const NITFStdDataSegmentInfo* const other : aOther.m_inFileOrder) {
        auto info = std::make_unique<NITFStdDataSegmentInfo>(*other);
        m_inFileOrder.push_back(info.get());
        m_byKind[static_cast<std::size_t>(info->GetDataSegmentType())].push_back(std::move(info));
    }
}

NITFStdDataSegmentInfos& NITFStdDataSegmentInfos::operator=(const NITFStdDataSegmentInfos& aOther)
{
    return *this = NITFStdDataSegmentInfos(aOther);
}

bool NITFStdDataSegmentInfos::Build(NITFCnst::Version aVersion, std::uint64_t aHeaderLength, std::uint64_t aFileLength,
                                    const std::vector<NITFSegmentLengths>& aKinds, std::string& aErrors)
{
    Clear();
    std::uint64_t current = aHeaderLength;
    std::int32_t global = 0;
    const auto fail = [&](std::string_view aMessage) {
        Clear();
        Detail::AppendBlock(aErrors, aMessage);
        return false;
    };
    for (const NITFSegmentLengths& kind : aKinds) {
        if (aFileLength < LEAST_FILE_LENGTH || aFileLength > MOST_FILE_LENGTH || current > aFileLength) {
            return fail(
                "ERROR: Invalid current byte value or the input NITFFileHeader object is NULL/invalid or it contains "
                "invalid field value(s).");
        }
        if (kind.count == 0) {
            continue;
        }
        const std::string failed = "ERROR: Failed to retrieve data segment information of type " +
                                   Detail::Quoted(kind.type) + " from the NITF file header.";
        if (kind.headers.size() != kind.count || kind.data.size() != kind.count) {
            return fail(failed);
        }
        Infos infos;
        infos.reserve(kind.count);
        for (std::size_t i = 0; i != kind.count; ++i) {
            auto info = std::make_unique<NITFStdDataSegmentInfo>();
            if (!info->SetSegmentType(kind.type, aVersion)) {
                return fail(failed);
            }
            info->SetGlobalSegmentIndex(global++);
            info->SetSegmentIndex(static_cast<std::int32_t>(i));
            info->SetSegmentHeaderStart(current);
            info->SetSegmentHeaderSize(kind.headers[i]);
            info->SetSegmentDataStart(current + kind.headers[i]);
            info->SetSegmentDataSize(kind.data[i]);
            // At most 999 segments of at most twelve digits each: the sum stays far below 64 bits.
            current += kind.headers[i] + kind.data[i];
            m_inFileOrder.push_back(info.get());
            infos.push_back(std::move(info));
        }
        m_byKind[static_cast<std::size_t>(infos.front()->GetDataSegmentType())] = std::move(infos);
    }
    m_end = current;
    return true;
}

void NITFStdDataSegmentInfos::Clear() noexcept
{
    for (Infos& infos : m_byKind) {
        infos.clear();
    }
    m_inFileOrder.clear();
}

const NITFStdDataSegmentInfos::Infos* NITFStdDataSegmentInfos::Get(const char* aKindName) const noexcept
{
    return Get(NITFStdDataSegment::GetDataSegmentCode(aKindName));
}

const NITFStdDataSegmentInfos::Infos* NITFStdDataSegmentInfos::Get(NITFCnst::DataSegmentType aKind) const noexcept
{
    // An unknown kind becomes a place behind the last one.
    const auto place = static_cast<std::size_t>(aKind);
    return place >= KINDS || m_byKind[place].empty() ? nullptr : &m_byKind[place];
}

}  // namespace ORMO::SensorModel::CSM
