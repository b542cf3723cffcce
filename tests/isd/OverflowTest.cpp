// TREs of overflow DESs at their owners, in files of both versions.

#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct IsdDestroyer
{
    void operator()(ImageSupportData* aIsd) const { ImageSupportDataFactory::Destroy(&aIsd); }
};

/// A file opened through the factory.
class Opened
{
public:
    explicit Opened(const std::string& aPath)
    {
        ImageSupportData* isd = nullptr;
        ImageSupportDataFactory::Create(aPath.c_str(), &isd, true, false);
        m_isd.reset(isd);
    }
    const ImageSupportDataNITF& operator*() const { return dynamic_cast<const ImageSupportDataNITF&>(*m_isd); }
    const ImageSupportDataNITF* operator->() const { return &**this; }

    /// The tags of the overflow TREs of a segment.
    std::vector<std::string> OverflowTags(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const
    {
        std::vector<std::string> tags;
        for (const TRE* const tre : (*this)->GetSegment(aKind, aIndex)->GetOverflowTREStore().InOrder()) {
            tags.emplace_back(tre->GetTag());
            EXPECT_STREQ("TRE_OVERFLOW", tre->GetExtensionArea());
        }
        return tags;
    }

private:
    std::unique_ptr<ImageSupportData, IsdDestroyer> m_isd;
};

constexpr auto FILE_HEADER = NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
constexpr auto IMAGE = NITFCnst::DATA_SEGMENT_TYPE_IMAGE;
constexpr auto TEXT = NITFCnst::DATA_SEGMENT_TYPE_TEXT;

TEST(OverflowTest, GoesToTheImageThatTheDesNamesAndToNoOther)
{
    NitfBuilder file;
    file.AddImage();
    file.AddImage().Area("IXSHD", Tre("OWNTRE", "own"), 1);
    file.AddOverflow("IXSHD", 2, Tre("OVERA", "first") + Tre("OVERB", "second"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), IsEmpty());
    EXPECT_THAT(isd.OverflowTags(IMAGE, 1), ElementsAre("OVERA", "OVERB"));
    EXPECT_THAT(isd.OverflowTags(FILE_HEADER, 0), IsEmpty());
    EXPECT_TRUE(isd->IsOverflowPlaced(0));
    EXPECT_THAT(isd->GetWarnings(), IsEmpty());

    const TRE** tres = nullptr;
    std::size_t count = 0;
    ASSERT_TRUE(isd->GetAllDataSegmentTREs(IMAGE, 1, tres, count, true));
    EXPECT_EQ(3U, count);
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    ASSERT_TRUE(isd->GetAllDataSegmentTREs(IMAGE, 1, tres, count, false));
    EXPECT_EQ(1U, count);
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
    ASSERT_TRUE(isd->GetDataSegmentTRE(IMAGE, 1, "OVERB", tres, count, true));
    ASSERT_EQ(1U, count);
    EXPECT_STREQ("OVERB", tres[0]->GetTag());
    NITFStdDataSegment::DeleteTREPointerArray(tres, count, false);
}

TEST(OverflowTest, GoesToTheFileHeaderAndToTexts)
{
    NitfBuilder file;
    file.File().Area("XHD", Tre("OWNTRE", "ten bytes!"), 1);
    file.AddImage();
    file.AddText().Area("TXSHD", Tre("TXTTRE", "own"), 2);
    file.AddOverflow("XHD", 0, Tre("HDROVR", "of the header"));
    file.AddOverflow("TXSHD", 1, Tre("TXTOVR", "of the text"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(FILE_HEADER, 0), ElementsAre("HDROVR"));
    EXPECT_THAT(isd.OverflowTags(TEXT, 0), ElementsAre("TXTOVR"));
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), IsEmpty());
    EXPECT_THAT(isd->GetWarnings(), IsEmpty());
}

TEST(OverflowTest, TheDesDecidesAndBothSidesOfADisagreementAreNamed)
{
    NitfBuilder file;
    file.AddImage().Area("UDID", Tre("OWNTRE", "own"), 2);  // names the second DES, which is none of its own
    file.AddImage();
    file.AddOverflow("UDID", 1, Tre("FORONE", "data"));
    file.AddOverflow("UDID", 2, Tre("FORTWO", "data"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), ElementsAre("FORONE"));
    EXPECT_THAT(isd.OverflowTags(IMAGE, 1), ElementsAre("FORTWO"));
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("Overflow DES 1 names ImageSegment 0 area UDID, whose UDOFL is "
                                                       "\"002\"")));
    EXPECT_THAT(isd->GetWarnings(),
                Contains(HasSubstr("ImageSegment 0 area UDID: UDOFL \"002\" names an overflow DES that "
                                   "belongs to ImageSegment 1 area UDID")));
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("Overflow DES 2 names ImageSegment 1 area UDID")));
}

TEST(OverflowTest, TargetThatIsNotThereLeavesTheTresOnTheDes)
{
    NitfBuilder file;
    file.AddImage();
    file.AddOverflow("IXSHD", 7, Tre("LOSTRE", "data"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_FALSE(isd->IsOverflowPlaced(0));
    EXPECT_EQ(1U, isd->GetDataExtensionSegment(0)->GetOverflowTREs().Size());
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("names ImageSegment 6 area IXSHD, which is not in the file")));
}

TEST(OverflowTest, TwoDesForOneTargetArePlacedInFileOrder)
{
    NitfBuilder file;
    file.AddImage().Area("IXSHD", Tre("OWNTRE", "own"), 1);
    file.AddOverflow("IXSHD", 1, Tre("FIRST", "data"));
    file.AddOverflow("IXSHD", 1, Tre("SECOND", "data"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), ElementsAre("FIRST", "SECOND"));
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("is a further one for ImageSegment 0 area IXSHD")));
}

TEST(OverflowTest, NumberThatNamesNoOverflowDesIsReportedBothWays)
{
    NitfBuilder file;
    file.AddImage().Area("UDID", Tre("OWNTRE", "own"), 1).Area("IXSHD", Tre("OWNTRE", "own"), 5);
    file.AddDes("SOMETHING", "else");
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("UDOFL \"001\" names a DES that is no overflow DES")));
    EXPECT_THAT(isd->GetWarnings(), Contains(HasSubstr("IXSOFL \"005\" names no DES of the file, which has 1")));
}

TEST(OverflowTest, FaultInOneDesLosesNoOther)
{
    NitfBuilder file;
    file.AddImage().Area("IXSHD", Tre("OWNTRE", "own"), 3);
    file.AddOverflow("IXSHD", 1, "TOOBIG99999x");
    file.AddOverflow("NOAREA", 1, Tre("NOWAY", "data"));
    file.AddOverflow("IXSHD", 1, Tre("GOOD", "data"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), ElementsAre("GOOD"));
}

TEST(OverflowTest, Nitf20AreasFindTheirOwners)
{
    NitfBuilder file(Format::Nitf20);
    file.File().Area("UDHD", Tre("HDRTRE", "own"), 1);
    file.AddImage().Area("IXSHD", Tre("IMGTRE", "own"), 2);
    file.AddText();
    file.AddOverflow("UDHD", 0, Tre("HDROVR", "data"));
    file.AddOverflow("IXSHD", 1, Tre("IMGOVR", "data"));
    const TempFile on(file.Bytes());
    const Opened isd(on.Path());
    EXPECT_THAT(isd.OverflowTags(FILE_HEADER, 0), ElementsAre("HDROVR"));
    EXPECT_THAT(isd.OverflowTags(IMAGE, 0), ElementsAre("IMGOVR"));
    EXPECT_THAT(isd->GetWarnings(), IsEmpty());
    const TRE* const registered = isd->GetSegment(FILE_HEADER, 0)->GetOverflowTREStore().InOrder().front();
    EXPECT_EQ(TRE::TRE_TYPE_REGISTERED_EXTENSION, registered->GetTREType());
}

TEST(OverflowTest, RealFilesShowEachOverflowAtItsOwner)
{
    if (!std::filesystem::exists(CorpusFile("U_1130F.NTF"))) {
        GTEST_SKIP() << "the corpus is absent (ORMO_CORPUS)";
    }
    const Opened all(CorpusFile("U_1130F.NTF").string());
    EXPECT_THAT(all.OverflowTags(FILE_HEADER, 0), ElementsAre("MHUDOF", "MHXDOF"));
    EXPECT_THAT(all.OverflowTags(IMAGE, 0), ElementsAre("IMUDOF", "IMXDOF"));
    EXPECT_THAT(all.OverflowTags(TEXT, 0), ElementsAre("TEXDOF"));
    EXPECT_THAT(all->GetWarnings(), IsEmpty());
    for (const char* const name : {"0000M033.GN3", "U_3058B.NTF"}) {
        const Opened frame(CorpusFile(name).string());
        EXPECT_THAT(frame.OverflowTags(IMAGE, 0), ElementsAre("RPFDES")) << name;
    }
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
