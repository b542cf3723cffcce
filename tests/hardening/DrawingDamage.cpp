#include "segments/cgm/NITFCGMMetaFile.h"
#include "segments/graphic/NITF21GraphicSubheader.h"
#include "tests/hardening/DamageCases.h"
#include "tests/segments/cgm/CgmBytes.h"
#include "tests/support/NitfBuilder.h"

#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM::Tests {

namespace {

const std::string LINE = CgmElementBytes(4, 1, {1, 2, 3, 4});

/// A graphic whose metafile has one line before what is given.
std::string Graphic(const std::string& aRest)
{
    NitfBuilder builder;
    builder.AddGraphic(CgmElementBytes(0, 1, CgmText("x")) + LINE + aRest);
    return builder.Bytes();
}

/// Images with a display level and an attachment level each.
std::string Levels(std::initializer_list<std::pair<const char*, const char*>> aLevels)
{
    NitfBuilder builder;
    for (const auto& [display, attachment] : aLevels) {
        builder.AddImage().Set("IDLVL", display).Set("IALVL", attachment);
    }
    return builder.Bytes();
}

std::string Corners(const char* aIcords, const std::string& aIgeolo)
{
    NitfBuilder builder;
    builder.AddImage().Location(aIcords, aIgeolo);
    return builder.Bytes();
}

void LineIsKept(const ImageSupportDataNITF& aIsd)
{
    const NITFCGMMetaFile* const metafile = aIsd.GetGraphicSubheader(0)->GetCGMMetaFile();
    ASSERT_NE(nullptr, metafile);
    EXPECT_EQ(1U, metafile->GetAllGraphicalPrimitiveElements().size());
}

void HasNoCorners(const ImageSupportDataNITF& aIsd)
{
    double latitudes[NITFImgExtent::NUM_OF_CORNERS] = {-1, -1, -1, -1};
    double longitudes[NITFImgExtent::NUM_OF_CORNERS] = {};
    EXPECT_FALSE(aIsd.GetIGEOLOGeographicExtent(latitudes, longitudes, 0));
    EXPECT_EQ(-1, latitudes[0]) << "no corners are not corners at zero";
}

}  // namespace

std::vector<DamageCase> DrawingDamage()
{
    const auto opens = Answer::Opens;
    return {
        {"ElementBeyondTheMetafile",
         Graphic(CgmWords({4 << 12 | 1 << 5 | 31, 30000})),
         opens,
         {"class 4, id 1"},
         {},
         LineIsKept},
        {"PartitionsWithoutEnd",
         [] {
             std::string partitions = CgmWords({4 << 12 | 1 << 5 | 31});
             for (int i = 0; i != 5000; ++i) {
                 partitions += CgmWords({0x8000});
             }
             return Graphic(partitions);
         }(),
         opens,
         {"class 4, id 1"},
         {},
         LineIsKept},
        {"MetafileWithoutEnd", Graphic(""), opens, {"END METAFILE"}, {}, LineIsKept},
        {"MetafileOfOneByte",
         [] {
             NitfBuilder builder;
             builder.AddGraphic("x");
             return builder.Bytes();
         }(),
         opens,
         {"Graphic"}},
        {"AttachmentInACircle",
         Levels({{"001", "002"}, {"002", "001"}}),
         opens,
         {"by way of level 2", "by way of level 1"}},
        {"AttachmentToItself", Levels({{"001", "001"}}), opens, {"level"}},
        {"AttachmentToNothing", Levels({{"001", "000"}, {"002", "777"}}), opens, {"777"}},
        {"TwiceTheSameDisplayLevel", Levels({{"001", "000"}, {"001", "000"}}), opens, {"level"}},
        {"CornersOfLetters", Corners("G", std::string(60, 'x')), opens, {}, {"IGEOLO"}, HasNoCorners},
        {"CornersBlank", Corners("D", std::string(60, ' ')), opens, {}, {"IGEOLO"}, HasNoCorners},
        {"CornersOfAnUnknownSystem", Corners("Q", std::string(60, '0')), opens, {}, {"ICORDS"}, HasNoCorners},
    };
}

}  // namespace ORMO::SensorModel::CSM::Tests
