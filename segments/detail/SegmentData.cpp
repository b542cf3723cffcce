#include "segments/detail/SegmentData.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

constexpr std::uint64_t PIECE = 3U << 18U;

}  // namespace

std::string SegmentData::Fault() const
{
    if (m_source == nullptr) {
        return "there is no file to read them from";
    }
    if (!IsAvailable()) {
        return "they begin at byte offset " + std::to_string(m_start) + " and take " + std::to_string(m_size) +
               " byte(s), the file has " + std::to_string(m_source->Size());
    }
    return {};
}

bool SegmentData::Read(std::string& aOut) const
{
    return IsAvailable() && m_source->Read(m_start, m_size, aOut);
}

bool SegmentData::ReadFront(std::uint64_t aMost, std::string& aOut) const
{
    return IsAvailable() && m_source->Read(m_start, std::min(m_size, aMost), aOut);
}

bool SegmentData::Equals(const SegmentData& aOther) const
{
    if (!IsAvailable() || !aOther.IsAvailable() || m_size != aOther.m_size) {
        return !IsAvailable() && !aOther.IsAvailable() && m_size == aOther.m_size && m_start == aOther.m_start;
    }
    std::uint64_t done = 0;
    std::string theirs;
    return ForEachPiece([&](std::string_view aPiece) {
        const bool read = aOther.m_source->Read(aOther.m_start + done, aPiece.size(), theirs);
        done += aPiece.size();
        return read && theirs == aPiece;
    });
}

const std::string* SegmentData::Bytes() const
{
    return m_bytes.TryGet([this] {
        auto bytes = std::make_unique<std::string>();
        return Read(*bytes) ? std::unique_ptr<const std::string>(std::move(bytes)) : nullptr;
    });
}

bool SegmentData::ForEachPiece(const std::function<bool(std::string_view)>& aReceive) const
{
    if (!IsAvailable()) {
        return false;
    }
    std::string piece;
    for (std::uint64_t done = 0; done != m_size; done += piece.size()) {
        if (!m_source->Read(m_start + done, std::min(PIECE, m_size - done), piece) || !aReceive(piece)) {
            return false;
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM::Detail
