// Files of which only the image segments are asked for.

#include "tests/support/NitfBuilder.h"
#include "tests/support/OpenedIsd.h"
#include "tests/support/Refusal.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> OverflowTags(const ImageSupportDataNITF& aIsd, NITFCnst::DataSegmentType aKind)
{
    std::vector<std::string> tags;
    for (const TRE* const tre : aIsd.GetSegment(aKind, 0)->GetOverflowTREStore().InOrder()) {
        tags.emplace_back(tre->GetTag());
    }
    return tags;
}

TEST(ImagesOnlyTest, KeepsWhatIsDrawnWithAllItsTresAndSaysThatTheRestWasNotRead)
{
    NitfBuilder file;
    file.File().Area("XHD", Tre("ONEHDR", "ten bytes!"), 1);
    file.AddImage().Area("IXSHD", Tre("OFIMAG", "data"), 2);
    file.AddGraphic().Area("SXSHD", Tre("OFDRAW", "data"), 3);
    file.AddText().Area("TXSHD", Tre("OFTEXT", "data"), 4);
    file.AddOverflow("XHD", 0, Tre("OVRHDR", "data"));
    file.AddOverflow("IXSHD", 1, Tre("OVRIMG", "data"));
    file.AddOverflow("SXSHD", 1, Tre("OVRDRW", "data"));
    file.AddOverflow("TXSHD", 1, Tre("OVRTXT", "data"));
    file.AddRes("SOME RES", "data");
    const OpenedIsd isd = OpenedIsd::OfBytes(file.Bytes(), false);
    EXPECT_THAT(OverflowTags(*isd, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER), ElementsAre("OVRHDR"));
    EXPECT_THAT(OverflowTags(*isd, NITFCnst::DATA_SEGMENT_TYPE_IMAGE), ElementsAre("OVRIMG"));
    EXPECT_THAT(OverflowTags(*isd, NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC), ElementsAre("OVRDRW"));
    for (const auto kind : {NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION,
                            NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION}) {
        EXPECT_EQ(isd->GetSegment(kind, 0), nullptr);
        EXPECT_THAT(isd->GetErrorMessage(), HasSubstr("it was not read"));
        EXPECT_NE(isd->GetSegmentInfos().Get(kind), nullptr) << "where it stands is known";
    }
    ImageSupportDataNITF::MetadataList list;
    EXPECT_FALSE(isd->GetAllMetadataTextSegments(list));
}

TEST(ImagesOnlyTest, LooksAtNothingElse)
{
    const auto opens = [](const NitfBuilder& aFile, bool aAllSegments) {
        return RefusalOf([&] { OpenedIsd::OfBytes(aFile.Bytes(), aAllSegments); }).empty();
    };
    NitfBuilder text;
    text.AddImage();
    text.AddText().Damage("TE", "XX");
    EXPECT_FALSE(opens(text, true));
    EXPECT_TRUE(opens(text, false));

    NitfBuilder des;
    des.AddImage();
    des.AddDes("SOME DES", "data").Damage("DESSHL", "abcd");
    EXPECT_FALSE(opens(des, true));
    EXPECT_TRUE(opens(des, false));

    NitfBuilder graphic;  // lies over the image and belongs to it
    graphic.AddImage();
    graphic.AddGraphic().Damage("SY", "XX");
    EXPECT_FALSE(opens(graphic, false));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
