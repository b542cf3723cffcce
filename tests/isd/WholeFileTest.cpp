#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/Corpus.h"
#include "tests/support/IndependentWalk.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/Refusal.h"
#include "tests/support/TempFile.h"

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Destroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};

/// A file opened as hosts do it, or the text with which it was refused.
struct Opened
{
    explicit Opened(const std::string& aPath)
    {
        refusal = RefusalOf([&] {
            ImageSupportData* made = nullptr;
            ImageSupportDataFactory::Create(aPath.c_str(), &made, true, false);
            owner.reset(made);
        });
        isd = dynamic_cast<const ImageSupportDataNITF*>(owner.get());
    }

    std::string Warnings() const
    {
        std::string text;
        for (const std::string& warning : isd->GetWarnings()) {
            text += warning + '\n';
        }
        return text;
    }

    std::unique_ptr<ImageSupportData, Destroyer> owner;
    const ImageSupportDataNITF* isd = nullptr;
    std::string refusal;
};

std::vector<WalkedSegment> SegmentsOf(const ImageSupportDataNITF& aIsd)
{
    std::vector<WalkedSegment> segments;
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        segments.push_back({NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType()),
                            info->GetSegmentHeaderStart(), info->GetSegmentHeaderSize(), info->GetSegmentDataStart(),
                            info->GetSegmentDataSize()});
    }
    return segments;
}

/// The fields of a header one after another: its bytes, when no field is lost, moved or made up.
std::string Joined(const NITFFieldSegment& aSegment)
{
    std::string joined;
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    const bool is20 = std::string_view(aSegment.GetNITFVersion()) == NITFCnst::STR_NITF_0200;
    for (std::size_t i = 0; aSegment.GetFieldAt(i, name, value, length); ++i) {
        const std::string_view text(value, length);
        if (!is20 || name != "FBKGC" || text != "~~~") {  // stands for no bytes there
            joined += text;
        }
    }
    return joined;
}

void ExpectFieldsToBeTheBytes(const ImageSupportDataNITF& aIsd, const std::string& aFile)
{
    const std::string header = Joined(*aIsd.GetNITFFileHeader());
    EXPECT_EQ(aFile.substr(0, aIsd.GetNITFFileHeader()->GetFileHeaderLength()), header);
    for (const NITFStdDataSegmentInfo* const info : aIsd.GetSegmentInfos().InFileOrder()) {
        const NITFFieldSegment* const segment =
            aIsd.GetSegment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
        if (segment != nullptr) {
            EXPECT_EQ(aFile.substr(info->GetSegmentHeaderStart(), info->GetSegmentHeaderSize()), Joined(*segment))
                << info->GetSegmentType() << info->GetSegmentIndex();
        }
    }
}

/// The files that the list of the corpus calls good.
std::vector<std::string> GoodFiles()
{
    std::vector<std::string> names;
    std::ifstream list(CorpusFile("README.md"));
    for (std::string line; std::getline(list, line);) {
        if (line.ends_with("| good |")) {
            names.push_back(line.substr(2, line.find(" |") - 2));
        }
    }
    return names;
}

TEST(WholeFileTest, EveryGoodFileOpensAndItsSegmentsStandWhereItsLengthsSay)
{
    const std::vector<std::string> names = GoodFiles();
    if (names.empty()) {
        GTEST_SKIP() << "the corpus is absent";
    }
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        const Opened file(CorpusFile(name.c_str()).string());
        ASSERT_EQ("", file.refusal);
        ASSERT_NE(nullptr, file.isd);
        const std::string bytes = CorpusBytes(name.c_str());
        EXPECT_EQ(WalkSegments(bytes), SegmentsOf(*file.isd));
        EXPECT_EQ(bytes.size(), file.isd->GetSegmentInfos().GetEnd());
        EXPECT_EQ(bytes.size(), file.isd->GetNITFFileHeader()->GetFileLength());
        EXPECT_THAT(file.Warnings(), Not(HasSubstr("FL says")));
        ExpectFieldsToBeTheBytes(*file.isd, bytes);
    }
}

/// The end of the last header that a file must hold to be read.
std::uint64_t EndOfHeaders(const std::string& aBytes, const std::vector<WalkedSegment>& aSegments)
{
    return aSegments.empty() ? aBytes.size() : aSegments.back().dataOffset;
}

class PrefixTest : public testing::TestWithParam<const char*>
{
};

INSTANTIATE_TEST_SUITE_P(SmallFiles, PrefixTest, testing::Values("test_blank.ntf", "i_3034c.ntf", "U_1060A.NTF"),
                         [](const auto& aInfo) {
                             std::string name = aInfo.param;
                             return name.replace(name.find('.'), 1, "_");
                         });

TEST_P(PrefixTest, IsRefusedWithoutAllHeadersAndOpensWithoutAllData)
{
    const std::string bytes = CorpusBytes(GetParam());
    if (bytes.empty()) {
        GTEST_SKIP() << "the corpus file " << GetParam() << " is absent";
    }
    const auto segments = WalkSegments(bytes);
    ASSERT_TRUE(segments.has_value());
    const std::uint64_t needed = EndOfHeaders(bytes, *segments);
    TempFile prefix;
    for (std::size_t length = 0; length <= bytes.size(); ++length) {
        SCOPED_TRACE(length);
        prefix.Write(std::string_view(bytes).substr(0, length));
        const Opened file(prefix.Path());
        ASSERT_EQ(length < needed, !file.refusal.empty()) << file.refusal;
        ASSERT_EQ(file.refusal.empty(), file.isd != nullptr);
        if (file.isd == nullptr || length == bytes.size()) {
            continue;
        }
        ASSERT_THAT(file.Warnings(), AllOf(HasSubstr("WARN: The data end at byte " + std::to_string(bytes.size()) +
                                                     ", beyond the end of the file at " + std::to_string(length)),
                                           HasSubstr("[" + segments->back().kind + " 0 at byte offset ")));
    }
    EXPECT_THAT(Opened(prefix.Path()).Warnings(), IsEmpty());
}

NitfBuilder FullFile(Format aFormat, bool aReserved = true)
{
    NitfBuilder file(aFormat);
    file.File().Area("UDHD", Tre("HDRTRE", "1"), 1);
    file.AddImage(4, 5).Comment("comment").Area("UDID", Tre("IMGTRE", "1"), 2);
    file.AddImage(2, 2).NoBands().Band("LU", {"abcd", "efgh"}).Area("IXSHD", Tre("IMGTRE", "1"));
    file.AddGraphic(std::string("\0\x40", 2)).Area("SXSHD", Tre("SYMTRE", "1"));
    if (aFormat == Format::Nitf20) {
        file.AddLabel("label").Area("LXSHD", Tre("LABTRE", "1"));
    }
    file.AddText("text").Area("TXSHD", Tre("TXTTRE", "1"), 3);
    file.AddOverflow("UDHD", 0, Tre("HDROVF", "12"));
    file.AddOverflow("UDID", 1, Tre("IMGTRE", "12") + Tre("IMGOVF", "1"));
    file.AddOverflow("TXSHD", 1, Tre("TXTOVF", "12"));
    file.AddDes("SOME_DES", "des data");
    if (aReserved) {
        file.AddRes("SOME_RES", "res data").UserFields("user");
    }
    return file;
}

class BuiltFileTest : public testing::TestWithParam<Format>
{
};

INSTANTIATE_TEST_SUITE_P(Formats, BuiltFileTest, testing::Values(Format::Nitf20, Format::Nitf21, Format::Nsif10));

TEST_P(BuiltFileTest, OpensWithoutAWarningAndKeepsEveryByteOfItsHeaders)
{
    const NitfBuilder built = FullFile(GetParam());
    const TempFile file(built.Bytes());
    const Opened opened(file.Path());
    ASSERT_EQ("", opened.refusal);
    EXPECT_THAT(opened.Warnings(), IsEmpty());
    EXPECT_EQ(WalkSegments(built.Bytes()), SegmentsOf(*opened.isd));
    EXPECT_EQ(built.Segments().size(), SegmentsOf(*opened.isd).size());
    ExpectFieldsToBeTheBytes(*opened.isd, built.Bytes());
}

TEST_P(BuiltFileTest, OverflowTresReachTheSegmentThatTheyName)
{
    const TempFile file(FullFile(GetParam()).Bytes());
    const Opened opened(file.Path());
    ASSERT_NE(nullptr, opened.isd) << opened.refusal;
    const auto count = [&](NITFCnst::DataSegmentType aKind, const char* aTag) {
        const TRE** tres = nullptr;
        std::size_t found = 0;
        EXPECT_TRUE(opened.isd->GetDataSegmentTRE(aKind, 0, aTag, tres, found, true)) << aTag;
        NITFStdDataSegment::DeleteTREPointerArray(tres, found, false);
        return found;
    };
    EXPECT_EQ(1U, count(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, "HDROVF"));
    EXPECT_EQ(2U, count(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, "IMGTRE"));
    EXPECT_EQ(1U, count(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, "IMGOVF"));
    EXPECT_EQ(1U, count(NITFCnst::DATA_SEGMENT_TYPE_TEXT, "TXTOVF"));
    EXPECT_EQ(0U, count(NITFCnst::DATA_SEGMENT_TYPE_TEXT, "HDROVF"));
    for (std::size_t des = 0; des != 3; ++des) {
        EXPECT_TRUE(opened.isd->IsOverflowPlaced(des)) << des;
    }
    EXPECT_FALSE(opened.isd->IsOverflowPlaced(3));
}

TEST_P(BuiltFileTest, EveryShorterFileIsRefusedOrOpensWithAWarning)
{
    const std::string bytes = FullFile(GetParam()).Bytes();
    const auto segments = WalkSegments(bytes);
    ASSERT_TRUE(segments.has_value());
    TempFile prefix;
    for (std::size_t length = 0; length != bytes.size(); ++length) {
        SCOPED_TRACE(length);
        prefix.Write(std::string_view(bytes).substr(0, length));
        const Opened file(prefix.Path());
        ASSERT_EQ(length < EndOfHeaders(bytes, *segments), !file.refusal.empty()) << file.refusal;
        if (file.isd != nullptr) {
            ASSERT_THAT(file.Warnings(), HasSubstr("ReservedExtensionSegment 0"));
        }
    }
}

TEST(StreamedFileTest, IsReadByTheHeaderAtItsEnd)
{
    // The DES that holds the header closes the file, so no reserved segment can follow it.
    const NitfBuilder built = FullFile(Format::Nitf21, false);
    const TempFile file(built.StreamedBytes());
    const Opened opened(file.Path());
    ASSERT_EQ("", opened.refusal);
    EXPECT_TRUE(opened.isd->GetNITFFileHeader()->HasStreamingFileHeader());
    EXPECT_EQ(2, opened.isd->GetNumOfImageSegments());
    EXPECT_EQ(built.StreamedBytes().size(), opened.isd->GetSegmentInfos().GetEnd());
    ASSERT_EQ(1U, opened.isd->GetWarnings().size()) << opened.Warnings();
    EXPECT_THAT(opened.Warnings(), HasSubstr("written as a stream"));
}

TEST(StreamedFileTest, WithoutThatHeaderTheTextSaysWhatIsMissing)
{
    std::string bytes = FullFile(Format::Nitf21, false).StreamedBytes();
    bytes.back() = 'x';
    const TempFile file(bytes);
    const Opened opened(file.Path());
    EXPECT_EQ(nullptr, opened.isd);
    EXPECT_THAT(opened.refusal, HasSubstr("value of field \"LISH\" is invalid."));
    EXPECT_THAT(opened.refusal, HasSubstr("no STREAMING_FILE_HEADER stands at the end of the file"));
}

TEST(DamagedFileTest, LengthsThatDoNotAddUpAreOneWarning)
{
    NitfBuilder built(Format::Nitf21);
    built.AddImage(4, 5);
    const std::size_t size = built.Bytes().size();
    for (const std::uint64_t claimed : {size - 5, size + 1000, std::uint64_t{388 + 13 + 3}}) {
        built.File().Damage("FL", Padded(claimed, 12));
        const TempFile file(built.Bytes());
        const Opened opened(file.Path());
        ASSERT_EQ("", opened.refusal);
        ASSERT_EQ(1U, opened.isd->GetWarnings().size());
        EXPECT_THAT(opened.Warnings(), HasSubstr("FL says " + std::to_string(claimed) + " byte(s)"));
        EXPECT_EQ(size, opened.isd->GetSegmentInfos().GetEnd());
    }
}

TEST(DamagedFileTest, SubheadersMustStartWithTheirMarkAndEndInTheFile)
{
    NitfBuilder built(Format::Nitf21);
    HeaderFields& image = built.AddImage(4, 5);
    image.Damage("IM", "XX");
    {
        const TempFile file(built.Bytes());
        EXPECT_THAT(
            Opened(file.Path()).refusal,
            HasSubstr(
                "The subheader begins with \"XX\" in place of its mark \"IM\".\n[ImageSegment 0 at byte offset 404]"));
    }
    image.Damage("IM", "IM");
    built.File().Damage("LISH001", "002000");
    const TempFile file(built.Bytes());
    EXPECT_THAT(Opened(file.Path()).refusal,
                HasSubstr("The subheader ends at byte 2404, beyond the end of the file at " +
                          std::to_string(built.Bytes().size())));
}

TEST(DamagedFileTest, ManyImagesOpenWithoutWaiting)
{
    NitfBuilder built(Format::Nitf21);
    for (int i = 0; i != 999; ++i) {
        built.AddImage(1, 1);
    }
    const TempFile file(built.Bytes());
    const Opened opened(file.Path());
    ASSERT_EQ("", opened.refusal);
    EXPECT_EQ(999, opened.isd->GetNumOfImageSegments());
    EXPECT_THAT(opened.Warnings(), IsEmpty());
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
