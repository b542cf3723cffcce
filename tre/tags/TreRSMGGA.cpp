#include "fields/FieldWalk.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRSMGGA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

bool CountGridPoints(const WalkContext& aContext, std::uint64_t& aOut)
{
    std::uint64_t across = 0;
    std::uint64_t down = 0;
    if (!aContext.Count("NXPTS", across) || !aContext.Count("NYPTS", down)) {
        return false;
    }
    aOut = across * down;
    return true;
}

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values      unit                 label
    Field("IID",     80, RequiredBlank, Text,    "",         "",                  "Image Identifier",
          "Identifier of the original full image; blank when there is none."),
    Field("EDITION", 40, Required,      Text,    "",         "",                  "RSM Image Support Data Edition",
          "Identifier that ties together all RSM extensions of one edition of the support data of the image."),
    Field("GGRSN",    3, Required,      Integer, "001..256", "",                  "Ground-to-image Grid Row Section Number",
          "Number of the image section in the row direction to which the grid belongs."),
    Field("GGCSN",    3, Required,      Integer, "001..256", "",                  "Ground-to-image Grid Column Section Number",
          "Number of the image section in the column direction to which the grid belongs."),
    Field("GGRFEP",  21, RequiredBlank, Real,    "",         "pixels",            "Ground-to-image Grid Row Fitting Error",
          "Row error of the interpolated grid against the original sensor model; blank when not known."),
    Field("GGCFEP",  21, RequiredBlank, Real,    "",         "pixels",            "Ground-to-image Grid Column Fitting Error",
          "Column error of the interpolated grid against the original sensor model; blank when not known."),
    Field("INTORD",   1, RequiredBlank, Integer,
          "0=nearest|1=linear|2=quadratic|3=cubic|blank=not recommended",
          "", "Ground-to-image Grid Interpolation Order",
          "Interpolation order that the producer recommends."),
    Field("NPLN",     3, Required,      Integer, "002..999", "",                  "Number of Grid Planes",
          "How many planes of constant height the grid has."),
    Field("DELTAZ",  21, Required,      Real,    "",         "m",                 "Delta Z Between Grid Planes",
          "Height difference between neighbouring planes."),
    Field("DELTAX",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "Delta X Between Grid Points",
          "Spacing of the grid points in x."),
    Field("DELTAY",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "Delta Y Between Grid Points",
          "Spacing of the grid points in y."),
    Field("ZPLN1",   21, Required,      Real,    "",         "m",                 "Z Value of Plane 1",
          "Height of the first plane."),
    Field("XIPLN1",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "X Value of Initial Point in Plane 1",
          "x coordinate of the first grid point of the first plane."),
    Field("YIPLN1",  21, Required,      Real,    "",         "rad or m (RSMIDA GRNDD)", "Y Value of Initial Point in Plane 1",
          "y coordinate of the first grid point of the first plane."),
    Field("REFROW",   9, Required,      Integer, "",         "pixels",            "Reference Image Row Coordinate Value",
          "Row from which the row coordinates of the grid are counted; may be negative."),
    Field("REFCOL",   9, Required,      Integer, "",         "pixels",            "Reference Image Column Coordinate Value",
          "Column from which the column coordinates of the grid are counted; may be negative."),
    Field("TNUMRD",   2, Required,      Integer, "03..31",   "",                  "Total Number of Image Row Coordinate Digits",
          "How many characters each row coordinate of the grid takes."),
    Field("TNUMCD",   2, Required,      Integer, "03..31",   "",                  "Total Number of Image Column Coordinate Digits",
          "How many characters each column coordinate of the grid takes."),
    Field("FNUMRD",   1, Required,      Integer, "1..3",     "",                  "Number of Image Row Coordinate Fractional Digits",
          "How many of those characters are decimals of the row coordinate."),
    Field("FNUMCD",   1, Required,      Integer, "1..3",     "",                  "Number of Image Column Coordinate Fractional Digits",
          "How many of those characters are decimals of the column coordinate."),
    Repeat("NPLN", -1),
        Field("IXO",      4, Required,      Integer, "",         "grid steps",        "Initial Grid Point X Offset",
              "Offset in x of the first grid point of planes 2 and up against that of plane 1, in multiples of DELTAX; "
              "may be negative."),
        Field("IYO",      4, Required,      Integer, "",         "grid steps",        "Initial Grid Point Y Offset",
              "Offset in y of the first grid point of planes 2 and up against that of plane 1, in multiples of DELTAY; "
              "may be negative."),
    End(),
    Repeat("NPLN"),
        Field("NXPTS",    3, Required,      Integer, "002..999", "",                  "Number of Grid Points in the X Direction",
              "How many grid points the plane has in x.").Locked(),
        Field("NYPTS",    3, Required,      Integer, "002..999", "",                  "Number of Grid Points in the Y Direction",
              "How many grid points the plane has in y.").Locked(),
        RepeatBy("NXPTS*NYPTS", CountGridPoints, "NYPTS"),
            Sized("RCOORD", "TNUMRD", 0, RequiredBlank, Integer, "", "10^-FNUMRD pixels", "Grid Point's Row Coordinate",
                  "Row coordinate of one grid point, counted from REFROW, without a decimal point; blank for a point "
                  "that the grid leaves undefined."),
            Sized("CCOORD", "TNUMCD", 0, RequiredBlank, Integer, "",
                  "10^-FNUMCD pixels", "Grid Point's Column Coordinate",
                  "Column coordinate of one grid point, counted from REFCOL, without a decimal point; blank for a "
                  "point that the grid leaves undefined."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreRSMGGA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "RSMGGA",
        .name = "Replacement Sensor Model Ground-to-Image Grid",
        .length = 0,
        .lengthRule = "322 + 8*(NPLN-1) + sum over NPLN planes of (6 + NXPTS*NYPTS*(TNUMRD+TNUMCD)); 390..99985",
        .placement = "image subheader",
        .purpose =
            "Gives, for one section of the image, a three-dimensional grid of ground points with their image "
            "coordinates, from which the ground-to-image function is interpolated.",
        .sources = "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The meaning of the INTORD values is recalled. A blank RCOORD or CCOORD is a point that the grid leaves "
            "undefined."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
