#include "isd/detail/PropertyTable.h"

#include "foundation/PropertyKey.h"

#include <algorithm>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Keys = PropertyKey;
using enum PropertySet;
using enum PropertyForm;

constexpr PropertySource File(const char* aField) noexcept
{
    return {PropertyPlace::File, "", aField};
}
constexpr PropertySource Image(const char* aField) noexcept
{
    return {PropertyPlace::Image, "", aField};
}
constexpr PropertySource FileTre(const char* aTag, const char* aField) noexcept
{
    return {PropertyPlace::FileTre, aTag, aField};
}
constexpr PropertySource ImageTre(const char* aTag, const char* aField) noexcept
{
    return {PropertyPlace::ImageTre, aTag, aField};
}
constexpr PropertySource AnyTre(const char* aTag, const char* aField) noexcept
{
    return {PropertyPlace::AnyTre, aTag, aField};
}
constexpr PropertySource Composed(const char* aWhat, ComposeProperty aCompose) noexcept
{
    return {PropertyPlace::Composed, "", aWhat, aCompose};
}

template<typename... Sources>
constexpr PropertyRow Row(const char* aKey, PropertySet aSet, PropertyForm aForm, const char* aExplanation,
                          Sources... aSources) noexcept
{
    static_assert(sizeof...(Sources) <= PropertyRow::MOST_SOURCES);
    return {aKey, aSet, aForm, aExplanation, {aSources...}};
}

constexpr const char* OF_MODEL = "Property of a sensor model; no file answers it.";
constexpr const char* OF_HOST = "Setting of the host; no file answers it.";
constexpr const char* OF_TERRAIN = "Property of the host's terrain model; no file answers it.";

// clang-format off
constexpr PropertyRow ROWS[] = {
    Row(Keys::ACQUISITION_DATE,            Identity, Date,    "Date and time at which the image was taken, in the form of the field.",
        Image("IDATIM").ForHosts(), ImageTre("AIMIDB", "ACQUISITION_DATE"), ImageTre("STDIDC", "ACQUISITION_DATE"), FileTre("CSDIDA", "TIME")),
    Row(Keys::ANGLE_TO_NORTH,              Sensor,   Degrees, "Angle from the rows of the image to true north, clockwise.",
        ImageTre("CSEXRA", "ANGLE_TO_NORTH").ForHosts(), ImageTre("USE00A", "ANGLE_TO_NORTH").ForHosts(), ImageTre("CSEXRB", "ANGLE_TO_NORTH"),
        ImageTre("EXOPTA", "ANGLE_TO_NORTH"), ImageTre("EXPLTB", "ANGLE_TO_NORTH"), ImageTre("EXPLTA", "ANGLE_TO_NORTH")),
    Row(Keys::CIRCULAR_ERROR,              Sensor,   Feet,    "Circular error of positions on the ground, 90 %.",
        ImageTre("CSEXRA", "CIRCL_ERR").ForHosts(), ImageTre("CSEXRB", "CIRCL_ERR")),
    Row(Keys::CSMXFORM_SYS_PROPERTIES,     Sensor,   Text,    OF_HOST),
    Row(Keys::DESIRED_SENSOR_MODELS,       Sensor,   Text,    OF_HOST),
    Row(Keys::GEODATA_XFORM,               Sensor,   Text,    OF_HOST),
    Row(Keys::IMAGE_ACCESS_TARGET_PROFILE, Sensor,   Text,    OF_HOST),
    Row(Keys::IMAGE_CATEGORY,              Identity, Text,    "Category of the image, such as VIS, SAR or MAP.",
        Image("ICAT").ForHosts()),
    Row(Keys::IMAGE_FILE_NAME,             Identity, Text,    "Path of the file.",
        Composed("the path that the file was opened by", ComposeFileName)),
    Row(Keys::IMAGE_IDENTIFIER,            Identity, Text,    "Identifiers of the image.",
        Composed("image subheader fields IID1 and IID2, in NITF 2.0 IID", ComposeImageIdentifier).ForHosts()),
    Row(Keys::IMAGE_REFERENCE_DATETIME,    Identity, Date,    "Date and time of the image, in the form of the field. A sensor model may know better.",
        Image("IDATIM")),
    Row(Keys::IMAGE_REPRESENTATION,        Identity, Text,    "How the bands are to be shown, such as MONO or RGB.",
        Image("IREP").ForHosts()),
    Row(Keys::ITERATIVE_PRECISION,         Sensor,   Text,    OF_HOST),
    Row(Keys::LINEAR_ERROR,                Sensor,   Feet,    "Linear error of heights, 90 %.",
        ImageTre("CSEXRA", "LINEAR_ERR").ForHosts(), ImageTre("CSEXRB", "LINEAR_ERR")),
    Row(Keys::METADATA_SUMMARY,            Texts,    Text,    "A summary of the file for a person, some lines long.",
        Composed("the summary of the image support data", ComposeSummary)),
    Row(Keys::NITF_CLASSIFICATION,         Identity, Text,    "Highest security classification of the file and its segments, in one letter.",
        Composed("the highest of the classification fields of all headers", ComposeClassification)),
    Row(Keys::NITF_FILE_METADATA,          Texts,    Text,    "The file header with its TREs as an XML element.",
        Composed("the XML element of the file header", ComposeFileMetadata)),
    Row(Keys::NITF_VERSION,                Identity, Text,    "Name and version of the file's format, such as NITF02.10.",
        Composed("file header fields FHDR and FVER", ComposeVersion)),
    Row(Keys::OSTAID,                      Identity, Text,    "The station that made the file.",
        File("OSTAID")),
    Row(Keys::ONAME,                       Identity, Text,    "Who is responsible for the file.",
        File("ONAME")),
    Row(Keys::OPHONE,                      Identity, Text,    "The telephone number of the same.",
        File("OPHONE")),
    Row(Keys::PERCENT_CLOUD_COVER,         Sensor,   Percent, "How much of the image clouds cover.",
        AnyTre("PIAIMC", "CLOUDCVR").ForHosts(), AnyTre("PIAIMB", "CLOUDCVR"), ImageTre("CSEXRB", "CLOUD_COVER")),
    Row(Keys::PLATFORM_IDENTIFICATION,     Sensor,   Text,    "Satellite, aircraft or other carrier of the sensor.",
        FileTre("CSDIDA", "PLATFORM CODE").ForHosts(), ImageTre("CSEXRB", "PLATFORM_ID"), ImageTre("SENSRB", "PLATFORM"),
        ImageTre("ACFTB", "AC_TAIL_NO"), ImageTre("ACFTA", "AC_TAIL_NO")),
    Row(Keys::POINTING_ERR_COVARIANCE,     Sensor,   Text,    OF_MODEL),
    Row(Keys::PRODUCT_ID,                  Identity, Text,    "Code of the product and what it means.",
        Composed("file TRE CSDIDA field PRODUCT_ID and what its two letters mean", ComposeProductId).ForHosts()),
    Row(Keys::SECONDARY_TARGETING_INFO,    Sensor,   Text,    OF_HOST),
    Row(Keys::SENSOR,                      Sensor,   Text,    "The sensor, as its maker calls it.",
        ImageTre("CSEXRA", "SENSOR").ForHosts(), ImageTre("SENSRB", "SENSOR"), ImageTre("SENSRA", "SENSOR_MODEL")),
    Row(Keys::SENSOR_CATEGORY,             Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_ID,                   Sensor,   Text,    "Code of the sensor.",
        FileTre("CSDIDA", "SENSOR_ID").ForHosts(), ImageTre("CSEXRB", "SENSOR_ID"), ImageTre("ACFTB", "SENSOR_ID"), ImageTre("ACFTA", "SENSOR_ID")),
    Row(Keys::SENSOR_MODE,                 Sensor,   Text,    "How the sensor was used.",
        AnyTre("PIAIMC", "SENSMODE").ForHosts(), AnyTre("PIAIMB", "SENSMODE"), ImageTre("SENSRB", "MODE"), ImageTre("EXPLTB", "MODE"),
        ImageTre("EXPLTA", "MODE")),
    Row(Keys::SENSOR_MODEL_CATEGORY,       Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_METADATA_1,     Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_METADATA_2,     Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_NAME,           Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_PARAMETERS,     Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_PEDIGREE,       Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_MODEL_STATE,          Sensor,   Text,    OF_MODEL),
    Row(Keys::SENSOR_NAME,                 Sensor,   Text,    "Registered name of the sensor.",
        AnyTre("PIAIMC", "SENSNAME").ForHosts(), AnyTre("PIAIMB", "SENSNAME"), ImageTre("SENSRB", "SENSOR")),
    Row(Keys::SENSOR_PLATFORM_TRAJECTORY_ID, Sensor, Text,    OF_MODEL),
    Row(Keys::SENSOR_TYPE,                 Sensor,   Text,    "Kind of the sensor, as the code of its TRE says.",
        ImageTre("ACFTB", "SENSOR_ID_TYPE"), ImageTre("CSEXRB", "SENSOR_TYPE")),
    Row(Keys::SUN_AZIMUTH_ANGLE,           Sensor,   Degrees, "Direction to the sun, clockwise from true north.",
        ImageTre("CSEXRA", "SUN_AZIMUTH").ForHosts(), ImageTre("USE00A", "SUN_AZ").ForHosts(), ImageTre("CSEXRB", "SUN_AZIMUTH"),
        ImageTre("EXOPTA", "SUN_AZ"), ImageTre("ILLUMB", "SUN_AZIMUTH_1")),
    Row(Keys::SUN_ELEVATION_ANGLE,         Sensor,   Degrees, "Height of the sun above the horizon; below it negative.",
        ImageTre("CSEXRA", "SUN_ELEVATION").ForHosts(), ImageTre("USE00A", "SUN_EL").ForHosts(), ImageTre("CSEXRB", "SUN_ELEVATION"),
        ImageTre("EXOPTA", "SUN_EL"), ImageTre("ILLUMB", "SUN_ELEV_1")),
    Row(Keys::TERRAIN_MODEL,               Sensor,   Text,    OF_TERRAIN),
    Row(Keys::TERRAIN_MODEL_DATA_SOURCE,   Sensor,   Text,    OF_TERRAIN),
    Row(Keys::TERRAIN_MODEL_NAME,          Sensor,   Text,    OF_TERRAIN),
    Row(Keys::TERRAIN_MODEL_TYPE,          Sensor,   Text,    OF_TERRAIN),
};
// clang-format on

/// Rows are looked up by halves.
constexpr bool IsInOrder() noexcept
{
    for (std::size_t i = 1; i < std::size(ROWS); ++i) {
        if (std::string_view(ROWS[i - 1].key) >= std::string_view(ROWS[i].key)) {
            return false;
        }
    }
    return true;
}
static_assert(IsInOrder());

}  // namespace

std::string PropertySource::Text() const
{
    const std::string named = (*tre == '\0' ? std::string() : std::string(tre) + " ") + "field " + field;
    switch (place) {
        case PropertyPlace::File:
            return "file header " + named;
        case PropertyPlace::Image:
            return "image subheader " + named;
        case PropertyPlace::FileTre:
            return "file TRE " + named;
        case PropertyPlace::ImageTre:
            return "image TRE " + named;
        case PropertyPlace::AnyTre:
            return "any TRE " + named;
        case PropertyPlace::Composed:
            return field;
        default:
            return {};
    }
}

std::span<const PropertySource> PropertyRow::Sources() const noexcept
{
    const auto end = std::find_if(sources.begin(), sources.end(),
                                  [](const PropertySource& aSource) { return aSource.place == PropertyPlace::None; });
    return {sources.data(), static_cast<std::size_t>(end - sources.begin())};
}

bool PropertyRow::IsOfImage() const noexcept
{
    const auto list = Sources();
    return std::any_of(list.begin(), list.end(), [](const PropertySource& aSource) {
        return (aSource.place != PropertyPlace::File && aSource.place != PropertyPlace::FileTre &&
                aSource.place != PropertyPlace::Composed) ||
               aSource.compose == ComposeImageIdentifier;
    });
}

std::span<const PropertyRow> PropertyRows() noexcept
{
    return ROWS;
}

const PropertyRow* FindPropertyRow(std::string_view aKey) noexcept
{
    const auto* const row = std::lower_bound(
        std::begin(ROWS), std::end(ROWS), aKey,
        [](const PropertyRow& aRow, std::string_view aWanted) { return std::string_view(aRow.key) < aWanted; });
    return row != std::end(ROWS) && aKey == row->key ? row : nullptr;
}

}  // namespace ORMO::SensorModel::CSM::Detail
