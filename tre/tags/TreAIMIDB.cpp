#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreAIMIDB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                    width  need           form      values                          unit   label
    Field("ACQUISITION_DATE",       14, Required,      Date,     "{CCYYMMDDhhmmss}",             "UTC", "Acquisition Date and Time",
          "Date and time of the collection, the same moment as IDATIM of the image subheader."),
    Field("MISSION_NO",              4, Required,      Text,     "{BBnn}=two letters and two digits|U000..U099|UNKN=unknown", "", "Mission Number",
          "Project code and two digits that describe the mission; UNKN when no descriptor is known."),
    Field("MISSION_IDENTIFICATION", 10, Required,      Text,     "",                             "",    "Mission Identification",
          "Name of the mission, preferably the air tasking order number; NOT AVAIL. when it is not known."),
    Field("FLIGHT_NO",               2, Required,      Text,     "00=unavailable|01..09|A1..Z9", "",    "Flight Number",
          "Number of the flight within the day; a leading letter marks images taken after midnight UTC on the "
          "following days."),
    Field("OP_NUM",                  3, Required,      Integer,  "000=not numbered|001..999",    "",    "Image Operation Number",
          "Counts the imaging operations of the flight, or holds the frame number of imagery made from video."),
    Field("CURRENT_SEGMENT",         2, Required,      Text,     "AA..ZZ",                       "",    "Current Segment ID",
          "Segment (piece) of the imaging operation that this image holds."),
    Field("REPRO_NUM",               2, Required,      Integer,  "00=original|01..99",           "",    "Reprocess Number",
          "How many times radar data were reprocessed or enhanced; always 00 for EO-IR."),
    Field("REPLAY",                  3, RequiredBlank, Text,     "000|G01..G99|P01..P99|T01..T99", "", "Replay",
          "Tells an original image (000) from reprocessed (G, P) or retransmitted (T) data."),
    Field("RESERVED-001",            1, RequiredBlank, Text,     "",                             "",    "Reserved 1",
          "Reserved by the standard; one space.").Alias("RESERVED_001"),
    Field("START_TILE_COLUMN",       3, Required,      Integer,  "001..099",                     "",    "Starting Tile Column Number",
          "First tile column within the current segment, counted from the start of the imaging operation; 001 when the "
          "image is not tiled."),
    Field("START_TILE_ROW",          5, Required,      Integer,  "00001..99999",                 "",    "Starting Tile Row Number",
          "First tile row within the current segment, counted from the start of the imaging operation; 00001 when the "
          "image is not tiled."),
    Field("END_SEGMENT",             2, Required,      Text,     "00=unknown|AA..ZZ",            "",    "Ending Segment",
          "Last segment of the imaging operation."),
    Field("END_TILE_COLUMN",         3, Required,      Integer,  "001..099",                     "",    "Ending Tile Column Number",
          "Last tile column within the ending segment; 001 when the image is not tiled."),
    Field("END_TILE_ROW",            5, Required,      Integer,  "00001..99999",                 "",    "Ending Tile Row Number",
          "Last tile row within the ending segment; 00001 when the image is not tiled."),
    Field("COUNTRY",                 2, RequiredBlank, Text,     "AA..ZZ",                       "",    "Country Code",
          "Two-letter code of the country that contains the reference point of the image."),
    Field("RESERVED-002",            4, RequiredBlank, Text,     "",                             "",    "Reserved 2",
          "Reserved by the standard; four spaces.").Alias("RESERVED_002"),
    Field("LOCATION",               11, RequiredBlank, Location, "{ddmmXdddmmY}",                "",    "Location",
          "Latitude and longitude, to the minute, of a natural reference point of the sensor in the image."),
    Field("RESERVED-003",           13, RequiredBlank, Text,     "",                             "",    "Reserved 3",
          "Reserved by the standard; thirteen spaces.").Alias("RESERVED_003"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 89);

}  // namespace

const Detail::TreLayout& TreAIMIDB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "AIMIDB",
        .name = "Additional Image ID",
        .length = 89,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Identifies the image within a mission and an imaging operation so that image libraries can store "
            "and find it; required with all airborne imagery.",
        .sources =
            "STDI-0002 version 2.1; STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; "
            "imaging-nitf TRE description file; NITRO plug-in table; Opticks TRE parser; OSSIM tag class; NGA "
            "MATLAB SAR Toolbox; NFX TRE class; imaging-nitf TRE wrapper classes",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
