#include "TSMError.h"
#include "foundation/CSMUtilWindows.h"
#include "tests/foundation/OwnedText.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {
using Util::CSMUtilWindows;

constexpr const char* VARIABLE = "ORMO_TEST_VARIABLE";

template<typename Answer>
Answer InAnotherThread(Answer (*aQuestion)(CSMUtilWindows::MutexLock&), CSMUtilWindows::MutexLock& aLock)
{
    return std::async(std::launch::async, [&] { return aQuestion(aLock); }).get();
}

bool Release(CSMUtilWindows::MutexLock& aLock)
{
    return aLock.ReleaseLock();
}

TEST(MutexLockTest, NothingHappensBeforeTheMutexIsCreated)
{
    CSMUtilWindows::MutexLock lock;
    EXPECT_FALSE(lock.AcquireLock());
    EXPECT_FALSE(lock.ReleaseLock());
}

TEST(MutexLockTest, OnlyTheOwnerReleasesAndAsOftenAsItAcquired)
{
    CSMUtilWindows::MutexLock lock;
    EXPECT_TRUE(lock.InitializeMutex());
    EXPECT_FALSE(lock.ReleaseLock());
    EXPECT_TRUE(lock.AcquireLock());
    // A second creation would lose the ownership.
    EXPECT_TRUE(lock.InitializeMutex());
    EXPECT_TRUE(lock.AcquireLock());
    EXPECT_FALSE(InAnotherThread(&Release, lock));
    EXPECT_TRUE(lock.ReleaseLock());
    EXPECT_TRUE(lock.ReleaseLock());
    EXPECT_FALSE(lock.ReleaseLock());
    // A lock that goes while it is owned takes its mutex with it.
    EXPECT_TRUE(lock.AcquireLock());
}

TEST(MutexLockTest, ThreadsThatCreateAndLockAtOnceExcludeEachOther)
{
    CSMUtilWindows::MutexLock lock;
    long count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i != 4; ++i) {
        threads.emplace_back([&lock, &count] {
            lock.InitializeMutex();
            for (int j = 0; j != 5000; ++j) {
                if (lock.AcquireLock()) {
                    ++count;
                    lock.ReleaseLock();
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(count, 20000);
}

class EnvironmentTest : public ::testing::Test
{
protected:
    void TearDown() override { ::unsetenv(VARIABLE); }

    static std::string PathOf(const char* aValue)
    {
        ::setenv(VARIABLE, aValue, 1);
        Text path;
        CSMUtilWindows::GetPathEnvVariable(VARIABLE, path.Out());
        return path.IsNull() ? "null" : path.Str();
    }
};

TEST_F(EnvironmentTest, UnsetVariablesAreNullAndEmptyOnesAreNot)
{
    Text unset;
    CSMUtilWindows::GetEnv(VARIABLE, unset.Out());
    EXPECT_TRUE(unset.IsNull());
    Text unsetPath;
    CSMUtilWindows::GetPathEnvVariable(VARIABLE, unsetPath.Out());
    EXPECT_TRUE(unsetPath.IsNull());
    ::setenv(VARIABLE, "", 1);
    Text empty;
    CSMUtilWindows::GetEnv(VARIABLE, empty.Out());
    EXPECT_STREQ(empty.Get(), "");
}

TEST_F(EnvironmentTest, PathsEndWithTheirSeparator)
{
    EXPECT_EQ(PathOf("C:\\data"), "C:\\data\\");
    EXPECT_EQ(PathOf("C:\\data\\"), "C:\\data\\");
    EXPECT_EQ(PathOf("C:\\data/x/"), "C:\\data\\x\\");
    EXPECT_EQ(PathOf(" /data "), "/data/");
    EXPECT_EQ(PathOf("/data/"), "/data/");
    EXPECT_EQ(PathOf("data"), "data/");
    EXPECT_EQ(PathOf(" \t "), "null");
}

TEST_F(EnvironmentTest, NamesThatCannotBeAreReported)
{
    for (const char* const wrong : {"", "A=B", static_cast<const char*>(nullptr)}) {
        Text value;
        try {
            CSMUtilWindows::GetEnv(wrong, value.Out());
            ADD_FAILURE() << "accepted";
        } catch (TSMError& error) {
            EXPECT_EQ(error.getFunction(), "CSMUtilWindows::GetEnv");
        }
        EXPECT_TRUE(value.IsNull());
    }
    EXPECT_THROW(CSMUtilWindows::GetPathEnvVariable(VARIABLE, nullptr), TSMError);
}

TEST(ModuleTest, LibrariesLoadByTheirOwnName)
{
    CSMUtilWindows::ModuleHandle module = nullptr;
    std::string error = "old";
    EXPECT_TRUE(CSMUtilWindows::LoadModule(" libm.so.6 ", module, error));
    EXPECT_NE(module, nullptr);
    EXPECT_EQ(error, "");
    CSMUtilWindows::FreeModuleHandle(module);
    EXPECT_EQ(module, nullptr);
    CSMUtilWindows::FreeModuleHandle(module);
}

TEST(ModuleTest, DllNamesFindSharedObjects)
{
    std::string pattern = ::testing::TempDir() + "/ormo_module_XXXXXX";
    ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
    const std::filesystem::path folder = pattern;
    CSMUtilWindows::ModuleHandle libm = nullptr;
    ASSERT_TRUE(CSMUtilWindows::LoadModule("libm.so.6", libm));
    // Any library serves; this one tells where it lies.
    Dl_info info{};
    ASSERT_NE(::dladdr(::dlsym(libm, "cbrt"), &info), 0);
    const std::filesystem::path library = std::filesystem::absolute(info.dli_fname);
    for (const char* const name : {"libplain.so", "other.so"}) {
        std::filesystem::create_symlink(library, folder / name);
    }
    for (const char* const name : {"plain.dll", "other.DLL"}) {
        CSMUtilWindows::ModuleHandle module = nullptr;
        std::string error;
        EXPECT_TRUE(CSMUtilWindows::LoadModule((folder / name).c_str(), module, error)) << error;
        CSMUtilWindows::FreeModuleHandle(module);
    }
    CSMUtilWindows::FreeModuleHandle(libm);
    std::filesystem::remove_all(folder);
}

TEST(ModuleTest, FailuresTellCodeAndMessageOfTheNameAsGiven)
{
    for (const char* const wrong : {"/nowhere/x.dll", "", "  ", ".dll", static_cast<const char*>(nullptr)}) {
        CSMUtilWindows::ModuleHandle module = &module;
        std::string error;
        EXPECT_FALSE(CSMUtilWindows::LoadModule(wrong, module, error));
        EXPECT_EQ(module, nullptr);
        EXPECT_EQ(error.rfind("Error code returned from the Windows system = ", 0), 0U) << error;
        EXPECT_NE(error.find("\nWindows system error message: "), std::string::npos) << error;
        if (wrong != nullptr && *wrong == '/') {
            EXPECT_NE(error.find("/nowhere/x.dll"), std::string::npos) << error;
        }
    }
}

TEST(ModuleTest, FailuresTellTheReason)
{
    const auto errorOf = [](const char* aName) {
        CSMUtilWindows::ModuleHandle module = nullptr;
        std::string error;
        EXPECT_FALSE(CSMUtilWindows::LoadModule(aName, module, error)) << aName;
        return error.substr(0, error.find('\n'));
    };
    const std::string code = "Error code returned from the Windows system = ";
    EXPECT_EQ(errorOf("/nowhere/x.so"), code + std::to_string(ENOENT));
    EXPECT_EQ(errorOf("no-such-library.so"), code + std::to_string(ENOENT));
    EXPECT_EQ(errorOf("/"), code + std::to_string(EISDIR));
    EXPECT_EQ(errorOf("/etc/passwd"), code + std::to_string(ENOEXEC));
}

TEST(ProcessTest, ExecutableIsThisProgram)
{
    Text path;
    CSMUtilWindows::GetFullyQualifiedExePath(path.Out());
    EXPECT_TRUE(std::filesystem::equivalent(path.Str(), "/proc/self/exe"));
}

TEST(AutomationTest, TextsCompareByCodePoints)
{
    EXPECT_EQ(CSMUtilWindows::CompareBSTR(false, L"a", L"B"), 1);
    EXPECT_EQ(CSMUtilWindows::CompareBSTR(true, L"a", L"B"), -1);
    EXPECT_EQ(CSMUtilWindows::CompareBSTR(true, L"NITF", L"nitf"), 0);
    EXPECT_EQ(CSMUtilWindows::CompareBSTR(false, nullptr, L""), 0);
    EXPECT_EQ(CSMUtilWindows::CompareBSTR(false, L"a", L"ab"), -1);
    const wchar_t wrong[] = {static_cast<wchar_t>(-1), 0};
    try {
        CSMUtilWindows::CompareBSTR(false, L"a", wrong);
        ADD_FAILURE() << "compared";
    } catch (TSMError& error) {
        EXPECT_EQ(error.getMessage(), "BSTR comparison operation failed.");
        EXPECT_EQ(error.getFunction(), "CSMUtilWindows::CompareBSTR");
    }
}

TEST(AutomationTest, TextsConvertBothWaysOrNotAtAll)
{
    Util::BSTR wide = nullptr;
    ASSERT_TRUE(CSMUtilWindows::FromMultibyteCharToBSTR("\xE2\x82\xAC", &wide));
    EXPECT_STREQ(wide, L"\u20AC");
    Text narrow;
    EXPECT_TRUE(CSMUtilWindows::FromBSTRToMultibyteChar(wide, narrow.Out()));
    EXPECT_EQ(narrow.Str(), "\xE2\x82\xAC");
    CSMUtilWindows::FreeBSTR(wide);
    EXPECT_EQ(wide, nullptr);
    EXPECT_FALSE(CSMUtilWindows::FromMultibyteCharToBSTR("\xE2\x82", &wide));
    EXPECT_FALSE(CSMUtilWindows::FromMultibyteCharToBSTR("a", nullptr));

    auto* array = new Util::SAFEARRAY{1, {1, 2}};
    CSMUtilWindows::DestroySafeArray(array);
    EXPECT_EQ(array, nullptr);
}

TEST(AutomationTest, ClassIdentifiersKeepTheOrderOfTheirDigits)
{
    const std::string text = "{00112233-4455-6677-8899-AABBCCDDEEFF}";
    Util::CLSID identifier;
    ASSERT_TRUE(CSMUtilWindows::GetCLSIDFromString("{00112233-4455-6677-8899-aabbccddeeff}", identifier));
    EXPECT_EQ(identifier.Data1, 0x00112233U);
    EXPECT_EQ(identifier.Data2, 0x4455U);
    EXPECT_EQ(identifier.Data3, 0x6677U);
    EXPECT_EQ(identifier.Data4[0], 0x88U);
    EXPECT_EQ(identifier.Data4[7], 0xFFU);
    Text narrow;
    EXPECT_TRUE(CSMUtilWindows::ConvertCLSIDToString(identifier, narrow.Out()));
    EXPECT_EQ(narrow.Str(), text);
    WideText wide;
    EXPECT_TRUE(CSMUtilWindows::ConvertCLSIDToString(identifier, wide.Out()));
    Util::CLSID again;
    EXPECT_TRUE(CSMUtilWindows::GetCLSIDFromString(wide.Get(), again));
    EXPECT_EQ(again.Data1, identifier.Data1);
    EXPECT_EQ(again.Data4[7], identifier.Data4[7]);
    for (const char* const wrong : {"", "00112233-4455-6677-8899-AABBCCDDEEFF", "{00112233-4455-6677-8899-AABBCCDDEEF}",
                                    "{00112233-4455-6677-8899-AABBCCDDEEFG}", "{001122334-455-6677-8899-AABBCCDDEEFF}",
                                    "{00112233-4455-6677-8899-AABBCCDDEEFF} ", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(CSMUtilWindows::GetCLSIDFromString(wrong, identifier));
        EXPECT_EQ(identifier.Data1, 0U);
    }
}

TEST(AutomationTest, SignificantFiguresComeAsWideText)
{
    WideText value;
    WideText uncertainty;
    ASSERT_TRUE(CSMUtilWindows::SignificantFigures(1234.567, 0.023, value.Out(), uncertainty.Out(), false));
    EXPECT_EQ(value.Str(), L"1234.57");
    EXPECT_EQ(uncertainty.Str(), L"0.02");
    WideText none;
    WideText noneEither;
    EXPECT_FALSE(CSMUtilWindows::SignificantFigures(1.0, 0.0, none.Out(), noneEither.Out(), false));
    EXPECT_TRUE(none.IsNull());
    EXPECT_TRUE(noneEither.IsNull());
}
}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
