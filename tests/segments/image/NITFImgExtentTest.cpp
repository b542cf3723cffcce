#include "segments/image/NITFImgExtent.h"
#include "segments/image/detail/UtmGrid.h"
#include "tests/support/NitfBuilder.h"
#include "tre/TREFactory.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <memory>
#include <numbers>
#include <string>

#include <gtest/gtest.h>

namespace ORMO::SensorModel::CSM {
namespace {

using Tests::Padded;

constexpr double RADIANS = std::numbers::pi / 180.0;

/// A TRE made from its data, released at the end.
std::shared_ptr<const TRE> MakeTre(const char* aTag, const std::string& aData)
{
    TRE* tre = nullptr;
    TREFactory::Create(Tests::Tre(aTag, aData).c_str(), TRE::TRE_TYPE_CONTROLLED_EXTENSION, &tre, true, false, nullptr,
                       Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
    return {tre, [](TRE* aOwned) { TREFactory::Destroy(&aOwned); }};
}

NITFImgExtent Extent(unsigned long aRows = 100, unsigned long aColumns = 200)
{
    return {NITFCnst::NITF_VERSION_NUMBER_21, aRows, aColumns};
}

const std::string WEST_EUROPE = "453000N0071500E453000N0081500E444500N0081500E444500N0071500E";

struct Four
{
    std::array<double, 4> latitudes{};
    std::array<double, 4> longitudes{};
};

TEST(NITFImgExtentTest, GeographicCornersAreReadInEachForm)
{
    NITFImgExtent extent = Extent();
    Four corners;
    EXPECT_FALSE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
    ASSERT_TRUE(extent.SetIGEOLO('G', ("  " + WEST_EUROPE + " ").c_str()));
    EXPECT_EQ(extent.GetCoordinateSysType(), 'G');
    ASSERT_TRUE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
    EXPECT_DOUBLE_EQ(corners.latitudes[0], 45.5);
    EXPECT_DOUBLE_EQ(corners.latitudes[2], 44.75);
    EXPECT_DOUBLE_EQ(corners.longitudes[1], 8.25);
    EXPECT_DOUBLE_EQ(corners.longitudes[3], 7.25);

    ASSERT_TRUE(extent.SetIGEOLO('G', "123456S1234512W123456S1234512E900000S1800000W000000N0000000E"));
    ASSERT_TRUE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
    EXPECT_NEAR(corners.latitudes[0], -(12 + 34 / 60.0 + 56 / 3600.0), 1e-13);
    EXPECT_NEAR(corners.longitudes[0], -(123 + 45 / 60.0 + 12 / 3600.0), 1e-13);
    EXPECT_EQ(corners.latitudes[2], -90.0);
    EXPECT_EQ(corners.longitudes[2], -180.0);

    ASSERT_TRUE(extent.SetIGEOLO('D', "+45.500-071.250-45.500+071.250+00.001-000.001+90.000+180.000"));
    ASSERT_TRUE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
    EXPECT_EQ(corners.latitudes, (std::array{45.5, -45.5, 0.001, 90.0}));
    EXPECT_EQ(corners.longitudes, (std::array{-71.25, 71.25, -0.001, 180.0}));

    // The geodetic latitude is the steeper one; tan(45) = 1, so its tangent is the ratio of the squared axes.
    ASSERT_TRUE(extent.SetIGEOLO('C', "450000N0000000E450000S0000000E000000N0000000E900000N0000000E"));
    ASSERT_TRUE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
    const double ratio = 40680631590769.0 / (6356752.314245179 * 6356752.314245179);
    EXPECT_NEAR(corners.latitudes[0], std::atan(ratio) / RADIANS, 1e-12);
    EXPECT_GT(corners.latitudes[0], 45.19);
    EXPECT_DOUBLE_EQ(corners.latitudes[1], -corners.latitudes[0]);
    EXPECT_EQ(corners.latitudes[2], 0.0);
    EXPECT_NEAR(corners.latitudes[3], 90.0, 1e-9);
}

TEST(NITFImgExtentTest, TextsThatAreNoCornersLeaveNoFootprint)
{
    const struct
    {
        char icords;
        std::string igeolo;
    } cases[] = {
        {'G', WEST_EUROPE.substr(1)},
        {'G', WEST_EUROPE.substr(0, 59)},
        {'G', "910000N0071500E" + WEST_EUROPE.substr(15)},
        {'G', WEST_EUROPE.substr(0, 45) + "444500N1800001E"},
        {'G', WEST_EUROPE.substr(0, 45) + "444500X0071500E"},
        {'G', "45 000N0071500E" + WEST_EUROPE.substr(15)},
        {'G', "-53000N0071500E" + WEST_EUROPE.substr(15)},
        {'D', WEST_EUROPE},
        {'D', "+91.000-071.250-45.500+071.250+00.001-000.001+90.000+180.000"},
        {'C', std::string(60, 'Q')},
        {'N', WEST_EUROPE},
        {'N', "61" + std::string(58, '1')},
        {'S', "00" + std::string(58, '1')},
        {'G', std::string(60, ' ')},
    };
    for (const auto& [icords, igeolo] : cases) {
        NITFImgExtent extent = Extent();
        ASSERT_TRUE(extent.SetIGEOLO('G', WEST_EUROPE.c_str()));
        EXPECT_FALSE(extent.SetIGEOLO(icords, igeolo.c_str())) << icords << igeolo;
        EXPECT_EQ(extent.GetCoordinateSysType(), '?') << icords << igeolo;
        Four corners;
        if (icords != 'N' && icords != 'S') {
            EXPECT_FALSE(extent.GetIGEOLOGeographicExtent(corners.latitudes.data(), corners.longitudes.data()));
        }
        EXPECT_FALSE(extent.SetUTMGeographicCoordinates(icords, igeolo.c_str())) << icords << igeolo;
    }
    for (const char icords : {' ', 'P', 'g', '\0'}) {
        EXPECT_FALSE(Extent().SetIGEOLO(icords, WEST_EUROPE.c_str()));
    }
    EXPECT_FALSE(Extent().SetIGEOLO('G', nullptr));
}

TEST(NITFImgExtentTest, UtmParametersAreThoseOfTheFirstCorner)
{
    NITFImgExtent extent = Extent();
    const std::string corners = "330500000450000033060000044500003306000004450000330500000445000 ";
    EXPECT_FALSE(extent.SetIGEOLO('U', corners.c_str()));  // nothing tells the zone yet
    ASSERT_TRUE(extent.SetIGEOLO('S', "315123454567890XXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXXX"));
    int zone = 0;
    char hemisphere = '\0';
    double easting = 0.0;
    double northing = 0.0;
    ASSERT_TRUE(extent.GetUTMParameters(zone, hemisphere, easting, northing));
    EXPECT_EQ(zone, 31);
    EXPECT_EQ(hemisphere, 'S');
    EXPECT_EQ(easting, 512345.0);
    EXPECT_EQ(northing, 4567890.0);
    EXPECT_EQ(extent.GetCoordinateSysType(), 'S');
    EXPECT_TRUE(extent.SetIGEOLO('U', corners.c_str()));
}

/// The length of the meridian from the equator to a latitude, by Simpson's rule.
double MeridianArc(double aLatitude)
{
    constexpr double A = 6378137.0;
    constexpr double B = 6356752.314245179;
    constexpr double E2 = 1.0 - B * B / (A * A);
    constexpr int STEPS = 20000;
    const auto radius = [](double aAngle) {
        return A * (1.0 - E2) / std::pow(1.0 - E2 * std::sin(aAngle) * std::sin(aAngle), 1.5);
    };
    const double step = aLatitude * RADIANS / STEPS;
    double sum = radius(0.0) + radius(aLatitude * RADIANS);
    for (int i = 1; i != STEPS; ++i) {
        sum += (i % 2 == 0 ? 2.0 : 4.0) * radius(i * step);
    }
    return sum * step / 3.0;
}

TEST(UtmGridTest, CentralMeridianIsTheMeridianArcReduced)
{
    for (const double latitude : {1.0, 17.0, 45.0, 60.5, 84.0}) {
        const double northing = 0.9996 * MeridianArc(latitude);
        const Detail::GroundPoint north = Detail::ToGeographic({33, true, 500000.0, northing});
        EXPECT_NEAR(north.latitude, latitude, 1e-10) << latitude;
        EXPECT_NEAR(north.longitude, 15.0, 1e-12);
        const Detail::GroundPoint south = Detail::ToGeographic({1, false, 500000.0, 10000000.0 - northing});
        EXPECT_NEAR(south.latitude, -latitude, 1e-10) << latitude;
        EXPECT_NEAR(south.longitude, -177.0, 1e-12);
    }
}

TEST(UtmGridTest, LinesOfTheGridKeepTheirLengthAndAngle)
{
    // The grid is conformal: small steps along easting and northing are as long on the ellipsoid as one another and
    // meet at right angles, and on the equator the scale at a distance x is k0 cosh(x / k0 a) to first order in e2.
    constexpr double A = 6378137.0;
    constexpr double B = 6356752.314245179;
    constexpr double E2 = 1.0 - B * B / (A * A);
    for (const double easting : {167000.0, 320000.0, 500000.0, 833000.0}) {
        for (const double northing : {0.0, 2500000.0, 5500000.0, 9000000.0}) {
            constexpr double STEP = 10.0;
            const auto at = [&](double aEast, double aNorth) {
                return Detail::ToGeographic({31, true, easting + aEast, northing + aNorth});
            };
            const Detail::GroundPoint west = at(-STEP, 0.0);
            const Detail::GroundPoint east = at(STEP, 0.0);
            const Detail::GroundPoint south = at(0.0, -STEP);
            const Detail::GroundPoint north = at(0.0, STEP);
            const double latitude = at(0.0, 0.0).latitude * RADIANS;
            const double w2 = 1.0 - E2 * std::sin(latitude) * std::sin(latitude);
            const double meridian = A * (1.0 - E2) / std::pow(w2, 1.5) * RADIANS;
            const double parallel = A / std::sqrt(w2) * std::cos(latitude) * RADIANS;
            const double ex = (east.longitude - west.longitude) * parallel;
            const double ey = (east.latitude - west.latitude) * meridian;
            const double nx = (north.longitude - south.longitude) * parallel;
            const double ny = (north.latitude - south.latitude) * meridian;
            EXPECT_NEAR(std::hypot(ex, ey), std::hypot(nx, ny), 2e-5) << easting << ' ' << northing;
            EXPECT_NEAR((ex * nx + ey * ny) / (std::hypot(ex, ey) * std::hypot(nx, ny)), 0.0, 2e-6);
        }
    }
}

TEST(UtmGridTest, MgrsReferencesArePlacesOfTheUtmGrid)
{
    Detail::UtmPoint point;
    // Published references: 18S UJ 23480 06470 in Washington, 4Q FJ 12345 67890 in Hawaii, 33X VG in Svalbard.
    ASSERT_TRUE(Detail::ParseMgrs("18SUJ2348006470", point));
    EXPECT_EQ(point.zone, 18);
    EXPECT_TRUE(point.isNorth);
    EXPECT_EQ(point.easting, 323480.0);
    EXPECT_EQ(point.northing, 4306470.0);
    ASSERT_TRUE(Detail::ParseMgrs("04QFJ1234567890", point));
    EXPECT_EQ(point.easting, 612345.0);
    EXPECT_EQ(point.northing, 2367890.0);
    ASSERT_TRUE(Detail::ParseMgrs("56HLH3415451235", point));  // Sydney
    EXPECT_FALSE(point.isNorth);
    EXPECT_EQ(point.easting, 334154.0);
    EXPECT_EQ(point.northing, 6251235.0);
    for (const char* const text :
         {"18SUJ234800647", "61SUJ2348006470", "00SUJ2348006470", "18IUJ2348006470", "18SIJ2348006470",
          "18SUI2348006470", "18SAJ2348006470", "18SUW2348006470", "18SUJ2348O06470", "18ZUJ2348006470",
          "18BUJ2348006470", "18sUJ2348006470", "18CUJ2348006470"}) {
        EXPECT_FALSE(Detail::ParseMgrs(text, point)) << text;
    }
}

TEST(NITFImgExtentTest, UtmAndMgrsImagesHaveAFootprintOfTheirOwn)
{
    NITFImgExtent extent = Extent();
    const std::string utm =
        "335000004500000"
        "336000004500000"
        "336000004400000"
        "335000004400000";
    ASSERT_TRUE(extent.SetIGEOLO('N', utm.c_str()));
    ASSERT_TRUE(extent.SetUTMGeographicCoordinates('N', utm.c_str()));
    Four corners;
    bool measured = false;
    const char* source = nullptr;
    EXPECT_FALSE(
        extent.GetMostPreciseGeographicExtent(measured, source, corners.latitudes.data(), corners.longitudes.data()));
    NITFImgExtent::Footprint footprint;
    ASSERT_TRUE(extent.GetFootprint(footprint));
    EXPECT_STREQ(footprint.source, "IGEOLO [UTM]");
    EXPECT_NEAR(footprint.longitudes[0], 15.0, 1e-12);
    EXPECT_GT(footprint.longitudes[1], 16.1);
    EXPECT_GT(footprint.latitudes[0], footprint.latitudes[3]);
    ASSERT_TRUE(extent.SetApproxGeographicBoundingBox());
    ASSERT_TRUE(extent.SetUTMGeographicCoordinates('U',
                                                   "18SUJ2348006470"
                                                   "18SUJ3348006470"
                                                   "18SUH3348096470"
                                                   "18SUH2348096470"));
    ASSERT_TRUE(extent.GetFootprint(footprint));
    EXPECT_STREQ(footprint.source, "IGEOLO [MGRS]");
    EXPECT_NEAR(footprint.latitudes[0], 38.8895, 0.001);
    EXPECT_NEAR(footprint.longitudes[0], -77.0352, 0.001);
    ASSERT_TRUE(extent.SetIGEOLO('G', WEST_EUROPE.c_str()));
    ASSERT_TRUE(extent.GetFootprint(footprint));
    EXPECT_STREQ(footprint.source, "IGEOLO");  // corners that need no conversion come first
}

std::shared_ptr<const TRE> Cscrn(char aPredicted)
{
    return MakeTre("CSCRNA", std::string(1, aPredicted) +
                                 "+10.00000+020.00000+00100.0+10.00000+021.00000+00200.0"
                                 "+09.00000+021.00000+00300.0+09.00000+020.00000+00400.0");
}

TEST(NITFImgExtentTest, SourcesFollowOneAnotherInPrecision)
{
    NITFImgExtent extent = Extent();
    Four corners;
    bool measured = false;
    const char* source = nullptr;
    const auto best = [&] {
        EXPECT_TRUE(extent.GetMostPreciseGeographicExtent(measured, source, corners.latitudes.data(),
                                                          corners.longitudes.data()));
        return std::string(source) + (measured ? "" : " not measured");
    };
    EXPECT_FALSE(
        extent.GetMostPreciseGeographicExtent(measured, source, corners.latitudes.data(), corners.longitudes.data()));
    EXPECT_FALSE(extent.SetApproxGeographicBoundingBox());
    ASSERT_TRUE(extent.SetIGEOLO('G', WEST_EUROPE.c_str()));
    EXPECT_EQ(best(), "IGEOLO");
    ASSERT_TRUE(extent.SetTreCSCRNGeographicCoordinates(Cscrn('Y').get()));
    EXPECT_EQ(best(), "CSCRNA [predicted] not measured");
    ASSERT_TRUE(extent.SetTreCSCRNGeographicCoordinates(Cscrn('N').get()));
    EXPECT_EQ(best(), "CSCRNA [measured]");
    EXPECT_EQ(corners.latitudes, (std::array{10.0, 10.0, 9.0, 9.0}));
    EXPECT_EQ(corners.longitudes, (std::array{20.0, 21.0, 21.0, 20.0}));
    std::array<double, 4> heights{};
    ASSERT_TRUE(
        extent.GetCSCRNGeographicExtent(measured, corners.latitudes.data(), corners.longitudes.data(), heights.data()));
    EXPECT_EQ(heights, (std::array{100.0, 200.0, 300.0, 400.0}));

    // 360 divided by the densities is 0.01 degrees per column and 0.02 per row, over 199 columns and 99 rows.
    const auto geolo = MakeTre("GEOLOB", "000036000000018000+020.00000000  +50.000000000  ");
    ASSERT_TRUE(extent.SetTreGEOLOGeographicCoordinates(geolo.get(), 100, 200));
    EXPECT_EQ(best(), "GEOLOB");
    EXPECT_DOUBLE_EQ(corners.latitudes[2], 50.0 - 99 * 0.02);
    EXPECT_DOUBLE_EQ(corners.longitudes[2], 20.0 + 199 * 0.01);

    ASSERT_TRUE(extent.SetBLOCKGeographicCoordinates("N323000.00E0441530.50", "N323000.00E0451530.50",
                                                     "N313000.00E0451530.50", "N313000.00W0441530.50", 'G'));
    EXPECT_EQ(best(), "BLOCKA");
    EXPECT_NEAR(corners.longitudes[0], 44 + 15 / 60.0 + 30.5 / 3600.0, 1e-12);
    EXPECT_NEAR(corners.longitudes[3], -(44 + 15 / 60.0 + 30.5 / 3600.0), 1e-12);
    EXPECT_DOUBLE_EQ(corners.latitudes[0], 32.5);
    ASSERT_TRUE(extent.SetBLOCKGeographicCoordinates("+32.983458+044.252361", "-32.983458-044.252361",
                                                     "+00.000001+180.000000", "-90.000000-180.000000", 'D'));
    EXPECT_EQ(best(), "BLOCKA");
    EXPECT_EQ(corners.latitudes, (std::array{32.983458, -32.983458, 0.000001, -90.0}));
    // A corner that is none takes the source away again, and the next one answers.
    const std::string blank(21, ' ');
    EXPECT_FALSE(extent.SetBLOCKGeographicCoordinates("+32.983458+044.252361", blank.c_str(), blank.c_str(),
                                                      blank.c_str(), 'D'));
    EXPECT_EQ(best(), "GEOLOB");
    EXPECT_FALSE(extent.SetTreGEOLOGeographicCoordinates(geolo.get(), 100000, 200));  // beyond the south pole
    EXPECT_EQ(best(), "CSCRNA [measured]");
}

TEST(NITFImgExtentTest, BoxAndCentreKeepToTheFootprint)
{
    const struct
    {
        const char* igeolo;
        double south, west, north, east, latitude, longitude;
        bool crosses;
    } cases[] = {
        {"+10.000+020.000+12.000+024.000+08.000+026.000+06.000+022.000", 6, 20, 12, 26, 9, 23, false},
        {"+10.000+179.000+10.000-179.000+08.000-179.000+08.000+179.000", 8, 179, 10, 181, 9, 180, true},
        {"+10.000+179.000+10.000-176.000+08.000-176.000+08.000+179.000", 8, 179, 10, 184, 9, -178.5, true},
        // Turned by half a circle.
        {"+08.000-179.000+08.000+179.000+10.000+179.000+10.000-179.000", 8, 179, 10, 181, 9, 180, true},
        // Maps of the world are wide and cross nothing.
        {"+90.000-180.000+90.000+180.000-90.000+180.000-90.000-180.000", -90, -180, 90, 180, 0, 0, false},
        {"+80.000-170.000+80.000+170.000-80.000+170.000-80.000-170.000", -80, -170, 80, 170, 0, 0, false},
    };
    for (const auto& expected : cases) {
        NITFImgExtent extent = Extent();
        ASSERT_TRUE(extent.SetIGEOLO('D', expected.igeolo));
        double south = 0;
        double west = 0;
        double north = 0;
        double east = 0;
        EXPECT_FALSE(extent.GetApproxGeographicExtentBoundingBox(south, west, north, east));
        ASSERT_TRUE(extent.SetApproxGeographicBoundingBox());
        ASSERT_TRUE(extent.GetApproxGeographicExtentBoundingBox(south, west, north, east));
        EXPECT_DOUBLE_EQ(south, expected.south) << expected.igeolo;
        EXPECT_DOUBLE_EQ(west, expected.west) << expected.igeolo;
        EXPECT_DOUBLE_EQ(north, expected.north) << expected.igeolo;
        EXPECT_DOUBLE_EQ(east, expected.east) << expected.igeolo;
        double latitude = 0;
        double longitude = 0;
        ASSERT_TRUE(extent.GetApproxGeographicCenterOfExtent(latitude, longitude));
        EXPECT_DOUBLE_EQ(latitude, expected.latitude) << expected.igeolo;
        EXPECT_DOUBLE_EQ(longitude, expected.longitude) << expected.igeolo;
        NITFImgExtent::Footprint footprint;
        ASSERT_TRUE(extent.GetFootprint(footprint));
        EXPECT_EQ(footprint.crosses180, expected.crosses) << expected.igeolo;
        EXPECT_DOUBLE_EQ(footprint.east, expected.crosses ? expected.east - 360 : expected.east);
    }
}

TEST(NITFImgExtentTest, BoundingPolygonIsHandedOutPointByPoint)
{
    NITFImgExtent extent = Extent();
    const auto tre = MakeTre("BNDPLB",
                             "0004+020.00000000  +50.000000000  +021.00000000  +50.000000000  "
                             "+021.00000000  +49.000000000  +020.00000000  +50.000000000  ");
    double* latitudes = nullptr;
    double* longitudes = nullptr;
    std::size_t count = 0;
    EXPECT_FALSE(extent.SetTreBNDPLExtentBoundingPolygon(tre.get(), false));  // metres of a map grid
    EXPECT_FALSE(extent.GetBNDPLGeographicExtentBoundingPolygon(latitudes, longitudes, count));
    ASSERT_TRUE(extent.SetTreBNDPLExtentBoundingPolygon(tre.get()));
    ASSERT_TRUE(extent.GetBNDPLGeographicExtentBoundingPolygon(latitudes, longitudes, count));
    ASSERT_EQ(count, 4U);
    EXPECT_EQ(latitudes[2], 49.0);
    EXPECT_EQ(longitudes[2], 21.0);
    EXPECT_EQ(longitudes[3], 20.0);
    NITFImgExtent::DeleteDoubleArray(latitudes);
    NITFImgExtent::DeleteDoubleArray(longitudes);
    EXPECT_EQ(latitudes, nullptr);
}

/// The four grid points of chip and full image as ICHIPB prints them.
std::string Chip(const char* aFlag, const std::array<double, 8>& aChip, const std::array<double, 8>& aFull)
{
    std::string data = std::string(aFlag) + "0001.0000000" + "00";
    for (const std::array<double, 8>* const points : {&aChip, &aFull}) {
        for (const double value : *points) {
            std::array<char, 16> text{};
            std::snprintf(text.data(), text.size(), "%012.3f", value);
            data += text.data();
        }
    }
    return data + "0000900000012000";
}

TEST(NITFImgExtentTest, ChipPlacesGoToTheFullImageAndBack)
{
    const std::array<double, 8> chip{0.5, 0.5, 0.5, 699.5, 499.5, 0.5, 499.5, 699.5};
    const struct
    {
        std::array<double, 8> full;
        double row, column;  // of (100.25, 200.75)
    } cases[] = {
        {{4000.5, 8000.5, 4000.5, 8699.5, 4499.5, 8000.5, 4499.5, 8699.5}, 4100.25, 8200.75},
        // Reduced by two.
        {{100.5, 200.5, 100.5, 1598.5, 1098.5, 200.5, 1098.5, 1598.5}, 100.5 + 2 * 99.75, 200.5 + 2 * 200.25},
        // Turned by a quarter: rows of the chip are columns of the full image.
        {{0.5, 0.5, 699.5, 0.5, 0.5, 499.5, 699.5, 499.5}, 200.75, 100.25},
        // No parallelogram.
        {{0.5, 0.5, 0.5, 700.5, 500.5, 10.5, 520.5, 690.5}, -1, -1},
    };
    for (const auto& [full, row, column] : cases) {
        NITFImgExtent extent = Extent(500, 700);
        const auto tre = MakeTre("ICHIPB", Chip("00", chip, full));
        ASSERT_TRUE(extent.SetICHIPInformation(tre.get()));
        EXPECT_TRUE(extent.IsImageChip());
        EXPECT_FALSE(extent.IsUnityTransform());
        EXPECT_TRUE(*extent.GetICHIPTRE() == *tre);
        double fullRow = 0;
        double fullColumn = 0;
        ASSERT_TRUE(extent.MapChipToFullImage(100.25, 200.75, fullRow, fullColumn));
        if (row >= 0) {
            EXPECT_NEAR(fullRow, row, 1e-8);
            EXPECT_NEAR(fullColumn, column, 1e-8);
        }
        for (std::size_t i = 0; i != 4; ++i) {
            ASSERT_TRUE(extent.MapChipToFullImage(chip[2 * i], chip[2 * i + 1], fullRow, fullColumn));
            EXPECT_NEAR(fullRow, full[2 * i], 1e-8);
            EXPECT_NEAR(fullColumn, full[2 * i + 1], 1e-8);
            double back = 0;
            double backColumn = 0;
            ASSERT_TRUE(extent.MapFullImageToChip(fullRow, fullColumn, back, backColumn));
            EXPECT_NEAR(back, chip[2 * i], 1e-6);
            EXPECT_NEAR(backColumn, chip[2 * i + 1], 1e-6);
        }
        double back = 0;
        double backColumn = 0;
        ASSERT_TRUE(extent.MapChipToFullImage(321.125, 17.875, fullRow, fullColumn));
        ASSERT_TRUE(extent.MapFullImageToChip(fullRow, fullColumn, back, backColumn));
        EXPECT_NEAR(back, 321.125, 1e-6);
        EXPECT_NEAR(backColumn, 17.875, 1e-6);
        bool isChip = false;
        const double* toFull = nullptr;
        const double* toChip = nullptr;
        ASSERT_TRUE(extent.GetImageChipTransformCoeffs(isChip, toFull, toChip));
        EXPECT_TRUE(isChip);
        const double* const r = toFull;
        EXPECT_NEAR(r[0] + r[1] * 321.125 + r[2] * 17.875 + r[3] * 321.125 * 17.875, fullRow, 1e-8);
        extent.ResetImageChipInfoToDefaultValues();
        EXPECT_FALSE(extent.IsImageChip());
        EXPECT_TRUE(extent.IsUnityTransform());
    }
}

TEST(NITFImgExtentTest, ChipsWithoutALinearMappingSaySo)
{
    const std::array<double, 8> points{0.5, 0.5, 0.5, 699.5, 499.5, 0.5, 499.5, 699.5};
    const double* toFull = nullptr;
    const double* toChip = nullptr;
    bool isChip = false;
    NITFImgExtent extent = Extent();
    ASSERT_TRUE(extent.GetImageChipTransformCoeffs(isChip, toFull, toChip));
    EXPECT_FALSE(isChip);
    EXPECT_EQ(toFull[1], 1.0);
    for (const std::string& data : {Chip("01", {}, {}), Chip("00", {}, {}), Chip("00", points, {})}) {
        EXPECT_FALSE(extent.SetICHIPInformation(MakeTre("ICHIPB", data).get())) << data;
        EXPECT_TRUE(extent.IsImageChip());
        EXPECT_FALSE(extent.IsUnityTransform());
        EXPECT_FALSE(extent.GetImageChipTransformCoeffs(isChip, toFull, toChip));
        EXPECT_TRUE(isChip);
        double row = 0;
        double column = 0;
        EXPECT_FALSE(extent.MapChipToFullImage(1, 1, row, column));
        EXPECT_FALSE(extent.MapFullImageToChip(1, 1, row, column));
    }
    ASSERT_TRUE(extent.SetICHIPInformation(MakeTre("ICHIPB", Chip("00", points, points)).get()));
    EXPECT_TRUE(extent.IsUnityTransform());
    EXPECT_TRUE(extent.IsImageChip());
}

TEST(NITFImgExtentTest, CornersOfASensorModelAreKeptBesideTheOthers)
{
    NITFImgExtent extent = Extent();
    const Four given{{1, 2, 3, 4}, {5, 6, 7, 8}};
    const std::array<double, 4> heights{9, 10, 11, 12};
    Four got;
    std::array<double, 4> gotHeights{};
    std::string model;
    std::string source;
    const auto get = [&] {
        return extent.GetSensorModelComputedExtentCoord(got.latitudes.data(), got.longitudes.data(), gotHeights.data(),
                                                        model, source);
    };
    EXPECT_FALSE(get());
    EXPECT_FALSE(extent.SetSensorModelComputedExtentCoord(nullptr, given.longitudes.data(), heights.data(), "M", "S"));
    ASSERT_TRUE(extent.SetSensorModelComputedExtentCoord(given.latitudes.data(), given.longitudes.data(),
                                                         heights.data(), "MODEL", "plug-in"));
    const NITFImgExtent copy = extent;
    extent.ClearSensorModelComputedExtentCoord();
    EXPECT_FALSE(extent.SensorModelComputedExtentCoordSet());
    EXPECT_FALSE(get());
    extent = copy;
    ASSERT_TRUE(get());
    EXPECT_EQ(got.latitudes, given.latitudes);
    EXPECT_EQ(got.longitudes, given.longitudes);
    EXPECT_EQ(gotHeights, heights);
    EXPECT_EQ(model + " of " + source, "MODEL of plug-in");
}

}  // namespace
}  // namespace ORMO::SensorModel::CSM
