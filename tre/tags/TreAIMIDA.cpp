#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreAIMIDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag           width  need           form      values                          unit   label
    Field("MISSION_DATE",   7, Required,      Date,     "{DDMMMYY}",                    "UTC", "Aircraft Take-off Date",
          "Day on which the aircraft took off for the mission."),
    Field("MISSION_NO",     4, Required,      Text,     "{BBnn}=two letters and two digits", "", "Mission Number",
          "Four-character descriptor of the mission."),
    Field("FLIGHT_NO",      2, Required,      Text,     "01..09|A1..Z9|00=unavailable", "",    "Flight Number",
          "Number of the flight within the day; a leading letter marks images taken after midnight UTC."),
    Field("OP_NUM",         3, Required,      Integer,  "000..999",                     "",    "Image Operation Number",
          "Counts the imaging operations of the flight."),
    Field("START_SEGMENT",  2, RequiredBlank, Text,     "AA..ZZ",                       "",    "Start Segment ID",
          "First segment (piece) of the imaging operation that the image covers."),
    Field("REPRO_NUM",      2, Required,      Integer,  "00=original|01..99",           "",    "Reprocess Number",
          "How many times the image was reprocessed or enhanced."),
    Field("REPLAY",         3, Required,      Text,     "000|G01..G99|P01..P99|T01..T99", "", "Replay",
          "Tells an original image (000) from reprocessed (G, P) or retransmitted (T) data."),
    Field("RESERVED-001",   1, RequiredBlank, Text,     "",                             "",    "Reserved 1",
          "Reserved by the standard; one space.").Alias("RESERVED_001"),
    Field("START_COLUMN",   2, Required,      Integer,  "01..99",                       "",    "Starting Tile Column Number",
          "First tile column of the image, counted from the start of the imaging operation."),
    Field("START_ROW",      5, Required,      Integer,  "00001..99999",                 "",    "Starting Tile Row Number",
          "First tile row of the image, counted from the start of the imaging operation."),
    Field("END_SEGMENT",    2, RequiredBlank, Text,     "AA..ZZ",                       "",    "Ending Segment",
          "Last segment of the imaging operation that the image covers."),
    Field("END_COLUMN",     2, Required,      Integer,  "01..99",                       "",    "Ending Tile Column Number",
          "Last tile column of the image."),
    Field("END_ROW",        5, Required,      Integer,  "00001..99999",                 "",    "Ending Tile Row Number",
          "Last tile row of the image."),
    Field("COUNTRY",        2, RequiredBlank, Text,     "AA..ZZ",                       "",    "Country Code",
          "Two-letter code of the country in which the reference point of the image lies."),
    Field("RESERVED-002",   4, RequiredBlank, Text,     "",                             "",    "Reserved 2",
          "Reserved by the standard; four spaces.").Alias("RESERVED_002"),
    Field("LOCATION",      11, Required,      Location, "{ddmmXdddmmY}",                "",    "Location",
          "Latitude and longitude, to the minute, of a point inside the image."),
    Field("TIME",           5, Required,      Time,     "{hhmmZ}",                      "UTC", "Time of First Line",
          "Time at which the first line of the image was collected."),
    Field("CREATION_DATE",  7, Required,      Date,     "{DDMMMYY}",                    "UTC", "Date of First Line",
          "Day on which the first line of the image was collected."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 69);

// The older layout.
// clang-format off
constexpr FieldRow OLDER_ROWS[] = {
    //    tag            width need           form      values                            unit   label
    Field("MISSION_DATE",   8, Required,      Date,     "{CCYYMMDD}",                     "UTC", "Aircraft Take-off Date",
          "Day on which the aircraft took off for the mission."),
    Field("MISSION_NO",     4, Required,      Text,     "",                               "",    "Mission Number",
          "Four-character descriptor of the mission."),
    Field("FLIGHT_NO",      2, Required,      Text,     "01..09|A1..Z9|00=unavailable",   "",    "Flight Number",
          "Number of the flight within the day."),
    Field("OP_NUM",         3, Required,      Integer,  "000..999",                       "",    "Image Operation Number",
          "Counts the imaging operations of the flight."),
    Field("RESERVED-001",   2, RequiredBlank, Text,     "blank",                          "",    "Reserved 1",
          "Reserved in the draft; two spaces."),
    Field("REPRO_NUM",      2, Required,      Integer,  "00=original|01..99",             "",    "Reprocess Number",
          "How many times the image was reprocessed or enhanced."),
    Field("REPLAY",         3, Required,      Text,     "000|G01..G99|P01..P99|T01..T99", "",    "Retransmission Number",
          "Tells an original image (000) from reprocessed or retransmitted data."),
    Field("RESERVED-002",   1, RequiredBlank, Text,     "blank",                          "",    "Reserved 2",
          "Reserved in the draft; one space."),
    Field("START_COLUMN",   3, Required,      Integer,  "001..999",                       "",    "Starting Tile Column Number",
          "First tile column of the image, counted from the start of the imaging operation."),
    Field("START_ROW",      5, Required,      Integer,  "00001..99999",                   "",    "Starting Tile Row Number",
          "First tile row of the image, counted from the start of the imaging operation."),
    Field("RESERVED-003",   2, RequiredBlank, Text,     "blank",                          "",    "Reserved 3",
          "Reserved in the draft; two spaces."),
    Field("END_COLUMN",     3, Required,      Integer,  "001..999",                       "",    "Ending Tile Column Number",
          "Last tile column of the image."),
    Field("END_ROW",        5, Required,      Integer,  "00001..99999",                   "",    "Ending Tile Row Number",
          "Last tile row of the image."),
    Field("COUNTRY",        2, RequiredBlank, Text,     "AA..ZZ|blank",                   "",    "Country Code",
          "Two-letter code of the country in which the reference point of the image lies."),
    Field("RESERVED-004",   4, RequiredBlank, Text,     "blank",                          "",    "Reserved 4",
          "Reserved in the draft; four spaces."),
    Field("LOCATION",      11, Required,      Location, "{ddmmXdddmmY}",                  "",    "Location",
          "Latitude and longitude, to the minute, of a point inside the image."),
    Field("TIME",           5, Required,      Time,     "{hhmmZ}",                        "UTC", "Time of First Line",
          "Time at which the first line of the image was collected."),
    Field("CREATION_DATE",  8, Required,      Date,     "{CCYYMMDD}",                     "UTC", "Date of First Line",
          "Day on which the first line of the image was collected."),
};
// clang-format on
constexpr auto OLDER_TABLE = MakeTable(OLDER_ROWS);
static_assert(OLDER_TABLE.wellFormed);
static_assert(FixedWidth(OLDER_ROWS) == 73);

}  // namespace

const Detail::TreLayout& TreAIMIDA::Layout()
{
    static constexpr Detail::TreLayout OLDER{
        .tag = "AIMIDA",
        .name = "Additional Image ID",
        .length = 73,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Identifies the image within a mission and an imaging operation, in an early draft layout with dates of "
            "eight digits; chosen when the extension is 73 bytes long.",
        .sources =
            "NITRO plug-in table (descrip_00073, which it calls draft 0.9a); SarPy TRE definition (same lineage as "
            "the NITRO table); one real image file of NITF 2.0 whose AIMIDA of 73 bytes was decoded with this table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = OLDER_TABLE.View(),
        .notes =
            "The reserved fields are spelled as in the later layout, whose segment fields are reserved in this "
            "draft. Ranges are taken over from the later layouts."};
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "AIMIDA",
        .name = "Additional Image ID",
        .length = 69,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Identifies the image within a mission and an imaging operation so that image libraries can store "
            "and find it. Superseded by AIMIDB.",
        .sources = "STDI-0002 version 2.1; NITRO plug-in table; Opticks TRE parser; NGA MATLAB SAR Toolbox",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .other = &OLDER};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
