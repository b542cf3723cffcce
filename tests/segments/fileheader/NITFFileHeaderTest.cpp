#include "foundation/CSMCnst.h"
#include "segments/NITFStdDataSegmentInfo.h"
#include "segments/fileheader/NITF20FileHeader.h"
#include "segments/fileheader/NITF21FileHeader.h"
#include "tests/support/IndependentWalk.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/Refusal.h"
#include "tre/TREFactory.h"

#include <cstdint>
#include <memory>
#include <ostream>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;
using testing::StrEq;
using Util::CSMCnst;

std::unique_ptr<NITFFileHeader> Read(const std::string& aRaw)
{
    if (aRaw.starts_with("NITF02.00")) {
        return std::make_unique<NITF20FileHeader>("built.ntf", aRaw.data(), aRaw.size());
    }
    return std::make_unique<NITF21FileHeader>("built.ntf", aRaw.data(), aRaw.size());
}

std::string Refusal(const std::string& aRaw)
{
    return RefusalOf([&aRaw] { Read(aRaw); });
}

std::string TextOf(NITFFileHeader& aHeader, const std::string& aName)
{
    const char* value = nullptr;
    std::size_t length = 0;
    return aHeader.GetFieldAsString(aName.c_str(), value, length) ? std::string(value, length) : "(none)";
}

/// A file with two segments of most kinds.
NitfBuilder FullFile(Format aFormat)
{
    NitfBuilder file(aFormat);
    file.AddImage(2, 3);
    file.AddImage(4, 5);
    file.AddGraphic("first");
    file.AddGraphic("second graphic");
    if (aFormat == Format::Nitf20) {
        file.AddLabel("label");
    }
    file.AddText("text");
    file.AddDes("SOME_DES", "des data");
    file.AddDes("OTHER_DES", "more");
    file.AddRes("SOME_RES", "res");
    return file;
}

class EachFormatTest : public testing::TestWithParam<Format>
{
protected:
    bool Is20() const { return GetParam() == Format::Nitf20; }
};

INSTANTIATE_TEST_SUITE_P(Formats, EachFormatTest, testing::Values(Format::Nitf20, Format::Nitf21, Format::Nsif10),
                         [](const auto& aInfo) {
                             return aInfo.param == Format::Nitf20   ? "Nitf20"
                                    : aInfo.param == Format::Nitf21 ? "Nitf21"
                                                                    : "Nsif10";
                         });

TEST_P(EachFormatTest, EveryFieldIsReadWhereTheStandardPutsIt)
{
    NitfBuilder file = FullFile(GetParam());
    for (const char* const name : {"OSTAID", "FTITLE", "FSCODE", "FSCTLH", "FSREL", "FSCAUT", "FSCTLN", "OPHONE"}) {
        file.File().Set(name, name);
    }
    if (Is20()) {
        file.File().Event("when it rains").Area("XHD", Tre("XHDTRE", "x"));
    } else {
        file.File().Set("FSCLTX", "FSCLTX").Set("FSSRDT", "20260102").Damage("FBKGC", "\0\1\xFF"s);
        file.File().Area("XHD", Tre("XHDTRE", "x"), 2);
    }
    file.File().Area("UDHD", Tre("UDHTRE", "\0\0"s), 1);

    const std::unique_ptr<NITFFileHeader> header = Read(file.Header());
    EXPECT_STREQ("", header->GetWarningMessage());
    HeaderFields expected = file.File();
    std::size_t position = 0;
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    std::string rebuilt;
    while (header->GetFieldAt(position++, name, value, length)) {
        if (expected.Has(name) && name != "FL" && name != "HL" && !name.starts_with("NUM")) {
            EXPECT_EQ(expected.Get(name), std::string(value, length)) << name;
        }
        if (!Is20() || name != "FBKGC") {  // takes no bytes of its own there
            rebuilt.append(value, length);
        }
    }
    EXPECT_EQ(file.Header(), rebuilt);
    for (const std::string& wanted : expected.Names()) {
        EXPECT_NE("(none)", TextOf(*header, wanted)) << wanted;
    }
}

TEST_P(EachFormatTest, SegmentTablesBecomeTheOffsetsOfTheFile)
{
    const NitfBuilder file = FullFile(GetParam());
    const std::unique_ptr<NITFFileHeader> header = Read(file.Header());
    EXPECT_EQ(2U, header->GetNumOfImageSegments());
    EXPECT_EQ(Is20() ? 2U : 0U, header->GetNumOfVersionSpecificDataSegment(NITFCnst::DATA_SEGMENT_TYPE_SYMBOL));
    EXPECT_EQ(Is20() ? 1U : 0U, header->GetNumOfVersionSpecificDataSegment(NITFCnst::DATA_SEGMENT_TYPE_LABEL));
    EXPECT_EQ(Is20() ? 0U : 2U, header->GetNumOfVersionSpecificDataSegment(NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC));
    EXPECT_EQ(2U, header->GetNumOfDataExtensionSegments());

    std::vector<std::uint64_t> data{77};
    std::vector<std::uint32_t> headers{77};
    EXPECT_TRUE(header->GetImageSegmentsInfo(data, headers));
    EXPECT_THAT(data, ElementsAre(6, 20));
    EXPECT_THAT(headers, ElementsAre(439, 439));
    EXPECT_EQ(Is20(), header->GetVersionSpecificSegmentsInfo(NITFCnst::DATA_SEGMENT_TYPE_LABEL, data, headers));
    EXPECT_EQ(Is20() ? 1U : 0U, data.size());
    EXPECT_TRUE(header->GetReservedExtensionSegmentsInfo(data, headers));
    EXPECT_THAT(data, ElementsAre(3));

    NITFStdDataSegmentInfos infos;
    std::string errors;
    ASSERT_TRUE(infos.Build(header->GetVersion(), header->GetFileHeaderLength(), header->GetFileLength(),
                            header->GetSegmentLengths(), errors))
        << errors;
    std::vector<WalkedSegment> segments;
    for (const NITFStdDataSegmentInfo* const info : infos.InFileOrder()) {
        EXPECT_EQ(static_cast<std::int32_t>(segments.size()), info->GetGlobalSegmentIndex());
        segments.push_back({NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType()),
                            info->GetSegmentHeaderStart(), info->GetSegmentHeaderSize(), info->GetSegmentDataStart(),
                            info->GetSegmentDataSize()});
    }
    EXPECT_EQ(WalkSegments(file.Bytes()), segments);
    EXPECT_EQ(file.Bytes().size(), infos.GetEnd());
    EXPECT_EQ(file.Bytes().size(), header->GetFileLength());
}

/// A length field of the one segment of a kind, what stands in it and whether that is allowed.
struct Limit
{
    Format format;
    const char* field;
    const char* value;
    bool allowed;
};

void PrintTo(const Limit& aLimit, std::ostream* aOut)
{
    *aOut << (aLimit.format == Format::Nitf20 ? "2.0 " : "2.1 ") << aLimit.field << ' ' << aLimit.value;
}

class SegmentLimitTest : public testing::TestWithParam<Limit>
{
};

constexpr Format V20 = Format::Nitf20;
constexpr Format V21 = Format::Nitf21;
INSTANTIATE_TEST_SUITE_P(BothEnds, SegmentLimitTest,
                         testing::Values(Limit{V21, "LISH", "000438", false}, Limit{V21, "LISH", "000439", true},
                                         Limit{V21, "LISH", "999998", true}, Limit{V21, "LISH", "999999", false},
                                         Limit{V21, "LI", "0000000000", false}, Limit{V21, "LI", "0000000001", true},
                                         Limit{V21, "LI", "9999999998", true}, Limit{V21, "LI", "9999999999", false},
                                         Limit{V21, "LSSH", "0257", false}, Limit{V21, "LSSH", "0258", true},
                                         Limit{V21, "LSSH", "9998", true}, Limit{V21, "LSSH", "9999", false},
                                         Limit{V21, "LS", "000000", false}, Limit{V21, "LS", "000001", true},
                                         Limit{V21, "LS", "999998", true}, Limit{V21, "LS", "999999", false},
                                         Limit{V21, "LTSH", "0281", false}, Limit{V21, "LTSH", "0282", true},
                                         Limit{V21, "LTSH", "9998", true}, Limit{V21, "LTSH", "9999", false},
                                         Limit{V21, "LT", "00000", false}, Limit{V21, "LT", "00001", true},
                                         Limit{V21, "LT", "99998", true}, Limit{V21, "LT", "99999", false},
                                         Limit{V21, "LDSH", "0199", false}, Limit{V21, "LDSH", "0200", true},
                                         Limit{V21, "LDSH", "9998", true}, Limit{V21, "LDSH", "9999", false},
                                         Limit{V21, "LD", "000000000", false}, Limit{V21, "LD", "000000001", true},
                                         Limit{V21, "LD", "999999998", true}, Limit{V21, "LD", "999999999", false},
                                         Limit{V21, "LRESH", "0199", false}, Limit{V21, "LRESH", "0200", true},
                                         Limit{V21, "LRESH", "9999", true}, Limit{V21, "LRE", "0000000", false},
                                         Limit{V21, "LRE", "0000001", true}, Limit{V21, "LRE", "9999999", true}));
INSTANTIATE_TEST_SUITE_P(OnlyTheUpperEndIn20, SegmentLimitTest,
                         testing::Values(Limit{V20, "LISH", "000000", true}, Limit{V20, "LISH", "999999", true},
                                         Limit{V20, "LI", "0000000000", true}, Limit{V20, "LI", "9999999999", true},
                                         Limit{V20, "LSSH", "0000", true}, Limit{V20, "LSSH", "9999", true},
                                         Limit{V20, "LS", "000000", true}, Limit{V20, "LS", "999999", true},
                                         Limit{V20, "LLSH", "0000", true}, Limit{V20, "LLSH", "9999", true},
                                         Limit{V20, "LL", "000", true}, Limit{V20, "LL", "320", true},
                                         Limit{V20, "LL", "321", false}, Limit{V20, "LTSH", "9999", true},
                                         Limit{V20, "LT", "99999", true}, Limit{V20, "LDSH", "9999", true},
                                         Limit{V20, "LD", "999999999", true}, Limit{V20, "LRESH", "9999", true},
                                         Limit{V20, "LRE", "9999999", true}));
INSTANTIATE_TEST_SUITE_P(NoNumbers, SegmentLimitTest,
                         testing::Values(Limit{V21, "LISH", "-00439", false}, Limit{V21, "LISH", "+00439", false},
                                         Limit{V21, "LISH", "00 439", false}, Limit{V21, "LISH", "      ", false},
                                         Limit{V21, "LI", "00000000x1", false}, Limit{V20, "LISH", "-00439", false},
                                         Limit{V20, "LD", "00000000.", false}, Limit{V20, "LL", "1 1", false}));

TEST_P(SegmentLimitTest, IsKeptAndTheFieldAtFaultIsNamedWithItsPlace)
{
    const std::string field = GetParam().field;
    NitfBuilder file = FullFile(GetParam().format);
    const std::size_t offset = file.OffsetOf(field + "001");
    const std::string value = GetParam().value;
    file.File().Damage(field + "001", value);
    const std::string refusal = Refusal(file.Header());
    if (GetParam().allowed) {
        EXPECT_THAT(refusal, IsEmpty());
        return;
    }
    EXPECT_THAT(refusal, HasSubstr("value of field \"" + field + "\" is invalid."));
    EXPECT_THAT(refusal, HasSubstr("[NITFFileHeader field " + field + "001 at byte offset " + std::to_string(offset) +
                                   ": value \"" + value + "\""));
}

TEST(NITFFileHeaderTest, SegmentCountsMustBeNumbers)
{
    for (const char* const value : {"-01", "abc", "   ", "1 1", "+01", "0x1"}) {
        for (const Format format : {V20, V21}) {
            for (const char* const count : {"NUMI", "NUMS", "NUMT", "NUMDES", "NUMRES"}) {
                NitfBuilder file(format);
                file.File().Damage(count, value);
                EXPECT_THAT(Refusal(file.Header()),
                            AllOf(HasSubstr("value of field \""s + count + "\" is invalid."),
                                  HasSubstr("[NITFFileHeader field "s + count + " at byte offset " +
                                            std::to_string(file.OffsetOf(count)) + ": value \"" + value +
                                            "\" is not a number]")))
                    << value;
            }
        }
    }
}

TEST(NITFFileHeaderTest, LengthTableCutByTheEndIsReportedOnce)
{
    NitfBuilder file(V21);
    file.AddImage();
    file.File().Damage("NUMI", "999");
    const std::string refusal = Refusal(file.Header());
    EXPECT_THAT(refusal, HasSubstr("LI003 at byte offset 401: 10 byte(s) needed, 3 left]"));
    EXPECT_EQ(refusal.find("999"), refusal.rfind("999")) << refusal;
}

TEST(NITFFileHeaderTest, ManySegmentsAreReadInTimeThatGrowsWithTheirNumber)
{
    NitfBuilder file(V21);
    for (int i = 0; i != 999; ++i) {
        file.AddImage(1, 1);
    }
    const std::string raw = file.Header();
    const auto header = Read(raw);
    EXPECT_EQ(999U, header->GetNumOfImageSegments());
    EXPECT_EQ("0000000001", TextOf(*header, "LI999"));
    EXPECT_EQ("(none)", TextOf(*header, "LI1000"));
    EXPECT_EQ(raw.size(), header->GetFileHeaderLength());
}

struct AreaCase
{
    Format format;
    const char* length;
    std::string overflow;
    std::string area;
    bool allowed;
};

TEST(NITFFileHeaderTest, ExtensionAreasHoldAtLeastTheirOverflowAndIn21AWholeTre)
{
    const std::string tre = Tre("ABCDEF", "x");
    for (const AreaCase& area :
         {AreaCase{V21, "00000", "", "", true}, AreaCase{V21, "00001", "0", "", false},
          AreaCase{V21, "00002", "00", "", false}, AreaCase{V21, "00003", "007", "", true},
          AreaCase{V21, "00005", "007", "xx", false}, AreaCase{V21, "00014", "007", "ABCDEF00001", false},
          AreaCase{V21, "00015", "007", tre, true}, AreaCase{V20, "00000", "", "", true},
          AreaCase{V20, "00002", "00", "", false}, AreaCase{V20, "00003", "007", "", true},
          AreaCase{V20, "00005", "007", "xx", true}, AreaCase{V20, "00015", "007", tre, true},
          AreaCase{V21, "99999", "007", tre, false}, AreaCase{V20, "99999", "007", tre, false},
          AreaCase{V21, "-0015", "007", tre, false}, AreaCase{V20, "0001 ", "0", "", false}}) {
        for (const std::string name : {"UDHD", "XHD"}) {
            NitfBuilder file(area.format);
            file.File().Damage(name + "L", std::string(area.length) + area.overflow + area.area);
            const std::string refusal = Refusal(file.Header());
            SCOPED_TRACE(name + "L " + area.length + (area.format == V20 ? " in 2.0" : " in 2.1"));
            EXPECT_EQ(area.allowed, refusal.empty()) << refusal;
            if (!area.allowed) {
                EXPECT_THAT(refusal, HasSubstr("[NITFFileHeader field " + name));
                continue;
            }
            const auto header = Read(file.Header());
            const bool user = name == "UDHD";
            EXPECT_EQ(area.overflow.empty() ? 0U : 7U,
                      user ? header->GetOverflowUserDefinedHeaderData() : header->GetOverflowExtendedHeaderData());
            EXPECT_EQ(area.area.empty() ? "(none)" : area.area, TextOf(*header, name));
            EXPECT_EQ(area.area == tre ? 1U : 0U, header->GetTREStore().Size());
        }
    }
}

TEST(NITFFileHeaderTest, HeaderOfImpossibleLengthIsRefusedBeforeAnyFieldIsRead)
{
    constexpr const char* TEXT = "ERROR: Failed to retrieve the NITF file header from the input file.";
    const std::string raw = NitfBuilder(V21).Header();
    EXPECT_EQ(TEXT, Refusal(raw.substr(0, 39)));
    EXPECT_EQ(TEXT, Refusal(raw + std::string(1000000 - raw.size(), ' ')));
    EXPECT_THAT(Refusal(raw.substr(0, 40)), AllOf(Not(StrEq(TEXT)), HasSubstr("FTITLE")));
    EXPECT_EQ(TEXT, RefusalOf([] { NITF21FileHeader("none", nullptr, 500); }));
    EXPECT_EQ(TEXT, RefusalOf([] { NITF20FileHeader("none", nullptr, 500); }));
}

TEST_P(EachFormatTest, EveryShorterHeaderIsRefusedNamingTheFieldThatIsMissing)
{
    NitfBuilder file = FullFile(GetParam());
    file.File().Area("UDHD", Tre("UDHTRE", "x"));
    const std::string raw = file.Header();
    for (std::size_t length = 40; length != raw.size(); ++length) {
        const std::string refusal = Refusal(raw.substr(0, length));
        ASSERT_THAT(refusal, HasSubstr("[NITFFileHeader field ")) << length;
        ASSERT_THAT(refusal, HasSubstr(" at byte offset ")) << length;
    }
    EXPECT_THAT(Refusal(raw.substr(0, raw.size() - 1)), HasSubstr("XHDL at byte offset "));
}

TEST(NITFFileHeaderTest, HeaderLengthThatDiffersFromTheFieldsIsAWarning)
{
    NitfBuilder file(V21);
    file.File().Surplus("  surplus");
    const auto header = Read(file.Header());
    EXPECT_THAT(header->GetWarningMessage(), AllOf(StartsWith("WARN: "), HasSubstr("388"), HasSubstr("397")));
    EXPECT_EQ(397U, header->GetFileHeaderLength());
}

TEST(NITFFileHeaderTest, FileLengthMustBeANumberAbove38)
{
    constexpr const char* TEXT =
        "ERROR: Cannot find NITF file header field \"FL\" in the metadata store or its value is invalid.";
    for (const Format format : {V20, V21}) {
        NitfBuilder file(format);
        for (const char* const good : {"000000000039", "999999999999"}) {
            file.File().Damage("FL", good);
            EXPECT_THAT(Refusal(file.Header()), IsEmpty()) << good;
        }
        for (const char* const bad : {"000000000038", "000000000000", "-00000000388", "            ", "ABCDEFGHIJKL"}) {
            file.File().Damage("FL", bad);
            EXPECT_THAT(Refusal(file.Header()), AllOf(HasSubstr(TEXT), HasSubstr("at byte offset 342"), HasSubstr(bad)))
                << bad;
        }
    }
}

TEST(NITFFileHeaderTest, VersionMustBeThatOfTheReader)
{
    NitfBuilder file(V21);
    file.File().Damage("FVER", "01.00");
    EXPECT_EQ("ERROR: Expected NITF version \"02.10\".", Refusal(file.Header()));
    file.File().Damage("FHDR", "NSIF");
    EXPECT_THAT(Refusal(file.Header()), IsEmpty());
    EXPECT_STREQ("NSIF01.00", Read(file.Header())->GetNITFVersion());
    file.File().Damage("FHDR", "NITF").Damage("FVER", "09.99");
    EXPECT_EQ("ERROR: Expected NITF version \"02.10\".", Refusal(file.Header()));

    std::string raw = NitfBuilder(V20).Header();
    raw[7] = '1';
    EXPECT_EQ("ERROR: Expected NITF version \"02.00\".",
              RefusalOf([&raw] { NITF20FileHeader("file", raw.data(), raw.size()); }));
}

TEST(NITF20FileHeaderTest, DowngradingEventIsThereOnlyWhenAnEventDecides)
{
    NitfBuilder file(V20);
    file.File().Set("FSDWNG", "999999");
    EXPECT_EQ("(none)", TextOf(*Read(file.Header()), "FSDEVT"));
    file.File().Event("end of exercise");
    const auto header = Read(file.Header());
    EXPECT_THAT(TextOf(*header, "FSDEVT"), StartsWith("end of exercise   "));
    EXPECT_EQ(428U, header->GetFileHeaderLength());
}

struct ColourCase
{
    std::string bytes;  ///< the first of ONAME
    std::string colour;
    std::size_t name;  ///< bytes left for ONAME
};

TEST(NITF20FileHeaderTest, FirstBytesOfTheNameAreAColourWhenTheyAreNoText)
{
    for (const ColourCase& test : {ColourCase{"Bui", "~~~", 27}, ColourCase{"\0\0\xFF"s, "\0\0\xFF"s, 24},
                                   ColourCase{"\x1F"s + "AB", "\x1F"s + "AB", 24}, ColourCase{"AB\x7F"s, "AB\x7F"s, 24},
                                   ColourCase{"ZZZ", "ZZZ", 24}, ColourCase{"  A", "~~~", 27}}) {
        NitfBuilder file(V20);
        file.File().Damage("ONAME", test.bytes + "lder                    ");
        const auto header = Read(file.Header());
        EXPECT_EQ(test.colour, TextOf(*header, "FBKGC"));
        EXPECT_EQ(test.name, TextOf(*header, "ONAME").size()) << test.colour;
        EXPECT_STREQ("555-0100          ", header->GetFileOriginatorPhoneNumber());
        int red = -1;
        int green = -1;
        int blue = -1;
        EXPECT_TRUE(header->GetFileBackgroundColor(red, green, blue));
        EXPECT_EQ(static_cast<unsigned char>(test.colour[2]), blue);
    }
    NitfBuilder nameless(V20);
    nameless.File().Set("ONAME", "");
    const auto header = Read(nameless.Header());
    EXPECT_EQ("~~~", TextOf(*header, "FBKGC")) << "a name that is blank is no dark grey";
    EXPECT_EQ(std::string(27, ' '), TextOf(*header, "ONAME"));
}

TEST(NITFFileHeaderTest, RpfHeaderTellsTheByteOrder)
{
    const auto rpf = [](char aOrder) {
        return Tre("RPFHDR", std::string(1, aOrder) + "\0\x30"s + "0000M033.GN3" + "\0"s + "MIL-STD-2411A  " +
                                 "19951006" + "UUS  " + "\0\0\1\xC2"s);
    };
    for (const auto& [order, isRpf, expected] : {std::tuple{'\0', true, CSMCnst::BYTE_ORDER_BIG_ENDIAN},
                                                 std::tuple{'\xFF', true, CSMCnst::BYTE_ORDER_LITTLE_ENDIAN},
                                                 std::tuple{'\1', false, CSMCnst::BYTE_ORDER_UNKNOWN}}) {
        for (const Format format : {V20, V21}) {
            NitfBuilder file(format);
            file.File().Area("UDHD", rpf(order));
            const auto header = Read(file.Header());
            EXPECT_EQ(isRpf, header->IsRPFFile()) << int{order};
            EXPECT_EQ(expected, header->GetRPFFileByteOrder()) << int{order};
            ASSERT_EQ(1U, header->GetTREStore().Size());
            EXPECT_EQ(48U, header->GetTREStore().InOrder().front()->GetLengthOfDataField());
        }
    }
}

TEST(NITFFileHeaderTest, TreAreasStandAloneAndTellWhereTheyAre)
{
    NitfBuilder file(V21);
    file.File().Area("UDHD", "not a TRE at all").Area("XHD", Tre("XXTRE", "x") + Tre("XXTRE", "\0y"s));
    const auto header = Read(file.Header());
    EXPECT_THAT(header->GetWarningMessage(), HasSubstr("contains errors"));
    const TRE** tres = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(header->GetAllFileHeaderTREs(tres, count, true));
    ASSERT_EQ(2U, count);
    EXPECT_STREQ("XHD", tres[1]->GetExtensionArea());
    EXPECT_EQ(file.OffsetOf("XHD") + 12, tres[1]->GetFileOffset());
    EXPECT_EQ(2U, tres[1]->GetLengthOfDataField());
    EXPECT_EQ(TRE::TRE_TYPE_CONTROLLED_EXTENSION, tres[1]->GetTREType());
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    EXPECT_TRUE(header->IsTREOfThisDataSegment(" XXTRE "));
    EXPECT_FALSE(header->IsTREOfThisDataSegment("YYTRE"));
    EXPECT_FALSE(header->IsTREOfThisDataSegment(""));
}

TEST(NITFFileHeaderTest, ControlBytesInAValueAreKept)
{
    NitfBuilder file(V21);
    std::string title = "before\0after\x01\xE9"s;
    title.resize(80, ' ');
    file.File().Damage("FTITLE", title);
    const auto header = Read(file.Header());
    EXPECT_EQ(title, TextOf(*header, "FTITLE"));
    const std::string xml = header->SerializeDataSegment("  ");
    EXPECT_THAT(xml, HasSubstr("name=\"File Title\" size=\"80\" type=\"(R)\" editable=\"T\" base64Encoded=\"T\">"));
    EXPECT_THAT(xml, StartsWith("  <NITFFileHeader>\n"));
}

class FileHeaderAccessTest : public testing::Test
{
protected:
    static std::string Raw()
    {
        NitfBuilder file(V21);
        file.AddImage();
        file.File().Damage("FL", "009999999999").Set("FTITLE", " a title ");
        file.File().Area("XHD", Tre("AIMIDB", "20260614093042MSN1 1234567890" + std::string(60, '0')));
        return file.Header();
    }
    const std::string m_raw = Raw();
    NITF21FileHeader m_header{"dir/name.ntf", m_raw.data(), m_raw.size()};
    long m_long = 77;
    unsigned long m_unsigned = 77;
    std::uint64_t m_uint64 = 77;
    double m_double = 77;
    bool m_bool = false;
    const char* m_text = "untouched";
    std::size_t m_length = 77;
};

TEST_F(FileHeaderAccessTest, NamedFieldsAreHandedOutAsStored)
{
    EXPECT_STREQ("dir/name.ntf", m_header.GetFileName());
    EXPECT_STREQ("NITF", m_header.GetFieldValueFHDR());
    EXPECT_STREQ("02.10", m_header.GetFieldValueFVER());
    EXPECT_STREQ("20260101120000", m_header.GetFieldValueFDT());
    EXPECT_STREQ("ORMO      ", m_header.GetFileOriginatingStationID());
    EXPECT_STREQ("U", m_header.GetFileSecurityClassification());
    EXPECT_STREQ("U", m_header.GetClassification());
    EXPECT_EQ(nullptr, m_header.GetFileHeaderField("NOTHING"));
    EXPECT_EQ(nullptr, m_header.GetFileHeaderField(nullptr));
    int level = 0;
    EXPECT_TRUE(m_header.GetFieldValueCLEVEL(level));
    EXPECT_EQ(3, level);
    EXPECT_TRUE(m_header.GetFieldAsString(" FTITLE ", m_text, m_length));
    EXPECT_EQ(80U, m_length);
    EXPECT_EQ(' ', m_text[0]);
    m_text = m_header.GetFileHeader(m_length);
    EXPECT_EQ(m_raw, std::string(m_text, m_length));
}

TEST_F(FileHeaderAccessTest, NumbersConvertWhenTheirTypeAndWidthAllow)
{
    EXPECT_TRUE(m_header.GetFieldAsUInt64("FL", m_uint64));
    EXPECT_EQ(9999999999U, m_uint64);
    EXPECT_FALSE(m_header.GetFieldAsUnsignedLong("FL", m_unsigned));  // more than 32 bits
    EXPECT_STREQ(
        "ERROR: Internal system error. Failed to convert the requested field value from a string representation to an "
        "unsigned long.",
        m_header.GetErrorMessage());
    EXPECT_EQ(77U, m_unsigned);
    EXPECT_TRUE(m_header.GetFieldAsLong("LISH001", m_long));
    EXPECT_EQ(439, m_long);
    EXPECT_STREQ("", m_header.GetErrorMessage());
    EXPECT_TRUE(m_header.GetFieldAsDouble("HL", m_double));
    EXPECT_THAT(m_header.GetWarningMessage(), StrEq("WARN: Data type of field \"HL\" is not floating point type."));
}

TEST_F(FileHeaderAccessTest, WhatCannotBeAnsweredLeavesItsReason)
{
    constexpr const char* EMPTY = "ERROR: NULL/empty input NITF file header field name string.";
    EXPECT_FALSE(m_header.GetFieldAsUnsignedLong("  ", m_unsigned));
    EXPECT_STREQ(EMPTY, m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsBool(nullptr, m_bool));
    EXPECT_STREQ(EMPTY, m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsString(nullptr, m_text, m_length));
    EXPECT_STREQ("ERROR: NULL/empty input NITF file header/file header TRE field name string.",
                 m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsString("NUML", m_text, m_length));
    EXPECT_STREQ("ERROR: Requested NITF file header field \"NUML\" not found.", m_header.GetErrorMessage());
    EXPECT_EQ(nullptr, m_text);
    EXPECT_EQ(0U, m_length);
    EXPECT_FALSE(m_header.GetFieldAsString("COUNTRY", m_text, m_length, "NOTRE"));
    EXPECT_STREQ("ERROR: Requested NITF file header TRE field \"COUNTRY\" not found.", m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsUnsignedLong("FTITLE", m_unsigned));
    EXPECT_STREQ("ERROR: Data type of \"FTITLE\" is not an integral type.", m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsUnsignedLong("NOTHING", m_unsigned));
    EXPECT_STREQ("ERROR: Data type of \"NOTHING\" is not a NITF file header field.", m_header.GetErrorMessage());
    EXPECT_FALSE(m_header.GetFieldAsUnsignedLong("MISSION_NO", m_unsigned, "AIMIDB"));
    EXPECT_THAT(m_header.GetErrorMessage(),
                HasSubstr("\"MISSION_NO\" doesn't exist or its data type is not a positive integral type."));
}

TEST_F(FileHeaderAccessTest, FieldsOfATreAreReachedThroughItsTag)
{
    EXPECT_TRUE(m_header.GetFieldAsString("ACQUISITION_DATE", m_text, m_length, " AIMIDB "));
    EXPECT_EQ("20260614093042", std::string(m_text, m_length));
    EXPECT_TRUE(m_header.IsFieldEditable("ACQUISITION_DATE", "AIMIDB"));
    EXPECT_FALSE(m_header.IsFieldEditable("ACQUISITION_DATE", "OTHER"));
    EXPECT_TRUE(m_header.IsFieldEditable("FTITLE"));
    EXPECT_FALSE(m_header.IsFieldEditable("HL"));
    for (const auto& [tag, editable] : *m_header.GetFieldEditabilityMap()) {
        EXPECT_EQ(editable.starts_with('T'), m_header.IsFieldEditable(tag.c_str())) << tag;
    }
}

TEST_F(FileHeaderAccessTest, TablesOfTheHeaderAreParallel)
{
    const NITFFieldSegment::FieldTexts* editability = nullptr;
    const NITFFieldSegment::FieldLengths* lengths = nullptr;
    const NITFFieldSegment::FieldTypes* types = nullptr;
    const std::vector<const char*>* descriptions = nullptr;
    const std::vector<const char*>* tags = nullptr;
    int version = 0;
    ASSERT_TRUE(m_header.GetFieldsMetadata(editability, lengths, types, descriptions, tags, version));
    EXPECT_EQ(21, version);
    EXPECT_EQ(53U, tags->size());
    EXPECT_EQ(53U, descriptions->size());
    EXPECT_EQ(53U, lengths->size());
    EXPECT_EQ(53U, types->size());
    EXPECT_EQ(53U, editability->size());
    EXPECT_STREQ("UDHD", (*tags)[49]);
    EXPECT_STREQ("Uset Defined Header Data", (*descriptions)[49]);
    EXPECT_EQ(NITFCnst::FieldType{4}, types->at("FTITLE"));
    EXPECT_EQ(10, lengths->at("LI"));
    EXPECT_EQ(CSMCnst::DATA_TYPE_INT64, m_header.GetFieldValueDataType("LI001"));
    EXPECT_EQ(CSMCnst::DATA_TYPE_BINARY_COLOR, m_header.GetFieldValueDataType("FBKGC"));
    EXPECT_EQ(CSMCnst::DATA_TYPE_UNKNOWN, m_header.GetFieldValueDataType("NOTHING"));
    std::size_t smallest = 77;
    std::size_t largest = 77;
    EXPECT_TRUE(NITF21FileHeader::GetFieldLengths("UDHD", smallest, largest));
    EXPECT_EQ(0U, smallest);
    EXPECT_EQ(99996U, largest);
    EXPECT_FALSE(NITF21FileHeader::GetFieldLengths("NUML", smallest, largest));
}

TEST_F(FileHeaderAccessTest, CopiesAreEqualUntilOneChanges)
{
    auto original = std::make_unique<NITF21FileHeader>("a", m_raw.data(), m_raw.size());
    NITF21FileHeader copy(*original);
    EXPECT_TRUE(copy == *original);
    original->CloneRawFileHeader("other", 5);
    EXPECT_FALSE(original->CloneRawFileHeader(nullptr, 5));
    original.reset();
    m_text = copy.GetFileHeader(m_length);
    EXPECT_EQ(m_raw, std::string(m_text, m_length));
    EXPECT_TRUE(copy.GetFieldAsString("ACQUISITION_DATE", m_text, m_length, "AIMIDB"));

    const std::string other = NitfBuilder(V21).Header();
    copy = NITF21FileHeader("b", other.data(), other.size());
    EXPECT_TRUE(copy != m_header);
    EXPECT_EQ(0U, copy.GetNumOfImageSegments());
    EXPECT_TRUE(copy.GetTREStore().IsEmpty());
    copy = m_header;
    EXPECT_TRUE(copy == m_header);
    EXPECT_EQ(1U, copy.GetNumOfImageSegments());

    EXPECT_FALSE(copy.AddNITFFileHeaderTRE(nullptr));
    TRE* tre = nullptr;
    TREFactory::Create("ZZZTRE", "data", TRE::TRE_TYPE_UNKNOWN, &tre, false, false, nullptr, 4);
    EXPECT_TRUE(copy.AddNITFFileHeaderTRE(tre));
    EXPECT_TRUE(copy != m_header);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
