// ISDs made from filled CSM API objects, with no file at all, held against the ISDs of the files that filled them.

#include "foundation/CSMExceptions.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/WrapperCSMIsdNITF.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::HasSubstr;

struct Destroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};
using Isd = std::unique_ptr<ImageSupportData, Destroyer>;

constexpr auto FILE_HEADER = NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
constexpr auto IMAGE = NITFCnst::DATA_SEGMENT_TYPE_IMAGE;
constexpr auto DES = NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION;

Isd Open(const std::string& aPath)
{
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
    } catch (...) {
        isd = nullptr;
    }
    return Isd(isd);
}

Isd Made(const WrapperCSMISD& aWrapper)
{
    ImageSupportData* isd = nullptr;
    ImageSupportDataFactory::Create(&aWrapper, &isd, false);
    return Isd(isd);
}

const ImageSupportDataNITF& Nitf(const Isd& aIsd)
{
    return dynamic_cast<const ImageSupportDataNITF&>(*aIsd);
}

/// Every field and every TRE of a segment, in order.
std::vector<std::string> Contents(const NITFFieldSegment* aSegment)
{
    std::vector<std::string> lines;
    if (aSegment == nullptr) {
        return {"no segment"};
    }
    std::string name;
    const char* value = nullptr;
    std::size_t length = 0;
    for (std::size_t i = 0; aSegment->GetFieldAt(i, name, value, length); ++i) {
        lines.push_back(name + "=" + std::string(value, length));
    }
    for (const TREStore* const store : {&aSegment->GetTREStore(), &aSegment->GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            const char* const data = tre->GetRawTREDataString(length);
            lines.push_back(std::string(tre->GetTag()) + " " + tre->GetExtensionArea() + " " + tre->GetTREName() + " " +
                            std::string(data, length));
        }
    }
    return lines;
}

void ExpectSameSegments(const ImageSupportDataNITF& aMade, const ImageSupportDataNITF& aFile)
{
    EXPECT_EQ(Contents(aMade.GetSegment(FILE_HEADER, 0)), Contents(aFile.GetSegment(FILE_HEADER, 0)));
    EXPECT_EQ(aMade.GetNumOfImageSegments(), aFile.GetNumOfImageSegments());
    EXPECT_STREQ(aMade.GetFileTypeAndVersion(), aFile.GetFileTypeAndVersion());
    EXPECT_STREQ(aMade.GetHighestSecurityClassificationMarking(), aFile.GetHighestSecurityClassificationMarking());
    for (std::size_t i = 0; i != static_cast<std::size_t>(aFile.GetNumOfImageSegments()); ++i) {
        EXPECT_EQ(Contents(aMade.GetSegment(IMAGE, i)), Contents(aFile.GetSegment(IMAGE, i)));
    }
    for (std::size_t i = 0; const NITFDESSubheader* const expected = aFile.GetDataExtensionSegment(i); ++i) {
        const NITFDESSubheader* const des = aMade.GetDataExtensionSegment(i);
        ASSERT_NE(des, nullptr);
        EXPECT_EQ(Contents(des), Contents(expected));
        EXPECT_EQ(des->GetOverflowTREs() == expected->GetOverflowTREs(), true);
        const char* data[2] = {};
        std::size_t lengths[2] = {};
        EXPECT_EQ(des->GetDESDATA(data[0], lengths[0]), expected->GetDESDATA(data[1], lengths[1]));
        EXPECT_EQ(std::string_view(data[0], lengths[0]), std::string_view(data[1], lengths[1]));
    }
}

/// Fills an ISD from a file, makes an ISD of that, and holds the two against each other.
template<typename NitfISD, typename Wrapper>
void ExpectRoundTrip(const ImageSupportDataNITF& aFile)
{
    Isd made;
    {
        NitfISD filled;
        ASSERT_TRUE(aFile.SetTSMISD(-1, &filled));
        const Wrapper wrapper(filled, aFile.GetFileName());
        made = Made(wrapper);
    }
    // What was wrapped is gone.
    EXPECT_TRUE(made->IsInitUsingTsmNITFISD());
    EXPECT_FALSE(aFile.IsInitUsingTsmNITFISD());
    ExpectSameSegments(Nitf(made), aFile);
    const tsm_ISD** forms = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(made->GetAllTsmISDs(forms, count));
    ASSERT_EQ(count, 1U) << "there is no file that a name could lead to";
    const auto& again = dynamic_cast<const NitfISD&>(*forms[0]);
    NitfISD filled;
    ASSERT_TRUE(aFile.SetTSMISD(-1, &filled));
    EXPECT_EQ(again.fileHeader, filled.fileHeader);
    EXPECT_EQ(again.numTREs, filled.numTREs);
    EXPECT_EQ(again.numDESs, filled.numDESs);
    EXPECT_EQ(again.numImages, filled.numImages);
}

void ExpectRoundTrip(const ImageSupportDataNITF& aFile)
{
    if (aFile.GetNITFFileVersionCode() == NITFCnst::NITF_VERSION_NUMBER_20) {
        ExpectRoundTrip<NITF_2_0_ISD, WrapperCSMIsdNITF20>(aFile);
    } else {
        ExpectRoundTrip<NITF_2_1_ISD, WrapperCSMIsdNITF21>(aFile);
    }
}

TEST(TsmRoundTripTest, RealFilesComeBackWithEveryFieldAndTre)
{
    const std::filesystem::path directory = CorpusFile("");
    if (!std::filesystem::exists(directory)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    int checked = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        SCOPED_TRACE(entry.path());
        const Isd isd = entry.is_regular_file() ? Open(entry.path()) : nullptr;
        if (isd != nullptr) {
            ExpectRoundTrip(Nitf(isd));
            ++checked;
        }
    }
    EXPECT_GT(checked, 50);
}

NitfBuilder Builder(Format aFormat)
{
    NitfBuilder builder(aFormat);
    builder.File().Area("XHD", Tre("FILEXH", "2"));
    builder.AddImage().Area("UDID", Tre("IMAGUD", std::string_view("3\0004", 3))).Area("IXSHD", Tre("IMAGIX", "x"));
    builder.AddImage(4, 5).Area("IXSHD", Tre("SECOND", "5"), 1);
    builder.AddGraphic();
    builder.AddText();
    builder.AddOverflow("IXSHD", 2, Tre("SECOOV", "7"));
    builder.AddDes("OTHER", std::string_view("a\0b", 3));
    return builder;
}

TEST(TsmRoundTripTest, FilesOfEveryVersionComeBackWithoutTheirFile)
{
    for (const Format format : {Format::Nitf20, Format::Nitf21, Format::Nsif10}) {
        auto file = std::make_unique<TempFile>(Builder(format).Bytes());
        const Isd isd = Open(file->Path());
        ASSERT_NE(isd, nullptr);
        const bool is20 = format == Format::Nitf20;
        NITF_2_0_ISD filled20;
        NITF_2_1_ISD filled21;
        ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, is20 ? static_cast<tsm_ISD*>(&filled20) : &filled21));
        const std::string path = file->Path();
        file.reset();
        const Isd made = is20 ? Made(WrapperCSMIsdNITF20(filled20, path.c_str())) : Made(WrapperCSMIsdNITF21(filled21));
        ExpectSameSegments(Nitf(made), Nitf(isd));
        EXPECT_EQ(Nitf(made).GetTextSubheader(0), nullptr) << "no CSM API ISD carries texts";
        EXPECT_TRUE(Nitf(made).IsOverflowPlaced(0));
        EXPECT_NE(made->Serialize(), nullptr);
    }
}

/// The tags of the TREs of an image, overflow included.
std::vector<std::string> Tags(const NITFFieldSegment& aSegment)
{
    std::vector<std::string> tags;
    for (const TREStore* const store : {&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()}) {
        for (const TRE* const tre : store->InOrder()) {
            tags.emplace_back(tre->GetTag());
        }
    }
    return tags;
}

TEST(TsmRoundTripTest, TreThatAHostHasAddedToTheRecordStandsBehindTheOthers)
{
    const TempFile file(Builder(Format::Nitf21).Bytes());
    const Isd isd = Open(file.Path());
    NITF_2_1_ISD filled;
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    delete[] filled.images[0].imageTREs;
    filled.images[0].imageTREs = new tre[3];
    filled.images[0].numTREs = 3;
    std::string texts[] = {Tre("IMAGIX", "x"), Tre("IMAGIX", "x"), Tre("ADDEDT", "by a host")};
    for (int i = 0; i != 3; ++i) {
        filled.images[0].imageTREs[i].setTRE(texts[i].data());
    }
    const Isd made = Made(WrapperCSMIsdNITF21(filled));
    // The header has one IMAGIX, so that the second one is new; IMAGUD stands in the header still.
    EXPECT_THAT(Tags(*Nitf(made).GetImageSubheader(0)), ElementsAre("IMAGUD", "IMAGIX", "IMAGIX", "ADDEDT"));
    EXPECT_THAT(Tags(*Nitf(made).GetImageSubheader(1)), ElementsAre("SECOND", "SECOOV"));
}

/// The reason why nothing is made of an ISD.
std::string Refusal(const NITF_2_1_ISD& aIsd)
{
    try {
        const Isd made = Made(WrapperCSMIsdNITF21(aIsd));
        const char* const text = ImageSupportDataFactory::GetErrorMessage();
        return made != nullptr ? "" : text == nullptr ? "no reason" : text;
    } catch (const ImageSupportDataConstructionException& exception) {
        EXPECT_STREQ(exception.GetAdditionalMessage(), ImageSupportDataFactory::GetErrorMessage());
        return exception.GetAdditionalMessage();
    }
}

TEST(TsmRoundTripTest, WhatDoesNotFitTogetherIsRefusedWithTheReason)
{
    const TempFile file(Builder(Format::Nitf21).Bytes());
    const Isd isd = Open(file.Path());
    NITF_2_1_ISD filled;
    EXPECT_EQ(Refusal(filled),
              "ERROR: Unknown/invalid NITF file version or the input file is not a NITF-formatted image file.");
    ASSERT_TRUE(Nitf(isd).SetTSMISD(1, &filled));
    EXPECT_THAT(Refusal(filled), HasSubstr("tells of 2 ImageSegment"));
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    const int count = filled.numDESs;
    filled.numDESs = 1;
    EXPECT_THAT(Refusal(filled), HasSubstr("tells of 2 DataExtensionSegment"));
    filled.numDESs = count;
    filled.images[1].imageSubHeader.pop_back();
    EXPECT_THAT(Refusal(filled), HasSubstr("ImageSegment 1"));
    ASSERT_TRUE(Nitf(isd).SetTSMISD(-1, &filled));
    filled.fileHeader.resize(100);
    EXPECT_THAT(Refusal(filled), HasSubstr("ERROR: "));
    // A NITF 2.0 header has no business in an ISD of NITF 2.1.
    const TempFile file20(Builder(Format::Nitf20).Bytes());
    const Isd isd20 = Open(file20.Path());
    NITF_2_0_ISD filled20;
    ASSERT_TRUE(Nitf(isd20).SetTSMISD(-1, &filled20));
    filled.fileHeader = filled20.fileHeader;
    EXPECT_EQ(Refusal(filled), "ERROR: The file header in an ISD of format NITF2.1 is one of NITF02.00.");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
