#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePATCHA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need           form     values                unit      label
    Field("PAT_NO",        4, Required,      Integer, "0001..0999",         "",       "Patch Number",
          "Number of the patch that this extension describes."),
    Field("LAST_PAT_FLAG", 1, Required,      Integer, "0=not the last patch|1=last patch", "", "Last Patch of Search Scene",
          "Tells whether this is the last patch of a search scene."),
    Field("LNSTRT",        7, Required,      Integer, "0000001..9999999",   "lines",  "Patch Start Line Number",
          "Image line at which the patch begins."),
    Field("LNSTOP",        7, Required,      Integer, "0000020..9999999",   "lines",  "Patch End Line Number",
          "Image line at which the patch ends."),
    Field("AZL",           5, Required,      Integer, "00020..99999",       "lines",  "Number of Azimuth Lines",
          "Number of azimuth lines in the patch."),
    Field("NVL",           5, RequiredBlank, Integer, "00020..99999",       "lines",  "Number of Valid Azimuth Lines",
          "Number of azimuth lines of the patch that hold valid data."),
    Field("FVL",           3, RequiredBlank, Integer, "001..681",           "lines",  "First Valid Azimuth Line",
          "First azimuth line of the patch that holds valid data."),
    Field("NPIXEL",        5, Required,      Integer, "00001..99999",       "pixels", "Number of Pixels per Azimuth Line",
          "Number of pixels in each azimuth line."),
    Field("FVPIX",         5, Required,      Integer, "00001..99999",       "pixels", "First Valid Pixel Index",
          "Index of the first valid pixel of an azimuth line."),
    Field("FRAME",         3, RequiredBlank, Integer, "001..512",           "",       "Spot Frame Number",
          "Frame number of a spot collection; blank for search scenes."),
    Field("UTC",           8, Required,      Real,    "00000.00..86399.99", "s",      "Coordinated Universal Time",
          "Time of day of the collection, in seconds after midnight."),
    Field("SHEAD",         7, Required,      Real,    "000.000..359.999",   "deg",    "Scene Heading",
          "Heading of the scene centre line, clockwise from north."),
    Field("GRAVITY",       7, RequiredBlank, Real,    "31.0000..33.9999",   "ft/s^2", "Local Gravity",
          "Gravity at the place of the collection."),
    Field("INS_V_NC",      5, Required,      Integer, "-9999..+9999",       "ft/s",   "INS Platform Velocity, North",
          "North component of the platform velocity from the inertial navigation system."),
    Field("INS_V_EC",      5, Required,      Integer, "-9999..+9999",       "ft/s",   "INS Platform Velocity, East",
          "East component of the platform velocity from the inertial navigation system."),
    Field("INS_V_DC",      5, Required,      Integer, "-9999..+9999",       "ft/s",   "INS Platform Velocity, Down",
          "Down component of the platform velocity from the inertial navigation system."),
    Field("OFFLAT",        8, RequiredBlank, Real,    "-80.0000..+80.0000", "arcsec", "Geodetic Latitude Offset",
          "Geodetic latitude offset that belongs to the platform position."),
    Field("OFFLONG",       8, RequiredBlank, Real,    "-80.0000..+80.0000", "arcsec", "Geodetic Longitude Offset",
          "Geodetic longitude offset that belongs to the platform position."),
    Field("TRACK",         3, Required,      Integer, "000..359",           "deg",    "Track Heading",
          "Heading of the aircraft ground track."),
    Field("GSWEEP",        6, Required,      Real,    "000.00..120.00",     "deg",    "Ground Sweep Angle",
          "Angle on the ground that the radar beam swept during the patch."),
    Field("SHEAR",         8, RequiredBlank, Real,    "0.850000..1.000000", "",       "Patch Shear Factor",
          "Factor by which the patch is sheared."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 115);

// The older layout.
// clang-format off
constexpr FieldRow OLDER_ROWS[] = {
    //    tag            width need           form     values                      unit     label
    Field("PAT_NO",        4, Required,      Integer, "0001..0999",               "",      "Patch Number",
          "Number of the patch that this extension describes."),
    Field("LAST_PAT_FLAG", 1, Required,      Integer, "0=not the last patch|1=last patch", "",      "Last Patch of Search Scene",
          "Tells whether this is the last patch of a search scene."),
    Field("LNSTRT",        7, Required,      Integer, "0000001..9999999",         "lines", "Patch Start Line Number",
          "Image line at which the patch begins."),
    Field("LNSTOP",        7, Required,      Integer, "0000020..9999999",         "lines", "Patch End Line Number",
          "Image line at which the patch ends."),
    Field("AZL",           5, Required,      Integer, "00020..99999",             "lines", "Number of Azimuth Lines",
          "Number of azimuth lines in the patch."),
    Field("NVL",           5, RequiredBlank, Integer, "00020..99999|blank",       "lines", "Number of Valid Azimuth Lines",
          "Number of azimuth lines of the patch that hold valid data."),
    Field("FVL",           3, RequiredBlank, Integer, "001..681|blank",           "lines", "First Valid Azimuth Line",
          "First azimuth line of the patch that holds valid data."),
    Field("NPIXEL",        5, Required,      Integer, "00170..08160",             "",      "Number of Pixels per Azimuth Line",
          "Number of pixels in each azimuth line."),
    Field("FVPIX",         5, Required,      Integer, "00001..07889",             "",      "First Valid Pixel Index",
          "Index of the first valid pixel of an azimuth line."),
    Field("FRAME",         3, RequiredBlank, Integer, "001..512|blank",           "",      "Spot Frame Number",
          "Frame number of a spot collection; blank for search scenes."),
    Field("GMT",           8, Required,      Real,    "00000.00..86399.99",       "s",     "Greenwich Mean Time",
          "Time of day of the collection, in seconds after midnight."),
    Field("SHEAD",         7, Required,      Real,    "000.000..359.999",         "deg",   "Scene Heading",
          "Heading of the scene centre line, clockwise from north."),
    Field("GSWEEP",        6, Required,      Real,    "000.00..120.00",           "deg",   "Ground Sweep Angle",
          "Angle on the ground that the radar beam swept during the patch."),
    Field("SHEAR",         8, RequiredBlank, Real,    "0.850000..1.000000|blank", "",      "Patch Shear Factor",
          "Factor by which the patch is sheared."),
};
// clang-format on
constexpr auto OLDER_TABLE = MakeTable(OLDER_ROWS);
static_assert(OLDER_TABLE.wellFormed);
static_assert(FixedWidth(OLDER_ROWS) == 74);

}  // namespace

const Detail::TreLayout& TrePATCHA::Layout()
{
    static constexpr Detail::TreLayout OLDER{
        .tag = "PATCHA",
        .name = "Patch Information",
        .length = 74,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Describes one processing patch of a radar image: its lines and pixels, time and heading, in an older "
            "layout without gravity, platform velocity, position offsets and track; chosen when the extension is 74 "
            "bytes long.",
        .sources = "NITRO plug-in table (descrip_00074); SarPy TRE definition (same lineage as the NITRO table)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = OLDER_TABLE.View(),
        .notes = "The time is named GMT here and UTC in the later layout, from which the ranges are taken over."};
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PATCHA",
        .name = "Patch Information",
        .length = 115,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Describes one processing patch of a radar image: its lines and pixels, time, heading and platform "
            "velocity. Superseded by PATCHB.",
        .sources = "STDI-0002 version 2.1; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .other = &OLDER};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
