#include "tools/CatalogueSink.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <string_view>
#include <utility>

namespace OrmoNitf::Catalogue {

namespace {

/// A path as the URL of a file; all that a URL does not carry as it is, byte by byte.
std::string UrlOf(const std::string& aPath)
{
    constexpr std::string_view HEX = "0123456789ABCDEF";
    constexpr std::string_view PLAIN = "-._~/";
    std::string url = "file://";
    for (const char character : aPath) {
        const auto byte = static_cast<unsigned char>(character);
        if (std::isalnum(byte) != 0 || PLAIN.find(character) != std::string_view::npos) {
            url += character;
        } else {
            url += {'%', HEX[byte >> 4U], HEX[byte & 0x0FU]};
        }
    }
    return url;
}

/// Names an image for good: FNV-1a of the path, so that equal names in other directories differ.
std::string IdOf(const std::string& aPath, const Json& aImage)
{
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char character : aPath) {
        hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3U;
    }
    std::string name = aPath.substr(aPath.rfind('/') + 1);
    for (char& character : name) {
        const auto byte = static_cast<unsigned char>(character);
        character = std::isalnum(byte) != 0 || character == '.' || character == '_' ? character : '-';
    }
    std::array<char, 20> digits{};
    std::snprintf(digits.data(), digits.size(), "%016llx", static_cast<unsigned long long>(hash));
    return name + '-' + digits.data() + "-image" + aImage.at("image").dump();
}

/// The first and last second of a date that may be known in part only: 2000-06-02T19:23:21Z, 2000-06-02, 2000.
std::pair<std::string, std::string> RangeOf(const std::string& aDate)
{
    std::array<int, 6> first{0, 1, 1, 0, 0, 0};
    const int known = std::sscanf(aDate.c_str(), "%4d-%2d-%2dT%2d:%2d:%2dZ", &first[0], &first[1], &first[2], &first[3],
                                  &first[4], &first[5]);
    std::array<int, 6> last{first[0], known > 1 ? first[1] : 12, first[2], 23, 59, 59};
    if (known < 3) {
        const auto month = std::chrono::year(first[0]) / std::chrono::month(static_cast<unsigned>(last[1]));
        last[2] = static_cast<int>(static_cast<unsigned>((month / std::chrono::last).day()));
    }
    for (int i = 3; i < known; ++i) {
        last[static_cast<std::size_t>(i)] = first[static_cast<std::size_t>(i)];
    }
    const auto text = [](const std::array<int, 6>& aParts) {
        std::array<char, 80> written{};
        std::snprintf(written.data(), written.size(), "%04d-%02d-%02dT%02d:%02d:%02dZ", aParts[0], aParts[1], aParts[2],
                      aParts[3], aParts[4], aParts[5]);
        return std::string(written.data());
    };
    return {text(first), text(last)};
}

class Item
{
public:
    Item(const Json& aRecord, const Json& aImage) : m_record(aRecord), m_image(aImage), m_path(PathOf(aRecord)) {}

    Json Make()
    {
        m_properties = Json::object();
        AddDate();
        Add("title", m_image, "title");
        Add("created", m_record, "modified");
        Add("platform", m_image, "platform_identification");
        for (const char* const name : {"sensor_id", "sensor_name", "sensor"}) {
            if (const Json& sensor = Get(m_image, name); !sensor.is_null()) {
                m_properties["instruments"] = Json::array({sensor});
                break;
            }
        }
        Add("gsd", m_image, "gsd");
        if (Get(m_image, "rows").is_number() && Get(m_image, "columns").is_number()) {
            m_properties["proj:epsg"] = nullptr;
            m_properties["proj:shape"] = Json::array({m_image.at("rows"), m_image.at("columns")});
            m_extensions.push_back("https://stac-extensions.github.io/projection/v1.0.0/schema.json");
        }
        const bool sunIsHigh = AddWithin("view:sun_elevation", "sun_elevation_angle", -90.0, 90.0);
        if (AddWithin("view:sun_azimuth", "sun_azimuth_angle", 0.0, 360.0) || sunIsHigh) {
            m_extensions.push_back("https://stac-extensions.github.io/view/v1.0.0/schema.json");
        }
        if (AddWithin("eo:cloud_cover", "percent_cloud_cover", 0.0, 100.0)) {
            m_extensions.push_back("https://stac-extensions.github.io/eo/v1.0.0/schema.json");
        }
        Add("nitf:version", m_record, "version");
        Add("nitf:classification", m_record, "classification");
        Add("nitf:highest_classification", m_record, "highest_classification");
        Add("nitf:image_classification", m_image, "classification");
        for (const char* const name : {"image", "image_identifier", "representation", "category", "compression",
                                       "bands", "bits", "rpc", "footprint_source"}) {
            Add((std::string("nitf:") + name).c_str(), m_image, name);
        }
        Json item{{"type", "Feature"}, {"stac_version", "1.0.0"}, {"stac_extensions", m_extensions}};
        item["id"] = IdOf(m_path, m_image);
        const Json& footprint = Get(m_image, "footprint");
        item["geometry"] = footprint;
        if (!footprint.is_null()) {
            item["bbox"] =
                Json::array({m_image.at("west"), m_image.at("south"), m_image.at("east"), m_image.at("north")});
        }
        item["properties"] = m_properties;
        item["links"] = Json::array();
        item["assets"]["data"] = {{"href", UrlOf(m_path)},
                                  {"type", "application/vnd.nitf"},
                                  {"roles", Json::array({"data"})},
                                  {"file:size", m_record.at("size")}};
        return item;
    }

private:
    static const Json& Get(const Json& aRow, const char* aName)
    {
        static const Json NOTHING = nullptr;
        const auto member = aRow.find(aName);
        return member == aRow.end() ? NOTHING : *member;
    }

    void Add(const char* aProperty, const Json& aRow, const char* aName)
    {
        if (const Json& value = Get(aRow, aName); !value.is_null()) {
            m_properties[aProperty] = value;
        }
    }

    bool AddWithin(const char* aProperty, const char* aName, double aLeast, double aMost)
    {
        const Json& value = Get(m_image, aName);
        if (!value.is_number() || value.get<double>() < aLeast || value.get<double>() > aMost) {
            return false;
        }
        m_properties[aProperty] = value;
        return true;
    }

    /// An item must have a date: that of the image, else of the file, else of its last change.
    void AddDate()
    {
        const char* source = "image";
        Json date = Get(m_image, "date");
        if (date.is_null()) {
            source = "file header";
            date = Get(m_record, "date");
        }
        if (date.is_null()) {
            source = "file system";
            date = m_record.at("modified");
        }
        const auto [first, last] = RangeOf(date.get<std::string>());
        m_properties["datetime"] = first == last ? Json(first) : Json(nullptr);
        if (first != last) {
            m_properties["start_datetime"] = first;
            m_properties["end_datetime"] = last;
        }
        m_properties["nitf:datetime_source"] = source;
    }

    const Json& m_record;
    const Json& m_image;
    std::string m_path;
    Json m_properties;
    Json m_extensions = Json::array();
};

class Stac : public Sink
{
public:
    explicit Stac(std::FILE* aOut) : m_out(aOut) {}

    bool Write(const Json& aRecord, std::string& aReason) override
    {
        const auto images = aRecord.find("images");
        for (std::size_t i = 0; images != aRecord.end() && i != images->size(); ++i) {
            const std::string line = Item(aRecord, (*images)[i]).Make().dump() + '\n';
            if (std::fwrite(line.data(), 1, line.size(), m_out) != line.size()) {
                aReason = std::strerror(errno);
                return false;
            }
        }
        return true;
    }
    bool Finish(std::string& /*aReason*/) override { return true; }

private:
    std::FILE* m_out;
};

}  // namespace

std::unique_ptr<Sink> MakeStacSink(std::FILE* aOut)
{
    return std::make_unique<Stac>(aOut);
}

}  // namespace OrmoNitf::Catalogue
