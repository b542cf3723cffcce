#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreAIPBCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag             width need      form     values  unit label
    Field("PATCH_WIDTH",     5, Required, Real,    "",     "", "Patch Width",
          "Width of the patch; the source states no unit."),
    Field("U_HAT_X",        16, Required, Real,    "",     "", "U-hat Semi-major Axis Unit Vector, x Component",
          "The x component of the unit vector along the semi-major axis."),
    Field("U_HAT_Y",        16, Required, Real,    "",     "", "U-hat Semi-major Axis Unit Vector, y Component",
          "The y component of the unit vector along the semi-major axis."),
    Field("U_HAT_Z",        16, Required, Real,    "",     "", "U-hat Semi-major Axis Unit Vector, z Component",
          "The z component of the unit vector along the semi-major axis."),
    Field("V_HAT_X",        16, Required, Real,    "",     "", "V-hat Semi-minor Axis Unit Vector, x Component",
          "The x component of the unit vector along the semi-minor axis."),
    Field("V_HAT_Y",        16, Required, Real,    "",     "", "V-hat Semi-minor Axis Unit Vector, y Component",
          "The y component of the unit vector along the semi-minor axis."),
    Field("V_HAT_Z",        16, Required, Real,    "",     "", "V-hat Semi-minor Axis Unit Vector, z Component",
          "The z component of the unit vector along the semi-minor axis."),
    Field("N_HAT_X",        16, Required, Real,    "",     "", "N-hat Normal Unit Vector, x Component",
          "The x component of the unit vector along the normal of the two axes."),
    Field("N_HAT_Y",        16, Required, Real,    "",     "", "N-hat Normal Unit Vector, y Component",
          "The y component of the unit vector along the normal of the two axes."),
    Field("N_HAT_Z",        16, Required, Real,    "",     "", "N-hat Normal Unit Vector, z Component",
          "The z component of the unit vector along the normal of the two axes."),
    Field("DEP_ANGLE",       7, Required, Real,    "",     "", "Cross-track Depression Angle",
          "Depression angle across the track."),
    Field("CT_TRACK_RANGE", 10, Required, Real,    "",     "", "Cross-track Range",
          "Range across the track."),
    Field("ETA_0",          16, Required, Real,    "",     "", "Leading Edge Parameter",
          "Value of the curve parameter eta at the leading edge of the patch."),
    Field("ETA_1",          16, Required, Real,    "",     "", "Trailing Edge Parameter",
          "Value of the curve parameter eta at the trailing edge of the patch."),
    Field("X_IMG_U",         9, Required, Real,    "",     "", "Image Coordinates x Direction, u Component",
          "The u component of the x direction of the image coordinates."),
    Field("X_IMG_V",         9, Required, Real,    "",     "", "Image Coordinates x Direction, v Component",
          "The v component of the x direction of the image coordinates."),
    Field("X_IMG_N",         9, Required, Real,    "",     "", "Image Coordinates x Direction, n Component",
          "The n component of the x direction of the image coordinates."),
    Field("Y_IMG_U",         9, Required, Real,    "",     "", "Image Coordinates y Direction, u Component",
          "The u component of the y direction of the image coordinates."),
    Field("Y_IMG_V",         9, Required, Real,    "",     "", "Image Coordinates y Direction, v Component",
          "The v component of the y direction of the image coordinates."),
    Field("Y_IMG_N",         9, Required, Real,    "",     "", "Image Coordinates y Direction, n Component",
          "The n component of the y direction of the image coordinates."),
    Field("Z_IMG_U",         9, Required, Real,    "",     "", "Image Coordinates z Direction, u Component",
          "The u component of the z direction of the image coordinates."),
    Field("Z_IMG_V",         9, Required, Real,    "",     "", "Image Coordinates z Direction, v Component",
          "The v component of the z direction of the image coordinates."),
    Field("Z_IMG_N",         9, Required, Real,    "",     "", "Image Coordinates z Direction, n Component",
          "The n component of the z direction of the image coordinates."),
    Field("CT_HAT_X",        9, Required, Real,    "",     "", "Cross-track Unit Vector, x Component",
          "The x component of the unit vector across the track."),
    Field("CT_HAT_Y",        9, Required, Real,    "",     "", "Cross-track Unit Vector, y Component",
          "The y component of the unit vector across the track."),
    Field("CT_HAT_Z",        9, Required, Real,    "",     "", "Cross-track Unit Vector, z Component",
          "The z component of the unit vector across the track."),
    Field("SCL_PT_U",       13, Required, Real,    "",     "", "Scene Center Line Point, u Component",
          "The u component of a point on the scene centre line."),
    Field("SCL_PT_V",       13, Required, Real,    "",     "", "Scene Center Line Point, v Component",
          "The v component of a point on the scene centre line."),
    Field("SCL_PT_N",       13, Required, Real,    "",     "", "Scene Center Line Point, n Component",
          "The n component of a point on the scene centre line."),
    Field("SIGMA_SM",       13, Required, Real,    "",     "", "Semi-major Axis Length",
          "Length of the semi-major axis."),
    Field("SIGMA_SN",       13, Required, Real,    "",     "", "Semi-minor Axis Length",
          "Length of the semi-minor axis."),
    Field("S_OFF",          10, Required, Real,    "",     "", "Small Circle Origin Offset",
          "Offset of the small-circle origin along the V axis."),
    Field("RN_OFFSET",      12, Required, Real,    "",     "", "Small Circle Plane Offset",
          "Distance between the small-circle plane and the great-circle plane."),
    Field("CRP_RANGE",      11, Required, Real,    "",     "", "Range to CRP",
          "Range to the central reference point."),
    Field("REF_DEP_ANG",     7, Required, Real,    "",     "", "Scene Reference Depression Angle",
          "Depression angle at the scene reference."),
    Field("REF_ASP_ANG",     9, Required, Real,    "",     "", "Scene Reference Aspect Angle",
          "Aspect angle at the scene reference."),
    Field("N_SKIP_AZ",       1, Required, Integer, "0..9", "", "N-skip Azimuth",
          "Skip number in azimuth."),
    Field("N_SKIP_RANGE",    1, Required, Integer, "0..9", "", "N-skip Range",
          "Skip number in range."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 422);

}  // namespace

const Detail::TreLayout& TreAIPBCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "AIPBCA",
        .name = "AIP Radar Patch Geometry",
        .length = 422,
        .lengthRule = "",
        .placement = "image subheader (assumed, as for the other radar extensions; not stated)",
        .purpose =
            "Geometry of one patch of a radar image: axes, ranges and angles with which places in the image can be "
            "measured.",
        .sources = "NITRO plug-in table; SarPy TRE definition (same lineage as the NITRO table)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes =
            "No source states ranges, units, the long name or whether the extension is registered; registered is "
            "assumed."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
