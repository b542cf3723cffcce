#include "ormo/nitf.hpp"
#include "tests/support/Corpus.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/TempFile.h"

#include <cmath>
#include <memory>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace ormo::nitf {
namespace {

using csm::Tests::Format;
using csm::Tests::NitfBuilder;
using csm::Tests::Tre;

constexpr std::string_view CORNERS =
    "582421N0252921E"
    "582421N0253039E"
    "582339N0253039E"
    "582339N0252921E";

File Opened(const NitfBuilder& aBuilder)
{
    return File::from_memory(aBuilder.Bytes());
}

/// A file with an image, a text and a TRE on the header, one on the image and one that overflowed from it.
NitfBuilder Builder()
{
    NitfBuilder builder;
    builder.File().Set("FDT", "20000602192321").Area("XHD", Tre("NOSUCH", "own data"));
    builder.AddImage(2, 3)
        .Set("IDATIM", "200006--------")
        .Location("G", CORNERS)
        .Area("IXSHD", Tre("OFFSET", "0000001200000034"));
    builder.AddText("a text\r\n");
    builder.AddOverflow("IXSHD", 1, Tre("STDIDC", std::string(89, ' ')));
    return builder;
}

std::string FirstError(const std::vector<Finding>& aFindings)
{
    for (const Finding& finding : aFindings) {
        if (finding.level != Finding::Level::Warning) {
            return finding.Line();
        }
    }
    return "no error";
}

TEST(NitfLayerTest, SegmentsStandInFileOrderWithTheirFieldsDataAndTres)
{
    const File file = Opened(Builder());
    EXPECT_EQ(file.version(), "NITF02.10");
    EXPECT_EQ(file.path(), "memory");
    EXPECT_EQ(file.size(), Builder().Bytes().size());

    std::vector<std::string> words;
    for (const Segment& segment : file.segments()) {
        words.push_back(std::string(segment.word()) + std::to_string(segment.index()));
        EXPECT_EQ(segment.header_offset() + segment.header_size(), segment.data_offset());
        EXPECT_TRUE(segment.is_readable());
    }
    EXPECT_EQ(words, (std::vector<std::string>{"image0", "text0", "des0"}));
    EXPECT_EQ(file.segments()[1].data(), "a text\r\n");
    EXPECT_EQ(file.segments()[0].data(), std::nullopt) << "pixels are asked for as such";

    EXPECT_EQ(file.header().kind(), Kind::Header);
    EXPECT_EQ(file.header().header_size(), file.segments()[0].header_offset());
    EXPECT_EQ(file.header().text("FHDR"), "NITF");
    EXPECT_FALSE(file.header().field("NOSUCH"));
    EXPECT_EQ(file.header().fields().front().name(), "FHDR");

    const std::vector<nitf::Tre> tres = file.images()[0].tres();
    ASSERT_EQ(tres.size(), 2U) << "own ones and those of overflow";
    EXPECT_EQ(tres[0].tag(), "OFFSET");
    EXPECT_EQ(tres[1].tag(), "STDIDC");
    EXPECT_EQ(tres[1].area(), "TRE_OVERFLOW");
    EXPECT_TRUE(tres[0].is_decoded());
    EXPECT_EQ(file.header().tre("NOSUCH")->data(), "own data");
    EXPECT_FALSE(file.header().tre("NOSUCH")->is_decoded());
    EXPECT_TRUE(file.header().tre("NOSUCH")->fields().empty());
    EXPECT_FALSE(file.header().tre("OFFSET"));
}

TEST(NitfLayerTest, ValuesHaveTheTypeOfTheirTable)
{
    const File file = Opened(Builder());
    const Image image = file.images().front();
    EXPECT_EQ(image.rows(), 2U);
    EXPECT_EQ(image.columns(), 3U);
    EXPECT_EQ(std::get<std::int64_t>(image.field("NBPP")->value()), 8);
    EXPECT_EQ(image.number("NBPP"), 8.0);
    EXPECT_EQ(image.integer("IREP"), std::nullopt) << "a text is no number";
    EXPECT_EQ(std::get<std::string_view>(image.field("IREP")->value()), "MONO");
    EXPECT_EQ(image.text("IREP"), "MONO    ") << "as stored";
    EXPECT_TRUE(std::holds_alternative<std::monostate>(image.field("TGTID")->value())) << "blank";
    EXPECT_TRUE(std::holds_alternative<Bytes>(file.header().field("FBKGC")->value()));
    EXPECT_EQ(image.field("PVTYPE")->info().width, 3U);
    EXPECT_EQ(image.field("IC")->meaning(), "not compressed (NC)");
    EXPECT_EQ(image.tre("OFFSET")->field("LINE")->info().width, 8U);

    const std::optional<nitf::Tre> offset = image.tre("OFFSET");
    EXPECT_EQ(offset->integer("LINE"), 12);
    EXPECT_EQ(offset->field("SAMPLE")->text(), "00000034");
    EXPECT_EQ(image.tre("STDIDC")->field("MISSION")->value(), Value());
}

TEST(NitfLayerTest, DatesAreTimePointsAsFarAsTheyAreKnown)
{
    const File file = Opened(Builder());
    const std::optional<Time> time = file.header().time("FDT");
    ASSERT_TRUE(time);
    EXPECT_EQ(std::chrono::system_clock::to_time_t(*time), 959973801);
    const std::optional<Date> month = file.images()[0].date("IDATIM");
    ASSERT_TRUE(month);
    EXPECT_EQ(month->Iso(), "2000-06");
    EXPECT_FALSE(month->time()) << "no day, no moment";

    const auto at = [](int aYear, int aMonth, int aDay) {
        Date date;
        date.year = aYear;
        date.month = aMonth;
        date.day = aDay;
        return std::chrono::duration_cast<std::chrono::hours>(date.time()->time_since_epoch()).count() / 24;
    };
    EXPECT_EQ(at(1970, 1, 1), 0);
    EXPECT_EQ(at(1969, 12, 31), -1);
    EXPECT_EQ(at(2000, 2, 29) + 1, at(2000, 3, 1));
    EXPECT_EQ(at(1900, 2, 28) + 1, at(1900, 3, 1));
    EXPECT_EQ(at(2400, 1, 1) - at(2000, 1, 1), 146097);
}

TEST(NitfLayerTest, AnImageTellsWhereItLies)
{
    const File file = Opened(Builder());
    const std::optional<Footprint> footprint = file.images()[0].footprint();
    ASSERT_TRUE(footprint);
    EXPECT_EQ(footprint->source, "IGEOLO");
    EXPECT_NEAR(footprint->corners[0].latitude, 58.40583, 1e-5);
    EXPECT_NEAR(footprint->corners[1].longitude, 25.51083, 1e-5);
    EXPECT_NEAR(footprint->south, 58.39417, 1e-5);
    EXPECT_FALSE(footprint->crosses_180);
    EXPECT_FALSE(file.images()[0].rpc());
    EXPECT_EQ(file.images()[0].property("nitf.version"), "NITF02.10");
    EXPECT_FALSE(file.images()[0].property("sensor.model.state"));
}

TEST(NitfLayerTest, AFootprintIsAnAreaOfTheMap)
{
    const File file = Opened(Builder());
    const std::vector<std::vector<Position>> areas = file.images()[0].footprint()->areas();
    ASSERT_EQ(areas.size(), 1U);
    ASSERT_EQ(areas[0].size(), 5U);
    EXPECT_EQ(areas[0].front().latitude, areas[0].back().latitude);

    NitfBuilder builder;
    builder.AddImage().Location("G", "100000N1790000E100000N1790000W090000N1790000W090000N1790000E");
    const std::optional<Footprint> across = Opened(builder).images()[0].footprint();
    ASSERT_TRUE(across);
    EXPECT_TRUE(across->crosses_180);
    ASSERT_EQ(across->areas().size(), 2U);
    for (const std::vector<Position>& area : across->areas()) {
        for (const Position& position : area) {
            EXPECT_GE(std::abs(position.longitude), 179.0);
            EXPECT_LE(std::abs(position.longitude), 180.0);
        }
    }
    EXPECT_TRUE(Footprint{}.areas().empty());
}

TEST(NitfLayerTest, AFieldIsFoundByItsOwnerAsInTables)
{
    const File file = Opened(Builder());
    EXPECT_EQ(file.find("image.NROWS")->integer(), 2);
    EXPECT_EQ(file.find("image:0.NROWS")->integer(), 2);
    EXPECT_EQ(file.find("header.FDT")->text(), "20000602192321");
    EXPECT_EQ(file.find("OFFSET.LINE")->integer(), 12);
    for (const char* const name : {"image:1.NROWS", "NOSUCH.FIELD", "OFFSET.NOSUCH", "image", "", ".", "image."}) {
        EXPECT_FALSE(file.find(name)) << name;
    }
}

TEST(NitfLayerTest, PixelsComeByWindowAndStep)
{
    NitfBuilder builder;
    builder.AddImage(4, 5);
    for (std::size_t i = 0; i != builder.LastData().size(); ++i) {
        builder.LastData()[i] = static_cast<char>(i);
    }
    const Image image = Opened(builder).images().front();
    EXPECT_EQ(image.sample(), Sample::Unsigned);
    EXPECT_EQ(image.bytes_per_sample(), 1U);
    EXPECT_EQ(image.pixels().size(), 20U);
    EXPECT_EQ(image.pixels(0, {1, 2, 2, 2}),
              (std::vector<std::byte>{std::byte{7}, std::byte{8}, std::byte{12}, std::byte{13}}));
    EXPECT_EQ(image.pixels(0, {3, 3, 0, 0}), (std::vector<std::byte>{std::byte{18}, std::byte{19}}));
    EXPECT_EQ(image.overview(3), (std::vector<std::byte>{std::byte{0}, std::byte{3}, std::byte{15}, std::byte{18}}));
    EXPECT_THROW(image.pixels(1), Error);
    EXPECT_THROW(image.pixels(0, {4, 0, 0, 0}), Error);
    EXPECT_THROW(image.pixels(0, {-1, 0, 0, 0}), Error);
    EXPECT_THROW(image.overview(0), Error);
}

TEST(NitfLayerTest, PixelsThatAreNotInTheFileTakeNoMemory)
{
    NitfBuilder builder;
    builder.AddImage(2, 2).Set("NROWS", 90000U).Set("NCOLS", 90000U).Set("NPPBH", 0U).Set("NPPBV", 0U).Set("NBPR", 1U);
    const Image image = Opened(builder).images().front();
    ASSERT_EQ(image.rows(), 90000U);
    EXPECT_THROW(image.pixels(), Error);
    EXPECT_THROW(image.overview(2), Error);
    EXPECT_THROW(image.pixels(0, {INT_MAX, INT_MAX, INT_MAX, INT_MAX}), Error);
    EXPECT_THROW(image.pixels(0, {INT_MIN, 0, 0, 0}), Error);
}

TEST(NitfLayerTest, WhatIsHandedOutKeepsTheFileOpen)
{
    auto file = std::make_unique<File>(Opened(Builder()));
    const Image image = file->images().front();
    const nitf::Tre tre = *image.tre("OFFSET");
    const std::string_view text = image.text("IREP");
    file.reset();
    EXPECT_EQ(image.rows(), 2U);
    EXPECT_EQ(tre.integer("LINE"), 12);
    EXPECT_EQ(text, "MONO    ");
    EXPECT_EQ(image.pixels().size(), 6U);
    std::size_t images = 0;
    for (const Image& other : Opened(Builder()).images()) {
        images += other.rows() == 2 ? 1U : 0U;
    }
    EXPECT_EQ(images, 1U);
}

TEST(NitfLayerTest, ARefusedFileTellsReasonAndFindings)
{
    const std::string bytes = Builder().Bytes();
    const csm::Tests::TempFile damaged(bytes.substr(0, bytes.size() / 2));
    const csm::Tests::TempFile other("no such file format");
    EXPECT_TRUE(is_nitf(damaged.Path()));
    EXPECT_FALSE(is_nitf(other.Path()));
    EXPECT_FALSE(is_nitf("/no/such/file"));
    for (const std::string& path : {damaged.Path(), other.Path(), std::string("/no/such/file")}) {
        try {
            const File file(path);
            ADD_FAILURE() << path << " was opened";
        } catch (const Error& error) {
            ASSERT_FALSE(error.findings().empty()) << path;
            EXPECT_EQ(error.what(), FirstError(error.findings())) << path;
            const Error copy = error;
            EXPECT_EQ(copy.findings().size(), error.findings().size());
        }
    }
    EXPECT_THROW(File::from_memory(""), Error);
}

TEST(NitfLayerTest, ASalvagedFileHasSegmentsThatCannotBeRead)
{
    NitfBuilder builder = Builder();
    builder.AddImage(1, 1).Damage("NBANDS", "x");
    const csm::Tests::TempFile file(builder.Bytes());
    EXPECT_THROW(File{file.Path()}, Error);
    const File salvaged(file.Path(), {false, true});
    EXPECT_FALSE(salvaged.findings().empty());
    const Image image = salvaged.images().at(1);
    EXPECT_FALSE(image.is_readable());
    EXPECT_EQ(image.rows(), 0U);
    EXPECT_EQ(image.bands(), 0U);
    EXPECT_TRUE(image.fields().empty());
    EXPECT_TRUE(image.tres().empty());
    EXPECT_FALSE(image.tre("OFFSET"));
    EXPECT_FALSE(image.footprint());
    EXPECT_FALSE(image.rpc());
    EXPECT_FALSE(image.data());
    EXPECT_EQ(image.sample(), Sample::Unknown);
    EXPECT_THROW(image.pixels(), Error);
    EXPECT_GT(image.header_size(), 0U);
}

TEST(NitfLayerTest, DocumentsOfTheWholeFile)
{
    NitfBuilder builder = Builder();
    builder.File().Set("CLEVEL", "44");
    File file = Opened(builder);
    const Validation validation = file.validate({"20300101000000", {}});
    EXPECT_FALSE(validation.is_good());
    EXPECT_EQ(validation.findings.size(), validation.errors + validation.warnings);
    EXPECT_EQ(validation.findings.front().level, Finding::Level::Error);
    EXPECT_NE(file.xml().find("<FHField field=\"CLEVEL\""), std::string_view::npos) << file.xml().substr(0, 2000);

    const File only = File::from_memory(builder.Bytes(), "name", {true, false});
    EXPECT_EQ(only.path(), "name");
    EXPECT_EQ(only.images().size(), 1U);
    EXPECT_FALSE(only.segments().back().is_readable());
}

TEST(NitfLayerTest, RpcOfARealFileIsThatOfTheTre)
{
    const std::string bytes = csm::Tests::CorpusBytes("po_39928_pan_0000000_chip_700_700_noICHIPB.nitf");
    if (bytes.empty()) {
        GTEST_SKIP() << "no corpus";
    }
    const File file = File::from_memory(bytes);
    const Image image = file.images().front();
    const std::optional<Rpc> rpc = image.rpc();
    ASSERT_TRUE(rpc);
    EXPECT_EQ(rpc->tag, "RPC00B");
    EXPECT_EQ(rpc->line_numerator[1], image.tre("RPC00B")->number("LINE_NUM_COEFF_2"));
    EXPECT_EQ(rpc->scales.height, image.tre("RPC00B")->number("HEIGHT_SCALE"));
    EXPECT_EQ(rpc->bias, image.tre("RPC00B")->number("ERR_BIAS"));
}

}  // namespace
}  // namespace ormo::nitf
