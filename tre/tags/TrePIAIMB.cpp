#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAIMB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width  need      form     values                         unit       label
    Field("CLOUDCVR",     3, Optional, Integer, "000..100|999=unknown",        "percent", "Cloud Cover",
          "Share of the image that clouds hide.").Alias("cloud"),
    Field("SRP",          1, Optional, Text,    "Y|N",                         "",        "Standard Radiometric Product",
          "Tells whether standard radiometric product data exist.").Alias("stdrd"),
    Field("SENSMODE",    12, Optional, Text,    "WHISKBROOM|PUSHBROOM|FRAMING|SPOT|SWATH|TBD", "", "Sensor Mode",
          "Way in which the sensor took the image.").Alias("smode"),
    Field("SENSNAME",    18, Optional, Text,    "any=registered sensor name",  "",        "Sensor Name",
          "Name of the sensor.").Alias("sname"),
    Field("SOURCE",     255, Optional, Text,    "",                            "",        "Source",
          "Where the image comes from.").Alias("srce"),
    Field("COMGEN",       2, Optional, Integer, "00..99",                      "",        "Compression Generation",
          "How often the archive compressed the image with loss.").Alias("cmgen"),
    Field("SUBQUAL",      1, Optional, Text,    "P=poor|F=fair|G=good|E=excellent", "", "Subjective Quality",
          "Personal rating of the image quality.").Alias("squal"),
    Field("PIAMSNNUM",    7, Optional, Text,    "any=EARS 1.1 mission number", "",        "PIA Mission Number",
          "Number of the reconnaissance mission.").Alias("misnm"),
    Field("CAMSPECS",    32, Optional, Text,    "",                            "",        "Camera Specifications",
          "Make of the camera and focal length of its lens.").Alias("cspec"),
    Field("PROJID",       2, Optional, Text,    "any=EARS project code",       "",        "Project ID Code",
          "Code of the project of the collection platform.").Alias("pjtid"),
    Field("GENERATION",   1, Optional, Integer, "0=original|1..9",             "",        "Generation",
          "How many copies lie between this product and the original.").Alias("gener"),
    Field("ESD",          1, Optional, Text,    "Y|N",                         "",        "Exploitation Support Data",
          "Tells whether exploitation support data come with the product.").Alias("expls"),
    Field("OTHERCOND",    2, Optional, Text,    "any=EARS 1.1 code",           "",        "Other Conditions",
          "Code for further conditions that affect the image.").Alias("othrc"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 337);

}  // namespace

const Detail::TreLayout& TrePIAIMB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAIMB",
        .name = "Profile for Imagery Access Image, Version B",
        .length = 337,
        .lengthRule = "",
        .placement = "image subheader or file header",
        .purpose =
            "Adds facts from the imagery archives to an image: cloud cover, sensor, source, quality and "
            "copies. Superseded by PIAIMC.",
        .sources =
            "GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; VXL vil_nitf2 "
            "TRE definition; OSML imagery-io structure definition; one JITC test image with PIAIMB (337 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
