#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreGEOPSB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag    width  need           form     values        unit label
    Field("TYP",     3, Required,      Text,
          "MAP=cartographic|GEO=geographic|DIG=placed by grids or registration points",
          "", "Coordinate System Type",
          "Kind of coordinate system that the image uses; MAP by default."),
    Field("UNI",     3, Required,      Text,    "SEC=seconds of arc|DEG=degrees|M=metres", "", "Coordinate Units",
          "Unit of the coordinates in the other geospatial extensions; metres go with MAP, angular units with GEO; M "
          "by default."),
    Field("DAG",    80, Required,      Text,    "",           "", "Geodetic Datum Name",
          "Name of the horizontal datum; World Geodetic System 1984 by default."),
    Field("DCD",     4, Required,      Text,    "any=DIGEST Part 3 table 6-2 code", "", "Geodetic Datum Code",
          "Code of the horizontal datum; WGE by default."),
    Field("ELL",    80, Required,      Text,    "",           "", "Ellipsoid Name",
          "Name of the reference ellipsoid; World Geodetic System 1984 by default."),
    Field("ELC",     3, Required,      Text,    "any=DIGEST Part 3 table 6-1 code", "", "Ellipsoid Code",
          "Code of the reference ellipsoid; WE by default."),
    Field("DVR",    80, RequiredBlank, Text,    "",           "", "Vertical Datum Reference",
          "Name of the surface from which elevations are counted, for example Geodetic (the default) or Mean Sea "
          "Level; blank when the image holds no elevations."),
    Field("VDCDVR",  4, RequiredBlank, Text,    "GEOD|MSL|any=another DIGEST Part 3 code", "", "Code (Category) of Vertical Reference",
          "Code of the surface from which elevations are counted; blank when the image holds no elevations; GEOD by "
          "default."),
    Field("SDA",    80, RequiredBlank, Text,    "",           "", "Sounding Datum Name",
          "Name of the level to which soundings refer; blank when the image holds no soundings; Mean Sea by default."),
    Field("VDCSDA",  4, RequiredBlank, Text,    "LAT|MLLW|MSL|ZZZ=unknown|any=another code of DIGEST Part 3 table 6-4", "", "Code for Sounding Datum",
          "Code of the level to which soundings refer; blank when the image holds no soundings; MSL by default."),
    Field("ZOR",    15, Required,      Integer, "000000000000000..999999999999999", "", "Z Values False Origin",
          "Amount that was added to the elevations so that they are counted from another zero; 0 by default."),
    Field("GRD",     3, RequiredBlank, Text,    "any=DIGEST Part 3 table 6-6 code", "", "Grid Code",
          "Code of the map grid; blank when no grid is used."),
    Field("GRN",    80, RequiredBlank, Text,    "",           "", "Grid Description",
          "Description of the map grid; blank when no grid is used."),
    Field("ZNA",     4, Required,      Integer, "-999..9999", "", "Grid Zone Number",
          "Zone number within the grid, negative for a southern zone; zero when there is none."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 443);

}  // namespace

const Detail::TreLayout& TreGEOPSB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "GEOPSB",
        .name = "Geopositioning Information",
        .length = 443,
        .lengthRule = "",
        .placement = "file header (later editions also allow the image subheader)",
        .purpose =
            "Names the coordinate system, horizontal and vertical datums, ellipsoid, sounding datum and grid "
            "to which the other geospatial extensions refer.",
        .sources =
            "DIGEST Part 2 Annex D; STDI-0002 Volume 1 Appendix P, Table P-2 (2024-04); GDAL TRE description "
            "file; NITRO plug-in table; OSSIM tag class; pynitf TRE definition; jbpy TRE definition; NFX TRE "
            "class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
