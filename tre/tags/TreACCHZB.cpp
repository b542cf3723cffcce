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
    Field("NUM_ACHZ",  2, Required,      Integer, "01..99",                   "",           "Number of Horizontal Accuracy Regions",
          "How many regions with their own horizontal accuracy follow.").Alias("NUMACHZ"),
    Repeat("NUM_ACHZ"),
        Field("UNIAAH",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for AAH",
              "Unit in which the absolute horizontal accuracy is given; blank when that accuracy is not known, and "
              "then the value is left out."),
        WhenFilled("UNIAAH"),
            Field("AAH",       5, Conditional,   Integer, "00000..99999",             "UNIAAH",     "Absolute horizontal accuracy",
                  "Size of the absolute horizontal accuracy of this region, in the unit stated just before."),
        End(),
        Field("UNIAPH",    3, RequiredBlank, Text,    UNITS,                      "",           "Unit of Measure for APH",
              "Unit in which the point-to-point horizontal accuracy is given; blank when that accuracy is not known, "
              "and then the value is left out."),
        WhenFilled("UNIAPH"),
            Field("APH",       5, Conditional,   Integer, "00000..99999",             "UNIAPH",     "Point-to-point horizontal accuracy",
                  "Size of the point-to-point horizontal accuracy of this region, in the unit stated just before."),
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

const Detail::TreLayout& TreACCHZB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ACCHZB",
        .name = "Horizontal Accuracy",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ACHZ regions of (9 + 5 if UNIAAH not blank + 5 if UNIAPH not blank + "
            "30*NUM_PTS); 11..99985",
        .placement = "image subheader",
        .purpose =
            "States the absolute and point-to-point horizontal accuracy of one or more regions of the image, "
            "for products whose vertical accuracy changes over other regions.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-11; GDAL TRE description file; NITRO plug-in table; NITF "
            "Metadata Register (2016 draft); sample record of 141 bytes in an imaging-nitf unit test",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
