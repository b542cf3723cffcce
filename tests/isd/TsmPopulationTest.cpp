// CSM API ISDs filled from files, held against the bytes of the files.

#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/OrmoTSMISD.h"
#include "tests/support/Corpus.h"
#include "tests/support/IndependentWalk.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::ElementsAre;

struct Destroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};

/// A file opened through the factory; null when it is refused.
std::unique_ptr<ImageSupportData, Destroyer> Open(const std::string& aPath, bool aAllSegments = true)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, aAllSegments, false);
    } catch (...) {
        isd = nullptr;
    }
    return std::unique_ptr<ImageSupportData, Destroyer>(isd);
}

const ImageSupportDataNITF& Nitf(const std::unique_ptr<ImageSupportData, Destroyer>& aIsd)
{
    return dynamic_cast<const ImageSupportDataNITF&>(*aIsd);
}

std::string BytesOf(const std::filesystem::path& aPath)
{
    std::ifstream file(aPath, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The record as it stands in an extension area.
std::string Text(const tre& aTre)
{
    EXPECT_EQ(aTre.record[aTre.length], '\0');
    return Tre(aTre.name, {aTre.record, static_cast<std::size_t>(aTre.length)});
}

std::vector<std::string> Tags(const tre* aTres, int aCount)
{
    std::vector<std::string> tags;
    for (int i = 0; i != aCount; ++i) {
        tags.emplace_back(aTres[i].name);
    }
    return tags;
}

/// The records are the TREs of the segment, own ones first, and stand in the bytes of its header or of a DES one behind
/// the other.
template<typename NitfISD>
void ExpectTres(const tre* aTres, int aCount, const NITFFieldSegment& aSegment, std::string_view aHeader,
                const NitfISD& aIsd)
{
    const std::size_t own = aSegment.GetTREStore().Size();
    ASSERT_EQ(static_cast<std::size_t>(aCount), own + aSegment.GetOverflowTREStore().Size());
    std::size_t from = 0;
    for (std::size_t i = 0; i != static_cast<std::size_t>(aCount); ++i) {
        const std::string text = Text(aTres[i]);
        const TRE& expected =
            *(i < own ? aSegment.GetTREStore().InOrder()[i] : aSegment.GetOverflowTREStore().InOrder()[i - own]);
        std::size_t length = 0;
        const char* const data = expected.GetRawTREDataString(length);
        std::string tag = expected.GetTag();
        tag.resize(6, ' ');
        EXPECT_EQ(text, Tre(tag, {data, length}));
        if (i < own) {
            from = aHeader.find(text, from);
            EXPECT_NE(from, std::string_view::npos) << tag;
        } else {
            bool found = false;
            for (int d = 0; d != aIsd.numDESs; ++d) {
                const std::string_view area(aIsd.fileDESs[d].desData,
                                            static_cast<std::size_t>(aIsd.fileDESs[d].desDataLength));
                found = found || area.find(text) != std::string_view::npos;
            }
            EXPECT_TRUE(found) << tag;
        }
    }
}

template<typename NitfISD>
void ExpectFilled(const tsm_ISD& aFilled, const ImageSupportDataNITF& aIsd, const std::string& aFile)
{
    const auto* const filled = dynamic_cast<const NitfISD*>(&aFilled);
    ASSERT_NE(filled, nullptr);
    const std::string_view file(aFile);
    EXPECT_EQ(filled->fileHeader, file.substr(0, aIsd.GetNITFFileHeader()->GetFileHeaderLength()));
    ExpectTres(filled->fileTREs, filled->numTREs, *aIsd.GetNITFFileHeader(), filled->fileHeader, *filled);
    int images = 0;
    int dess = 0;
    const std::optional<std::vector<WalkedSegment>> walked = WalkSegments(aFile);
    ASSERT_TRUE(walked.has_value());
    for (const WalkedSegment& segment : *walked) {
        const std::string_view header = file.substr(segment.headerOffset, segment.headerSize);
        if (segment.kind == "ImageSegment") {
            ASSERT_LT(images, filled->numImages);
            const image& record = filled->images[images];
            EXPECT_EQ(record.imageSubHeader, header);
            ExpectTres(record.imageTREs, record.numTREs, *aIsd.GetImageSubheader(static_cast<std::size_t>(images)),
                       header, *filled);
            ++images;
        } else if (segment.kind == "DataExtensionSegment") {
            ASSERT_LT(dess, filled->numDESs);
            const des& record = filled->fileDESs[dess++];
            EXPECT_EQ(std::string_view(record.desSh, static_cast<std::size_t>(record.desShLength)), header);
            EXPECT_EQ(std::string_view(record.desData, static_cast<std::size_t>(record.desDataLength)),
                      file.substr(segment.dataOffset, segment.dataSize));
            EXPECT_EQ(record.desSh[record.desShLength], '\0');
            EXPECT_EQ(record.desData[record.desDataLength], '\0');
        }
    }
    EXPECT_EQ(filled->numImages, images);
    EXPECT_EQ(filled->numDESs, dess);
}

void ExpectAllForms(const std::string& aPath, const ImageSupportData& aIsd)
{
    const auto& isd = dynamic_cast<const ImageSupportDataNITF&>(aIsd);
    const tsm_ISD** forms = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(aIsd.GetAllTsmISDs(forms, count));
    ASSERT_EQ(count, 2U);
    const std::string bytes = BytesOf(aPath);
    if (isd.GetNITFFileVersionCode() == NITFCnst::NITF_VERSION_NUMBER_20) {
        ExpectFilled<NITF_2_0_ISD>(*forms[0], isd, bytes);
    } else {
        ExpectFilled<NITF_2_1_ISD>(*forms[0], isd, bytes);
    }
    const auto* const named = dynamic_cast<const filenameISD*>(forms[1]);
    ASSERT_NE(named, nullptr);
    EXPECT_EQ(named->_filename, aPath);
    const tsm_ISD** again = nullptr;
    ASSERT_TRUE(aIsd.GetAllTsmISDs(again, count));
    EXPECT_EQ(again, forms);
}

TEST(TsmPopulationCorpusTest, RealFilesOfEveryVersionFillTheirIsdByteForByte)
{
    const std::filesystem::path directory = CorpusFile("");
    if (!std::filesystem::exists(directory)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int checked = 0;
    int dess = 0;
    int overflow = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        SCOPED_TRACE(entry.path());
        const auto isd = entry.is_regular_file() ? Open(entry.path()) : nullptr;
        if (isd == nullptr) {
            continue;
        }
        bool isWhole = true;  // data beyond the end of a damaged file cannot be filled in
        for (const NITFStdDataSegmentInfo* const info : Nitf(isd).GetSegmentInfos().InFileOrder()) {
            isWhole =
                isWhole && info->GetSegmentDataStart() + info->GetSegmentDataSize() <= Nitf(isd).GetNITFFileSize();
        }
        if (!isWhole) {
            continue;
        }
        ExpectAllForms(entry.path(), *isd);
        ++checked;
        for (std::size_t i = 0; const auto* const des = Nitf(isd).GetDataExtensionSegment(i); ++i) {
            ++dess;
            overflow += des->IsTREOverflow() ? 1 : 0;
        }
    }
    EXPECT_GT(checked, 40);
    EXPECT_GT(dess, 8);
    EXPECT_GT(overflow, 7);
}

/// Two images and TREs in every area that a CSM API ISD carries, one with NUL bytes; a DES of another kind last.
NitfBuilder Builder(Format aFormat)
{
    NitfBuilder builder(aFormat);
    builder.File().Area("UDHD", Tre("FILEUD", "1"), 1).Area("XHD", Tre("FILEXH", "2"));
    builder.AddImage().Area("UDID", Tre("IMAGUD", std::string_view("3\0004", 3))).Area("IXSHD", Tre("IMAGIX", "4"));
    builder.AddImage(4, 5).Area("IXSHD", Tre("SECOND", "5"), 2);
    builder.AddText();
    builder.AddOverflow("UDHD", 0, Tre("FILEOV", "6"));
    builder.AddOverflow("IXSHD", 2, Tre("SECOOV", "7"));
    builder.AddDes("OTHER", std::string_view("a\0b", 3));
    return builder;
}

template<typename NitfISD>
class TsmPopulationTest : public testing::Test
{
protected:
    static constexpr bool IS_20 = std::is_same_v<NitfISD, NITF_2_0_ISD>;
    using OtherISD = std::conditional_t<IS_20, NITF_2_1_ISD, NITF_2_0_ISD>;

    const TempFile m_file{Builder(IS_20 ? Format::Nitf20 : Format::Nitf21).Bytes()};
};

using NitfISDs = testing::Types<NITF_2_0_ISD, NITF_2_1_ISD>;
TYPED_TEST_SUITE(TsmPopulationTest, NitfISDs);

TYPED_TEST(TsmPopulationTest, OverflowStandsBehindTheOwnTresAndStaysAmongTheDess)
{
    const auto isd = Open(this->m_file.Path());
    ExpectAllForms(this->m_file.Path(), *isd);
    TypeParam filled;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    EXPECT_THAT(Tags(filled.fileTREs, filled.numTREs), ElementsAre("FILEUD", "FILEXH", "FILEOV"));
    ASSERT_EQ(filled.numImages, 2);
    EXPECT_THAT(Tags(filled.images[0].imageTREs, filled.images[0].numTREs), ElementsAre("IMAGUD", "IMAGIX"));
    EXPECT_THAT(Tags(filled.images[1].imageTREs, filled.images[1].numTREs), ElementsAre("SECOND", "SECOOV"));
    EXPECT_EQ(filled.images[0].imageTREs[0].length, 3);
    EXPECT_EQ(filled.numDESs, 3);
    std::string format;
    filled.getFormat(format);
    EXPECT_EQ(format, this->IS_20 ? "NITF2.0" : "NITF2.1");
}

TYPED_TEST(TsmPopulationTest, OneImageIsFilledInInPlaceOfWhatStoodThere)
{
    const auto isd = Open(this->m_file.Path());
    TypeParam filled;
    filled.numDESs = 1;
    filled.fileDESs = new des[1];
    filled.images = new image[1];
    filled.numImages = 1;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(1, &filled));
    ASSERT_EQ(filled.numImages, 1);
    EXPECT_EQ(filled.images[0].imageTREs[0].name, std::string("SECOND"));
    EXPECT_FALSE(Nitf(isd).SetTSMISD(2, &filled));
    EXPECT_EQ(filled.numImages, 1);

    image record;
    EXPECT_TRUE(Nitf(isd).PopulateCSMImageObject(record, 1));
    EXPECT_TRUE(Nitf(isd).PopulateCSMImageObject(record, 0));
    EXPECT_THAT(Tags(record.imageTREs, record.numTREs), ElementsAre("IMAGUD", "IMAGIX"));
    EXPECT_FALSE(Nitf(isd).PopulateCSMImageObject(record, 2));
    EXPECT_FALSE(Nitf(isd).PopulateCSMImageObject(record, -1));
}

TYPED_TEST(TsmPopulationTest, PartsAreFilledOneByOne)
{
    const auto isd = Open(this->m_file.Path());
    TypeParam filled;
    ASSERT_TRUE(Nitf(isd).PopulateTSMISDFileHeaderTREs(&filled));
    EXPECT_EQ(filled.numTREs, 3);
    EXPECT_EQ(filled.numImages + filled.numDESs, 0);
    ASSERT_TRUE(Nitf(isd).PopulateTSMISDImageSegments(&filled, -1));
    EXPECT_EQ(filled.numImages, 2);
    ASSERT_TRUE(Nitf(isd).PopulateTSMISDImageSegments(&filled, 0));
    EXPECT_EQ(filled.numImages, 1);
    EXPECT_FALSE(Nitf(isd).PopulateTSMISDImageSegments(&filled, 2));
    EXPECT_EQ(filled.numImages, 1);
    ASSERT_TRUE(Nitf(isd).PopulateTSMISDDESs(&filled));
    EXPECT_EQ(filled.numDESs, 3);
}

TYPED_TEST(TsmPopulationTest, IsdsOfTheOtherVersionAndOfOtherClassesAreRefused)
{
    const auto isd = Open(this->m_file.Path());
    typename TestFixture::OtherISD other;
    tsm_ISD plain;
    for (tsm_ISD* const refused : {static_cast<tsm_ISD*>(&other), &plain, static_cast<tsm_ISD*>(nullptr)}) {
        EXPECT_FALSE(Nitf(isd).SetTSMISD(-1, refused));
        EXPECT_FALSE(Nitf(isd).PopulateTSMISDFileHeaderTREs(refused));
        EXPECT_FALSE(Nitf(isd).PopulateTSMISDImageSegments(refused, -1));
        EXPECT_FALSE(Nitf(isd).PopulateTSMISDDESs(refused));
    }
    EXPECT_TRUE(other.fileHeader.empty());
}

TYPED_TEST(TsmPopulationTest, FileAndOwnIsdsAreFilledToo)
{
    const auto isd = Open(this->m_file.Path());
    bytestreamISD bytes;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &bytes));
    EXPECT_EQ(bytes._isd, BytesOf(this->m_file.Path()));
    filenameISD name;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(1, &name));
    EXPECT_EQ(name._filename, this->m_file.Path());
    OrmoTSMISD own;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(1, &own));
    EXPECT_EQ(own.GetImageFileName(), this->m_file.Path());
    EXPECT_EQ(own.GetImageSegment(), 1);
}

TYPED_TEST(TsmPopulationTest, WithoutTheOtherSegmentsThereAreNoDessButAllTresOfTheHeader)
{
    const auto isd = Open(this->m_file.Path(), false);
    TypeParam filled;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    EXPECT_EQ(filled.numDESs, 0);
    EXPECT_THAT(Tags(filled.fileTREs, filled.numTREs), ElementsAre("FILEUD", "FILEXH", "FILEOV"));
    EXPECT_EQ(filled.numImages, 2);
}

TEST(TsmPopulationCaseTest, FileWithoutImagesKeepsItsTresAndDess)
{
    NitfBuilder builder(Format::Nitf20);
    builder.File().Area("XHD", Tre("FILEXH", "2"));
    builder.AddDes("OTHER", "data");
    const TempFile file(builder.Bytes());
    const auto isd = Open(file.Path());
    NITF_2_0_ISD filled;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    EXPECT_EQ(filled.numTREs, 1);
    EXPECT_EQ(filled.numDESs, 1);
    EXPECT_EQ(filled.images, nullptr);
    EXPECT_FALSE(Nitf(isd).SetTSMISD(0, &filled));
}

TEST(TsmPopulationCaseTest, FileInMemoryHasNoNameToBeFoundBy)
{
    const std::string bytes = Builder(Format::Nitf21).Bytes();
    ImageSupportData* made = nullptr;
    ImageSupportDataFactory::CreateFromMemory(bytes.data(), bytes.size(), false, "by name", &made, true, false);
    const std::unique_ptr<ImageSupportData, Destroyer> isd(made);
    const tsm_ISD** forms = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(isd->GetAllTsmISDs(forms, count));
    ASSERT_EQ(count, 1U);
    ExpectFilled<NITF_2_1_ISD>(*forms[0], Nitf(isd), bytes);
    bytestreamISD stream;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &stream));
    EXPECT_EQ(stream._isd, bytes);
    filenameISD name;
    name._filename = "before";
    EXPECT_FALSE(Nitf(isd).SetTSMISD(-1, &name));
    EXPECT_EQ(name._filename, "before");
}

TEST(TsmPopulationCaseTest, DesThatTheFileDoesNotHoldIsFilledInWithoutData)
{
    NitfBuilder builder;
    builder.AddDes("OTHER", "data that is cut off");
    const std::string bytes = builder.Bytes();
    const TempFile file(bytes.substr(0, bytes.size() - 5));
    const auto isd = Open(file.Path());
    ASSERT_NE(isd, nullptr);
    NITF_2_1_ISD filled;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    ASSERT_EQ(filled.numDESs, 1);
    EXPECT_GT(filled.fileDESs[0].desShLength, 0);
    EXPECT_EQ(filled.fileDESs[0].desDataLength, 0);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
