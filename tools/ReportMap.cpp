#include "tools/ReportMap.h"

#include "tools/Html.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace OrmoNitf {

namespace {

using Json = nlohmann::ordered_json;

constexpr double WIDTH = 720.0;
constexpr double HEIGHT = 420.0;
constexpr double BORDER = 44.0;  // for the labels of the net

std::string Text(const char* aFormat, double aFirst, double aSecond = 0.0)
{
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(), aFormat, aFirst, aSecond);
    return text.data();
}

Json PartsOf(const Json& aGeometry)
{
    return aGeometry.at("type") == "Polygon" ? Json::array({aGeometry.at("coordinates")}) : aGeometry.at("coordinates");
}

class Map
{
public:
    explicit Map(const std::vector<MapShape>& aShapes) : m_shapes(aShapes)
    {
        // What the 180th meridian cuts is shown around it.
        m_isAround180 = std::any_of(aShapes.begin(), aShapes.end(), [](const MapShape& aShape) {
            return aShape.geometry.at("type") == "MultiPolygon";
        });
        for (const MapShape& shape : aShapes) {
            for (const Json& part : PartsOf(shape.geometry)) {
                for (const Json& point : part.at(0)) {
                    Include(Longitude(point), point.at(1).get<double>());
                }
            }
        }
        const double middle = (m_south + m_north) / 2.0;
        m_narrowing = std::max(0.1, std::cos(middle * 3.14159265358979 / 180.0));
        const double span = std::max({m_north - m_south, (m_east - m_west) * m_narrowing, 1e-4});
        const double margin = span * 0.25;
        m_scale = std::min((WIDTH - 2 * BORDER) / ((m_east - m_west) * m_narrowing + 2 * margin),
                           (HEIGHT - 2 * BORDER) / (m_north - m_south + 2 * margin));
        m_step = StepFor(span + 2 * margin);
        m_centre = {(m_west + m_east) / 2.0, middle};
    }

    std::string Svg() const
    {
        std::string svg =
            "<svg class=\"map\" xmlns=\"http://www.w3.org/2000/svg\" width=\"720\" height=\"420\" "
            "viewBox=\"0 0 720 420\" role=\"img\">\n<title>Footprints</title>\n";
        AppendNet(svg);
        for (const MapShape& shape : m_shapes) {
            svg += "<path d=\"" + PathOf(shape.geometry) + "\"><title>" + Html(shape.label) + "</title></path>\n";
        }
        AppendLabels(svg);
        return svg + "</svg>\n";
    }

private:
    double Longitude(const Json& aPoint) const
    {
        const double longitude = aPoint.at(0).get<double>();
        return m_isAround180 && longitude < 0.0 ? longitude + 360.0 : longitude;
    }

    void Include(double aLongitude, double aLatitude)
    {
        m_west = std::min(m_west, aLongitude);
        m_east = std::max(m_east, aLongitude);
        m_south = std::min(m_south, aLatitude);
        m_north = std::max(m_north, aLatitude);
    }

    double X(double aLongitude) const { return WIDTH / 2 + (aLongitude - m_centre.first) * m_narrowing * m_scale; }
    double Y(double aLatitude) const { return HEIGHT / 2 - (aLatitude - m_centre.second) * m_scale; }

    /// About five lines for a span of so many degrees.
    static double StepFor(double aSpan)
    {
        const double wanted = aSpan / 5.0;
        double step = std::pow(10.0, std::floor(std::log10(wanted)));
        for (const double factor : {2.0, 5.0, 10.0}) {
            if (step < wanted) {
                step = std::pow(10.0, std::floor(std::log10(wanted))) * factor;
            }
        }
        return step > 15.0 ? 30.0 : step;
    }

    std::string Degrees(double aValue, char aPositive, char aNegative) const
    {
        const int digits = std::max(0, static_cast<int>(std::ceil(-std::log10(m_step) - 1e-9)));
        const double value = std::remainder(aValue, 360.0);
        std::array<char, 64> text{};
        std::snprintf(text.data(), text.size(), "%.*f\xC2\xB0 %c", digits, std::abs(value),
                      value < 0.0 ? aNegative : aPositive);
        return text.data();
    }

    void AppendNet(std::string& aSvg) const
    {
        const double west = m_centre.first - WIDTH / 2 / m_narrowing / m_scale;
        const double east = 2 * m_centre.first - west;
        const double south = std::max(-90.0, m_centre.second - HEIGHT / 2 / m_scale);
        const double north = std::min(90.0, m_centre.second + HEIGHT / 2 / m_scale);
        // Meridians stand as far apart as their labels need.
        constexpr double LABEL = 72.0;
        double wide = m_step;
        for (const double factor : {2.0, 5.0, 10.0}) {
            wide = wide * m_narrowing * m_scale < LABEL ? m_step * factor : wide;
        }
        for (double at = std::ceil(west / wide) * wide; at <= east; at += wide) {
            aSvg += "<path class=\"grid\" d=\"M" + Text("%.1f %.1f", X(at), Y(north)) + Text("V%.1f", Y(south)) +
                    "\"/><text x=\"" + Text("%.1f", X(at) + 3) + "\" y=\"414\">" + Degrees(at, 'E', 'W') + "</text>\n";
        }
        for (double at = std::ceil(south / m_step) * m_step; at <= north; at += m_step) {
            aSvg += "<path class=\"grid\" d=\"M0 " + Text("%.1f", Y(at)) + "H720\"/><text x=\"3\" y=\"" +
                    Text("%.1f", Y(at) - 3) + "\">" + Degrees(at, 'N', 'S') + "</text>\n";
        }
    }

    std::string PathOf(const Json& aGeometry) const
    {
        std::string path;
        for (const Json& part : PartsOf(aGeometry)) {
            char mark = 'M';
            for (const Json& point : part.at(0)) {
                path += mark + Text("%.1f %.1f", X(Longitude(point)), Y(point.at(1).get<double>()));
                mark = 'L';
            }
            path += 'Z';
        }
        return path;
    }

    /// Names of many shapes would hide one another; they stand in the titles all the same.
    void AppendLabels(std::string& aSvg) const
    {
        constexpr std::size_t MOST_LABELS = 8;
        for (std::size_t i = 0; m_shapes.size() <= MOST_LABELS && i != m_shapes.size(); ++i) {
            double x = 0.0;
            double y = 0.0;
            double count = 0.0;
            for (const Json& part : PartsOf(m_shapes[i].geometry)) {
                for (std::size_t point = 1; point != part.at(0).size(); ++point) {
                    x += X(Longitude(part.at(0)[point]));
                    y += Y(part.at(0)[point].at(1).get<double>());
                    ++count;
                }
            }
            aSvg += "<text class=\"label\" x=\"" + Text("%.1f", x / count) + "\" y=\"" + Text("%.1f", y / count + 4) +
                    "\">" + Html(m_shapes[i].label) + "</text>\n";
        }
    }

    const std::vector<MapShape>& m_shapes;
    bool m_isAround180 = false;
    double m_west = 1000.0;
    double m_east = -1000.0;
    double m_south = 1000.0;
    double m_north = -1000.0;
    double m_narrowing = 1.0;
    double m_scale = 1.0;
    double m_step = 1.0;
    std::pair<double, double> m_centre;
};

}  // namespace

std::string MapOf(const std::vector<MapShape>& aShapes)
{
    return aShapes.empty() ? std::string() : Map(aShapes).Svg();
}

}  // namespace OrmoNitf
