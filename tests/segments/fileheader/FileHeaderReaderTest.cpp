#include "segments/fileheader/NITF21FileHeader.h"
#include "segments/fileheader/detail/FileHeaderReader.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <cstddef>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Detail;
using namespace Tests;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

constexpr const char* REFUSED = "ERROR: Failed to retrieve the NITF file header from the input file.";

/// What the reader makes of a file with these bytes.
struct Reading
{
    explicit Reading(const std::string& aBytes, NITFCnst::Version aVersion = NITFCnst::NITF_VERSION_NUMBER_21)
    {
        const TempFile file(aBytes);
        std::string reason;
        const auto source = ByteSource::Open(file.Path(), reason);
        std::string first;
        FindingList findings;
        if (source != nullptr && source->ReadUpTo(0, FIRST_READ, first)) {
            header = ReadRawFileHeader(*source, first, aVersion, findings);
        }
        errors = findings.Blocks(true);
        warnings = findings.Blocks(false);
        good = errors.empty();
    }

    RawFileHeader header;
    std::string errors;
    std::string warnings;
    bool good = false;
};

NitfBuilder SmallFile()
{
    NitfBuilder file;
    file.AddImage(8, 8);
    file.AddText("text");
    return file;
}

TEST(FileHeaderReaderTest, HeaderEndsWhereItsLengthFieldSays)
{
    NitfBuilder file = SmallFile();
    Reading read(file.Bytes());
    EXPECT_TRUE(read.good);
    EXPECT_EQ(file.Header(), read.header.bytes);
    EXPECT_FALSE(read.header.streaming);

    file.File().Area("XHD", Tre("LONG", std::string(50000, 'x')));  // more than the first read brings
    read = Reading(file.Bytes());
    EXPECT_TRUE(read.good);
    EXPECT_EQ(file.Header(), read.header.bytes);

    NitfBuilder old(Format::Nitf20);
    old.File().Event("moves the length field by 40 bytes");
    read = Reading(old.Bytes(), NITFCnst::NITF_VERSION_NUMBER_20);
    EXPECT_TRUE(read.good);
    EXPECT_EQ(old.Header(), read.header.bytes);
}

TEST(FileHeaderReaderTest, ImpossibleHeaderLengthsAreRefusedWithTheirBytesAndPlace)
{
    for (const auto& [value, reason] :
         {std::pair{"000000", "is no possible header length"}, std::pair{"000039", "is no possible header length"},
          std::pair{"-00410", "is no possible header length"}, std::pair{"ABCDEF", "is no possible header length"},
          std::pair{"      ", "is no possible header length"},
          std::pair{"999999", "is beyond the end of the file at "}}) {
        NitfBuilder file = SmallFile();
        file.File().Damage("HL", value);
        const Reading read(file.Bytes());
        EXPECT_FALSE(read.good) << value;
        EXPECT_THAT(read.errors, AllOf(StartsWith(REFUSED), HasSubstr("field HL at byte offset 354: value "),
                                       HasSubstr(value), HasSubstr(reason)));
    }
}

TEST(FileHeaderReaderTest, OfAFileThatEndsWithinItsHeaderThereIsWhatStands)
{
    const std::string raw = SmallFile().Header();
    for (std::size_t length = 0; length != raw.size(); ++length) {
        const Reading read(raw.substr(0, length));
        EXPECT_EQ(length < 360, read.good) << length;  // from there on HL says that more should stand
        EXPECT_EQ(raw.substr(0, length), read.header.bytes);
    }
}

TEST(StreamedFileHeaderTest, ReplacementAtTheEndTakesThePlaceOfTheFirstHeader)
{
    const std::string bytes = SmallFile().StreamedBytes();
    const Reading read(bytes);
    ASSERT_TRUE(read.good) << read.errors;
    EXPECT_TRUE(read.header.streaming);
    EXPECT_THAT(read.warnings, StartsWith("WARN: "));
    const NITF21FileHeader header("file", read.header.bytes.data(), read.header.bytes.size(), read.header.streaming);
    EXPECT_TRUE(header.HasStreamingFileHeader());
    EXPECT_EQ(bytes.size(), header.GetFileLength());
    EXPECT_EQ(1U, header.GetNumOfImageSegments());
    EXPECT_EQ(1U, header.GetNumOfDataExtensionSegments());
}

TEST(StreamedFileHeaderTest, ReplacementMayEndBeforeTheHeaderDoes)
{
    // Up to FL: the writer knew everything else from the start.
    NitfBuilder file = SmallFile();
    file.AddDes("STREAMING_FILE_HEADER", "").Set("DESVER", 1U);
    const std::size_t end = file.OffsetOf("HL");
    file.LastData().assign(end + 22, ' ');
    const std::string good = file.Header();
    const std::string digits = Padded(end, 7);
    file.LastData() = digits + "\x0A\x6E\x1D\x97" + good.substr(0, end) + "\x0E\xCA\x14\xBF" + digits;
    file.File().Damage("FL", "999999999999");
    const Reading read(file.Bytes());
    ASSERT_TRUE(read.good) << read.errors;
    EXPECT_TRUE(read.header.streaming);
    EXPECT_EQ(good, read.header.bytes);
}

TEST(StreamedFileHeaderTest, ReplacementThatIsLongerThanTheFirstHeaderIsReadWhole)
{
    // The first header knew of no segments.
    const std::string full = SmallFile().StreamedBytes();
    const std::string whole = full.substr(full.size() - 7 - 4 - 426, 426);
    NitfBuilder empty;
    empty.File().Damage("FL", "999999999999");
    const Reading read(empty.Bytes() + full.substr(388));
    ASSERT_TRUE(read.good) << read.errors;
    EXPECT_TRUE(read.header.streaming);
    EXPECT_EQ(whole, read.header.bytes);
}

TEST(StreamedFileHeaderTest, EachBrokenMarkOrLengthLeavesTheFirstHeaderWithAHint)
{
    const std::string good = SmallFile().StreamedBytes();
    const std::size_t header = SmallFile().Header().size() + 13;  // with the length pair of the DES
    const std::size_t second = good.size() - 7;
    const std::size_t first = second - 4 - header - 4 - 7;
    ASSERT_EQ(good.substr(first, 7), good.substr(second));
    const auto broken = [&good](std::size_t aAt, const std::string& aBytes) {
        std::string bytes = good;
        return bytes.replace(aAt, aBytes.size(), aBytes);
    };
    constexpr const char* ABSENT = "no STREAMING_FILE_HEADER stands at the end of the file";
    for (const auto& [bytes, reason] :
         {std::pair{broken(first, "0000001"), "the two lengths of the STREAMING_FILE_HEADER differ"},
          std::pair{broken(second, Padded(header - 1, 7)), ABSENT}, std::pair{broken(second, "0000000"), ABSENT},
          std::pair{broken(second, "9999999"), ABSENT}, std::pair{broken(second, "-000123"), ABSENT},
          std::pair{broken(second, "    " + Padded(header, 3)), ABSENT}, std::pair{broken(first + 7, "\x0B"), ABSENT},
          std::pair{broken(second - 1, "\xBE"), ABSENT}, std::pair{good + ' ', ABSENT},
          std::pair{good.substr(0, good.size() - 1), ABSENT}}) {
        const Reading read(bytes);
        EXPECT_TRUE(read.good) << read.errors;
        EXPECT_FALSE(read.header.streaming);
        EXPECT_EQ(good.substr(0, header), read.header.bytes);
        EXPECT_THAT(read.warnings, AllOf(HasSubstr("FL is all nines"), HasSubstr(reason)));
    }
}

TEST(StreamedFileHeaderTest, OnlyFilesOfUnknownLengthAreStreams)
{
    std::string bytes = SmallFile().StreamedBytes();
    bytes.replace(342, 12, Padded(bytes.size(), 12));
    EXPECT_FALSE(Reading(bytes).header.streaming);
    EXPECT_THAT(Reading(bytes).warnings, IsEmpty());

    NitfBuilder old(Format::Nitf20);
    EXPECT_FALSE(Reading(old.StreamedBytes(), NITFCnst::NITF_VERSION_NUMBER_20).header.streaming);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
