#include "segments/image/NITF20ImageSubheader.h"
#include "segments/image/NITF21ImageSubheader.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "tests/segments/BuiltSegment.h"
#include "tests/support/NitfBuilder.h"
#include "tests/support/RpcRecord.h"
#include "tre/TREFactory.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using namespace Tests;
using std::string_literals::operator""s;
using Reader = NITFImagePixelReader;

constexpr auto V20 = NITFCnst::NITF_VERSION_NUMBER_20;
constexpr auto V21 = NITFCnst::NITF_VERSION_NUMBER_21;
using Image20 = BuiltSegment<NITF20ImageSubheader>;
using Image21 = BuiltSegment<NITF21ImageSubheader>;

std::string Text(const char* aText)
{
    return aText == nullptr ? "(null)" : aText;
}

TEST(ImageQueriesTest, CodesAreThoseOfTheVersion)
{
    NitfBuilder builder;
    builder.AddImage().Set("ICAT", "SAR").Set("IREP", "MULTI").Set("IMAG", "/2").Set("IMODE", "P");
    const Image21 image(builder, V21);
    EXPECT_EQ(image->GetEnumFieldIC(), NITFCnst::IC_NC);
    EXPECT_EQ(Text(image->GetImageCompressionCode()), "NC");
    EXPECT_EQ(Text(image->GetImageCategory()), "SAR");
    EXPECT_EQ(Text(image->GetImageRepresentation()), "MULTI");
    EXPECT_EQ(image->GetImageMode(), 'P');
    EXPECT_EQ(image->GetImageMagnificationFactor(), 0.5);
    EXPECT_FALSE(image->IsCloudCoverImageSegment());
    EXPECT_EQ(Text(image->IsValidImageCategory(" CLOUD ")), "CLOUD");
    EXPECT_EQ(image->IsValidImageCategory("sar"), nullptr);
    EXPECT_EQ(image->IsValidImageCategory(""), nullptr);
    EXPECT_EQ(image->IsValidImageCategory(nullptr), nullptr);
    EXPECT_EQ(Text(image->IsValidImageRepresentation("YCbCr601")), "YCbCr601");
    EXPECT_EQ(image->IsValidImageRepresentation("1D"), nullptr);
    EXPECT_EQ(image->GetAllValidImageCategories()->size(), 31U);
    EXPECT_EQ(Text(image->GetAllValidImageRepresentations()->front()), "MONO");

    NitfBuilder old(Format::Nitf20);
    old.AddImage().Set("ICAT", "WIND").Set("IREP", "ND").Set("IMAG", "2.5").Set("IID", "CC").Set("IMODE", "X");
    const Image20 image20(old, V20);
    EXPECT_EQ(image20->GetImageCategory(), nullptr);
    EXPECT_EQ(Text(image20->GetImageRepresentation()), "ND");
    EXPECT_EQ(image20->GetImageMagnificationFactor(), 2.5);
    EXPECT_EQ(image20->GetImageMode(), '\0');
    EXPECT_TRUE(image20->IsCloudCoverImageSegment());
    EXPECT_EQ(Text(image20->IsValidImageRepresentation("1D")), "1D");

    for (const char* const magnification : {"", "0.0", "-1", "/0", "//2", "abc", "1/2"}) {
        NitfBuilder bad;
        bad.AddImage().Set("IMAG", magnification);
        EXPECT_EQ(Image21(bad, V21)->GetImageMagnificationFactor(), 0.0) << magnification;
    }
}

TEST(ImageQueriesTest, BandsAndLayoutFollowFromTheFields)
{
    NitfBuilder builder;
    HeaderFields& header = builder.AddImage(10, 20).NoBands();
    header.Band("LU", {"\x00\x10"s, "\x20\x30"s, "\x40\x50"s}).Band("R");
    header.Set("NBPR", 3).Set("NBPC", 2).Set("NPPBH", 7).Set("NPPBV", 5).Set("NBPP", 12).Set("ABPP", 11);
    header.Set("PJUST", "L").Set("PVTYPE", "SI");
    const Image21 image(builder, V21);
    EXPECT_EQ(image->GetNumOfImageBands(), 2U);
    unsigned long number = 77;
    EXPECT_FALSE(image->GetFieldXBANDS(number));
    EXPECT_EQ(number, 77U);
    ASSERT_NE(image->GetImageBandInfo(1), nullptr);
    EXPECT_STREQ(image->GetImageBandInfo(1)->GetFieldIREPBAND(), "R");
    EXPECT_EQ(image->GetImageBandInfo(-1), nullptr);
    EXPECT_EQ(image->GetImageBandInfo(2), nullptr);
    EXPECT_TRUE(image->HasLUTsForBand(0));
    EXPECT_FALSE(image->HasLUTsForBand(1));
    EXPECT_FALSE(image->HasLUTsForBand(std::numeric_limits<int>::max()));
    std::vector<NITFImgBandInfo::WideTable> tables;
    ASSERT_TRUE(image->GetLUTs(0, tables));
    EXPECT_EQ(tables, (std::vector<NITFImgBandInfo::WideTable>{{0, 16}, {32, 48}, {64, 80}}));
    EXPECT_FALSE(image->GetLUTs(1, tables));

    EXPECT_EQ(image->GetFieldNBPR(), 3U);
    EXPECT_EQ(image->GetFieldNBPC(), 2U);
    unsigned long columns = 0;
    unsigned long rows = 0;
    ASSERT_TRUE(image->GetNumPixelsPerBlock(columns, rows));
    EXPECT_EQ(columns, 7U);
    EXPECT_EQ(rows, 5U);
    std::uint64_t row = 0;
    std::uint64_t column = 0;
    ASSERT_TRUE(image->GetImageBlockStart(5, row, column));
    EXPECT_EQ(row, 5U);
    EXPECT_EQ(column, 14U);
    EXPECT_FALSE(image->GetImageBlockStart(6, row, column));
    char justification = '\0';
    int bits = 0;
    int actual = 0;
    NITFCnst::PixelType type = NITFCnst::PIXEL_TYPE_UNKNOWN;
    ASSERT_TRUE(image->GetPixelBitValues(justification, bits, actual, type));
    EXPECT_EQ(justification, 'L');
    EXPECT_EQ(bits, 12);
    EXPECT_EQ(actual, 11);
    EXPECT_EQ(type, NITFCnst::PIXEL_TYPE_SI);
    EXPECT_EQ(image->GetImagePixelJustification(), 'L');
    EXPECT_EQ(image->GetBytesPerSample(), 2U);
    ASSERT_TRUE(image->GetImageSignificantColumnsAndRows(columns, rows));
    EXPECT_EQ(columns, 20U);
    EXPECT_EQ(rows, 10U);
}

TEST(ImageQueriesTest, ManyBandsAndTheZeroFormOfBlocksAreResolved)
{
    NitfBuilder builder;
    HeaderFields& header = builder.AddImage(9000, 8500).NoBands();
    for (int band = 0; band != 12; ++band) {
        header.Band("");
    }
    header.Set("NPPBH", "0").Set("NPPBV", "0");
    const Image21 image(builder, V21);
    unsigned long bands = 0;
    ASSERT_TRUE(image->GetFieldXBANDS(bands));
    EXPECT_EQ(bands, 12U);
    EXPECT_NE(image->GetImageBandInfo(11), nullptr);
    unsigned long columns = 0;
    unsigned long rows = 0;
    ASSERT_TRUE(image->GetNumPixelsPerBlock(columns, rows));
    EXPECT_EQ(columns, 8500U);
    EXPECT_EQ(rows, 9000U);

    NitfBuilder two;
    two.AddImage().Set("NPPBH", "0").Set("NBPR", 2);  // the zero form stands for one block
    EXPECT_FALSE(Image21(two, V21)->GetNumPixelsPerBlock(columns, rows));
}

TEST(ImageQueriesTest, BitsThatTheVersionDoesNotAllowAreNoBits)
{
    char justification = '\0';
    int bits = 0;
    int actual = 0;
    NITFCnst::PixelType type = NITFCnst::PIXEL_TYPE_UNKNOWN;
    for (const auto& [name, value] : {std::pair{"NBPP", "0"}, std::pair{"NBPP", "97"}, std::pair{"ABPP", "0"},
                                      std::pair{"PJUST", "X"}, std::pair{"PVTYPE", "FLT"}}) {
        NitfBuilder builder;
        builder.AddImage().Set(name, value);
        EXPECT_FALSE(Image21(builder, V21)->GetPixelBitValues(justification, bits, actual, type)) << name << value;
    }
    NitfBuilder wide;
    wide.AddImage().Set("NBPP", 96).Set("ABPP", 96);
    EXPECT_TRUE(Image21(wide, V21)->GetPixelBitValues(justification, bits, actual, type));
    EXPECT_EQ(Image21(wide, V21)->GetBytesPerSample(), 0U);
    NitfBuilder old(Format::Nitf20);
    old.AddImage().Set("NBPP", 65).Set("ABPP", 8);
    EXPECT_FALSE(Image20(old, V20)->GetPixelBitValues(justification, bits, actual, type));
}

TEST(ImageQueriesTest, LocationIsCountedFromTheSegmentAttachedTo)
{
    NitfBuilder builder;
    builder.AddImage().Set("ILOC", "-999900123").Set("IDLVL", 7).Set("IALVL", 3);
    const Image21 image(builder, V21);
    long row = 0;
    long column = 0;
    long ccsRow = 0;
    long ccsColumn = 0;
    ASSERT_TRUE(image->GetILOC(row, column));
    EXPECT_EQ(row, -9999);
    EXPECT_EQ(column, 123);
    EXPECT_EQ(image->GetLOCRowValue(), -9999);
    EXPECT_EQ(image->GetLOCColumnValue(), 123);
    ASSERT_TRUE(image->GetCommonCoordinateSys(row, column, ccsRow, ccsColumn));
    EXPECT_EQ(ccsRow, image->GetCCSRowValue());
    EXPECT_EQ(ccsColumn, image->GetCCSColumnValue());
    EXPECT_EQ(image->GetDataSegmentDisplayLevel(), 7U);
    EXPECT_EQ(image->GetDataSegmentAttachmentLevel(), 3U);
    for (const char* const text : {"          ", "0000-0000a", "1-00000000", "++00000000", "00000- 123"}) {
        NitfBuilder bad;
        bad.AddImage().Set("ILOC", text);
        const Image21 none(bad, V21);
        EXPECT_FALSE(none->GetILOC(row, column)) << text;
        EXPECT_FALSE(none->GetCCSColumnAndRow(ccsColumn, ccsRow)) << text;
        EXPECT_EQ(ccsRow, -1);
        EXPECT_EQ(none->GetLOCRowValue(), 0);
    }
}

// ---- Footprint

const std::string IGEOLO = "453000N0071500E453000N0081500E444500N0081500E444500N0071500E";
const std::string BLANK(21, ' ');

std::string Block(const char* aInstance, const char* aLines, const std::string& aFrlc, const std::string& aLrlc,
                  const std::string& aLrfc, const std::string& aFrfc)
{
    return Tre("BLOCKA", aInstance + "00000"s + aLines + "      "s + std::string(16, ' ') + aFrlc + aLrlc + aLrfc +
                             aFrfc + "010.0");
}

std::string BestSource(const NITFImageSubheader& aImage, std::array<double, 4>& aLatitudes,
                       std::array<double, 4>& aLongitudes)
{
    bool measured = false;
    const char* source = "none";
    aImage.GetMostPreciseGeographicExtent(measured, source, aLatitudes.data(), aLongitudes.data());
    return source;
}

TEST(ImageFootprintTest, SourcesComeFromBothAreasInOrderOfPrecision)
{
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
    const std::string geolo = Tre("GEOLOB", "000036000000018000+020.00000000  +50.000000000  ");
    const std::string block = Block("01", "00100", "+40.500000-100.250000", "+40.000000-100.250000",
                                    "+40.000000-101.500000", "+40.500000-101.500000");
    {
        NitfBuilder builder;
        builder.AddImage(100, 200).Location("G", IGEOLO);
        const Image21 image(builder, V21);
        EXPECT_TRUE(image->IsFieldICORDSAvailable());
        EXPECT_TRUE(image->IsGeographicCoordinate());
        EXPECT_EQ(image->GetFieldICORDS(), 'G');
        EXPECT_TRUE(image->HasIGEOLOGeographicExtent());
        EXPECT_FALSE(image->HasBLOCKGeographicExtent());
        EXPECT_EQ(BestSource(*image, latitudes, longitudes), "IGEOLO");
        double latitude = 0;
        double longitude = 0;
        ASSERT_TRUE(image->GetApproxGeographicCenterOfExtent(latitude, longitude));
        EXPECT_DOUBLE_EQ(latitude, 45.125);
        EXPECT_DOUBLE_EQ(longitude, 7.75);
    }
    {
        NitfBuilder builder;
        builder.AddImage(100, 200).Location("G", IGEOLO).Area("IXSHD", geolo);
        const Image21 image(builder, V21);
        EXPECT_TRUE(image->HasGEOLOGeographicExtent());
        EXPECT_EQ(BestSource(*image, latitudes, longitudes), "GEOLOB");
        EXPECT_DOUBLE_EQ(latitudes[2], 50.0 - 99 * 360.0 / 18000);
        EXPECT_DOUBLE_EQ(longitudes[2], 20.0 + 199 * 360.0 / 36000);
    }
    {
        NitfBuilder builder;
        builder.AddImage(100, 200).Location("G", IGEOLO).Area("UDID", block).Area("IXSHD", geolo);
        const Image21 image(builder, V21);
        EXPECT_EQ(BestSource(*image, latitudes, longitudes), "BLOCKA");
        EXPECT_EQ(latitudes, (std::array{40.5, 40.5, 40.0, 40.0}));
        EXPECT_EQ(longitudes, (std::array{-101.5, -100.25, -100.25, -101.5}));
        EXPECT_TRUE(image->HasIGEOLOGeographicExtent());
    }
    {
        NitfBuilder builder;  // a block without corners leaves the word to the next source
        builder.AddImage(100, 200)
            .Location("G", IGEOLO)
            .Area("IXSHD", Block("01", "00100", BLANK, BLANK, BLANK, BLANK));
        EXPECT_EQ(BestSource(*Image21(builder, V21), latitudes, longitudes), "IGEOLO");
    }
}

TEST(ImageFootprintTest, BlocksDownTheImageGiveItsFirstAndLastRows)
{
    const std::string second = Block("02", "00060", "N390000.00W1000000.00", "N380000.00W1000000.00",
                                     "N380000.00W1010000.00", "N390000.00W1010000.00");
    const std::string first = Block("01", "00040", "N400000.00W1000000.00", "N393000.00W1000000.00",
                                    "N393000.00W1010000.00", "N400000.00W1010000.00");
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
    for (const auto& [rows, south] : {std::pair{100U, 38.0}, std::pair{120U, 39.5}}) {
        NitfBuilder builder;
        builder.AddImage(rows, 200).Area("IXSHD", second + first);
        EXPECT_EQ(BestSource(*Image21(builder, V21), latitudes, longitudes), "BLOCKA");
        EXPECT_DOUBLE_EQ(latitudes[0], 40.0);
        EXPECT_DOUBLE_EQ(latitudes[2], south) << rows;
    }
}

TEST(ImageFootprintTest, TresThatAreAddedCountAtOnce)
{
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
    NitfBuilder builder;
    builder.AddImage(100, 200).Location("G", IGEOLO);
    const Image21 image(builder, V21);
    EXPECT_EQ(BestSource(*image, latitudes, longitudes), "IGEOLO");
    EXPECT_FALSE(image->HasAverageHeight());
    const std::array<double, 4> given{1, 2, 3, 4};
    ASSERT_TRUE(image->SetSensorModelComputedExtentCoord(given.data(), given.data(), given.data(), "M", "S"));
    TRE* tre = nullptr;
    TREFactory::Create(Tre("CSCRNA",
                           "Y+10.00000+020.00000+00100.0+10.00000+021.00000+00200.0"
                           "+09.00000+021.00000+00300.0+09.00000+020.00000+00400.0")
                           .c_str(),
                       TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, true, false, nullptr);
    ASSERT_TRUE(image->AddImageSegmentTRE(tre));
    EXPECT_EQ(BestSource(*image, latitudes, longitudes), "CSCRNA [predicted]");
    double height = 0;
    ASSERT_TRUE(image->GetImageSegmentAverageHeight(height));
    EXPECT_EQ(height, 250.0);
    // What a sensor model gave stays, and goes along into copies.
    NITF21ImageSubheader copy(*image);
    std::string model;
    std::string source;
    std::array<double, 4> heights{};
    for (const NITFImageSubheader* const asked : {&*image, &copy}) {
        EXPECT_TRUE(asked->SensorModelComputedExtentCoordSet());
        ASSERT_TRUE(asked->GetSensorModelComputedExtentCoord(latitudes.data(), longitudes.data(), heights.data(), model,
                                                             source));
        EXPECT_EQ(heights, given);
    }
    copy.ClearSensorModelComputedExtentCoord();
    EXPECT_FALSE(copy.SensorModelComputedExtentCoordSet());
    EXPECT_TRUE(image->SensorModelComputedExtentCoordSet());
    EXPECT_EQ(BestSource(copy, latitudes, longitudes), "CSCRNA [predicted]");
    EXPECT_TRUE(copy == *image);
}

TEST(ImageFootprintTest, LocationsThatAreNoneLeaveNoFootprint)
{
    NITFImgExtent::Footprint footprint;
    for (const auto& [icords, igeolo] : {std::pair{"G", std::string(60, 'x')}, std::pair{"X", IGEOLO},
                                         std::pair{"U", IGEOLO}, std::pair{"N", std::string(60, ' ')}}) {
        NitfBuilder builder;
        builder.AddImage().Location(icords, igeolo);
        const Image21 image(builder, V21);
        EXPECT_FALSE(image->GetFootprint(footprint)) << icords;
        EXPECT_FALSE(image->HasIGEOLOGeographicExtent()) << icords;
        double number = 0;
        EXPECT_FALSE(image->GetApproxGeographicCenterOfExtent(number, number)) << icords;
    }
    NitfBuilder old(Format::Nitf20);
    old.AddImage();  // ICORDS N: none
    EXPECT_FALSE(Image20(old, V20)->IsFieldICORDSAvailable());
    NitfBuilder centric(Format::Nitf20);
    centric.AddImage().Location("C", IGEOLO);
    ASSERT_TRUE(Image20(centric, V20)->GetFootprint(footprint));
    EXPECT_GT(footprint.latitudes[0], 45.6);
}

TEST(ImageFootprintTest, PolygonCountsInDegreesOnly)
{
    const std::string polygon = Tre("BNDPLB",
                                    "0004+020.00000000  +50.000000000  +021.00000000  +50.000000000  "
                                    "+021.00000000  +49.000000000  +020.00000000  +50.000000000  ");
    const auto geops = [](const std::string& aUnit) {
        return Tre("GEOPSB", "GEO" + aUnit + std::string(443 - 3 - aUnit.size(), ' '));
    };
    for (const auto& [area, isSet] : {std::pair{polygon, true}, std::pair{geops("DEG") + polygon, true},
                                      std::pair{geops("M  ") + polygon, false}}) {
        NitfBuilder builder;
        builder.AddImage().Area("IXSHD", area);
        const Image21 image(builder, V21);
        double* latitudes = nullptr;
        double* longitudes = nullptr;
        std::size_t count = 0;
        EXPECT_EQ(
            image->GetImageExtentInformation().GetBNDPLGeographicExtentBoundingPolygon(latitudes, longitudes, count),
            isSet)
            << area.substr(0, 20);
        NITFImgExtent::DeleteDoubleArray(latitudes);
        NITFImgExtent::DeleteDoubleArray(longitudes);
    }
}

TEST(ImageFootprintTest, ChipsAreToldByTheirRecord)
{
    NitfBuilder builder;
    builder.AddImage().Area("IXSHD", Tre("ICHIPB",
                                         "000001.000000000"
                                         "00000000.50000000000.50000000000.50000000002.50000000001.50000000000.500"
                                         "00000001.50000000002.50000000100.50000000200.50000000100.50000000202.500"
                                         "00000101.50000000200.50000000101.50000000202.5000000100000002000"));
    const Image21 image(builder, V21);
    EXPECT_TRUE(image->IsImageChip());
    EXPECT_FALSE(image->IsUnityTransform());
    ASSERT_NE(image->GetICHIPTRE(), nullptr);
    EXPECT_STREQ(image->GetICHIPTRE()->GetTag(), "ICHIPB");
    bool isChip = false;
    const double* toFull = nullptr;
    const double* toChip = nullptr;
    ASSERT_TRUE(image->GetImageChipTransformCoeffs(isChip, toFull, toChip));
    EXPECT_NEAR(toFull[0], 100.0, 1e-9);
    EXPECT_NEAR(toFull[1], 1.0, 1e-9);
    EXPECT_NEAR(toFull[4], 200.0, 1e-9);
    EXPECT_NEAR(toChip[0], -100.0, 1e-9);

    NitfBuilder plain;
    plain.AddImage();
    const Image21 whole(plain, V21);
    EXPECT_FALSE(whole->IsImageChip());
    EXPECT_TRUE(whole->IsUnityTransform());
    EXPECT_EQ(whole->GetICHIPTRE(), nullptr);
}

// ---- Rational polynomial coefficients

TEST(ImageRpcTest, CoefficientsComeInTheOrderOfRpc00bFromEitherRecord)
{
    for (const char tag : {'A', 'B'}) {
        NitfBuilder builder;
        builder.AddImage().Area("IXSHD", Rpc(("RPC00"s + tag).c_str()));
        const Image21 image(builder, V21);
        ASSERT_EQ(image->GetRPC00Availability(), tag);
        std::array<double, 20> a{};
        std::array<double, 20> b{};
        std::array<double, 20> c{};
        std::array<double, 20> d{};
        ASSERT_TRUE(image->GetRPC00Coefficients(a.data(), b.data(), c.data(), d.data()));
        EXPECT_FALSE(image->GetRPC00Coefficients(a.data(), b.data(), nullptr, d.data()));
        // Term 7 of RPC00B, counted from 0, is L^2, which stands at place 8 of RPC00A; the first terms are the same.
        EXPECT_NEAR(a[7], tag == 'A' ? 18e-3 : 17e-3, 1e-12);
        EXPECT_NEAR(a[0], 10e-3, 1e-12);
        EXPECT_NEAR(d[19], 89e-3, 1e-12);
        double latitude = 0;
        double longitude = 0;
        double height = 0;
        long line = 0;
        long sample = 0;
        ASSERT_TRUE(image->GetRPC00Offsets(latitude, longitude, height, line, sample));
        EXPECT_EQ(latitude, 45.0);
        EXPECT_EQ(longitude, 7.0);
        EXPECT_EQ(height, 250.0);
        EXPECT_EQ(line, 4000);
        EXPECT_EQ(sample, 5000);
        ASSERT_TRUE(image->GetRPC00Scales(latitude, longitude, height, line, sample));
        EXPECT_EQ(latitude, 0.5);
        EXPECT_EQ(line, 3900);
        EXPECT_EQ(sample, 4900);
        double bias = 0;
        double random = 0;
        ASSERT_TRUE(image->GetRPC00Errors(bias, random));
        EXPECT_EQ(bias, 12.5);
        EXPECT_EQ(random, 3.25);
        ASSERT_TRUE(image->GetImageSegmentAverageHeight(height));
        EXPECT_EQ(height, 250.0);
        const char** names = nullptr;
        const char** values = nullptr;
        std::size_t count = 0;
        ASSERT_TRUE(image->GetRPCFields(names, values, count));
        EXPECT_EQ(count, 93U);
        EXPECT_STREQ(names[3], "LINE_OFF");
        EXPECT_STREQ(values[3], "004000");
        NITFImageSubheader::DeleteRPCFields(names, values, count);
        EXPECT_EQ(names, nullptr);
    }
    NitfBuilder both;
    both.AddImage().Area("IXSHD", Rpc("RPC00A") + Rpc("RPC00B"));
    EXPECT_EQ(Image21(both, V21)->GetRPC00Availability(), 'B');
    NitfBuilder broken;
    broken.AddImage().Area("IXSHD", Tre("RPC00B", "1"));
    const Image21 none(broken, V21);
    EXPECT_EQ(none->GetRPC00Availability(), 'N');
    double number = 0;
    EXPECT_FALSE(none->GetRPC00Errors(number, number));
}

// ---- Pixels

TEST(ImageQueriesTest, PixelsAndTheirStatusesComeThroughTheSubheader)
{
    NitfBuilder builder;
    builder.AddImage(4, 6);
    const Image21 image(builder, V21);
    std::array<char, 24> samples{};
    ASSERT_EQ(image->RetrieveImagePixels(0, 0, 4, 6, 0, 24, samples.data(), nullptr), Reader::STATUS_OK);
    EXPECT_STREQ(Reader::GetLastPixelError(), "");
    EXPECT_EQ(std::string(samples.data(), 24), builder.LastData());
    ASSERT_EQ(image->RetrieveImageOverview(0, 3, 24, samples.data()), Reader::STATUS_OK);
    EXPECT_EQ(samples[1], builder.LastData()[3]);
    EXPECT_EQ(samples[2], builder.LastData()[18]);
    for (const auto& [row, column, rows, columns, band] :
         {std::array{-1, 0, 1, 1, 0}, std::array{0, -1, 1, 1, 0}, std::array{0, 0, -1, 1, 0},
          std::array{0, 0, 1, -1, 0}, std::array{0, 0, 1, 1, -1}, std::array{0, 0, 1, 1, 1},
          std::array{0, 0, 5, 1, 0}}) {
        EXPECT_EQ(image->RetrieveImagePixels(row, column, rows, columns, band, 24, samples.data(), nullptr),
                  Reader::STATUS_OUT_OF_RANGE);
        EXPECT_STRNE(Reader::GetLastPixelError(), "");
    }
    EXPECT_EQ(image->RetrieveImagePixels(0, 0, 1, 1, 0, -1, samples.data(), nullptr), Reader::STATUS_BUFFER_TOO_SMALL);
    EXPECT_EQ(image->RetrieveImageOverview(0, 0, 24, samples.data()), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(image->RetrieveImageOverview(0, -5, 24, samples.data()), Reader::STATUS_OUT_OF_RANGE);
    EXPECT_EQ(image->RetrieveImagePixels(0, 0, 1, 1, 0, 24, nullptr, nullptr), Reader::STATUS_NO_BUFFER);
    const Image21 cut(builder, V21, 1);
    EXPECT_EQ(cut->RetrieveImagePixels(3, 5, 1, 1, 0, 24, samples.data(), nullptr), Reader::STATUS_DATA_SHORT);
    // A copy reads the same file.
    EXPECT_EQ(NITF21ImageSubheader(*image).RetrieveImagePixels(3, 5, 1, 1, 0, 24, samples.data(), nullptr),
              Reader::STATUS_OK);
    EXPECT_EQ(samples[0], builder.LastData()[23]);
}

TEST(ImageQueriesTest, PadValueIsThatOfTheMask)
{
    // Table of 10 bytes, a code of 2, one block offset of 4; then the pixels.
    const std::string mask = "\x00\x00\x00\x10\x00\x04\x00\x00\x00\x10\xFF\xFE\x00\x00\x00\x00"s;
    NitfBuilder builder;
    builder.AddImage(1, 2).Set("IC", "NM").Set("NBPP", 16).Set("ABPP", 16).Set("PVTYPE", "SI");
    builder.LastData() = mask + "\x00\x01\x00\x02"s;
    const Image21 image(builder, V21);
    EXPECT_TRUE(image->HasDataMaskSubheader());
    ASSERT_NE(image->GetImageDataMask(), nullptr);
    EXPECT_EQ(image->GetImageDataMask()->GetFieldIMDATOFF(), 16U);
    EXPECT_TRUE(image->HasPadPixelValue());
    double real = 0;
    double imaginary = 7;
    ASSERT_TRUE(image->GetPadPixelValueAsDouble(real));
    EXPECT_EQ(real, -2.0);
    ASSERT_TRUE(image->GetPadPixelComplex(real, imaginary));
    EXPECT_EQ(imaginary, 0.0);

    builder.LastData() = mask.substr(0, 5);
    const Image21 cut(builder, V21);
    EXPECT_EQ(cut->GetImageDataMask(), nullptr);
    EXPECT_NE(std::string(cut->GetErrorMessage()), "");
    EXPECT_FALSE(cut->HasPadPixelValue());

    NitfBuilder plain;
    plain.AddImage();
    const Image21 none(plain, V21);
    EXPECT_FALSE(none->HasDataMaskSubheader());
    EXPECT_EQ(none->GetImageDataMask(), nullptr);
    EXPECT_FALSE(none->GetPadPixelValueAsDouble(real));
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
