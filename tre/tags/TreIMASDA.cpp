#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreIMASDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag   width  need      form  values               unit      label
    Field("LONTR", 22, Required, Real, "-180.0..180.0",     "deg",    "Longitude Translation",
          "Translation that shifts longitudes to the centre of the normalised range."),
    Field("LATTR", 22, Required, Real, "-90.0..90.0",       "deg",    "Latitude Translation",
          "Translation that shifts latitudes to the centre of the normalised range."),
    Field("ELVTR", 22, Required, Real, "-1000.0..10000.0",  "m",      "Elevation Translation",
          "Translation that shifts elevations to the centre of the normalised range."),
    Field("LONSC", 22, Required, Real, "0.0..100.0",        "",       "Longitude Scale",
          "Factor that brings shifted longitudes into the normalised range."),
    Field("LATSC", 22, Required, Real, "0.0..100.0",        "",       "Latitude Scale",
          "Factor that brings shifted latitudes into the normalised range."),
    Field("ELVSC", 22, Required, Real, "0.0..100.0",        "",       "Elevation Scale",
          "Factor that brings shifted elevations into the normalised range."),
    Field("XITR",  22, Required, Real, "-10000.0..10000.0", "pixels", "X Image Translation",
          "Translation between normalised and actual image x (column) coordinates."),
    Field("YITR",  22, Required, Real, "-10000.0..10000.0", "pixels", "Y Image Translation",
          "Translation between normalised and actual image y (row) coordinates."),
    Field("XISC",  22, Required, Real, "0.0..100.0",        "",       "X Image Scale",
          "Factor between normalised and actual image x (column) coordinates."),
    Field("YISC",  22, Required, Real, "0.0..100.0",        "",       "Y Image Scale",
          "Factor between normalised and actual image y (row) coordinates."),
    Field("DELEV", 22, Required, Real, "-1000.0..10000.0",  "m",      "Display Elevation",
          "Elevation to which the displayed image is referred."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 242);

}  // namespace

const Detail::TreLayout& TreIMASDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "IMASDA",
        .name = "Image Support Data",
        .length = 242,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Gives the translations and scales that normalise ground and image coordinates before the rational "
            "functions of IMRFCA are applied to a stereo image of a DPPDB.",
        .sources =
            "MIL-PRF-89034 Table 68; STDI-0002 Volume 1 Appendix V (list of DPPDB tags); GDAL TRE description "
            "file; NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
