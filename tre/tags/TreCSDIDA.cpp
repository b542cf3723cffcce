#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSDIDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                     width  need           form     values              unit    label
    Field("DAY",                      2, Required,      Integer, "01..31",           "day",  "Day of Dataset Collection",
          "Day of the month (UTC) on which the collection of the data set began."),
    Field("MONTH",                    3, Required,      Text,    "JAN|FEB|MAR|APR|MAY|JUN|JUL|AUG|SEP|OCT|NOV|DEC", "", "Month of Dataset Collection",
          "Month (UTC) in which the collection of the data set began."),
    Field("YEAR",                     4, Required,      Integer, "0000..9999",       "year", "Year of Dataset Collection",
          "Year (UTC) in which the collection of the data set began."),
    Field("PLATFORM CODE",            2, Required,      Text,
          "GE=GeoEye|IK=IKONOS|OV=OrbView|QB=QuickBird|WV=WorldView|any=other registered code",
          "", "Platform Identification",
          "Code of the satellite family that collected the data.").Alias("PLATFORM_CODE"),
    Field("VEHICLE ID",               2, Required,      Integer, "00..99",           "",     "Vehicle Number",
          "Number of the individual satellite within its family.").Alias("VEHICLE_ID"),
    Field("PASS",                     2, Required,      Integer, "01..99|00=not applicable or not available", "", "Pass Number",
          "Number that the supplier gives to the satellite pass of the day."),
    Field("OPERATION",                3, Required,      Integer, "001..999|000=operations are not counted", "", "Operation Number",
          "Number that the supplier gives to the imaging operation within the pass."),
    Field("SENSOR_ID",                2, Required,      Text,
          "AA=panchromatic only|GA=multispectral or pan-sharpened only|NA=panchromatic and multispectral together|"
          "CA=CAVIS|SW=SWIR|any=other registered code",
          "", "Sensor ID",
          "Code for the kind of sensor data in the data set."),
    Field("PRODUCT_ID",               2, Required,      Text,
          "P1..P5=pre-processed|G1..G5=geo-referenced|R1..R5=ortho-rectified|M1..M5=newest edition",
          "", "Product ID",
          "Broad product class, made of a processing letter and a sensor digit; 1 is panchromatic, 2 multispectral, 3 "
          "pan-sharpened; 4 and 5 belong to the newest edition."),
    Field("RESERVED_1",               4, RequiredBlank, Text,    "",                 "",     "Reserved 1",
          "Fill that the standard fixes at 0000."),
    Field("TIME",                    14, Required,      Date,    "{YYYYMMDDhhmmss}", "",     "Image Start Time",
          "Moment at which the imaging began, the same as in the image subheader."),
    Field("PROCESS_TIME",            14, Required,      Date,    "{YYYYMMDDhhmmss}", "",     "Process Completion Time",
          "Moment at which the file was made, the same as in the file header."),
    Field("RESERVED_2",               2, RequiredBlank, Integer, "",                 "",     "Reserved 2",
          "Fill that the standard fixes at 00."),
    Field("RESERVED_3",               2, RequiredBlank, Integer, "",                 "",     "Reserved 3",
          "Fill that the standard fixes at 01."),
    Field("RESERVED_4",               1, RequiredBlank, Text,    "",                 "",     "Reserved 4",
          "Fill that the standard fixes at N."),
    Field("RESERVED_5",               1, RequiredBlank, Text,    "",                 "",     "Reserved 5",
          "Fill that the standard fixes at N."),
    Field("SOFTWARE_VERSION_NUMBER", 10, Required,      Text,    "",                 "",     "Software Version Used",
          "Version of the software that processed the data set, in the form chosen by the supplier."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 70);

}  // namespace

const Detail::TreLayout& TreCSDIDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSDIDA",
        .name = "Dataset Identification",
        .length = 70,
        .lengthRule = "",
        .placement = "file header",
        .purpose =
            "Identifies a commercial data set: when and with which satellite and sensor it was collected, what "
            "kind of product it is and when it was processed.",
        .sources =
            "STDI-0006, February 2010; STDI-0006 Table 3.3-1; STDI-0002 Volume 1 Appendix AS, Table AS.5-9; "
            "GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag "
            "class; pynitf TRE definition; OSML imagery-io structure definition; NFX TRE class; NITF Metadata "
            "Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
