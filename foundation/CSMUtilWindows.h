#pragma once

#include "Automation.h"
#include "Export.h"

#include <atomic>
#include <string>

namespace ORMO::SensorModel::CSM::Util {
/// Services of the operating system: environment, libraries, a mutex, and conversions of automation types.
/// A text handed out is new; the caller frees it with CSMUtilString::DeleteCString or DeleteWCharBuffer.
class ORMO_CSM_API CSMUtilWindows
{
public:
    /// A loaded library; null stands for none.
    using ModuleHandle = void*;

    /// A mutex of this process that its owner may acquire again; every acquisition needs its own release.
    class ORMO_CSM_API MutexLock
    {
    public:
        MutexLock() noexcept = default;
        ~MutexLock();
        MutexLock(const MutexLock&) = delete;
        MutexLock& operator=(const MutexLock&) = delete;

        /// Creates the mutex once, not owned; later calls only answer true. Safe to call from several threads.
        bool InitializeMutex() noexcept;
        /// Waits without a time-out until this thread owns the mutex; false when none was created.
        bool AcquireLock() noexcept;
        /// False when no mutex was created or this thread does not own it.
        bool ReleaseLock() noexcept;

    private:
        struct Mutex;
        void CleanupMutexLock() noexcept;

        std::atomic<Mutex*> m_mutex{nullptr};
    };

    /// The value of an environment variable, null when it is not set.
    /// Throws TSMError for a name that is empty or holds "=", and for a null output.
    static void GetEnv(const char* aName, char** aValue);
    /// The trimmed value of an environment variable as a directory path that ends with a separator; null when it is
    /// unset or blank. A value that holds a backslash gets backslashes throughout, every other value "/".
    /// Throws as GetEnv does.
    static void GetPathEnvVariable(const char* aName, char** aValue);

    /// Loads a library. For a name that ends with ".dll", "lib<stem>.so" and "<stem>.so" in the same place are tried
    /// as well. On failure the handle is null and aError tells the system's code and message for the name as given.
    static bool LoadModule(const char* aPath, ModuleHandle& aModule) noexcept;
    static bool LoadModule(const char* aPath, ModuleHandle& aModule, std::string& aError) noexcept;
    /// Unloads the library and sets the handle to null, which is ignored when it is null already.
    static void FreeModuleHandle(ModuleHandle& aModule) noexcept;

    /// The path of the running executable; null when the system does not tell it.
    static void GetFullyQualifiedExePath(char** aPath) noexcept;

    /// -1, 0 or 1 by code points; null counts as empty. aIgnoreCase folds the letters A to Z.
    /// Throws TSMError when a text holds something that is not a character.
    static int CompareBSTR(bool aIgnoreCase, const wchar_t* aFirst, const wchar_t* aSecond);
    /// Conversions from and to UTF-8; false, with a null output, for a null argument or text that is not well-formed.
    static bool FromBSTRToMultibyteChar(const wchar_t* aText, char** aOut) noexcept;
    static bool FromMultibyteCharToBSTR(const char* aText, BSTR* aOut) noexcept;
    static void FreeBSTR(BSTR& aText) noexcept;
    /// Deletes an array made with `new` and sets the pointer to null.
    static void DestroySafeArray(SAFEARRAY*& aArray) noexcept;

    /// The text of a class identifier, in braces with upper-case digits:
    /// "{00020906-0000-0000-C000-000000000046}".
    static bool ConvertCLSIDToString(const CLSID& aIdentifier, char** aOut) noexcept;
    static bool ConvertCLSIDToString(const CLSID& aIdentifier, wchar_t** aOut) noexcept;
    /// Reads such a text, digits in either case; false, with every part 0, for any other text.
    static bool GetCLSIDFromString(const char* aText, CLSID& aIdentifier) noexcept;
    static bool GetCLSIDFromString(const wchar_t* aText, CLSID& aIdentifier) noexcept;

    /// CSMUtilString::SignificantFigures with wide texts.
    static bool SignificantFigures(double aValue, double aUncertainty, wchar_t** aValueText, wchar_t** aUncertaintyText,
                                   bool aScientific) noexcept;

private:
    CSMUtilWindows() = delete;
    ~CSMUtilWindows() = delete;
    CSMUtilWindows& operator=(const CSMUtilWindows&) = delete;
};
}  // namespace ORMO::SensorModel::CSM::Util
