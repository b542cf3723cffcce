#include "fields/ByteSource.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

std::string SystemReason()
{
    return std::generic_category().message(errno);
}

std::string KindReason(const struct stat& aStatus)
{
    return S_ISDIR(aStatus.st_mode) ? "Is a directory" : "Is not a regular file";
}

}  // namespace

std::unique_ptr<ByteSource> ByteSource::Open(const std::string& aPath, std::string& aReason)
{
    if (aPath.find('\0') != std::string::npos) {
        aReason = "The path holds a zero byte";
        return nullptr;
    }
    // Looked at before it is opened, because opening alone already acts on a FIFO or a device.
    struct stat status = {};
    if (::stat(aPath.c_str(), &status) != 0) {
        aReason = SystemReason();
        return nullptr;
    }
    if (!S_ISREG(status.st_mode)) {
        aReason = KindReason(status);
        return nullptr;
    }
    // The file may have been exchanged since. Without O_NONBLOCK the open of a FIFO would wait for a writer.
    const int descriptor = ::open(aPath.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (descriptor < 0) {
        aReason = SystemReason();
        return nullptr;
    }
    const bool known = ::fstat(descriptor, &status) == 0;
    if (!known || !S_ISREG(status.st_mode)) {
        aReason = known ? KindReason(status) : SystemReason();
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<ByteSource>(new ByteSource(aPath, descriptor, static_cast<std::uint64_t>(status.st_size)));
}

std::unique_ptr<ByteSource> ByteSource::OfStream(std::FILE* aStream, std::string& aReason)
{
    const int descriptor = ::fcntl(::fileno(aStream), F_DUPFD_CLOEXEC, 0);
    if (descriptor < 0) {
        aReason = SystemReason();
        return nullptr;
    }
    struct stat status = {};
    const bool known = ::fstat(descriptor, &status) == 0;
    if (!known || !S_ISREG(status.st_mode)) {
        aReason = known ? KindReason(status) : SystemReason();
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<ByteSource>(new ByteSource({}, descriptor, static_cast<std::uint64_t>(status.st_size)));
}

std::unique_ptr<ByteSource> ByteSource::OfMemory(std::string_view aBytes, bool aCopy, std::string aName)
{
    auto source = std::unique_ptr<ByteSource>(new ByteSource(std::move(aName), -1, aBytes.size()));
    source->m_copy = aCopy ? std::string(aBytes) : std::string();
    source->m_memory = aCopy ? std::string_view(source->m_copy) : aBytes;
    return source;
}

std::unique_ptr<ByteSource> ByteSource::OfPieces(std::map<std::uint64_t, std::string> aPieces, std::uint64_t aSize,
                                                 std::string aName)
{
    auto source = std::unique_ptr<ByteSource>(new ByteSource(std::move(aName), -1, aSize));
    source->m_pieces = std::move(aPieces);
    return source;
}

ByteSource::ByteSource(std::string aPath, int aDescriptor, std::uint64_t aSize)
    : m_path(std::move(aPath)), m_descriptor(aDescriptor), m_size(aSize)
{
}

ByteSource::~ByteSource()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

bool ByteSource::IsSameFile(const ByteSource& aOther) const noexcept
{
    if (this == &aOther) {
        return true;
    }
    struct stat own = {};
    struct stat other = {};
    return !IsMemory() && !aOther.IsMemory() && m_size == aOther.m_size && ::fstat(m_descriptor, &own) == 0 &&
           ::fstat(aOther.m_descriptor, &other) == 0 && own.st_dev == other.st_dev && own.st_ino == other.st_ino;
}

std::FILE* ByteSource::OpenStream() const noexcept
{
    const int descriptor = m_descriptor < 0 ? -1 : ::fcntl(m_descriptor, F_DUPFD_CLOEXEC, 0);
    std::FILE* const stream = descriptor < 0 ? nullptr : ::fdopen(descriptor, "rb");
    if (stream == nullptr && descriptor >= 0) {
        ::close(descriptor);
    }
    return stream;
}

std::string_view ByteSource::PieceFrom(std::uint64_t aOffset) const noexcept
{
    const auto next = m_pieces.upper_bound(aOffset);
    if (next == m_pieces.begin()) {
        return {};
    }
    const auto& [start, bytes] = *std::prev(next);
    return aOffset - start < bytes.size() ? std::string_view(bytes).substr(static_cast<std::size_t>(aOffset - start))
                                          : std::string_view();
}

bool ByteSource::Read(std::uint64_t aOffset, std::uint64_t aLength, std::string& aOut) const
{
    aOut.clear();
    if (!Holds(aOffset, aLength)) {
        return false;
    }
    if (!m_pieces.empty()) {
        aOut = PieceFrom(aOffset).substr(0, static_cast<std::size_t>(aLength));
        return true;
    }
    if (IsMemory()) {
        aOut = m_memory.substr(static_cast<std::size_t>(aOffset), static_cast<std::size_t>(aLength));
        return true;
    }
    aOut.resize(static_cast<std::size_t>(aLength));
    return ReadInto(aOffset, aOut);
}

bool ByteSource::ReadInto(std::uint64_t aOffset, std::string& aOut) const
{
    std::size_t done = 0;
    while (done != aOut.size()) {
        const ssize_t count =
            ::pread(m_descriptor, aOut.data() + done, aOut.size() - done, static_cast<off_t>(aOffset + done));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {  // the file became shorter while it was read, or the system failed
            aOut.clear();
            return false;
        }
        done += static_cast<std::size_t>(count);
    }
    return true;
}

bool ByteSource::ReadUpTo(std::uint64_t aOffset, std::uint64_t aMost, std::string& aOut) const
{
    return Read(std::min(aOffset, m_size), std::min(aMost, HeldFrom(aOffset)), aOut);
}

}  // namespace ORMO::SensorModel::CSM::Detail
