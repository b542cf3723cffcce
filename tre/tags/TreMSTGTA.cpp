#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMSTGTA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag           width  need           form      values             unit   label
    Field("TGT_NUM",        5, Required,      Integer,  "00001..99999|00000=extension is empty", "", "Pre-Planned Target Number",
          "Number of the planned target, which ties it to the mission catalogue.").Alias("TGTNUM"),
    Field("TGT_ID",        12, RequiredBlank, Text,     "",                "",    "Designator of Target",
          "Name or designator of the target."),
    Field("TGT_BE",        15, RequiredBlank, Text,     "",                "",    "Target BE / OSUFFIX",
          "Basic Encyclopedia number and suffix of the target."),
    Field("TGT_PRI",        3, RequiredBlank, Integer,  "001..999",        "",    "Pre-Planned Target Priority",
          "Priority that planning gave to the target; 1 is the highest."),
    Field("TGT_REQ",       12, RequiredBlank, Text,     "",                "",    "Target Requester",
          "Authority that asked for an image of the target."),
    Field("TGT_LTIOV",     12, RequiredBlank, Date,     "{CCYYMMDDhhmm}",  "UTC", "Latest Time Information of Value",
          "Date and time after which the information has lost its value."),
    Field("TGT_TYPE",       1, RequiredBlank, Integer,  "0=point|1=strip|2=area|3..9=not defined", "", "Pre-Planned Target Type",
          "Shape of the planned target."),
    Field("TGT_COLL",       1, RequiredBlank, Integer,
          "0=vertical|1=forward oblique|2=right oblique|3=left oblique|4=best possible|5..9=not defined|blank=empty "
          "extension",
          "", "Pre-Planned Collection Technique",
          "Viewing direction planned for the collection."),
    Field("TGT_CAT",        5, RequiredBlank, Integer,  "10000..99999",    "",    "Target Functional Category Code",
          "Code of what the facility at the target does; the first digit is the main group."),
    Field("TGT_UTC",        7, RequiredBlank, Time,     "{hhmmssZ}",       "UTC", "Planned Time at Target",
          "Time of day at which the aircraft should be at the target."),
    Field("TGT_ELEV",       6, RequiredBlank, Integer,  "-01000..+30000",  "ft or m (TGT_ELEV_UNIT)", "Target Elevation",
          "Planned height of a point target above mean sea level, or the mean height of a strip or area."),
    Field("TGT_ELEV_UNIT",  1, RequiredBlank, Text,     "f=feet|m=metres", "",    "Unit of Target Elevation",
          "Unit of the target elevation."),
    Field("TGT_LOC",       21, Required,      Location, "{ddmmss.ssXdddmmss.ssY}|{+dd.dddddd+ddd.dddddd}", "", "Target Location",
          "Planned latitude and longitude of the target part.").Alias("TGTLOC"),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 101);

}  // namespace

const Detail::TreLayout& TreMSTGTA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MSTGTA",
        .name = "Mission Target Information",
        .length = 101,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Describes one preplanned target of the mission; a file may hold one such extension per target "
            "that the image shows.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; imaging-nitf TRE description "
            "file; NITRO plug-in table; OSSIM tag class; NFX TRE class; imaging-nitf TRE wrapper classes",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
