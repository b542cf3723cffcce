#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAIMC, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width  need      form     values                         unit       label
    Field("CLOUDCVR",     3, Optional, Integer, "000..100|999=unknown",        "percent", "Cloud Cover",
          "Share of the image that clouds hide."),
    Field("SRP",          1, Optional, Text,    "Y|N",                         "",        "Standard Radiometric Product",
          "Tells whether standard radiometric product data exist."),
    Field("SENSMODE",    12, Optional, Text,    "WHISKBROOM|PUSHBROOM|FRAMING|SPOT|SWATH|TBD", "", "Sensor Mode",
          "Way in which the sensor took the image.").Alias("sensormode"),
    Field("SENSNAME",    18, Optional, Text,    "any=registered sensor name",  "",        "Sensor Name",
          "Name of the sensor."),
    Field("SOURCE",     255, Optional, Text,    "",                            "",        "Source",
          "Where the image comes from."),
    Field("COMGEN",       2, Optional, Integer, "00..99",                      "",        "Compression Generation",
          "How often the archive compressed the image with loss."),
    Field("SUBQUAL",      1, Optional, Text,    "P=poor|F=fair|G=good|E=excellent", "", "Subjective Quality",
          "Personal rating of the image quality."),
    Field("PIAMSNNUM",    7, Optional, Text,    "any=EARS 1.1 mission number", "",        "PIA Mission Number",
          "Number of the reconnaissance mission."),
    Field("CAMSPECS",    32, Optional, Text,    "",                            "",        "Camera Specifications",
          "Make of the camera and focal length of its lens."),
    Field("PROJID",       2, Optional, Text,    "any=EARS project code",       "",        "Project ID Code",
          "Code of the project of the collection platform."),
    Field("GENERATION",   1, Optional, Integer, "0=original|1..9",             "",        "Generation",
          "How many copies lie between this product and the original."),
    Field("ESD",          1, Optional, Text,    "Y|N",                         "",        "Exploitation Support Data",
          "Tells whether exploitation support data come with the product."),
    Field("OTHERCOND",    2, Optional, Text,    "any=EARS 1.1 code",           "",        "Other Conditions",
          "Code for further conditions that affect the image."),
    Field("MEANGSD",      7, Optional, Real,    "00000.0..99999.9",            "in",      "Mean Ground Sample Distance",
          "Geometric mean of the sample distances along and across the scan.").Alias("mean_gsd"),
    Field("IDATUM",       3, Optional, Text,    "any=horizontal datum code",   "",        "Image Datum",
          "Datum to which the image coordinates refer."),
    Field("IELLIP",       3, Optional, Text,    "any=ellipsoid code of DIGEST Part 3 Table 6-1", "", "Image Ellipsoid",
          "Ellipsoid to which the image coordinates refer."),
    Field("PREPROC",      2, Optional, Text,    "any=processing level code",   "",        "Image Processing Level",
          "Level of the radiometric and geometric processing by the supplier."),
    Field("IPROJ",        2, Optional, Text,    "any=projection code of DIGEST Part 3 Table 6-5", "", "Image Projection System",
          "Map projection to which the supplier fitted the image."),
    Field("SATTRACK",     8, Optional, Integer, "00010001..99999999",          "",        "Satellite Track",
          "Path and row of the image in the Earth grid of its satellite; four digits each."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 362);

}  // namespace

const Detail::TreLayout& TrePIAIMC::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAIMC",
        .name = "Profile for Imagery Access Image, Version C",
        .length = 362,
        .lengthRule = "",
        .placement = "image subheader or file header",
        .purpose =
            "Adds facts from the imagery archives to an image: cloud cover, sensor, source, quality, sample "
            "distance, datum and projection.",
        .sources =
            "STDI-0002 version 4 page C-8; STDI-0002 Volume 1 Appendix C, Table C-2 (2025-06); GDAL TRE "
            "description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; pynitf "
            "TRE definition; OSML imagery-io structure definition; NFX TRE class; NITF Metadata Register (2016 "
            "draft); one image file with PIAIMC (362 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
