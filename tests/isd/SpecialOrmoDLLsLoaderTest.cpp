#include "foundation/CSMCnst.h"
#include "foundation/CSMSysProperties.h"
#include "foundation/CSMSysSecurity.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include <dlfcn.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Util::CSMCnst;

constexpr const char* CONFIG_DIR = CSMCnst::PropertyKey::ENV_TALVIK_CLASSIFIED_SYS_CONFIG_DIR;

std::string Companion(const std::string& aPath)
{
    return std::string(ORMO_COMPANION_DIR) + "/" + aPath;
}

bool IsMapped(const std::string& aPath)
{
    void* const library = dlopen(aPath.c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (library != nullptr) {
        dlclose(library);
    }
    return library != nullptr;
}

std::string Property(const char* aName)
{
    const char* value = "untouched";
    const bool found = CSMSysProperties::GetProperty(aName, value);
    if (found != (value != nullptr)) {
        return "answer and value disagree";
    }
    return found ? "[" + std::string(value) + "]" : "(null)";
}

/// The level and the markings of SCI, SECRET, unclassified and of a level at which the companions of the tests fail.
void PrintSecurity()
{
    std::cerr << "level " << CSMSysSecurity::GetHighestClassificationLevel();
    for (const int level : {1, 0, 2, 3}) {
        std::cerr << " " << CSMSysSecurity::GetDefaultClassificationLevelString(static_cast<CSMCnst::ClassType>(level))
                  << ",";
    }
}

/// What is asked here is found out once per process. Each case therefore runs in a program of its own, which takes
/// over the environment set here and prints its answers for the parent to compare.
class SpecialOrmoDLLsLoaderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        testing::FLAGS_gtest_death_test_style = "threadsafe";
        unsetenv(CONFIG_DIR);
        const testing::TestInfo* const info = testing::UnitTest::GetInstance()->current_test_info();
        m_directory = testing::TempDir() + "ormo_loader_" + info->name();
        std::filesystem::create_directories(m_directory);
    }

    void TearDown() override
    {
        unsetenv(CONFIG_DIR);
        std::filesystem::remove_all(m_directory);
    }

    /// Writes the properties file; the directory is named without a separator at its end.
    void Configure(const std::string& aText) const
    {
        std::ofstream(m_directory + "/" + CSMCnst::PropertyKey::TALVIK_CLASSIFIED_SYS_PROPERTIES_FILE) << aText;
        setenv(CONFIG_DIR, m_directory.c_str(), 1);
    }

    std::string m_directory;
};

#define EXPECT_PRINTS(aStatements, aText) \
    EXPECT_EXIT(                          \
        {                                 \
            aStatements;                  \
            std::exit(0);                 \
        },                                \
        testing::ExitedWithCode(0), testing::Eq(std::string(aText)))

TEST_F(SpecialOrmoDLLsLoaderTest, WithoutCompanionsTheInstallationIsUnclassified)
{
    EXPECT_PRINTS(PrintSecurity(), "level 2 UNKNOWN, UNKNOWN, UNCLASSIFIED, UNKNOWN,");
    EXPECT_PRINTS(
        {
            const char** none = nullptr;
            std::cerr << SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL() << SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL()
                      << SpecialOrmoDLLsLoader::GetGoldOrmoMSPTkDLL()
                      << SpecialOrmoDLLsLoader::GetGoldOrmoSSsDLL(none, 0);
        },
        "0000");
    EXPECT_PRINTS(std::cerr << Property(CSMCnst::PropertyKey::TALVIK_CLASSIFIED_SYS_CONFIG_DIR), "(null)");
}

TEST_F(SpecialOrmoDLLsLoaderTest, PropertiesAreReadOnceAndLookedUpTrimmed)
{
    Configure("# comment\normo:talvik.log.dir= first \normo:talvik.log.dir=second\nempty=\n");
    const std::string expected = "[ first ][ first ][][" + m_directory + "/](null)(null)[ first ]";
    EXPECT_PRINTS(
        {
            std::cerr << Property("ormo:talvik.log.dir") << Property("\t ormo:talvik.log.dir ") << Property("empty")
                      << Property("ormo:talvik.classified.sys.config.dir") << Property("ORMO:TALVIK.LOG.DIR")
                      << Property(nullptr);
            unsetenv(CONFIG_DIR);
            std::cerr << Property("ormo:talvik.log.dir");
        },
        expected);
}

TEST_F(SpecialOrmoDLLsLoaderTest, DirectoryWithoutItsFileGivesNoProperties)
{
    setenv(CONFIG_DIR, m_directory.c_str(), 1);
    EXPECT_PRINTS(std::cerr << Property(CSMCnst::PropertyKey::TALVIK_CLASSIFIED_SYS_CONFIG_DIR), "(null)");
}

TEST_F(SpecialOrmoDLLsLoaderTest, SciLibraryRanksAboveTheSecretOne)
{
    Configure("ormo:talvik.g.isd=" + Companion("named/libgold.so") +
              "\normo:talvik.r.sensor.system=" + Companion("named/libred.so"));
    EXPECT_PRINTS(PrintSecurity(), "level 1 SCI MARKING, SCI MARKING, UNKNOWN, UNKNOWN,");
}

TEST_F(SpecialOrmoDLLsLoaderTest, SecretLibraryAloneGivesItsLevelAndMarkings)
{
    // The value is trimmed, and the Windows name of a library finds the one of this system.
    Configure("ormo:talvik.g.isd=  " + Companion("named/gold.dll") + "  \n");
    EXPECT_PRINTS(PrintSecurity(), "level 0 SECRET MARKING, SECRET MARKING, UNKNOWN, UNKNOWN,");
    EXPECT_PRINTS(
        {
            void* const library = SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL();
            std::cerr << (library != nullptr) << (library == SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL())
                      << (SpecialOrmoISDsDLL::FindExport(library, SpecialOrmoISDsDLL::CREATE_ISD) != nullptr)
                      << (SpecialOrmoISDsDLL::FindExport(library, "Absent") != nullptr)
                      << (SpecialOrmoISDsDLL::FindExport(nullptr, "malloc") != nullptr);
        },
        "11100");
}

TEST_F(SpecialOrmoDLLsLoaderTest, IsdLibraryThatLacksAnExportIsUnloaded)
{
    const std::string path = Companion("named/libincomplete.so");
    Configure("ormo:talvik.g.isd=" + path + "\normo:talvik.r.sensor.system=" + path);
    EXPECT_PRINTS(PrintSecurity(), "level 2 UNKNOWN, UNKNOWN, UNCLASSIFIED, UNKNOWN,");
    EXPECT_PRINTS(std::cerr << SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL() << IsMapped(path), "00");
}

TEST_F(SpecialOrmoDLLsLoaderTest, SensorModelsLibraryNeedsEveryNameOfTheFirstCaller)
{
    const std::string path = Companion("named/libplain.so");
    Configure("ormo:talvik.g.sensor.models.system=" + path);
    const char* complete[] = {"FirstModel", "SecondModel"};
    const char* unresolved[] = {"FirstModel", "ThirdModel"};
    const char* withNull[] = {"FirstModel", nullptr, "SecondModel"};
    const auto ask = [](const char** aNames, std::size_t aCount) {
        return SpecialOrmoDLLsLoader::GetGoldOrmoSSsDLL(aNames, aCount) != nullptr;
    };
    EXPECT_PRINTS(std::cerr << ask(complete, 2) << ask(unresolved, 2) << IsMapped(path), "111");
    EXPECT_PRINTS(std::cerr << ask(unresolved, 2) << ask(complete, 2) << IsMapped(path), "000");
    EXPECT_PRINTS(std::cerr << ask(withNull, 3) << IsMapped(path), "00");
}

TEST_F(SpecialOrmoDLLsLoaderTest, DefaultNamesAreFoundOnTheLibraryPath)
{
    // A property without a value does not hide the default name.
    Configure("ormo:talvik.g.isd=  \n");
    const char* const before = std::getenv("LD_LIBRARY_PATH");
    const std::string saved = before == nullptr ? "" : before;
    setenv("LD_LIBRARY_PATH", (Companion("default") + (saved.empty() ? "" : ":" + saved)).c_str(), 1);
    EXPECT_PRINTS(PrintSecurity(), "level 0 SECRET DEFAULT, SECRET DEFAULT, UNKNOWN, UNKNOWN,");
    EXPECT_PRINTS(
        {
            const char* names[] = {"SecondModel"};
            const char** required = names;
            std::cerr << (SpecialOrmoDLLsLoader::GetGoldOrmoMSPTkDLL() != nullptr)
                      << (SpecialOrmoDLLsLoader::GetGoldOrmoSSsDLL(required, 1) != nullptr)
                      << (SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL() != nullptr);
        },
        "110");
    if (before == nullptr) {
        unsetenv("LD_LIBRARY_PATH");
    } else {
        setenv("LD_LIBRARY_PATH", saved.c_str(), 1);
    }
}

TEST_F(SpecialOrmoDLLsLoaderTest, FirstUseFromManyThreadsGivesOneAnswer)
{
    Configure("ormo:talvik.r.sensor.system=" + Companion("named/libred.so"));
    EXPECT_PRINTS(
        {
            std::vector<CSMCnst::ClassType> levels(8, CSMCnst::CLASS_TYPE_UNCLASSIFIED);
            std::vector<std::thread> threads;
            for (CSMCnst::ClassType& level : levels) {
                threads.emplace_back([&level] { level = CSMSysSecurity::GetHighestClassificationLevel(); });
            }
            for (std::thread& thread : threads) {
                thread.join();
            }
            for (const CSMCnst::ClassType level : levels) {
                std::cerr << level;
            }
        },
        "11111111");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
