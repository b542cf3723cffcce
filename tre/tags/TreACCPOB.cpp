#include "tre/TreLayout.h"
#include "tre/tags/TreTags.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto UNITS = "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|ML|MSC|SEC|MA|DEG|blank=accuracy unknown";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need           form     values                      unit          label
    Field("NUM_ACPO",  2, Required,      Integer, "01..99",                   "",           "Number of Positional Accuracy Regions",
          "How many regions with their own accuracy follow.").Alias("NUMACPO"),
    Repeat("NUM_ACPO"),
        Field("UNIAAH",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for AAH",
              "Unit in which the absolute horizontal accuracy is given; blank when that accuracy is not known, and "
              "then the value is left out."),
        WhenFilled("UNIAAH"),
            Field("AAH",       5, Conditional,   Integer, "00000..99999",             "UNIAAH",     "Absolute horizontal accuracy",
                  "Size of the absolute horizontal accuracy of this region, in the unit stated just before."),
        End(),
        Field("UNIAAV",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for AAV",
              "Unit in which the absolute vertical accuracy is given; blank when that accuracy is not known, and then "
              "the value is left out."),
        WhenFilled("UNIAAV"),
            Field("AAV",       5, Conditional,   Integer, "00000..99999",             "UNIAAV",     "Absolute vertical accuracy",
                  "Size of the absolute vertical accuracy of this region, in the unit stated just before."),
        End(),
        Field("UNIAPH",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for APH",
              "Unit in which the point-to-point horizontal accuracy is given; blank when that accuracy is not known, "
              "and then the value is left out."),
        WhenFilled("UNIAPH"),
            Field("APH",       5, Conditional,   Integer, "00000..99999",             "UNIAPH",     "Point-to-point horizontal accuracy",
                  "Size of the point-to-point horizontal accuracy of this region, in the unit stated just before."),
        End(),
        Field("UNIAPV",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for APV",
              "Unit in which the point-to-point vertical accuracy is given; blank when that accuracy is not known, and "
              "then the value is left out."),
        WhenFilled("UNIAPV"),
            Field("APV",       5, Conditional,   Integer, "00000..99999",             "UNIAPV",     "Point-to-point vertical accuracy",
                  "Size of the point-to-point vertical accuracy of this region, in the unit stated just before."),
        End(),
        Field("NUM_PTS",   3, Required,      Integer, "000=whole image|004..999", "",           "Number of Points in Bounding Polygon",
              "How many corner points outline the region; zero means that the values hold for the whole "
              "image.").Alias("NUMPTS"),
        Repeat("NUM_PTS"),
            Field("LON",      15, Conditional,   Real,    "",                         "GEOPSB UNI", "Longitude or Easting",
                  "Longitude, or easting in a map grid, of one corner point of the region."),
            Field("LAT",      15, Conditional,   Real,    "",                         "GEOPSB UNI", "Latitude or Northing",
                  "Latitude, or northing in a map grid, of one corner point of the region."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreACCPOB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACCPOB",
        .name = "Positional Accuracy",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ACPO regions of (15 + 5 for each of UNIAAH, UNIAAV, UNIAPH, UNIAPV that is "
            "not blank + 30*NUM_PTS); 17..99985",
        .placement = "image subheader",
        .purpose =
            "States horizontal and vertical accuracy, absolute and point to point, of regions within which all "
            "four are constant.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-10 (2024-04); GDAL TRE description file; NITRO plug-in "
            "table; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
