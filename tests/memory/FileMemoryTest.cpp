// Memory that runs out while a whole file is opened and written out, and the memory that this takes when it does not.

#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/memory/ShortMemory.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/TempFile.h"

#include <cstdio>
#include <memory>
#include <new>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

using Isd = std::unique_ptr<ImageSupportData, IsdReleaser>;

std::string FileOf(Format aFormat)
{
    NitfBuilder builder(aFormat);
    const std::string tre = Tre("OFFSET", "0000001200000034");
    builder.File().Area("XHD", tre);
    builder.AddImage().Area("IXSHD", tre + Tre("NOBODY", "unknown"), 1);
    builder.AddGraphic();
    builder.AddText().Area("TXSHD", tre);
    builder.AddOverflow("IXSHD", 1, tre + Tre("NOBODY", "overflow"));
    builder.AddDes("SOME DES", std::string("bin\0ary", 7));
    return builder.Bytes();
}

Isd Open(const std::string& aBytes)
{
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::CreateFromMemory(aBytes.data(), aBytes.size(), false, nullptr, &made, true, false);
    return Isd(made);
}

class FileMemoryTest : public testing::TestWithParam<Format>
{
protected:
    FileMemoryTest() : m_bytes(FileOf(GetParam()))
    {
        // What is built once per process or thread is there already, so that all that is left over is lost.
        const Isd isd = Open(m_bytes);
        m_xml = isd->Serialize();
        unsigned long errors = 0;
        isd->RigorousValidation(errors, m_warnings);
        m_report = isd->GetValidationSummaryReport();
        bool failed = true;
        for (std::size_t n = 0; failed; ++n) {
            const ShortMemory shortage(n);
            try {
                Open(m_bytes);
            } catch (const std::bad_alloc&) {
            }
            failed = ShortMemory::HasFailed();
        }
    }

    std::string m_bytes;
    std::string m_xml;
    std::string m_report;
    unsigned long m_warnings = 0;
};

struct Opened
{
    Isd isd;
    bool thrown = false;
};

TEST_P(FileMemoryTest, OpeningRaisesBadAllocAndLeavesNothing)
{
    const std::size_t failures = FailEach([] { return Opened(); },
                                          [this](Opened& aOpened) {
                                              try {
                                                  aOpened.isd = Open(m_bytes);
                                              } catch (const std::bad_alloc&) {
                                                  aOpened.thrown = true;
                                              }
                                          },
                                          [this](const Opened& aOpened, bool aFailed) {
                                              EXPECT_EQ(aFailed, aOpened.thrown);
                                              EXPECT_EQ(aFailed, aOpened.isd == nullptr);
                                              if (!aFailed) {
                                                  EXPECT_TRUE(m_xml == aOpened.isd->Serialize());
                                              }
                                          });
    EXPECT_LT(20U, failures);
}

TEST_P(FileMemoryTest, TheDocumentIsWholeOrThereIsNone)
{
    const auto start = [this] { return Opened{Open(m_bytes), false}; };
    const auto serialize = [](Opened& aOpened) {
        try {
            aOpened.isd->Serialize();
        } catch (const std::bad_alloc&) {
            aOpened.thrown = true;
        }
    };
    const std::size_t failures = FailEach(start, serialize, [this](const Opened& aOpened, bool aFailed) {
        EXPECT_EQ(aFailed, aOpened.thrown);
        EXPECT_TRUE(m_xml == aOpened.isd->Serialize());  // memory is back
    });
    EXPECT_LT(2U, failures);
}

TEST_P(FileMemoryTest, AValidationThatFailedIsNoGoodResult)
{
    const auto start = [this] { return Opened{Open(m_bytes), false}; };
    const auto validate = [](Opened& aOpened) {
        unsigned long errors = 0;
        unsigned long warnings = 0;
        try {
            aOpened.thrown = !aOpened.isd->RigorousValidation(errors, warnings);
        } catch (const std::bad_alloc&) {
            aOpened.thrown = true;
        }
    };
    const bool good = m_report.find("\"ERROR\"") == std::string::npos;
    const std::size_t failures = FailEach(start, validate, [&](const Opened& aOpened, bool aFailed) {
        EXPECT_TRUE(aOpened.thrown == aFailed || (!good && aOpened.thrown));
        if (!aFailed) {
            EXPECT_TRUE(m_report == aOpened.isd->GetValidationSummaryReport());
        }
    });
    EXPECT_LT(2U, failures);
}

INSTANTIATE_TEST_SUITE_P(Versions, FileMemoryTest, testing::Values(Format::Nitf20, Format::Nitf21),
                         [](const auto& aInfo) { return aInfo.param == Format::Nitf20 ? "Nitf20" : "Nitf21"; });

TEST(FilePeakTest, ADocumentIsWrittenInPiecesHoweverLongItsDataAre)
{
    constexpr std::size_t LONG = std::size_t{40} << 20U;
    NitfBuilder builder;
    builder.AddDes("SOME DES", std::string(LONG, '\0'));
    builder.AddText(std::string(90'000, 't'));
    const TempFile file(builder.Bytes());
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::Create(file.Path().c_str(), &made, true, false);
    const Isd owner(made);
    auto& isd = dynamic_cast<ImageSupportDataNITF&>(*made);
    std::FILE* const out = std::tmpfile();
    ASSERT_NE(nullptr, out);
    const PeakMemory peak;
    EXPECT_TRUE(isd.WriteXml(out));
    EXPECT_GT(std::size_t{8} << 20U, peak.Bytes());
    EXPECT_LT(static_cast<long>(LONG / 3 * 4), std::ftell(out));
    std::fclose(out);
}

/// What opening may take: the bytes of headers and extensions twenty times over, and a base.
std::size_t MostMemory(std::size_t aBytes)
{
    return (std::size_t{8} << 20U) + 20 * aBytes;
}

void ExpectBounded(const std::string& aBytes, std::size_t aMetadata)
{
    const TempFile file(aBytes);
    const PeakMemory peak;
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::Create(file.Path().c_str(), &made, true, false);
    const Isd isd(made);
    EXPECT_GT(MostMemory(aMetadata), peak.Bytes());
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    EXPECT_GT(MostMemory(aMetadata), peak.Bytes());
}

TEST(FilePeakTest, ManyOverflowSegmentsForOneImage)
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", "", 1);
    for (int i = 0; i != 998; ++i) {
        builder.AddOverflow("IXSHD", 1, Tre("OFFSET", "0000001200000034"));
    }
    const std::string bytes = builder.Bytes();
    ExpectBounded(bytes, bytes.size());
}

TEST(FilePeakTest, OverflowOfShortTresWithOneTagAndWithManyTags)
{
    constexpr std::size_t COUNT = 1'000'000;
    for (const bool distinct : {false, true}) {
        std::string area;
        for (std::size_t i = 0; i != COUNT; ++i) {
            area += Tre(distinct ? Padded(i, 6) : "NOBODY", "x");
        }
        NitfBuilder builder;
        builder.AddImage().Area("IXSHD", "", 1);
        builder.AddOverflow("IXSHD", 1, area);
        const std::string bytes = builder.Bytes();
        ExpectBounded(bytes, bytes.size());
    }
}

TEST(FilePeakTest, RefusedTresInEveryAreaOfEveryImage)
{
    std::string area;
    for (int i = 0; i != 1000; ++i) {
        area += Tre("BLOCKA", "wrong");
    }
    NitfBuilder builder;
    for (int i = 0; i != 999; ++i) {
        builder.AddImage().Area("IXSHD", area).Area("UDID", area);
    }
    const std::string bytes = builder.Bytes();
    ExpectBounded(bytes, bytes.size());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
