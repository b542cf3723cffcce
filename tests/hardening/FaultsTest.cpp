// Faults of the system while a file is read, and paths that lead to no file.

#include "tests/hardening/FaultyReads.h"
#include "tests/support/EveryQuery.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/SmallFiles.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

using Act = FaultyReads::Act;

const std::string& Bytes()
{
    return SmallFiles()[1].bytes;
}

/// What a file tells, data included; nothing when it is refused, and the test fails when it is refused without a word.
std::optional<std::string> Told(const std::string& aPath)
{
    const OpenedIsd isd = OpenedIsd::IfReadable(aPath);
    if (!isd) {
        EXPECT_FALSE(ImageSupportDataFactory::GetFindings().empty());
        return std::nullopt;
    }
    AskEverything(*isd);
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    const char* const xml = isd->Serialize();
    return std::string(xml == nullptr ? "" : xml);
}

std::size_t CountReads(const std::string& aPath)
{
    const FaultyReads reads([](std::size_t) { return Act::Read; });
    EXPECT_TRUE(Told(aPath));
    return reads.Count();
}

/// How a path that leads to no file is refused.
std::string RefusalOfPath(const std::string& aPath)
{
    EXPECT_FALSE(OpenedIsd::IfReadable(aPath));
    const std::vector<Finding>& findings = ImageSupportDataFactory::GetFindings();
    return findings.size() == 1 ? findings[0].Line() : "findings: " + std::to_string(findings.size());
}

TEST(FaultsTest, InterruptedAndShortReadsChangeNothing)
{
    const TempFile file(Bytes());
    const std::optional<std::string> told = Told(file.Path());
    ASSERT_TRUE(told);
    {
        const FaultyReads reads([](std::size_t aNumber) { return aNumber % 4 == 3 ? Act::Read : Act::Interrupt; });
        EXPECT_EQ(told, Told(file.Path()));
        EXPECT_LT(4U, reads.Count());
    }
    const FaultyReads reads([](std::size_t) { return Act::ReadOneByte; });
    EXPECT_EQ(told, Told(file.Path()));
    EXPECT_LT(Bytes().size() / 2, reads.Count());
}

TEST(FaultsTest, AReadThatFailsRefusesTheFileOrTakesWhatItReads)
{
    const TempFile file(Bytes());
    const std::optional<std::string> told = Told(file.Path());
    std::size_t refused = 0;
    const std::size_t count = CountReads(file.Path());
    for (std::size_t fails = 0; fails != count; ++fails) {
        SCOPED_TRACE(fails);
        const FaultyReads reads([fails](std::size_t aNumber) { return aNumber == fails ? Act::Fail : Act::Read; });
        refused += Told(file.Path()) ? 0U : 1U;
    }
    EXPECT_LT(0U, refused);
    EXPECT_LT(refused, count) << "data that cannot be read cost only themselves";
    EXPECT_EQ(told, Told(file.Path()));

    const FaultyReads reads([](std::size_t) { return Act::Fail; });
    EXPECT_FALSE(Told(file.Path()));
}

TEST(FaultsTest, AFileThatShrinksWhileItIsReadIsRefusedOrTellsWhatItRead)
{
    const std::size_t count = CountReads(TempFile(Bytes()).Path());
    std::size_t opened = 0;
    for (std::size_t shrinks = 0; shrinks != count; ++shrinks) {
        SCOPED_TRACE(shrinks);
        const TempFile file(Bytes());
        const FaultyReads reads([&](std::size_t aNumber) {
            if (aNumber == shrinks) {
                std::filesystem::resize_file(file.Path(), 600);
            }
            return Act::Read;
        });
        opened += Told(file.Path()) ? 1U : 0U;
    }
    EXPECT_LT(0U, opened);
    EXPECT_LT(opened, count);
}

TEST(FaultsTest, AFileThatIsEmptiedStillAnswersForItsHeaders)
{
    const TempFile file(Bytes());
    const OpenedIsd isd = OpenedIsd::OfFile(file.Path());
    std::filesystem::resize_file(file.Path(), 0);
    EXPECT_LT(0U, AskEverything(*isd));
    EXPECT_FALSE(isd->WriteSegmentData(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 0, stderr));
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    EXPECT_TRUE(ImageSupportDataFactory::AreEqual(*isd, *isd.Clone()));
}

TEST(FaultsTest, OnlyRegularFilesAreOpenedAndNothingWaits)
{
    const TempFile name;
    std::filesystem::remove(name.Path());
    EXPECT_NE(std::string::npos, RefusalOfPath(name.Path()).find("No such file or directory"));

    std::filesystem::create_directory(name.Path());
    EXPECT_NE(std::string::npos, RefusalOfPath(name.Path()).find("Is a directory"));
    std::filesystem::remove(name.Path());

    ASSERT_EQ(0, mkfifo(name.CStr(), 0600));
    EXPECT_NE(std::string::npos, RefusalOfPath(name.Path()).find("Is not a regular file"));
    std::filesystem::remove(name.Path());

    EXPECT_NE(std::string::npos, RefusalOfPath("/dev/zero").find("Is not a regular file"));

    std::filesystem::create_symlink(name.Path(), name.Path());
    EXPECT_NE(std::string::npos, RefusalOfPath(name.Path()).find("Too many levels of symbolic links"));
    EXPECT_NE(std::string::npos, RefusalOfPath(name.Path() + std::string(5000, 'x')).find("File name too long"));
}

TEST(FaultsTest, AFileWithoutPermissionIsRefusedAsSuch)
{
    const TempFile file(Bytes());
    ASSERT_EQ(0, chmod(file.CStr(), 0));
    constexpr uid_t NOBODY = 65534;
    const uid_t user = geteuid();
    if (user == 0 && seteuid(NOBODY) != 0) {
        GTEST_SKIP() << "root is denied nothing, and nobody else can be had";
    }
    const std::string refusal = RefusalOfPath(file.Path());
    ASSERT_EQ(0, seteuid(user));
    EXPECT_NE(std::string::npos, refusal.find("Permission denied")) << refusal;
}

/// As much as LD can say, most of it a hole, behind the few records that its subheader counts.
TEST(FaultsTest, ValidationOfHugeDataReadsWhatItsLayoutHolds)
{
    constexpr std::size_t HUGE_SIZE = 999'999'998;
    constexpr std::size_t ENOUGH = std::size_t{1} << 20U;
    NitfBuilder builder;
    builder.AddDes("CSATTA DES", std::string(32 * 3, '\0'))
        .UserFields(std::string("ORIGINAL    ") + "000.0200000000" + "20260131" + "235959.123456" + "00003");
    std::string bytes = builder.Bytes();
    const std::size_t at = builder.OffsetOf("LD001");
    bytes.replace(at, 9, Padded(HUGE_SIZE, 9));
    const TempFile file(bytes);
    std::filesystem::resize_file(file.Path(), bytes.size() - 32 * 3 + HUGE_SIZE);
    const OpenedIsd isd = OpenedIsd::OfFile(file.Path());
    const FaultyReads reads([](std::size_t) { return Act::Read; });
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    ASSERT_NE(nullptr, isd->GetDataExtensionSegment(0)->GetDESSHF());
    EXPECT_NE(std::string::npos, std::string(isd->GetValidationSummaryReport()).find("longer than those of its type"));
    EXPECT_EQ(nullptr, isd->GetDataExtensionSegment(0)->GetDESDATAFields());
    EXPECT_GT(ENOUGH, reads.Bytes());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
