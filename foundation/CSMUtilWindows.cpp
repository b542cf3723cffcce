#include "foundation/CSMUtilWindows.h"

#include "foundation/CSMUtilGeneric.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "foundation/detail/Utf8.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <memory>
#include <mutex>
#include <new>
#include <string_view>
#include <system_error>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <sys/stat.h>

namespace ORMO::SensorModel::CSM::Util {
namespace {
constexpr std::string_view DLL_SUFFIX = ".dll";
constexpr std::string_view SO_SUFFIX = ".so";

std::string LoadError(int aCode, const char* aMessage)
{
    return "Error code returned from the Windows system = " + std::to_string(aCode) +
           "\nWindows system error message: " + std::string(Detail::ViewOf(aMessage));
}

/// Why a library cannot be loaded, for when the loader itself does not say: a name without a folder is looked for in
/// places that it alone knows.
int LoadErrorCode(const std::string& aName) noexcept
{
    struct stat status = {};
    if (aName.find('/') == std::string::npos) {
        return ENOENT;
    }
    if (::stat(aName.c_str(), &status) != 0) {
        return errno;
    }
    return S_ISDIR(status.st_mode) ? EISDIR : ENOEXEC;
}

/// The names under which a library may be found, the given one first.
std::vector<std::string> ModuleNames(const std::string& aPath)
{
    std::vector<std::string> names{aPath};
    const std::size_t name = aPath.find_last_of("/\\") + 1;
    const std::size_t stemLength = aPath.size() - name - std::min(aPath.size() - name, DLL_SUFFIX.size());
    if (stemLength != 0 && CSMUtilString::EndWith(true, aPath.c_str(), DLL_SUFFIX.data())) {
        const std::string folder = aPath.substr(0, name);
        const std::string file = aPath.substr(name, stemLength).append(SO_SUFFIX);
        names.push_back(folder + "lib" + file);
        names.push_back(folder + file);
    }
    return names;
}

wchar_t Folded(bool aIgnoreCase, wchar_t aCharacter) noexcept
{
    const bool isUpper = aCharacter >= L'A' && aCharacter <= L'Z';
    return aIgnoreCase && isUpper ? static_cast<wchar_t>(aCharacter - L'A' + L'a') : aCharacter;
}

/// Whether the text holds characters only.
bool IsWideText(std::wstring_view aText) noexcept
{
    return std::all_of(aText.begin(), aText.end(),
                       [](wchar_t aValue) { return Detail::IsCodePoint(static_cast<char32_t>(aValue)); });
}

// Where each of the 16 bytes of a class identifier begins in its text "{00112233-4455-6677-8899-AABBCCDDEEFF}".
constexpr std::array<std::size_t, 16> CLSID_POSITIONS = {1, 3, 5, 7, 10, 12, 15, 17, 20, 22, 25, 27, 29, 31, 33, 35};
constexpr std::string_view CLSID_PATTERN = "{00000000-0000-0000-0000-000000000000}";
constexpr std::string_view HEX_DIGITS = "0123456789ABCDEF";

std::array<unsigned, 16> BytesOf(const CLSID& aIdentifier) noexcept
{
    std::array<unsigned, 16> bytes{};
    for (std::size_t i = 0; i != 4; ++i) {
        bytes[i] = (aIdentifier.Data1 >> (24U - 8U * i)) & 0xFFU;
    }
    bytes[4] = aIdentifier.Data2 >> 8U;
    bytes[5] = aIdentifier.Data2 & 0xFFU;
    bytes[6] = aIdentifier.Data3 >> 8U;
    bytes[7] = aIdentifier.Data3 & 0xFFU;
    std::copy(std::begin(aIdentifier.Data4), std::end(aIdentifier.Data4), bytes.begin() + 8);
    return bytes;
}

CLSID FromBytes(const std::array<unsigned, 16>& aBytes) noexcept
{
    CLSID identifier;
    identifier.Data1 = (aBytes[0] << 24U) | (aBytes[1] << 16U) | (aBytes[2] << 8U) | aBytes[3];
    identifier.Data2 = static_cast<std::uint16_t>((aBytes[4] << 8U) | aBytes[5]);
    identifier.Data3 = static_cast<std::uint16_t>((aBytes[6] << 8U) | aBytes[7]);
    for (std::size_t i = 0; i != 8; ++i) {
        identifier.Data4[i] = static_cast<std::uint8_t>(aBytes[8 + i]);
    }
    return identifier;
}

template<typename Character>
bool WriteIdentifier(const CLSID& aIdentifier, Character** aOut) noexcept
{
    std::array<Character, CLSID_PATTERN.size()> text{};
    std::copy(CLSID_PATTERN.begin(), CLSID_PATTERN.end(), text.begin());
    const std::array<unsigned, 16> bytes = BytesOf(aIdentifier);
    for (std::size_t i = 0; i != bytes.size(); ++i) {
        text[CLSID_POSITIONS[i]] = HEX_DIGITS[bytes[i] >> 4U];
        text[CLSID_POSITIONS[i] + 1] = HEX_DIGITS[bytes[i] & 0xFU];
    }
    return Detail::HandOutText(std::basic_string_view<Character>(text.data(), text.size()), aOut);
}

bool ReadIdentifier(std::string_view aText, CLSID& aIdentifier) noexcept
{
    aIdentifier = CLSID{};
    std::array<unsigned, 16> bytes{};
    if (aText.size() != CLSID_PATTERN.size()) {
        return false;
    }
    std::size_t digits = 0;
    for (std::size_t i = 0; i != aText.size(); ++i) {
        if (CLSID_PATTERN[i] != '0') {
            if (aText[i] != CLSID_PATTERN[i]) {
                return false;
            }
            continue;
        }
        const std::size_t value = HEX_DIGITS.find(Detail::UpperCase(aText[i]));
        if (value == std::string_view::npos) {
            return false;
        }
        bytes[digits / 2] = (bytes[digits / 2] << 4U) | static_cast<unsigned>(value);
        ++digits;
    }
    aIdentifier = FromBytes(bytes);
    return true;
}
}  // namespace

/// Knows its owner, since only the owner may release it. The depth belongs to whoever owns the mutex.
struct CSMUtilWindows::MutexLock::Mutex
{
    std::recursive_mutex handle;
    std::atomic<std::thread::id> owner{};
    std::size_t depth = 0;
};

CSMUtilWindows::MutexLock::~MutexLock()
{
    CleanupMutexLock();
}

bool CSMUtilWindows::MutexLock::InitializeMutex() noexcept
{
    if (m_mutex.load() != nullptr) {
        return true;
    }
    std::unique_ptr<Mutex> mutex(new (std::nothrow) Mutex);
    if (mutex == nullptr) {
        return false;
    }
    // When another thread was first, its mutex stays and this one goes.
    Mutex* none = nullptr;
    if (m_mutex.compare_exchange_strong(none, mutex.get())) {
        static_cast<void>(mutex.release());
    }
    return true;
}

bool CSMUtilWindows::MutexLock::AcquireLock() noexcept
{
    Mutex* const mutex = m_mutex.load();
    if (mutex == nullptr) {
        return false;
    }
    try {
        mutex->handle.lock();
    } catch (const std::system_error&) {
        return false;  // acquired more often than the system can count
    }
    ++mutex->depth;
    mutex->owner = std::this_thread::get_id();
    return true;
}

bool CSMUtilWindows::MutexLock::ReleaseLock() noexcept
{
    Mutex* const mutex = m_mutex.load();
    // Another thread may change the owner meanwhile, but never from or to this thread.
    if (mutex == nullptr || mutex->owner != std::this_thread::get_id()) {
        return false;
    }
    if (--mutex->depth == 0) {
        mutex->owner = std::thread::id{};
    }
    mutex->handle.unlock();
    return true;
}

void CSMUtilWindows::MutexLock::CleanupMutexLock() noexcept
{
    // A mutex may only be destroyed when nobody owns it.
    while (ReleaseLock()) {
    }
    delete m_mutex.exchange(nullptr);
}

void CSMUtilWindows::GetEnv(const char* aName, char** aValue)
{
    if (aValue != nullptr) {
        *aValue = nullptr;
    }
    const std::string_view name = Detail::ViewOf(aName);
    if (name.empty() || name.find('=') != std::string_view::npos || aValue == nullptr) {
        CSMUtilGeneric::ThrowTSMError("ERROR: Invalid name of an environment variable and/or NULL output parameter.",
                                      "CSMUtilWindows::GetEnv", TSMError::INVALID_USE);
    }
    const char* const value = std::getenv(aName);
    if (value != nullptr) {
        Detail::HandOutOrThrow(value, aValue);
    }
}

void CSMUtilWindows::GetPathEnvVariable(const char* aName, char** aValue)
{
    GetEnv(aName, aValue);
    std::string path(Detail::Trimmed(Detail::ViewOf(*aValue)));
    CSMUtilString::DeleteCString(*aValue);
    if (path.empty()) {
        return;
    }
    const bool hasBackslash = path.find('\\') != std::string::npos;
    const char separator = hasBackslash ? '\\' : '/';
    if (hasBackslash) {
        std::replace(path.begin(), path.end(), '/', separator);
    }
    if (path.back() != separator) {
        path += separator;
    }
    Detail::HandOutOrThrow(path, aValue);
}

bool CSMUtilWindows::LoadModule(const char* aPath, ModuleHandle& aModule) noexcept
{
    std::string error;
    return LoadModule(aPath, aModule, error);
}

bool CSMUtilWindows::LoadModule(const char* aPath, ModuleHandle& aModule, std::string& aError) noexcept
{
    aModule = nullptr;
    try {
        // Copied first, since the path may be the error text of an earlier call. An empty name is refused here: the
        // system would take it for the running program.
        const std::string path(Detail::Trimmed(Detail::ViewOf(aPath)));
        aError.clear();
        if (path.empty()) {
            aError = LoadError(EINVAL, "The name of the library is empty.");
            return false;
        }
        for (const std::string& name : ModuleNames(path)) {
            errno = 0;
            aModule = dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL);
            int code = errno;
            if (aModule != nullptr) {
                aError.clear();
                return true;
            }
            const char* const message = dlerror();
            if (aError.empty()) {
                const std::string reason(Detail::ViewOf(message));
                code = code == 0 ? LoadErrorCode(name) : code;
                aError = LoadError(code, reason.c_str());
            }
        }
        return false;
    } catch (const std::exception&) {
        FreeModuleHandle(aModule);
        return false;
    }
}

void CSMUtilWindows::FreeModuleHandle(ModuleHandle& aModule) noexcept
{
    if (aModule != nullptr) {
        dlclose(aModule);
        aModule = nullptr;
    }
}

void CSMUtilWindows::GetFullyQualifiedExePath(char** aPath) noexcept
{
    if (aPath == nullptr) {
        return;
    }
    *aPath = nullptr;
    try {
        std::error_code error;
        const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
        if (!error) {
            Detail::HandOutOrThrow(path.native(), aPath);
        }
    } catch (const std::exception&) {
        // Memory is short: the path stays null.
    }
}

int CSMUtilWindows::CompareBSTR(bool aIgnoreCase, const wchar_t* aFirst, const wchar_t* aSecond)
{
    const std::wstring_view first = aFirst == nullptr ? L"" : aFirst;
    const std::wstring_view second = aSecond == nullptr ? L"" : aSecond;
    if (!IsWideText(first) || !IsWideText(second)) {
        CSMUtilGeneric::ThrowTSMError("BSTR comparison operation failed.", "CSMUtilWindows::CompareBSTR",
                                      TSMError::INVALID_USE);
    }
    const auto isLess = [aIgnoreCase](wchar_t aLeft, wchar_t aRight) {
        return Folded(aIgnoreCase, aLeft) < Folded(aIgnoreCase, aRight);
    };
    if (std::lexicographical_compare(first.begin(), first.end(), second.begin(), second.end(), isLess)) {
        return -1;
    }
    return std::lexicographical_compare(second.begin(), second.end(), first.begin(), first.end(), isLess) ? 1 : 0;
}

bool CSMUtilWindows::FromBSTRToMultibyteChar(const wchar_t* aText, char** aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    try {
        std::string narrow;
        return aText != nullptr && Detail::NarrowToUtf8(aText, narrow) && Detail::HandOut(narrow, aOut);
    } catch (const std::exception&) {
        return false;
    }
}

bool CSMUtilWindows::FromMultibyteCharToBSTR(const char* aText, BSTR* aOut) noexcept
{
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    try {
        std::wstring wide;
        return aText != nullptr && Detail::WidenUtf8(aText, wide) && Detail::HandOut(wide, aOut);
    } catch (const std::exception&) {
        return false;
    }
}

void CSMUtilWindows::FreeBSTR(BSTR& aText) noexcept
{
    CSMUtilString::DeleteWCharBuffer(aText);
}

void CSMUtilWindows::DestroySafeArray(SAFEARRAY*& aArray) noexcept
{
    delete aArray;
    aArray = nullptr;
}

bool CSMUtilWindows::ConvertCLSIDToString(const CLSID& aIdentifier, char** aOut) noexcept
{
    return WriteIdentifier(aIdentifier, aOut);
}

bool CSMUtilWindows::ConvertCLSIDToString(const CLSID& aIdentifier, wchar_t** aOut) noexcept
{
    return WriteIdentifier(aIdentifier, aOut);
}

bool CSMUtilWindows::GetCLSIDFromString(const char* aText, CLSID& aIdentifier) noexcept
{
    return ReadIdentifier(Detail::ViewOf(aText), aIdentifier);
}

bool CSMUtilWindows::GetCLSIDFromString(const wchar_t* aText, CLSID& aIdentifier) noexcept
{
    char* text = nullptr;
    FromBSTRToMultibyteChar(aText, &text);
    const bool isRead = ReadIdentifier(Detail::ViewOf(text), aIdentifier);
    CSMUtilString::DeleteCString(text);
    return isRead;
}

bool CSMUtilWindows::SignificantFigures(double aValue, double aUncertainty, wchar_t** aValueText,
                                        wchar_t** aUncertaintyText, bool aScientific) noexcept
{
    if (aValueText == nullptr || aUncertaintyText == nullptr || aValueText == aUncertaintyText) {
        return false;
    }
    *aValueText = nullptr;
    *aUncertaintyText = nullptr;
    char* value = nullptr;
    char* uncertainty = nullptr;
    const bool isDone = CSMUtilString::SignificantFigures(aValue, aUncertainty, &value, &uncertainty, aScientific) &&
                        FromMultibyteCharToBSTR(value, aValueText) &&
                        FromMultibyteCharToBSTR(uncertainty, aUncertaintyText);
    CSMUtilString::DeleteCString(value);
    CSMUtilString::DeleteCString(uncertainty);
    if (!isDone) {
        CSMUtilString::DeleteWCharBuffer(*aValueText);
        CSMUtilString::DeleteWCharBuffer(*aUncertaintyText);
    }
    return isDone;
}
}  // namespace ORMO::SensorModel::CSM::Util
