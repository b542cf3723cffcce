#include "tools/Output.h"

#include "tools/Isd.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>
#include <sys/stat.h>
#include <unistd.h>

namespace OrmoNitf {

namespace {

std::string SystemReason()
{
    return std::string("ERROR: ") + std::strerror(errno) + '.';
}

bool IsSameFile(const std::string& aOne, const std::string& aOther) noexcept
{
    struct stat one = {};
    struct stat other = {};
    return ::stat(aOne.c_str(), &one) == 0 && ::stat(aOther.c_str(), &other) == 0 && one.st_dev == other.st_dev &&
           one.st_ino == other.st_ino;
}

}  // namespace

Output::~Output()
{
    if (!m_temporary.empty()) {
        if (m_stream != nullptr) {
            std::fclose(m_stream);
        }
        ::unlink(m_temporary.c_str());
    }
}

bool Output::Open(const std::string& aTarget, const std::string& aInput, std::string& aReason)
{
    if (aTarget.empty() || aTarget == "-") {
        m_stream = stdout;
        return true;
    }
    if (IsSameFile(aTarget, aInput)) {
        aReason = "ERROR: The output is the input file itself; nothing is written.";
        return false;
    }
    struct stat status = {};
    if (::stat(aTarget.c_str(), &status) == 0 && !S_ISREG(status.st_mode)) {
        // A device or pipe is no file that could be replaced.
        m_stream = S_ISDIR(status.st_mode) ? nullptr : std::fopen(aTarget.c_str(), "wb");
        errno = m_stream == nullptr && S_ISDIR(status.st_mode) ? EISDIR : errno;
        aReason = m_stream == nullptr ? SystemReason() : "";
        return m_stream != nullptr;
    }
    std::string name = aTarget + ".XXXXXX";
    const int descriptor = ::mkstemp(name.data());
    if (descriptor < 0) {
        aReason = SystemReason();
        return false;
    }
    m_temporary = name;
    m_target = aTarget;
    const mode_t mask = ::umask(0);
    ::umask(mask);
    ::fchmod(descriptor, status.st_mode != 0 ? status.st_mode & 0777U : 0666U & ~mask);
    m_stream = ::fdopen(descriptor, "wb");
    if (m_stream == nullptr) {
        aReason = SystemReason();
        ::close(descriptor);
    }
    return m_stream != nullptr;
}

bool Output::Commit(std::string& aReason)
{
    const bool written = std::fflush(m_stream) == 0 && std::ferror(m_stream) == 0;
    if (!written) {
        aReason = SystemReason();
        return false;
    }
    if (m_temporary.empty()) {
        return true;
    }
    std::FILE* const stream = m_stream;
    m_stream = nullptr;
    if (std::fclose(stream) != 0 || std::rename(m_temporary.c_str(), m_target.c_str()) != 0) {
        aReason = SystemReason();
        return false;
    }
    m_temporary.clear();
    return true;
}

int WriteWith(const std::string& aTarget, const std::string& aInput, const std::function<bool(std::FILE*)>& aWrite)
{
    Output output;
    std::string reason;
    if (output.Open(aTarget, aInput, reason)) {
        errno = 0;
        // A full disk is the target's problem, whatever the writer says of it.
        const bool written = aWrite(output.Stream());
        if (!written && std::ferror(output.Stream()) == 0) {
            return EXIT_WRONG_USE;
        }
        if (output.Commit(reason)) {
            return EXIT_DONE;
        }
    }
    PrintProblem(aTarget.empty() ? "standard output" : aTarget, reason);
    return EXIT_WRONG_USE;
}

int WriteText(std::string_view aText, const std::string& aTarget, const std::string& aInput)
{
    return WriteWith(aTarget, aInput, [aText](std::FILE* aOut) {
        return std::fwrite(aText.data(), 1, aText.size(), aOut) == aText.size();
    });
}

std::string Printable(std::string aText)
{
    ORMO::SensorModel::CSM::Finding finding;
    finding.sentence = std::move(aText);
    return finding.Line();
}

std::string PathText(const std::string& aPath)
{
    // The control characters above 127 are two bytes in UTF-8, the second of which tells them.
    const auto isControl = [](unsigned char aByte) { return aByte < 0x20 || aByte == 0x7F; };
    bool isPlain = std::none_of(aPath.begin(), aPath.end(), isControl);
    for (std::size_t i = aPath.find('\xC2'); isPlain && i != std::string::npos; i = aPath.find('\xC2', i + 1)) {
        isPlain = i + 1 == aPath.size() || static_cast<unsigned char>(aPath[i + 1]) >= 0xA0;
    }
    try {
        static_cast<void>(nlohmann::json(aPath).dump());
    } catch (const nlohmann::json::type_error&) {
        isPlain = false;
    }
    return isPlain ? aPath : Printable(aPath);
}

bool HasControls(std::string_view aText) noexcept
{
    return std::any_of(aText.begin(), aText.end(), [](char aCharacter) {
        const auto byte = static_cast<unsigned char>(aCharacter);
        return byte < 0x20 || (byte >= 0x7F && byte < 0xA0);
    });
}

}  // namespace OrmoNitf
