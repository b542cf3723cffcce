#include "foundation/CSMCnst.h"
#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Util::CSMCnst;
using ModuleHandle = SpecialOrmoDLLsLoader::ModuleHandle;

/// ISDs that a companion has made and not released.
int Alive(ModuleHandle aLibrary)
{
    return SpecialOrmoISDsDLL::FindFunction<int()>(aLibrary, "Alive")();
}

/// What the factory makes of a path, and whether the companion gets it back.
std::string MakeAndDestroy(const char* aPath, ModuleHandle aLibrary)
{
    ImageSupportData* isd = nullptr;
    std::string outcome;
    try {
        ImageSupportDataFactory::Create(aPath, &isd, true, false);
        outcome = isd == nullptr ? "none" : "made";
        outcome += ImageSupportDataFactory::GetErrorMessage() == nullptr ? "" : " with an error";
    } catch (const std::invalid_argument&) {
        outcome = "refused";
    } catch (const ImageSupportDataConstructionException&) {
        outcome = "failed";
    }
    outcome += " " + std::to_string(Alive(aLibrary));
    ImageSupportDataFactory::Destroy(&isd);
    return outcome + (isd == nullptr ? " " : " kept ") + std::to_string(Alive(aLibrary)) + ",";
}

/// Companions are looked for once per process, so each case runs in a program of its own, which prints its answers.
class IsdCompanionTest : public testing::Test
{
protected:
    void SetUp() override
    {
        testing::FLAGS_gtest_death_test_style = "threadsafe";
        m_directory =
            testing::TempDir() + "ormo_isd_companion_" + testing::UnitTest::GetInstance()->current_test_info()->name();
        std::filesystem::create_directories(m_directory);
    }

    void TearDown() override
    {
        unsetenv(CSMCnst::PropertyKey::ENV_TALVIK_CLASSIFIED_SYS_CONFIG_DIR);
        std::filesystem::remove_all(m_directory);
    }

    void Install(const std::string& aProperties) const
    {
        std::ofstream(m_directory + "/" + CSMCnst::PropertyKey::TALVIK_CLASSIFIED_SYS_PROPERTIES_FILE) << aProperties;
        setenv(CSMCnst::PropertyKey::ENV_TALVIK_CLASSIFIED_SYS_CONFIG_DIR, m_directory.c_str(), 1);
    }

    const std::string m_gold = std::string("ormo:talvik.g.isd=") + ORMO_COMPANION_DIR + "/named/libgold.so\n";
    const std::string m_red = std::string("ormo:talvik.r.sensor.system=") + ORMO_COMPANION_DIR + "/named/libred.so\n";
    std::string m_directory;
};

#define EXPECT_PRINTS(aStatements, aText) \
    EXPECT_EXIT(                          \
        {                                 \
            aStatements;                  \
            std::exit(0);                 \
        },                                \
        testing::ExitedWithCode(0), testing::Eq(std::string(aText)))

TEST_F(IsdCompanionTest, SecretLibraryMakesAndReleasesWhatItIdentifies)
{
    Install(m_gold);
    EXPECT_PRINTS(
        {
            const ModuleHandle gold = SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL();
            for (const char* const path :
                 {"a.nitf", "a.tfrd", "nothing.nitf", "throw.tfrd", "a.osde", "a.text", "unidentified"}) {
                std::cerr << MakeAndDestroy(path, gold);
            }
        },
        "made 1 0,made 1 0,none 0 0,none 0 0,failed 0 0,refused 0 0,refused 0 0,");
}

TEST_F(IsdCompanionTest, SciLibraryMakesWhatTheSecretOneIdentifies)
{
    Install(m_gold + m_red);
    EXPECT_PRINTS(
        {
            std::cerr << MakeAndDestroy("a.tfrd", SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL())
                      << MakeAndDestroy("throw.nitf", SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL());
            ImageSupportData* isd = nullptr;
            ImageSupportDataFactory::Create("a.tfrd", &isd, true, false);
            std::cerr << Alive(SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL());
        },
        "made 1 0,none 0 0,0");
}

TEST_F(IsdCompanionTest, LibraryTellsTypesAndSupportUnlessOnlyTheBuiltInTestIsWanted)
{
    Install(m_gold);
    EXPECT_PRINTS(
        {
            int version = 99;
            std::cerr << ImageSupportDataFactory::ISDType("a.tfrd", version, false) << " " << version;
            std::cerr << " " << ImageSupportDataFactory::ISDType("a.tfrd", version, true) << " " << version;
            for (const char* const path : {"a.tfrd", "a.nitf", "throw.tfrd"}) {
                const char* format = "untouched";
                std::cerr << " " << ImageSupportDataFactory::IsSupportedISDFile(path, format)
                          << (format == nullptr ? "(null)" : format);
            }
        },
        "2 1 -1 -1 1TFRD 0(null) 0(null)");
}

TEST_F(IsdCompanionTest, NitfFactoryAsksTheLibraryFirst)
{
    Install(m_red);
    EXPECT_PRINTS(
        {
            const ModuleHandle red = SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL();
            for (const char* const path : {"a.nitf", "throw.nitf", "nothing.nitf"}) {
                ImageSupportDataNITF* isd = nullptr;
                std::cerr << ImageSupportDataNITFFactory::Create(path, &isd, true, false, 3,
                                                                 NITFCnst::NITF_VERSION_NUMBER_20)
                          << (isd != nullptr) << Alive(red);
                ImageSupportDataNITFFactory::Destroy(&isd);
                std::cerr << (isd != nullptr) << Alive(red) << ",";
            }
        },
        "11100,00000,00000,");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
