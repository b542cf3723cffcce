#include "tools/CatalogueFootprint.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace OrmoNitf::Catalogue {
namespace {

using Json = nlohmann::ordered_json;
using ORMO::SensorModel::CSM::NITFImgExtent;

NITFImgExtent::Footprint Footprint(const std::array<double, 4>& aLongitudes, const std::array<double, 4>& aLatitudes)
{
    NITFImgExtent::Footprint footprint;
    footprint.longitudes = aLongitudes;
    footprint.latitudes = aLatitudes;
    return footprint;
}

/// The area of all parts in square degrees; says what is wrong with a ring.
double AreaOf(const Json& aGeometry)
{
    double sum = 0.0;
    const bool isOne = aGeometry.at("type") == "Polygon";
    for (const Json& part : isOne ? Json::array({aGeometry.at("coordinates")}) : aGeometry.at("coordinates")) {
        const Json& ring = part.at(0);
        double area = 0.0;
        EXPECT_EQ(ring.front(), ring.back()) << aGeometry;
        for (std::size_t i = 0; i + 1 < ring.size(); ++i) {
            EXPECT_LE(std::abs(ring[i][0].get<double>()), 180.0) << aGeometry;
            EXPECT_LE(std::abs(ring[i][1].get<double>()), 90.0) << aGeometry;
            area += ring[i][0].get<double>() * ring[i + 1][1].get<double>() -
                    ring[i + 1][0].get<double>() * ring[i][1].get<double>();
        }
        EXPECT_GT(area, 0.0) << "clockwise: " << aGeometry;
        sum += area / 2.0;
    }
    return sum;
}

TEST(CatalogueFootprint, IsCutAtThe180thMeridianOnly)
{
    std::mt19937 random(19);
    std::uniform_real_distribution<double> anywhere(-180.0, 180.0);
    std::uniform_real_distribution<double> turned(0.0, 1.5);
    for (int i = 0; i != 2000; ++i) {
        // A turned square of four degrees.
        const double middle = i % 2 == 0 ? anywhere(random) : std::remainder(179.0 + anywhere(random) / 60.0, 360.0);
        const double angle = turned(random);
        std::array<double, 4> longitudes{};
        std::array<double, 4> latitudes{};
        double least = 1000.0;
        double most = -1000.0;
        for (std::size_t corner = 0; corner != 4; ++corner) {
            const double direction = angle - 1.5707963267948966 * static_cast<double>(corner);
            const double longitude = middle + 2.0 * std::cos(direction);
            least = std::min(least, longitude);
            most = std::max(most, longitude);
            longitudes[corner] = std::remainder(longitude, 360.0);
            latitudes[corner] = 40.0 + 2.0 * std::sin(direction);
        }
        const Json geometry = GeometryOf(Footprint(longitudes, latitudes));
        EXPECT_NEAR(AreaOf(geometry), 8.0, 1e-6) << geometry;
        const bool crosses = (least < 180.0 && most > 180.0) || (least < -180.0 && most > -180.0);
        EXPECT_EQ(geometry.at("type") == "MultiPolygon", crosses) << geometry;
    }
}

TEST(CatalogueFootprint, ReachesThePoleThatLiesInside)
{
    const Json north = GeometryOf(Footprint({-170.0, -80.0, 10.0, 100.0}, {80.0, 80.0, 80.0, 80.0}));
    EXPECT_NEAR(AreaOf(north), 3600.0, 1e-6) << north;
    const Json south = GeometryOf(Footprint({45.0, -45.0, -135.0, 135.0}, {-85.0, -85.0, -85.0, -85.0}));
    EXPECT_NEAR(AreaOf(south), 1800.0, 1e-6) << south;
}

TEST(CatalogueFootprint, HasNoSidesThatCross)
{
    for (const auto& order : {std::array<std::size_t, 4>{0, 1, 2, 3}, {0, 1, 3, 2}, {0, 2, 1, 3}, {3, 2, 1, 0}}) {
        std::array<double, 4> longitudes{};
        std::array<double, 4> latitudes{};
        for (std::size_t i = 0; i != 4; ++i) {
            longitudes[i] = order[i] == 0 || order[i] == 3 ? 179.0 : -178.0;
            latitudes[i] = order[i] < 2 ? 10.0 : 8.0;
        }
        EXPECT_NEAR(AreaOf(GeometryOf(Footprint(longitudes, latitudes))), 6.0, 1e-9);
    }
}

TEST(CatalogueFootprint, OfNoAreaIsNone)
{
    EXPECT_TRUE(GeometryOf(Footprint({5.0, 5.0, 5.0, 5.0}, {1.0, 1.0, 1.0, 1.0})).is_null());
    EXPECT_TRUE(GeometryOf(Footprint({5.0, 6.0, 6.0, 5.0}, {1.0, 1.0, 1.0, 1.0})).is_null());
    EXPECT_EQ(WellKnownText(nullptr), "");
}

TEST(CatalogueFootprint, IsWellKnownText)
{
    EXPECT_EQ(WellKnownText(GeometryOf(Footprint({1.0, 2.5, 2.5, 1.0}, {4.0, 4.0, 3.0, 3.0}))),
              "POLYGON((1.0 4.0,1.0 3.0,2.5 3.0,2.5 4.0,1.0 4.0))");
    EXPECT_EQ(WellKnownText(GeometryOf(Footprint({179.0, -179.0, -179.0, 179.0}, {4.0, 4.0, 3.0, 3.0}))),
              "MULTIPOLYGON(((179.0 4.0,179.0 3.0,180.0 3.0,180.0 4.0,179.0 4.0)),"
              "((-180.0 4.0,-180.0 3.0,-179.0 3.0,-179.0 4.0,-180.0 4.0)))");
}

}  // namespace
}  // namespace OrmoNitf::Catalogue
