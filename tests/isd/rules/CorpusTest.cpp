// What the rules say of real files: nothing false.

#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/Corpus.h"
#include "tests/support/Validated.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;

/// Every rule that a real file breaks as an error, with the reason why that is right. No conformance sample is among
/// them.
const std::map<std::string, std::set<std::string>> RIGHT{
    {"GHSarNITF20_good.ntf", {"FLD-01", "FLD-03"}},                   // LI 0; a required number of PATCHA blank
    {"WithBE.ntf", {"FLD-03"}},                                       // SID, SCOLOR and TEXTID blank
    {"embedded_xml.bin", {"FLD-03", "SEC-04"}},                       // OSTAID, ISCLAS, DECLAS blank; CODE without CLSY
    {"gdal3453.ntf", {"FLD-03"}},                                     // four required texts of HISTOA blank
    {"iq.nitf", {"BD-01"}},                                           // MONO with two bands
    {"po_39928_pan_0000000_chip_700_700_noICHIPB.nitf", {"FLD-03"}},  // STYPE blank
    {"test_blank.ntf", {"FLD-01"}},                                   // security fields filled with 1234...
    {"test_des_read.ntf", {"FLD-01"}},                                // the same
    {"xtest_blank.ntf", {"FLD-01"}},                                  // the same
    {"two_images_jpeg.ntf", {"DL-01"}},                               // two images of display level 001
};

TEST(ValidationCorpusTest, CallsNothingAnErrorThatIsNone)
{
    const std::filesystem::path directory = CorpusFile("README.md").parent_path();
    if (!std::filesystem::is_directory(directory)) {
        GTEST_SKIP() << "no corpus at " << directory;
    }
    std::size_t files = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        ImageSupportData* made = nullptr;
        try {
            ImageSupportDataFactory::Create(entry.path().c_str(), &made, true, false);
        } catch (const std::exception&) {
            continue;  // the list of them
        } catch (const CSMException&) {
            continue;  // damaged
        }
        ++files;
        auto* const isd = dynamic_cast<ImageSupportDataNITF*>(made);
        ASSERT_NE(nullptr, isd);
        unsigned long errors = 0;
        unsigned long warnings = 0;
        isd->Validate({"20261121000000", {}}, errors, warnings);
        const auto right = RIGHT.find(entry.path().filename().string());
        for (const Finding& finding : isd->GetValidationFindings()) {
            EXPECT_FALSE(finding.rule.empty()) << entry.path() << ' ' << finding.Line();
            if (finding.level != Finding::Level::Warning) {
                EXPECT_TRUE(right != RIGHT.end() && right->second.count(finding.rule) != 0)
                    << entry.path() << ' ' << finding.Line();
            }
        }
        EXPECT_EQ(right == RIGHT.end(), errors == 0) << entry.path();
        ImageSupportDataFactory::Destroy(&made);
    }
    EXPECT_GT(files, 0U);
}

/// Rules that known files break, as warnings: what is known of the files is found.
TEST(ValidationCorpusTest, FindsWhatIsKnownOfTheFiles)
{
    struct Known
    {
        const char* file;
        const char* rule;
    };
    for (const Known& known :
         {Known{"0000M033.GN3", "FH-07"}, Known{"0000M033.GN3", "DE-03"}, Known{"U_1123A.NTF", "FH-09"},
          Known{"p1_01a.ntf", "IC-04"}, Known{"066_389x298_s_11_3_rgb_jp2.ntf", "IC-17"}, Known{"p1_07a.ntf", "IC-16"},
          Known{"i_3201c.ntf", "MO-02"}, Known{"p1_05b.ntf", "BK-02"}, Known{"U_3058B.NTF", "GE-03"},
          Known{"U_2001A.NTF", "BD-06"}, Known{"LUinBand2.ntf", "BD-12"}, Known{"U_0006A.NTF", "TX-01"},
          Known{"ns3201a.nsf", "TX-02"}, Known{"i_3063f.ntf", "CGM-08"}, Known{"test_des_read.ntf", "DE-09"},
          Known{"fake_nsif.ntf", "FH-10"}, Known{"rgb16_6ABPPRight.ntf", "FH-04"}, Known{"WithBE.ntf", "GR-01"}}) {
        const std::string bytes = CorpusBytes(known.file);
        if (bytes.empty()) {
            GTEST_SKIP() << "no " << known.file;
        }
        const Validated validated(bytes);
        EXPECT_EQ(1U, validated.Rules().count(known.rule)) << known.file << ' ' << known.rule << '\n'
                                                           << validated.Lines();
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
