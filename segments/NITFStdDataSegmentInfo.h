#pragma once

#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Where one segment stands in its file and of which kind it is. Offsets and sizes are in bytes.
class ORMO_CSM_API NITFStdDataSegmentInfo
{
public:
    /// Position among all segments of the file, from 0; the file header does not count.
    std::int32_t GetGlobalSegmentIndex() const noexcept { return m_globalIndex; }
    /// Position among the segments of its own kind, from 0.
    std::int32_t GetSegmentIndex() const noexcept { return m_index; }
    NITFCnst::Version GetNITFVersion() const noexcept { return m_version; }
    NITFCnst::DataSegmentType GetDataSegmentType() const noexcept { return m_kind; }
    /// "IM", "SY", "LA", "TE", "DE" or "RE"; empty while unset.
    const char* GetSegmentType() const noexcept { return m_type.c_str(); }
    std::uint64_t GetSegmentDataSize() const noexcept { return m_dataSize; }
    std::uint64_t GetSegmentDataStart() const noexcept { return m_dataStart; }
    std::uint64_t GetSegmentHeaderStart() const noexcept { return m_headerStart; }
    std::uint32_t GetSegmentHeaderSize() const noexcept { return m_headerSize; }

    /// False, with nothing changed, for a negative index.
    bool SetGlobalSegmentIndex(std::int32_t aIndex) noexcept;
    bool SetSegmentIndex(std::int32_t aIndex) noexcept;
    bool SetSegmentDataSize(std::uint64_t aBytes) noexcept;
    bool SetSegmentDataStart(std::uint64_t aOffset) noexcept;
    bool SetSegmentHeaderStart(std::uint64_t aOffset) noexcept;
    bool SetSegmentHeaderSize(std::uint32_t aBytes) noexcept;
    /// Sets type, version and kind together. "SY" is a graphic from NITF 2.1 on and a symbol in NITF 2.0, which alone
    /// has labels ("LA"); a type that the version does not know leaves kind and type unset.
    bool SetSegmentType(const char* aType, NITFCnst::Version aVersion);

    bool operator==(const NITFStdDataSegmentInfo& aOther) const noexcept;
    bool operator!=(const NITFStdDataSegmentInfo& aOther) const noexcept { return !(*this == aOther); }

private:
    std::int32_t m_globalIndex = 0;
    std::int32_t m_index = 0;
    NITFCnst::Version m_version = NITFCnst::NITF_VERSION_NUMBER_UNINITIALIZED;
    NITFCnst::DataSegmentType m_kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    std::string m_type;
    std::uint64_t m_dataSize = 0;
    std::uint64_t m_dataStart = 0;
    std::uint64_t m_headerStart = 0;
    std::uint32_t m_headerSize = 0;
};

/// The lengths of all segments of one kind, as the file header lists them.
struct NITFSegmentLengths
{
    const char* type = "";  ///< "IM", "SY", "LA", "TE", "DE" or "RE"
    std::size_t count = 0;
    std::vector<std::uint32_t> headers;
    std::vector<std::uint64_t> data;
};

/// Where every segment of a file stands: the length fields of the file header turned into offsets, grouped by the name
/// of the segment kind.
class ORMO_CSM_API NITFStdDataSegmentInfos
{
public:
    using Infos = std::vector<std::unique_ptr<NITFStdDataSegmentInfo>>;

    NITFStdDataSegmentInfos() = default;
    NITFStdDataSegmentInfos(const NITFStdDataSegmentInfos& aOther);
    NITFStdDataSegmentInfos(NITFStdDataSegmentInfos&&) = default;
    NITFStdDataSegmentInfos& operator=(const NITFStdDataSegmentInfos& aOther);
    NITFStdDataSegmentInfos& operator=(NITFStdDataSegmentInfos&&) = default;
    ~NITFStdDataSegmentInfos() = default;

    /// `aKinds` stand in file order, `aHeaderLength` and `aFileLength` are HL and FL. On failure nothing is kept and
    /// the reason is appended to `aErrors`.
    bool Build(NITFCnst::Version aVersion, std::uint64_t aHeaderLength, std::uint64_t aFileLength,
               const std::vector<NITFSegmentLengths>& aKinds, std::string& aErrors);

    /// The segments of a kind by its name ("ImageSegment"), in file order; null when there are none.
    const Infos* Get(const char* aKindName) const noexcept;
    const Infos* Get(NITFCnst::DataSegmentType aKind) const noexcept;
    /// All segments in file order.
    const std::vector<const NITFStdDataSegmentInfo*>& InFileOrder() const noexcept { return m_inFileOrder; }
    /// The byte behind the last segment; the header length when there are none.
    std::uint64_t GetEnd() const noexcept { return m_end; }

private:
    static constexpr std::size_t KINDS = NITFCnst::DATA_SEGMENT_TYPE_TEXT + 1;

    void Clear() noexcept;

    std::array<Infos, KINDS> m_byKind;  // by NITFCnst::DataSegmentType
    std::vector<const NITFStdDataSegmentInfo*> m_inFileOrder;
    std::uint64_t m_end = 0;
};

}  // namespace ORMO::SensorModel::CSM
