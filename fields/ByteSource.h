#pragma once

#include <cstdint>
#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// One open file, one block of memory, or pieces of a file in memory: reads by offset, knows the real size, refuses a
/// length that it cannot hold. Never waits: only regular files are opened.
class ByteSource
{
public:
    /// Opens a regular file for reading; null, with the reason in `aReason`, when there is none to read.
    [[nodiscard]] static std::unique_ptr<ByteSource> Open(const std::string& aPath, std::string& aReason);

    /// The file behind a stream, which stays open and keeps its position. It has no path.
    [[nodiscard]] static std::unique_ptr<ByteSource> OfStream(std::FILE* aStream, std::string& aReason);

    /// A block of memory; with `aCopy` a copy of it, else the bytes must live as long as the source. `aName` stands for
    /// a path in messages.
    [[nodiscard]] static std::unique_ptr<ByteSource> OfMemory(std::string_view aBytes, bool aCopy, std::string aName);

    /// The pieces of a file of `aSize` bytes that are known, by their offset; they must not overlap. Nothing stands
    /// between them: a read that leaves its piece fails.
    [[nodiscard]] static std::unique_ptr<ByteSource> OfPieces(std::map<std::uint64_t, std::string> aPieces,
                                                              std::uint64_t aSize, std::string aName);

    ~ByteSource();
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;

    /// Bytes that the file held when it was opened.
    std::uint64_t Size() const noexcept { return m_size; }
    const std::string& Path() const noexcept { return m_path; }
    bool IsMemory() const noexcept { return m_descriptor < 0; }
    /// Whether both read the same file of the system, by whatever path; blocks of memory are the same when they are one
    /// object.
    bool IsSameFile(const ByteSource& aOther) const noexcept;
    /// A stdio stream of its own on the same open file, whatever became of its path; null for memory or when the system
    /// refuses. The caller closes it.
    [[nodiscard]] std::FILE* OpenStream() const noexcept;

    /// Whether `aLength` bytes stand at `aOffset`; never wraps.
    bool Holds(std::uint64_t aOffset, std::uint64_t aLength) const noexcept
    {
        return aOffset <= m_size && aLength <= HeldFrom(aOffset);
    }

    /// All of the bytes or none: false, with `aOut` empty, when the file does not hold them (any more) or the system
    /// fails to read. Nothing is allocated before the length is checked.
    [[nodiscard]] bool Read(std::uint64_t aOffset, std::uint64_t aLength, std::string& aOut) const;

    /// As many of the bytes as the file holds.
    [[nodiscard]] bool ReadUpTo(std::uint64_t aOffset, std::uint64_t aMost, std::string& aOut) const;

private:
    ByteSource(std::string aPath, int aDescriptor, std::uint64_t aSize);
    [[nodiscard]] bool ReadInto(std::uint64_t aOffset, std::string& aOut) const;
    /// How many bytes stand one behind the other from an offset on.
    std::uint64_t HeldFrom(std::uint64_t aOffset) const noexcept
    {
        return !m_pieces.empty() ? PieceFrom(aOffset).size() : aOffset < m_size ? m_size - aOffset : 0;
    }
    /// The rest of the piece that an offset lies in; empty between pieces.
    std::string_view PieceFrom(std::uint64_t aOffset) const noexcept;

    std::string m_path;
    int m_descriptor;
    std::uint64_t m_size;
    std::string m_copy;
    std::string_view m_memory;
    std::map<std::uint64_t, std::string> m_pieces;
};

}  // namespace ORMO::SensorModel::CSM::Detail
