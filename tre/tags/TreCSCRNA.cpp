#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSCRNA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag             width  need      form  values                    unit   label
    Field("PREDICT_CORNERS",  1, Required, Text, "Y=predicted|N=from actual measurements", "", "Predicted Corners Flag",
          "Tells whether the four corners were predicted or derived from actual measurements."),
    Field("ULCRN_LAT",        9, Required, Real, "-90.00000..+90.00000",   "deg", "Upper Left Corner Latitude",
          "Geodetic latitude of the upper left corner of the sensor footprint.").Alias("ULCNR_LAT"),
    Field("ULCRN_LON",       10, Required, Real, "-179.99999..+180.00000", "deg", "Upper Left Corner Longitude",
          "Geodetic longitude of the upper left corner of the sensor footprint.").Alias("ULCNR_LONG"),
    Field("ULCRN_HT",         8, Required, Real, "-00610.0..+10668.0",     "m",   "Upper Left Corner Height",
          "Height of the upper left corner above the WGS 84 ellipsoid.").Alias("ULCNR_HT"),
    Field("URCRN_LAT",        9, Required, Real, "-90.00000..+90.00000",   "deg", "Upper Right Corner Latitude",
          "Geodetic latitude of the upper right corner of the sensor footprint.").Alias("URCNR_LAT"),
    Field("URCRN_LON",       10, Required, Real, "-179.99999..+180.00000", "deg", "Upper Right Corner Longitude",
          "Geodetic longitude of the upper right corner of the sensor footprint.").Alias("URCNR_LONG"),
    Field("URCRN_HT",         8, Required, Real, "-00610.0..+10668.0",     "m",   "Upper Right Corner Height",
          "Height of the upper right corner above the WGS 84 ellipsoid.").Alias("URCNR_HT"),
    Field("LRCRN_LAT",        9, Required, Real, "-90.00000..+90.00000",   "deg", "Lower Right Corner Latitude",
          "Geodetic latitude of the lower right corner of the sensor footprint.").Alias("LRCNR_LAT"),
    Field("LRCRN_LON",       10, Required, Real, "-179.99999..+180.00000", "deg", "Lower Right Corner Longitude",
          "Geodetic longitude of the lower right corner of the sensor footprint.").Alias("LRCNR_LONG"),
    Field("LRCRN_HT",         8, Required, Real, "-00610.0..+10668.0",     "m",   "Lower Right Corner Height",
          "Height of the lower right corner above the WGS 84 ellipsoid.").Alias("LRCNR_HT"),
    Field("LLCRN_LAT",        9, Required, Real, "-90.00000..+90.00000",   "deg", "Lower Left Corner Latitude",
          "Geodetic latitude of the lower left corner of the sensor footprint.").Alias("LLCNR_LAT"),
    Field("LLCRN_LON",       10, Required, Real, "-179.99999..+180.00000", "deg", "Lower Left Corner Longitude",
          "Geodetic longitude of the lower left corner of the sensor footprint.").Alias("LLCNR_LONG"),
    Field("LLCRN_HT",         8, Required, Real, "-00610.0..+10668.0",     "m",   "Lower Left Corner Height",
          "Height of the lower left corner above the WGS 84 ellipsoid.").Alias("LLCNR_HT"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 109);

}  // namespace

const Detail::TreLayout& TreCSCRNA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSCRNA",
        .name = "Corner Footprint",
        .length = 109,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Gives latitude, longitude and height of the four corners of the area that a commercial sensor "
            "covered on the ground; repeated unchanged in every image segment of the same sensor image.",
        .sources =
            "STDI-0006 Table 3.2-1; STDI-0002 Volume 1 Appendix AW, Tables AW.6-1 and AW.6-2; GDAL TRE "
            "description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; pynitf "
            "TRE definition; OSML imagery-io structure definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
