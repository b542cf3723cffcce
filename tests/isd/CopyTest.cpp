// Copies, assignment, exchange and comparison of whole files, as hosts have them from the factory.

#include "isd/ImageSupportDataNITFFactory.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::HasSubstr;

bool AreEqual(const OpenedIsd& aLeft, const OpenedIsd& aRight)
{
    return ImageSupportDataFactory::AreEqual(*aLeft, *aRight);
}

/// Everything that a file tells of its segments, fields and TREs, the bytes of the data included.
std::string AllOf(ImageSupportDataNITF& aIsd)
{
    std::string all = aIsd.Serialize();
    for (const std::string& warning : aIsd.GetWarnings()) {
        all += warning + '\n';
    }
    all += std::to_string(aIsd.GetCurrentImageSegment()) + aIsd.GetHighestSecurityClassificationMarking();
    return all;
}

NitfBuilder Sample(Format aFormat = Format::Nitf21)
{
    NitfBuilder file(aFormat);
    file.File().Area("XHD", Tre("ONEHDR", "ten bytes!"));
    file.AddImage(4, 6).Area("IXSHD", Tre("OWNTRE", "own"), 1);
    file.AddGraphic();
    file.AddText("some text");
    file.AddOverflow("IXSHD", 1, Tre("OVERA", "first") + Tre("OVERB", "second"));
    return file;
}

TEST(CopyTest, OutlivesItsSourceAndTellsTheSame)
{
    for (const Format format : {Format::Nitf20, Format::Nitf21}) {
        const TempFile on(Sample(format).Bytes());
        OpenedIsd source = OpenedIsd::OfFile(on.Path());
        source->SetCurrentImageSegment(0);
        const std::string all = AllOf(*source);
        const OpenedIsd copy = source.Clone();
        ASSERT_NE(copy.Get(), nullptr) << ImageSupportDataFactory::GetErrorMessage();
        EXPECT_TRUE(AreEqual(source, copy));
        EXPECT_NE(source->GetImageSubheader(0), copy->GetImageSubheader(0));
        source.Release();
        EXPECT_EQ(AllOf(*copy), all);
        const TRE** tres = nullptr;
        std::size_t count = 0;
        ASSERT_TRUE(copy->GetDataSegmentTRE(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, 0, "OVERB", tres, count, true));
        ASSERT_EQ(count, 1U);
        std::size_t length = 0;
        EXPECT_STREQ(tres[0]->GetRawTREDataString(length), "second");
        NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
        EXPECT_TRUE(copy->IsOverflowPlaced(0));
        const char* text = nullptr;
        ASSERT_TRUE(copy->GetTextSubheader(0)->GetTextData(text, length));
        EXPECT_STREQ(text, "some text");
        std::string pixels(24, '\0');
        EXPECT_EQ(copy->GetImagePixelReader(0)->RetrieveImagePixels(0, 0, 4, 6, 0, 24, pixels.data(), nullptr),
                  NITFImagePixelReader::STATUS_OK);
        EXPECT_EQ(copy->GetAllMetadataNITFFileHeader()->GetMetadataTypeCode(),
                  NITFCnst::NITF_METADATA_TYPE_FILE_HEADER);
        EXPECT_NE(copy->GetFileHandle(), nullptr);
        // A copy of the copy, and of what it became.
        OpenedIsd third = copy.Clone();
        EXPECT_EQ(AllOf(*third), all);
        unsigned long errors = 0;
        unsigned long warnings = 0;
        EXPECT_EQ(third->RigorousValidation(errors, warnings), copy->RigorousValidation(errors, warnings));
        EXPECT_STREQ(third->GetValidationSummaryReport(), copy->GetValidationSummaryReport());
    }
}

TEST(CopyTest, OfEveryRealFileTellsTheSameWhenItsSourceIsGone)
{
    const std::filesystem::path directory = CorpusFile(".");
    if (!std::filesystem::exists(directory)) {
        GTEST_SKIP() << "the corpus is absent";
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        SCOPED_TRACE(entry.path().filename());
        OpenedIsd source = OpenedIsd::IfReadable(entry.path());
        if (!source) {
            continue;
        }
        const OpenedIsd again = OpenedIsd::OfFile(entry.path());
        EXPECT_TRUE(AreEqual(source, again));
        const std::string all = AllOf(*source);
        const OpenedIsd copy = source.Clone();
        EXPECT_TRUE(AreEqual(source, copy));
        source.Release();
        EXPECT_EQ(AllOf(*copy), all);
        EXPECT_TRUE(AreEqual(copy, again));
    }
}

TEST(CopyTest, AFileEqualsItselfAndNoneThatDiffersInOneByte)
{
    const std::string bytes = Sample().Bytes();
    const TempFile on(bytes);
    const OpenedIsd first = OpenedIsd::OfFile(on.Path());
    const OpenedIsd second = OpenedIsd::OfFile(on.Path());
    EXPECT_TRUE(AreEqual(first, second));
    second->SetCurrentImageSegment(0);
    EXPECT_FALSE(AreEqual(first, second)) << "another image segment is chosen";
    EXPECT_FALSE(AreEqual(first, OpenedIsd::OfFile(on.Path(), false))) << "not all segments were read";

    const OpenedIsd plain = OpenedIsd::OfBytes(bytes);
    const std::vector<std::pair<const char*, std::size_t>> changes = {
        {"a field", Sample().OffsetOf("FTITLE")},
        {"a TRE", bytes.find("ten bytes!")},
        {"an overflow TRE", bytes.find("second")},
        {"the data", bytes.find("some text")},
    };
    for (const auto& [what, place] : changes) {
        ASSERT_LT(place, bytes.size()) << what;
        std::string changed = bytes;
        changed[place] = changed[place] == 'x' ? 'y' : 'x';
        EXPECT_FALSE(AreEqual(plain, OpenedIsd::OfBytes(changed))) << what;
    }
    EXPECT_TRUE(AreEqual(plain, OpenedIsd::OfBytes(bytes)));

    // Segment by segment.
    std::string changed = bytes;
    changed[bytes.find("some text")] = 'x';
    const OpenedIsd other = OpenedIsd::OfBytes(changed);
    EXPECT_TRUE(plain->CompareNITFFileHeader(*other));
    EXPECT_TRUE(plain->CompareNITFImageSubheader(*other, 0));
    EXPECT_TRUE(plain->CompareNITFDESSubheader(*other, 0));
    EXPECT_FALSE(plain->CompareNITFTextSubheader(*other, 0));
    EXPECT_EQ(plain->GetErrorMessage(), nullptr) << "it differs, but it is there";
    EXPECT_FALSE(plain->CompareNITFRESSubheader(*other, 0));
    EXPECT_THAT(plain->GetErrorMessage(), HasSubstr("ReservedExtensionSegment 0"));
    EXPECT_TRUE(plain->CompareUniqueImageSegmentIDs(*other));
    EXPECT_FALSE(plain->CompareUniqueImageSegmentIDs(*first));
}

TEST(CopyTest, AssignmentAndExchangeStayWithinOneClass)
{
    const OpenedIsd first = OpenedIsd::OfBytes(Sample().Bytes());
    NitfBuilder plain;
    plain.AddImage().Set("ISCLAS", "S");
    const OpenedIsd second = OpenedIsd::OfBytes(plain.Bytes());
    const OpenedIsd old = OpenedIsd::OfBytes(Sample(Format::Nitf20).Bytes());
    const std::string ofFirst = AllOf(*first);
    const std::string ofSecond = AllOf(*second);
    const std::string ofOld = AllOf(*old);

    EXPECT_TRUE(ImageSupportDataFactory::Swap(*first, *second));
    EXPECT_EQ(AllOf(*first), ofSecond);
    EXPECT_EQ(AllOf(*second), ofFirst);
    EXPECT_EQ(first->GetClassificationLevel(), Util::CSMCnst::CLASS_TYPE_SECRET);
    EXPECT_TRUE(ImageSupportDataFactory::Assign(*first, *second));
    EXPECT_EQ(AllOf(*first), ofFirst);
    EXPECT_TRUE(AreEqual(first, second));
    EXPECT_TRUE(ImageSupportDataFactory::Assign(*first, *first));

    EXPECT_FALSE(ImageSupportDataFactory::Swap(*first, *old));
    EXPECT_FALSE(ImageSupportDataFactory::Assign(*first, *old));
    EXPECT_THAT(ImageSupportDataFactory::GetErrorMessage(), HasSubstr("System failed to assign"));
    EXPECT_FALSE(AreEqual(first, old));
    EXPECT_EQ(AllOf(*first), ofFirst);
    EXPECT_EQ(AllOf(*old), ofOld);
}

/// As a companion library may make one.
class ForeignIsd : public ImageSupportData
{
    void CollectSecurityClassificationMarkings(std::vector<std::string>&) const override {}
};

TEST(CopyTest, WhatCannotBeCopiedIsRefusedWithAText)
{
    const ForeignIsd foreign;
    ImageSupportData* copy = reinterpret_cast<ImageSupportData*>(1);
    EXPECT_FALSE(ImageSupportDataFactory::Clone(&foreign, &copy));
    EXPECT_EQ(copy, nullptr);
    EXPECT_NE(ImageSupportDataFactory::GetErrorMessage(), nullptr);
    EXPECT_FALSE(ImageSupportDataFactory::Clone(nullptr, &copy));
    EXPECT_FALSE(ImageSupportDataFactory::Clone(&foreign, nullptr));
    EXPECT_NE(ImageSupportDataFactory::GetErrorMessage(), nullptr);
}

TEST(CopyTest, OpeningAnewFollowsTheFileAndLeavesTheObjectWhenItCannot)
{
    TempFile on(Sample().Bytes());
    const OpenedIsd isd = OpenedIsd::OfFile(on.Path(), false);
    EXPECT_EQ(isd->GetTextSubheader(0), nullptr);
    char* errors = nullptr;
    char* warnings = nullptr;
    ASSERT_TRUE(isd->Open(false, &errors, &warnings)) << errors;
    EXPECT_STREQ(errors, "");
    delete[] errors;
    delete[] warnings;
    EXPECT_NE(isd->GetTextSubheader(0), nullptr);
    const std::string bytes = Sample().Bytes();
    for (const std::string& damaged :
         {bytes.substr(0, 500), std::string("no NITF at all"), Sample(Format::Nitf20).Bytes()}) {
        on.Write(damaged);
        EXPECT_FALSE(isd->Open(false, nullptr, nullptr));
        ASSERT_NE(isd->GetErrorMessage(), nullptr);
        EXPECT_STREQ(isd->GetNITFFileHeader()->GetNITFVersion(), "NITF02.10");
    }
    const OpenedIsd memory = OpenedIsd::OfBytes(bytes, false);
    EXPECT_TRUE(memory->Open(false, nullptr, nullptr));
    EXPECT_NE(memory->GetTextSubheader(0), nullptr);
}

TEST(CopyTest, StreamsAreClosedWithTheObjectUnlessItIsToldOtherwise)
{
    const TempFile on(Sample().Bytes());
    OpenedIsd isd = OpenedIsd::OfFile(on.Path());
    std::FILE* const stream = isd->GetFileHandle();
    std::FILE* const pixels = isd->GetImagePixelFileHandle();
    ASSERT_NE(stream, nullptr);
    ASSERT_NE(pixels, nullptr);
    EXPECT_NE(stream, pixels);
    EXPECT_EQ(stream, isd->GetFileHandle());
    isd->CloseFileHandleOnResetOrDelete(false);
    isd.Release();
    std::rewind(stream);
    EXPECT_EQ(std::fgetc(stream), 'N');
    std::fclose(stream);
    std::fclose(pixels);
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
