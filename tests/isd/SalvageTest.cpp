#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {
namespace {

/// A segment by the name of its kind and its index; the file header is one too.
using SegmentKey = std::pair<std::string, std::size_t>;

/// All that is compared of a segment: where it stands, its header and its TREs.
struct SegmentState
{
    std::uint64_t header = 0;
    std::uint64_t data = 0;
    std::uint64_t size = 0;
    std::string bytes;
    std::vector<std::string> tres;

    bool operator==(const SegmentState&) const = default;
};

using FileState = std::map<SegmentKey, SegmentState>;

SegmentState StateOf(const NITFStdDataSegmentInfo& aInfo, const NITFFieldSegment& aSegment)
{
    SegmentState state{aInfo.GetSegmentHeaderStart(), aInfo.GetSegmentDataStart(), aInfo.GetSegmentDataSize(), {}, {}};
    std::size_t length = 0;
    const char* const bytes = aSegment.GetRawHeader(length);
    state.bytes.assign(bytes, length);
    for (const TRE* const tre : aSegment.GetTREStore().InOrder()) {
        const char* const data = tre->GetRawTREDataString(length);
        state.tres.push_back(std::string(tre->GetTag()) + ':' + std::string(data, length));
    }
    return state;
}

/// The segments of a file that can be read; the header's own bytes aside, which salvage may have had to mend.
FileState Salvaged(const std::string& aPath, std::vector<Finding>* aFindings = nullptr)
{
    FileState file;
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Salvage(aPath.c_str(), &isd);
    } catch (const CSMException& exception) {
        ADD_FAILURE() << "refused: " << exception.GetAdditionalMessage();
        return file;
    }
    const auto& nitf = dynamic_cast<const ImageSupportDataNITF&>(*isd);
    for (const NITFStdDataSegmentInfo* const info : nitf.GetSegmentInfos().InFileOrder()) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const NITFFieldSegment* const segment = nitf.GetSegment(info->GetDataSegmentType(), index);
        if (segment != nullptr) {
            file[{NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType()), index}] =
                StateOf(*info, *segment);
        }
    }
    if (aFindings != nullptr) {
        *aFindings = nitf.GetFindings();
    }
    ImageSupportDataFactory::Destroy(&isd);
    return file;
}

/// A count or length: whose it is, and where its first byte stands.
struct Number
{
    SegmentKey owner;
    std::string field;
    std::uint64_t offset = 0;
    std::size_t width = 0;
};

bool IsCountOrLength(const std::string& aName)
{
    static const std::set<std::string> names{"HL",     "FL",     "NUMI",   "NUMS",   "NUML",   "NUMT",   "NUMDES",
                                             "NUMRES", "UDHDL",  "XHDL",   "NICOM",  "NBANDS", "XBANDS", "UDIDL",
                                             "IXSHDL", "SXSHDL", "LXSHDL", "TXSHDL", "DESSHL", "RESSHL"};
    if (names.count(aName) != 0) {
        return true;
    }
    const std::string front = aName.substr(0, aName.find_first_of("0123456789_"));
    static const std::set<std::string> repeated{"LISH", "LI",   "LSSH", "LS",    "LLSH", "LL",    "LTSH",
                                                "LT",   "LDSH", "LD",   "LRESH", "LRE",  "NLUTS", "NELUT"};
    return repeated.count(front) != 0;
}

void AddNumbers(const NITFFieldSegment& aSegment, const SegmentKey& aOwner, std::vector<Number>& aNumbers)
{
    std::string name;
    for (std::size_t i = 0; i != aSegment.GetNumOfFields(); ++i) {
        const char* value = nullptr;
        std::size_t length = 0;
        aSegment.GetFieldAt(i, name, value, length);
        if (IsCountOrLength(name)) {
            aNumbers.push_back({aOwner, name, aSegment.GetFieldOffset(i), length});
        }
    }
}

std::vector<Number> NumbersOf(const std::string& aPath)
{
    std::vector<Number> numbers;
    ImageSupportData* isd = nullptr;
    ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
    const auto& nitf = dynamic_cast<const ImageSupportDataNITF&>(*isd);
    AddNumbers(*nitf.GetNITFFileHeader(), {"NITFFileHeader", 0}, numbers);
    for (const NITFStdDataSegmentInfo* const info : nitf.GetSegmentInfos().InFileOrder()) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const SegmentKey owner{NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType()), index};
        AddNumbers(*nitf.GetSegment(info->GetDataSegmentType(), index), owner, numbers);
    }
    ImageSupportDataFactory::Destroy(&isd);
    return numbers;
}

/// The segment that a length of the file header describes; the header itself for all other numbers of it.
SegmentKey Described(const Number& aNumber, bool aIs20)
{
    static const std::map<std::string, std::string> kinds{{"LISH", "ImageSegment"},
                                                          {"LI", "ImageSegment"},
                                                          {"LTSH", "TextSegment"},
                                                          {"LT", "TextSegment"},
                                                          {"LDSH", "DataExtensionSegment"},
                                                          {"LD", "DataExtensionSegment"},
                                                          {"LLSH", "LabelSegment"},
                                                          {"LL", "LabelSegment"},
                                                          {"LRESH", "ReservedExtensionSegment"},
                                                          {"LRE", "ReservedExtensionSegment"}};
    const auto digits = aNumber.field.find_first_of("0123456789");
    const auto kind = kinds.find(aNumber.field.substr(0, digits));
    const std::string front = aNumber.field.substr(0, digits);
    const std::string name = front == "LSSH" || front == "LS" ? (aIs20 ? "SymbolSegment" : "GraphicSegment")
                             : kind == kinds.end()            ? ""
                                                              : kind->second;
    return name.empty() ? aNumber.owner : SegmentKey{name, std::stoul(aNumber.field.substr(digits)) - 1};
}

class SalvageCorpusTest : public testing::TestWithParam<const char*>
{
};

TEST_P(SalvageCorpusTest, OneWrongByteOfACountOrLengthCostsNoOtherSegment)
{
    const std::string bytes = CorpusBytes(GetParam());
    if (bytes.empty()) {
        GTEST_SKIP() << "no real files: ORMO_CORPUS";
    }
    TempFile file(bytes);
    const FileState whole = Salvaged(file.Path());
    ASSERT_FALSE(whole.empty());
    const bool is20 = bytes.substr(0, 9) == "NITF02.00";
    std::size_t mended = 0;
    for (const Number& number : NumbersOf(file.Path())) {
        for (const char wrong : {'+', '-', 'x'}) {
            std::string damaged = bytes;
            char& byte = damaged[static_cast<std::size_t>(number.offset) + number.width - 1];
            byte = wrong == 'x' ? 'x' : static_cast<char>('0' + (byte - '0' + (wrong == '+' ? 1 : 9)) % 10);
            file.Write(damaged);
            std::vector<Finding> findings;
            const FileState left = Salvaged(file.Path(), &findings);
            const std::string what =
                number.owner.first + ' ' + std::to_string(number.owner.second) + ' ' + number.field;
            EXPECT_FALSE(findings.empty() && left != whole) << what;
            mended += std::any_of(findings.begin(), findings.end(), [](const Finding& aFinding) {
                return aFinding.sentence.find("that is taken") != std::string::npos;
            });
            for (const auto& [key, state] : whole) {
                const auto found = left.find(key);
                if (key == number.owner || key == Described(number, is20)) {
                    continue;
                }
                ASSERT_NE(found, left.end())
                    << what << " with " << wrong << " loses " << key.first << ' ' << key.second;
                EXPECT_TRUE(found->second == state) << what << " changes " << key.first << ' ' << key.second;
            }
        }
    }
    EXPECT_GT(mended, 0U);
}

INSTANTIATE_TEST_SUITE_P(RealFiles, SalvageCorpusTest,
                         testing::Values("p0_02a.ntf", "p0_15a.ntf", "p1_01a.ntf", "i_3063f.ntf", "ns3010a.nsf",
                                         "ns3038a.nsf", "U_0006A.NTF", "U_1036A.NTF", "p0_13xa.ntf", "U_1060A.NTF"),
                         [](const auto& aInfo) {
                             std::string name = aInfo.param;
                             std::replace(name.begin(), name.end(), '.', '_');
                             return name;
                         });

NitfBuilder ThreeSegments(Format aFormat)
{
    NitfBuilder builder(aFormat);
    builder.AddImage(8, 8);
    builder.AddText("some text\r\n");
    builder.AddDes("MINE", "data of a des");
    return builder;
}

TEST(SalvageTest, AMendedNumberIsTold)
{
    for (const Format format : {Format::Nitf20, Format::Nitf21}) {
        NitfBuilder builder = ThreeSegments(format);
        const auto at = builder.OffsetOf("LI001");
        std::string bytes = builder.Bytes();
        bytes[at + 9] = '7';
        const TempFile file(bytes);
        std::vector<Finding> findings;
        EXPECT_EQ(Salvaged(file.Path(), &findings).size(), 3U);
        ASSERT_FALSE(findings.empty());
        EXPECT_EQ(findings.front().field, "LI001");
        EXPECT_EQ(findings.front().offset, at);
        EXPECT_EQ(findings.front().value, "0000000067");
        EXPECT_NE(findings.front().sentence.find("with 0000000064 in this field"), std::string::npos);
        ImageSupportData* isd = nullptr;
        EXPECT_THROW(ImageSupportDataFactory::Create(file.CStr(), &isd, true, false),
                     ImageSupportDataConstructionException);
    }
}

TEST(SalvageTest, TwoWrongNumbersAreNotGuessedAt)
{
    NitfBuilder builder = ThreeSegments(Format::Nitf21);
    std::string bytes = builder.Bytes();
    bytes[builder.OffsetOf("LI001") + 9] = '7';
    bytes[builder.OffsetOf("LT001") + 4] = '5';
    const TempFile file(bytes);
    std::vector<Finding> findings;
    const FileState left = Salvaged(file.Path(), &findings);
    EXPECT_EQ(left.count({"ImageSegment", 0}), 1U);
    EXPECT_EQ(left.count({"TextSegment", 0}), 0U);
    for (const Finding& finding : findings) {
        EXPECT_EQ(finding.sentence.find("that is taken"), std::string::npos) << finding.Line();
    }
}

TEST(SalvageTest, AFileThatEndsInItsHeaderIsRefusedWhereverItEnds)
{
    for (const bool isDowngraded : {false, true}) {
        NitfBuilder builder = ThreeSegments(Format::Nitf20);
        if (isDowngraded) {
            builder.File().Event("an event that opens a field");
        }
        const std::string bytes = builder.Bytes();
        for (std::size_t length = 330; length != 420; ++length) {
            const TempFile file(bytes.substr(0, length));
            ImageSupportData* isd = nullptr;
            EXPECT_THROW(ImageSupportDataFactory::Salvage(file.CStr(), &isd), ImageSupportDataConstructionException)
                << length;
        }
    }
}

TEST(SalvageTest, ASegmentThatCannotBeReadIsNamedWithItsPlace)
{
    NitfBuilder builder = ThreeSegments(Format::Nitf21);
    std::string bytes = builder.Bytes();
    const auto start = bytes.find("TE", builder.Header().size() + 100);
    ASSERT_NE(start, std::string::npos);
    bytes[start] = 'X';
    const TempFile file(bytes);
    std::vector<Finding> findings;
    EXPECT_EQ(Salvaged(file.Path(), &findings).size(), 2U);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().segment, "TextSegment");
    EXPECT_EQ(findings.front().index, 0);
    EXPECT_EQ(findings.front().offset, start);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM::Tests
