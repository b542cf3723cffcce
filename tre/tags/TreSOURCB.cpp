#include "fields/FieldWalk.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSOURCB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto LENGTH_UNITS = "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|blank=unknown";

bool HasDowngradingDate(const WalkContext& aContext)
{
    return aContext.Text("QSS") != "U" && aContext.Text("QOD") == "N";
}

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need              form     values                     unit               label
    Field("IS_SCA",    9, Required,         Integer, "000000001..999999999",    "",                "Image Segment Reciprocal Scale",
          "Denominator of the scale of the image segment."),
    Field("CPATCH",   10, RequiredBlank,    Text,    "",                        "",                "Colour Patch ID",
          "Identifier of the image segment that shows the colour patches; blank when there is none."),
    Field("NUM_SOUR",  2, Required,         Integer, "01..99",                  "",                "Number of Source Descriptions",
          "How many source descriptions follow."),
    Repeat("NUM_SOUR"),
        Field("NUM_BP",    2, Required,         Integer, "00=whole image|01..99",   "",                "Number of Bounding Polygons",
              "How many polygons outline the part of the image that came from this source."),
        Repeat("NUM_BP"),
            Field("NUM_PTS",   3, Conditional,      Integer, "000|004..999",            "",                "Number of Points in Bounding Polygon",
                  "How many corner points the polygon has."),
            Repeat("NUM_PTS"),
                Field("LON",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Longitude or Easting",
                      "Longitude, or easting in a map grid, of one corner point of the polygon."),
                Field("LAT",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Latitude or Northing",
                      "Latitude, or northing in a map grid, of one corner point of the polygon."),
            End(),
        End(),
        Field("PRT",      10, RequiredBlank,    Text,    "",                        "",                "Series",
              "Series to which the source map belongs."),
        Field("URF",      20, Required,         Text,    "",                        "",                "Source Identification",
              "Identifier of the source within its series."),
        Field("EDN",       7, Required,         Text,    "",                        "",                "Edition",
              "Edition of the source."),
        Field("NAM",      20, RequiredBlank,    Text,    "",                        "",                "Name",
              "Name of the source, such as a sheet name."),
        Field("CDP",       3, Required,         Integer, "000..999",                "",                "Type of Significant Date",
              "FACC code that tells which event the significant date stands for."),
        Field("CDV",       8, Required,         Date,    "{YYYYMMDD}",              "",                "Significant Date",
              "Most important date of the source, of the kind named just before."),
        Field("CDV27",     8, RequiredBlank,    Date,    "{YYYYMMDD}|blank=none",   "",                "Perishable Date",
              "Date of the perishable (fast ageing) information of the source."),
        Field("SRN",      80, RequiredBlank,    Text,    "",                        "",                "Source Reference Number",
              "Reference number under which the source can be ordered."),
        Field("SCA",       9, RequiredBlank,    Integer, "000000000..999999999|blank=unknown", "", "Reciprocal Scale",
              "Denominator of the scale of the source."),
        Field("UNISQU",    3, RequiredBlank,    Text,    "M2|KM2|HA|blank=unknown", "",                "Unit of Measure for Coverage",
              "Unit of the covered area; blank leaves the area out."),
        WhenFilled("UNISQU"),
            Field("SQU",      10, Conditional,      Integer, "0000000000..9999999999",  "UNISQU",          "Coverage",
                  "Area that the source covers."),
        End(),
        Field("UNIPCI",    3, RequiredBlank,    Text,    LENGTH_UNITS,              "",                "Unit of Measure for Contour Interval",
              "Unit of the contour interval; blank leaves the interval out."),
        WhenFilled("UNIPCI"),
            Field("PCI",       4, Conditional,      Integer, "0000..9999",              "UNIPCI",          "Contour Interval",
                  "Height difference between neighbouring contour lines."),
        End(),
        Field("WPC",       3, Required,         Integer, "000..100|999=unknown",    "percent",         "Water Coverage",
              "Part of the source that is covered by water."),
        Field("NST",       3, Required,         Integer, "000=unknown|001..999",    "",                "Navigation System Type",
              "FACC code of the navigation system for which the source was made."),
        Field("UNIHKE",    3, RequiredBlank,    Text,    LENGTH_UNITS,              "",                "Unit of Measure for HKE",
              "Unit of the highest elevation; blank leaves the elevation and its position out."),
        WhenFilled("UNIHKE"),
            Field("HKE",       6, Conditional,      Integer, "-99999..999999",          "UNIHKE",          "Highest Known Elevation",
                  "Greatest elevation that the source shows."),
            Field("LONHKE",   15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Longitude or Easting of HKE",
                  "Longitude, or easting, of the greatest elevation."),
            Field("LATHKE",   15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Latitude or Northing of HKE",
                  "Latitude, or northing, of the greatest elevation."),
        End(),
        Field("QSS",       1, Required,         Text,
              "T=top secret|S=secret|C=confidential|R=restricted|U=unclassified",
              "", "Security Classification of Source",
              "Security class of the source.").Locked(),
        Field("QOD",       1, Required,         Text,    "Y|N",                     "",                "Downgrading",
              "Tells whether the originator decides about downgrading (Y) or a date does (N).").Locked(),
        WhenBy("QSS is not U and QOD is N", HasDowngradingDate),
            Field("CDV10",     8, Conditional,      Date,    "{YYYYMMDD}",              "",                "Downgrading Date",
                  "Date on which the security class may be lowered."),
        End(),
        Field("QLE",      80, Required,         Text,    "",                        "",                "Releasability",
              "Who may receive the source; UNRESTRICTED by default.").OftenBlank(),
        Field("CPY",      80, Required,         Text,    "",                        "",                "Copyright Statement",
              "Copyright statement of the source; UNCOPYRIGHTED by default.").OftenBlank(),
        Field("NMI",       2, Required,         Integer, "00..99",                  "",                "Number of Magnetic Information Records",
              "How many records on the earth magnetic field follow."),
        Repeat("NMI"),
            Field("CDV30",     8, Conditional,      Date,    "{YYYYMMDD}",              "",                "Date of Magnetic Information",
                  "Date for which the magnetic values hold."),
            Field("UNIRAT",    3, Conditional,      Text,    "ML|MSC|SEC|MA|DEG",       "",                "Unit of Measure for Annual Rate of Change",
                  "Unit of the yearly change; DEG by default.").OftenBlank(),
            Field("RAT",       8, Conditional,      Real,    "-9999999..99999999",      "UNIRAT per year", "Annual Rate of Change",
                  "Yearly change of the grid magnetic angle."),
            Field("UNIGMA",    3, Conditional,      Text,    "ML|MSC|SEC|MA|DEG",       "",                "Unit of Measure for GMA",
                  "Unit of the grid magnetic angle; DEG by default.").OftenBlank(),
            Field("GMA",       8, Conditional,      Real,    "-9999999..99999999",      "UNIGMA",          "Grid Magnetic Angle",
                  "Angle between grid north and magnetic north at the date given."),
            Field("LONGMA",   15, ConditionalBlank, Real,    "",                        "GEOPSB UNI",      "Longitude or Easting of GMA Reference Point",
                  "Longitude, or easting, of the point at which the magnetic angle holds; blank when not stated."),
            Field("LATGMA",   15, ConditionalBlank, Real,    "",                        "GEOPSB UNI",      "Latitude or Northing of GMA Reference Point",
                  "Latitude, or northing, of the point at which the magnetic angle holds; blank when not stated."),
            Field("UNIGCA",    3, Conditional,      Text,    "ML|MSC|SEC|MA|DEG|blank=unknown", "", "Unit of Measure for GCA",
                  "Unit of the grid convergence angle; blank leaves the angle out."),
            WhenFilled("UNIGCA"),
                Field("GCA",       8, Conditional,      Real,    "-9999999..99999999",      "UNIGCA",          "Grid Convergence Angle",
                      "Angle between true north and grid north."),
            End(),
        End(),
        Field("NLI",       2, Required,         Integer, "00..99",                  "",                "Number of Legend Images",
              "How many legend images belong to the source."),
        Repeat("NLI"),
            Field("BAD",      10, Conditional,      Text,    "",                        "",                "Legend ID",
                  "Identifier of the image segment that shows the legend."),
        End(),
        Field("DAG",      80, Required,         Text,    "",                        "",                "Geodetic Datum Name",
              "Name of the horizontal datum of the source."),
        Field("DCD",       4, Required,         Text,    "any=DIGEST Part 3 table 6-2 code", "", "Geodetic Datum Code",
              "Code of the horizontal datum of the source."),
        Field("ELL",      80, Required,         Text,    "",                        "",                "Ellipsoid Name",
              "Name of the ellipsoid of the source."),
        Field("ELC",       3, Required,         Text,    "any=DIGEST Part 3 table 6-1 code", "", "Ellipsoid Code",
              "Code of the ellipsoid of the source."),
        Field("DVR",      80, RequiredBlank,    Text,    "",                        "",                "Vertical Datum Reference",
              "Name of the vertical datum of the source; blank when it shows no elevations."),
        Field("VDCDVR",    4, RequiredBlank,    Text,    "GEOD|MSL|any=another DIGEST Part 3 code", "", "Code (Category) of Vertical Reference",
              "Code of the vertical datum of the source; blank when it shows no elevations."),
        Field("SDA",      80, RequiredBlank,    Text,    "",                        "",                "Sounding Datum Name",
              "Name of the sounding datum of the source; blank when it shows no soundings."),
        Field("VDCSDA",    4, RequiredBlank,    Text,    "any=DIGEST Part 3 table 6-4 code", "", "Code for Sounding Datum",
              "Code of the sounding datum of the source; blank when it shows no soundings."),
        Field("PRN",      80, Required,         Text,    "",                        "",                "Projection Name",
              "Name of the map projection of the source."),
        Field("PCO",       2, Required,         Text,
              "AC|AK|AL|BF|CC|CP|CS|ED|EF|GN|HX|KA|LA|LE|LI|LJ|MC|MH|MJ|MP|NT|OC|OD|PG|PH|RS|RB|RX|SA|SD|SX|"
              "TC=transverse Mercator|TX|VA|VX|ZY=other",
              "", "Projection Code",
              "Code of the map projection of the source."),
        Field("NUM_PRJ",   1, Required,         Integer, "0..9",                    "",                "Number of Projection Parameters",
              "How many projection parameters follow."),
        Repeat("NUM_PRJ"),
            Field("PRJ",      15, Conditional,      Real,    "",                        "depends on the projection", "Projection Parameter",
                  "One parameter of the projection; the order and meaning depend on the projection code."),
        End(),
        Field("XOR",      15, Required,         Real,    "",                        "m",               "Projection False X (Easting) Origin",
              "Amount added to the eastings by the projection; may be negative."),
        Field("YOR",      15, Required,         Real,    "",                        "m",               "Projection False Y (Northing) Origin",
              "Amount added to the northings by the projection; may be negative."),
        Field("GRD",       3, RequiredBlank,    Text,    "any=DIGEST Part 3 table 6-6 code", "", "Grid Code",
              "Code of the map grid of the source; blank when it has none."),
        Field("GRN",      80, RequiredBlank,    Text,    "",                        "",                "Grid Description",
              "Description of the map grid of the source; blank when it has none."),
        Field("ZNA",       4, Required,         Integer, "-999..9999",              "",                "Grid Zone Number",
              "Zone number within the grid; zero when there is none."),
        Field("NIN",       2, Required,         Integer, "00..99",                  "",                "Number of Insets",
              "How many insets of the source are described."),
        Repeat("NIN"),
            Field("INT",      10, Conditional,      Text,    "",                        "",                "Inset Identification",
                  "Identifier of the inset."),
            Field("INS_SCA",   9, Conditional,      Integer, "000000000..999999999",    "",                "Reciprocal Scale of Inset",
                  "Denominator of the scale of the inset."),
            Field("NTL",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Longitude of the Lower Left Corner",
                  "Longitude of the lower left corner of the inset, at its true place on the ground."),
            Field("TTL",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Latitude of the Lower Left Corner",
                  "Latitude of the lower left corner of the inset, at its true place on the ground."),
            Field("NVL",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Longitude of the Upper Left Corner",
                  "Longitude of the upper left corner of the inset, at its true place on the ground."),
            Field("TVL",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Latitude of the Upper Left Corner",
                  "Latitude of the upper left corner of the inset, at its true place on the ground."),
            Field("NTR",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Longitude of the Upper Right Corner",
                  "Longitude of the upper right corner of the inset, at its true place on the ground."),
            Field("TTR",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Latitude of the Upper Right Corner",
                  "Latitude of the upper right corner of the inset, at its true place on the ground."),
            Field("NVR",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Longitude of the Lower Right Corner",
                  "Longitude of the lower right corner of the inset, at its true place on the ground."),
            Field("TVR",      15, Conditional,      Real,    "",                        "GEOPSB UNI",      "Absolute Latitude of the Lower Right Corner",
                  "Latitude of the lower right corner of the inset, at its true place on the ground."),
            Field("NRL",      15, Conditional,      Real,    "",                        "",                "Relative Longitude of the Lower Left Corner",
                  "Longitude of the lower left corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("TRL",      15, Conditional,      Real,    "",                        "",                "Relative Latitude of the Lower Left Corner",
                  "Latitude of the lower left corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("NSL",      15, Conditional,      Real,    "",                        "",                "Relative Longitude of the Upper Left Corner",
                  "Longitude of the upper left corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("TSL",      15, Conditional,      Real,    "",                        "",                "Relative Latitude of the Upper Left Corner",
                  "Latitude of the upper left corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("NRR",      15, Conditional,      Real,    "",                        "",                "Relative Longitude of the Upper Right Corner",
                  "Longitude of the upper right corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("TRR",      15, Conditional,      Real,    "",                        "",                "Relative Latitude of the Upper Right Corner",
                  "Latitude of the upper right corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("NSR",      15, Conditional,      Real,    "",                        "",                "Relative Longitude of the Lower Right Corner",
                  "Longitude of the lower right corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
            Field("TSR",      15, Conditional,      Real,    "",                        "",                "Relative Latitude of the Lower Right Corner",
                  "Latitude of the lower right corner of the inset, at the place where the inset is drawn, in the "
                  "coordinates of the surrounding map."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreSOURCB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "SOURCB",
        .name = "Map Source Description",
        .length = 0,
        .lengthRule =
            "21 + sum over NUM_SOUR sources of (885 + sum over NUM_BP polygons of (3 + 30*NUM_PTS) + 10 if "
            "UNISQU not blank + 4 if UNIPCI not blank + 36 if UNIHKE not blank + 8 if QSS is not U and "
            "QOD=N + sum over NMI records of (63 + 8 if UNIGCA not blank) + 10*NLI + 15*NUM_PRJ + 259*NIN); "
            "906..99985",
        .placement = "image subheader",
        .purpose =
            "Describes the maps or charts from which the raster was made: identity, dates, scale, security, "
            "magnetic data, legends, datums, projection, grid and insets.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-14 (2024-04); GDAL TRE description file; NITRO plug-in "
            "table; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The sense of QOD, CPATCH and GMA is recalled. Some programs read SQU, PCI, HKE, LONHKE, LATHKE, CDV10 "
            "and GCA always; that they depend on their unit fields fits the shortest record."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
