#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSTDIDC, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form      values                    unit      label
    Field("ACQUISITION_DATE", 14, Required,      Date,     "{YYYYMMDDhhmmss}",       "",       "Acquisition Date",
          "Date and time of the collection mission; for aircraft the take-off."),
    Field("MISSION",          14, Required,      Text,
          "QB00..QB99|OV00..OV99|WV00..WV99|GE00..GE99|IKONOS_00..IKONOS_99|SI_CARTERRA_00..SI_CARTERRA_99|"
          "SI_SCANNER_00..SI_SCANNER_99|any=other registered name",
          "", "Mission Identification",
          "Vehicle that collected the image, or the scanner for scanned film."),
    Field("PASS",              2, Required,      Text,     "01..99|A1..A9=after midnight UTC|B1..Z9=later days|00=not applicable", "", "Pass Number",
          "Pass or flight of the day; a letter marks passes that ran into a following day."),
    Field("OP_NUM",            3, Required,      Integer,  "000=operations are not numbered|001..999", "", "Image Operation Number",
          "Number of the imaging operation within the pass."),
    Field("START_SEGMENT",     2, Required,      Text,     "AA..ZZ",                 "",       "Start Segment ID",
          "First segment of the imaging operation in this file; AA is the first of all."),
    Field("REPRO_NUM",         2, Required,      Integer,  "00=original|01..99",     "",       "Reprocess Number",
          "How often the data were reprocessed or enhanced."),
    Field("REPLAY_REGEN",      3, Required,      Text,     "",                       "",       "Replay or Regeneration",
          "Mode in which the image was replayed or regenerated; 000 for the original image."),
    Field("BLANK_FILL",        1, RequiredBlank, Text,     "blank|_",                "",       "Blank Fill",
          "Fill character, a space or an underscore."),
    Field("START_COLUMN",      3, Required,      Integer,  "001..999",               "blocks", "Starting Column Block",
          "First block of this file in the cross scan direction."),
    Field("START_ROW",         5, Required,      Integer,  "00001..99999",           "blocks", "Starting Row Block",
          "First block of this file in the along scan direction."),
    Field("END_SEGMENT",       2, Required,      Text,     "AA..ZZ",                 "",       "Ending Segment ID",
          "Last segment of the imaging operation in this file."),
    Field("END_COLUMN",        3, Required,      Integer,  "001..999",               "blocks", "Ending Column Block",
          "Last block of this file in the cross scan direction."),
    Field("END_ROW",           5, Required,      Integer,  "00001..99999",           "blocks", "Ending Row Block",
          "Last block of this file in the along scan direction."),
    Field("COUNTRY",           2, RequiredBlank, Text,     "AA..ZZ=FIPS 10-4|blank", "",       "Country Code",
          "Country in which the reference point of the image lies."),
    Field("WAC",               4, RequiredBlank, Integer,  "0001..1866|blank",       "",       "World Aeronautical Chart",
          "Number of the aeronautical chart sheet that shows the reference point."),
    Field("LOCATION",         11, Required,      Location, "{ddmmXdddmmY}",          "",       "Location",
          "Latitude and longitude, to the minute, of the reference point of the image.").OftenBlank(),
    Field("RESERVED-001",      5, RequiredBlank, Text,     "",                       "",       "Reserved 1",
          "Reserved by the standard; five spaces.").Alias("RESERVED_001"),
    Field("RESERVED-002",      8, RequiredBlank, Text,     "",                       "",       "Reserved 2",
          "Reserved by the standard; eight spaces.").Alias("RESERVED_002"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 89);

}  // namespace

const Detail::TreLayout& TreSTDIDC::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "STDIDC",
        .name = "Standard ID",
        .length = 89,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Identifies an image by mission, pass, operation and segment and tells which blocks of the full "
            "image operation the file holds.",
        .sources =
            "STDI-0002 version 4 page D-8; STDI-0002 Volume 1 Appendix D, Table D-1 (2025-02); GDAL TRE "
            "description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag class; "
            "Opticks TRE parser; pynitf TRE definition; jbpy TRE definition; OSML imagery-io structure "
            "definition; NFX TRE class; NITF Metadata Register (2016 draft); two IKONOS image files (89 bytes "
            "each)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
