#pragma once

#include "fields/ByteSource.h"
#include "foundation/detail/Lazy.h"
#include "segments/NITFDataSegment.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// The data of a segment as they stand in the file: nothing is read before somebody asks. May be used from several
/// threads at once.
class SegmentData
{
public:
    /// A null source stands for a segment without a file.
    SegmentData(std::shared_ptr<const ByteSource> aSource, std::uint64_t aStart, std::uint64_t aSize)
        : m_source(std::move(aSource)), m_start(aStart), m_size(aSize)
    {
    }

    std::uint64_t Start() const noexcept { return m_start; }
    std::uint64_t Size() const noexcept { return m_size; }
    const std::shared_ptr<const ByteSource>& Source() const noexcept { return m_source; }
    bool HasSource() const noexcept { return m_source != nullptr; }
    /// Whether the file holds all of the data.
    bool IsAvailable() const noexcept { return m_source != nullptr && m_source->Holds(m_start, m_size); }
    /// Why the data cannot be had; empty when they can.
    std::string Fault() const;

    /// Whether both look at the same bytes of the same file.
    bool IsSamePlace(const SegmentData& aOther) const noexcept
    {
        return m_source != nullptr && aOther.m_source != nullptr && m_start == aOther.m_start &&
               m_size == aOther.m_size && m_source->IsSameFile(*aOther.m_source);
    }
    /// Whether both have the same bytes, compared piece by piece. Data that cannot be had equal such data of the same
    /// place.
    [[nodiscard]] bool Equals(const SegmentData& aOther) const;

    /// All of the data, read once and kept; null, with nothing kept, when they cannot be had.
    const std::string* Bytes() const;
    /// The data for a single use: not kept.
    [[nodiscard]] bool Read(std::string& aOut) const;
    /// The first bytes of the data, `aMost` of them when there are as many.
    [[nodiscard]] bool ReadFront(std::uint64_t aMost, std::string& aOut) const;
    /// Hands the data over piece by piece, so that they never stand in memory as a whole. Every piece but the last is a
    /// multiple of three bytes long. Ends, with false, when reading fails or the receiver answers false.
    [[nodiscard]] bool ForEachPiece(const std::function<bool(std::string_view)>& aReceive) const;

private:
    std::shared_ptr<const ByteSource> m_source;
    std::uint64_t m_start;
    std::uint64_t m_size;
    Lazy<std::string> m_bytes;
};

}  // namespace ORMO::SensorModel::CSM::Detail

namespace ORMO::SensorModel::CSM {

struct ORMO_CSM_LOCAL NITFDataSegment::Data : Detail::SegmentData
{
    using SegmentData::SegmentData;
};

}  // namespace ORMO::SensorModel::CSM
