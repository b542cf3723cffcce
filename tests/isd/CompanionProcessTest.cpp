#if defined(ORMO_COMPANION_HOST)

#include "tests/support/NitfBuilder.h"
#include "tests/support/Process.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

/// Handles of companions are kept per process, so each case is a process of its own: a host that prints what it sees.
/// "alive" counts the ISDs, TREs and texts of the SCI and of the SECRET library that were not released.
class CompanionProcessTest : public testing::Test
{
protected:
    void SetUp() override { std::filesystem::create_directories(m_directory); }
    void TearDown() override { std::filesystem::remove_all(m_directory); }

    std::string See(const std::string& aSci, const std::string& aSecret) const
    {
        std::ofstream properties(m_directory + "/classified.talvik.properties");
        if (!aSci.empty()) {
            properties << "ormo:talvik.r.sensor.system=" ORMO_COMPANION_DIR "/real/lib" << aSci << ".so\n";
        }
        if (!aSecret.empty()) {
            properties << "ormo:talvik.g.isd=" ORMO_COMPANION_DIR "/real/lib" << aSecret << ".so\n";
        }
        properties.close();
        Tests::NitfBuilder builder;
        builder.AddImage();
        const Tests::TempFile nitf(builder.Bytes());
        const Tests::TempFile tfrd("TFRD and more", ".tfrd");
        const Tests::Outcome outcome =
            Tests::RunCommand("TALVIK_CLASSIFIED_SYS_CONFIG_DIR=" + m_directory + " " ORMO_COMPANION_HOST " " +
                              tfrd.Path() + " " + nitf.Path() + " 2>&1");
        EXPECT_EQ(outcome.code, 0);
        return outcome.text;
    }

private:
    const std::string m_directory =
        testing::TempDir() + "ormo_companions_" + testing::UnitTest::GetInstance()->current_test_info()->name();
};

const std::string GENERIC_TRES =
    "TRE XSPCLA [plain] group -1 name UNKNOWN\n"
    "TRE XSPCLA [throw] group -1 name UNKNOWN\n"
    "TRE XSPCLA [bad] group -1 name UNKNOWN\n"
    "  alive 000 000\n"
    "reason given: 0\n"
    "  alive 000 000\n";

/// What a host without companions sees of a TFRD file, a NITF file and the special TREs.
const std::string OWN_FORMATS_ONLY =
    "type -1 version -1 supported 0: invalid argument\n"
    "  alive 000 000\n"
    "  alive 000 000\n"
    "type 0 version 21 supported 1: NITF02.10\n"
    "  alive 000 000\n"
    "  alive 000 000\n" +
    GENERIC_TRES;

TEST_F(CompanionProcessTest, SciLibraryGoesBeforeTheSecretOneAndReleasesWhatItMade)
{
    EXPECT_EQ(See("sci", "secret"),
              "level 1 [SCI MARKING]\n"
              "SCI ISD library: in use\n"
              "SECRET ISD library: in use\n"
              "type 2 version 1 supported 1: SCI TFRD\n"
              "  alive 100 000\n"
              "  alive 000 000\n"
              "type 0 version 21 supported 0: nothing\n"
              "  alive 000 000\n"
              "  alive 000 000\n"
              "TRE XSPCLA [plain] group 4 name SCI special\n"
              "TRE XSPCLA [throw] group -1 name UNKNOWN\n"
              "TRE XSPCLA [bad] group -1 name UNKNOWN\n"
              "  alive 020 000\n"
              "reason given: 1\n"
              "  alive 000 000\n");
}

TEST_F(CompanionProcessTest, SecretLibraryAloneDoesTheSameOnItsLevel)
{
    EXPECT_EQ(See("", "secret"),
              "level 0 [SECRET MARKING]\n"
              "SECRET ISD library: in use\n"
              "type 2 version 1 supported 1: SECRET TFRD\n"
              "  alive 000 100\n"
              "  alive 000 000\n"
              "type 0 version 21 supported 0: nothing\n"
              "  alive 000 000\n"
              "  alive 000 000\n"
              "TRE XSPCLA [plain] group 7 name SECRET special\n"
              "TRE XSPCLA [throw] group -1 name UNKNOWN\n"
              "TRE XSPCLA [bad] group -1 name UNKNOWN\n"
              "  alive 000 020\n"
              "reason given: 1\n"
              "  alive 000 000\n");
}

TEST_F(CompanionProcessTest, LibraryThatLacksOneExportIsAsGoodAsNone)
{
    EXPECT_EQ(See("", ""), "level 2 [UNCLASSIFIED]\n" + OWN_FORMATS_ONLY);
    EXPECT_EQ(See("lacking", ""),
              "level 2 [UNCLASSIFIED]\nSCI ISD library: It does not export DelISD.\n" + OWN_FORMATS_ONLY);
}

TEST_F(CompanionProcessTest, ThrownNumbersGoNoFurtherAndLeaveNothingBehind)
{
    EXPECT_EQ(See("throwing", "throwing"),
              "level 1 [UNKNOWN]\n"
              "SCI ISD library: in use\n"
              "SECRET ISD library: in use\n"
              "type 2 version 1 supported 0: nothing\n"
              "  alive 000 000\n"
              "  alive 000 000\n"
              "type 0 version 21 supported 0: nothing\n"
              "  alive 000 000\n"
              "  alive 000 000\n" +
                  GENERIC_TRES);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM

#endif
