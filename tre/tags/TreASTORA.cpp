#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreASTORA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto ANGLE = "-9.9999999999999..+9.9999999999999";
constexpr auto SPOT_POSITION = "-99999999.999..+99999999.999|blank=swath scene";
constexpr auto SPOT_DIRECTION = "-1.0000000000000..+1.0000000000000|blank=swath scene";
constexpr auto SPOT_DISTANCE = "-99999.99999..+99999.99999|blank=swath scene";
constexpr auto SWATH_DIRECTION = "-1.0000000000000..+1.0000000000000|blank=spot scene";
constexpr auto SWATH_ANGLE = "-9.9999999999999..+9.9999999999999|blank=spot scene";
constexpr auto SWATH_LENGTH = "-99999999.999..+99999999.999|blank=spot scene";
constexpr auto SWATH_RADIUS = "0000000.00000000..9999999.99999999|blank=spot scene";
constexpr auto SWATH_POSITION = "-999999.99999999..+999999.99999999|blank=spot scene";
constexpr auto SWATH_CONE = "0.00000000000000..9.99999999999999|blank=spot scene";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form     values                         unit      label
    Field("IMG_TOTAL_ROWS",    6, Required,      Integer, "000000..999999",              "pixels", "Number of Rows in Full Image Product",
          "Rows of the whole image product, which may be spread over several files."),
    Field("IMG_TOTAL_COLS",    6, Required,      Integer, "000000..999999",              "pixels", "Number of Columns in Full Image Product",
          "Columns of the whole image product, which may be spread over several files."),
    Field("IMG_INDEX_ROW",     6, Required,      Integer, "000000..999999",              "pixels", "Tile Upper Left Row",
          "Row of the upper left corner of this tile in the grid of the whole product."),
    Field("IMG_INDEX_COL",     6, Required,      Integer, "000000..999999",              "pixels", "Tile Upper Left Column",
          "Column of the upper left corner of this tile in the grid of the whole product."),
    Field("GEOID_OFFSET",      7, Required,      Real,    "-999.99..+999.99",            "ft",     "Geoid Offset",
          "Distance from the reference ellipsoid to the mean sea level geoid at the reference point."),
    Field("ALPHA_0",          16, Required,      Real,    ANGLE,                         "rad",    "Cone Angle",
          "Cone angle of the radar collection."),
    Field("K_L",               2, Required,      Integer, "1=left|01=left|+1=left|-1=right", "", "Left/Right Look Flag",
          "Side of the aircraft to which the radar looks."),
    Field("C_M",              15, Required,      Real,    "000000000.00000..999999999.99999", "m/s", "Speed of Light",
          "Speed of light corrected for the refraction of the atmosphere."),
    Field("AC_ROLL",          16, Required,      Real,    ANGLE,                         "rad",    "Nominal Aircraft Roll",
          "Nominal roll angle of the aircraft."),
    Field("AC_PITCH",         16, Required,      Real,    ANGLE,                         "rad",    "Nominal Aircraft Pitch",
          "Nominal pitch angle of the aircraft."),
    Field("AC_YAW",           16, Required,      Real,    ANGLE,                         "rad",    "Nominal Aircraft Yaw",
          "Nominal yaw angle of the aircraft."),
    Field("AC_TRACK_HEADING", 16, Required,      Real,    ANGLE,                         "rad",    "Nominal Aircraft Track Heading",
          "Nominal heading of the aircraft ground track."),
    Field("AP_ORIGIN_X",      13, RequiredBlank, Real,    SPOT_POSITION,                 "m",      "Synthetic Aperture Origin X",
          "Earth-centred X coordinate of the origin point of the synthetic aperture."),
    Field("AP_ORIGIN_Y",      13, RequiredBlank, Real,    SPOT_POSITION,                 "m",      "Synthetic Aperture Origin Y",
          "Earth-centred Y coordinate of the origin point of the synthetic aperture."),
    Field("AP_ORIGIN_Z",      13, RequiredBlank, Real,    SPOT_POSITION,                 "m",      "Synthetic Aperture Origin Z",
          "Earth-centred Z coordinate of the origin point of the synthetic aperture."),
    Field("AP_DIR_X",         16, RequiredBlank, Real,    SPOT_DIRECTION,                "",       "Synthetic Aperture Direction X",
          "Earth-centred X component of the unit vector along the synthetic aperture."),
    Field("AP_DIR_Y",         16, RequiredBlank, Real,    SPOT_DIRECTION,                "",       "Synthetic Aperture Direction Y",
          "Earth-centred Y component of the unit vector along the synthetic aperture."),
    Field("AP_DIR_Z",         16, RequiredBlank, Real,    SPOT_DIRECTION,                "",       "Synthetic Aperture Direction Z",
          "Earth-centred Z component of the unit vector along the synthetic aperture."),
    Field("X_AP_START",       12, RequiredBlank, Real,    SPOT_DISTANCE,                 "m",      "Synthetic Aperture Start",
          "Start point of the synthetic aperture, measured from its origin along its direction."),
    Field("X_AP_END",         12, RequiredBlank, Real,    SPOT_DISTANCE,                 "m",      "Synthetic Aperture End",
          "End point of the synthetic aperture, measured from its origin along its direction."),
    Field("SS_ROW_SHIFT",      4, RequiredBlank, Integer, "-999..999|blank=swath scene", "pixels", "Spot Stitching Row Shift",
          "Rows by which a sub-spot was moved down when the spot was stitched together."),
    Field("SS_COL_SHIFT",      4, RequiredBlank, Integer, "-999..999|blank=swath scene", "pixels", "Spot Stitching Column Shift",
          "Columns by which a sub-spot was moved right when the spot was stitched together."),
    Field("U_HAT_X",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "U-hat Unit Vector X",
          "Earth-centred X component of the unit vector along the semi-major axis."),
    Field("U_HAT_Y",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "U-hat Unit Vector Y",
          "Earth-centred Y component of the unit vector along the semi-major axis."),
    Field("U_HAT_Z",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "U-hat Unit Vector Z",
          "Earth-centred Z component of the unit vector along the semi-major axis."),
    Field("V_HAT_X",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "V-hat Unit Vector X",
          "Earth-centred X component of the unit vector along the semi-minor axis."),
    Field("V_HAT_Y",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "V-hat Unit Vector Y",
          "Earth-centred Y component of the unit vector along the semi-minor axis."),
    Field("V_HAT_Z",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "V-hat Unit Vector Z",
          "Earth-centred Z component of the unit vector along the semi-minor axis."),
    Field("N_HAT_X",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "N-hat Unit Vector X",
          "Earth-centred X component of the unit vector along the normal of the U and V axes."),
    Field("N_HAT_Y",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "N-hat Unit Vector Y",
          "Earth-centred Y component of the unit vector along the normal of the U and V axes."),
    Field("N_HAT_Z",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "N-hat Unit Vector Z",
          "Earth-centred Z component of the unit vector along the normal of the U and V axes."),
    Field("ETA_0",            16, RequiredBlank, Real,    SWATH_ANGLE,                   "rad",    "Leading Edge Parameter",
          "Value of the curve parameter eta at the leading edge of the patch."),
    Field("SIGMA_SM",         13, RequiredBlank, Real,    SWATH_LENGTH,                  "m",      "Semi-major Axis Length",
          "Length of the semi-major axis of the fitted ellipse."),
    Field("SIGMA_SN",         13, RequiredBlank, Real,    SWATH_LENGTH,                  "m",      "Semi-minor Axis Length",
          "Length of the semi-minor axis of the fitted ellipse."),
    Field("S_OFF",            10, RequiredBlank, Real,    "-9999.9999..+9999.9999|blank=spot scene", "m", "Small Circle Origin Offset",
          "Offset of the small-circle origin along the V axis."),
    Field("RN_OFFSET",        12, RequiredBlank, Real,    "-999999.9999..+999999.9999|blank=spot scene", "m", "Small Circle Plane Offset",
          "Distance between the small-circle plane and the great-circle plane."),
    Field("R_SCL",            16, RequiredBlank, Real,    SWATH_RADIUS,                  "m",      "Scene Center Line Radius of Curvature",
          "Radius of curvature of the scene centre line."),
    Field("R_NAV",            16, RequiredBlank, Real,    SWATH_RADIUS,                  "m",      "Flight Track Radius of Curvature",
          "Radius of curvature of the nominal flight track."),
    Field("R_SC_EXACT",       16, RequiredBlank, Real,
          "000000.000000000..999999.999999999|blank=spot scene",
          "m", "Cross-track Offset to Scene Center Line",
          "Distance across track from the flight path to the scene centre line."),
    Field("C_SC_X",           16, RequiredBlank, Real,    SWATH_POSITION,                "m",      "Scene Center Line Circle Center X",
          "Earth-centred X coordinate of the centre of the circle fitted to the scene centre line."),
    Field("C_SC_Y",           16, RequiredBlank, Real,    SWATH_POSITION,                "m",      "Scene Center Line Circle Center Y",
          "Earth-centred Y coordinate of the centre of the circle fitted to the scene centre line."),
    Field("C_SC_Z",           16, RequiredBlank, Real,    SWATH_POSITION,                "m",      "Scene Center Line Circle Center Z",
          "Earth-centred Z coordinate of the centre of the circle fitted to the scene centre line."),
    Field("K_HAT_X",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Radial Unit Vector X",
          "Earth-centred X component of the local radial unit vector at the leading edge of the patch."),
    Field("K_HAT_Y",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Radial Unit Vector Y",
          "Earth-centred Y component of the local radial unit vector at the leading edge of the patch."),
    Field("K_HAT_Z",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Radial Unit Vector Z",
          "Earth-centred Z component of the local radial unit vector at the leading edge of the patch."),
    Field("L_HAT_X",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Along-track Unit Vector X",
          "Earth-centred X component of the local along-track unit vector at the leading edge of the patch."),
    Field("L_HAT_Y",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Along-track Unit Vector Y",
          "Earth-centred Y component of the local along-track unit vector at the leading edge of the patch."),
    Field("L_HAT_Z",          16, RequiredBlank, Real,    SWATH_DIRECTION,               "",       "Local Along-track Unit Vector Z",
          "Earth-centred Z component of the local along-track unit vector at the leading edge of the patch."),
    Field("P_Z",              16, RequiredBlank, Real,    SWATH_POSITION,                "m",      "Navigation Circle to Center Line Distance",
          "Perpendicular distance from the navigation circle to the scene centre line circle."),
    Field("THETA_C",          16, RequiredBlank, Real,    SWATH_ANGLE,                   "rad",    "Aperture Center Angular Offset",
          "Angle from the target to the centre of the aperture."),
    Field("ALPHA_SL",         16, RequiredBlank, Real,    SWATH_CONE,                    "",       "Tangent Cone Apex Parameter",
          "Parameter that places the apex of the tangent cone."),
    Field("SIGMA_TC",         16, RequiredBlank, Real,    SWATH_CONE,                    "",       "Tangent Cone Scale Parameter",
          "Scale parameter of the tangent cone."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 711);

}  // namespace

const Detail::TreLayout& TreASTORA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ASTORA",
        .name = "ASTOR Program Radar Data Extension TRE",
        .length = 711,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Radar collection geometry of the ASTOR program for spot and swath scenes, so that users can "
            "measure in the images. Fields of the other scene kind are filled with spaces.",
        .sources =
            "STDI-0002 Volume 1 Appendix AQ (2022-04); NITRO plug-in table; a public Kaitai Struct description "
            "of ASTORA; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
