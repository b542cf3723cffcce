#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMTIRPB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form      values              unit   label
    Field("MTI_DP",            2, RequiredBlank, Integer,  "01..99",           "",    "Destination Point",
          "Number of the route point toward which the aircraft was flying.").Alias("destp"),
    Field("MTI_PACKET_ID",     3, Required,      Integer,  "001..999",         "",    "MTI Packet ID Number",
          "Number of this moving-target packet.").Alias("mtpid"),
    Field("PATCH_NO",          4, Required,      Integer,  "0001..0999",       "",    "Patch Number",
          "Number of the patch to which the packet belongs.").Alias("pchno"),
    Field("WAMTI_FRAME_NO",    5, RequiredBlank, Integer,  "00001..32767",     "",    "Wide Area MTI Frame Number",
          "Number of the frame within a wide-area moving-target scan.").Alias("wamfn"),
    Field("WAMTI_BAR_NO",      1, RequiredBlank, Integer,  "1..7",             "",    "Wide Area MTI Bar Number",
          "Number of the bar within the wide-area frame.").Alias("wambn"),
    Field("DATIME",           14, Required,      Date,     "{CCYYMMDDhhmmss}", "UTC", "Scan Date and Time",
          "Date and time of the scan."),
    Field("ACFT_LOC",         21, Required,      Location, "{ddmmss.ssXdddmmss.ssY}|{+dd.dddddd+ddd.dddddd}", "", "Aircraft Position",
          "Latitude and longitude of the aircraft at the scan time."),
    Field("ACFT_ALT",          6, Required,      Integer,  "000000..999999",   "ft or m (ACFT_ALT_UNIT)", "Aircraft Altitude",
          "Height of the aircraft."),
    Field("ACFT_ALT_UNIT",     1, Required,      Text,     "f=feet|m=metres",  "",    "Unit of Aircraft Altitude",
          "Unit of the aircraft altitude."),
    Field("ACFT_HEADING",      3, Required,      Integer,  "000..359",         "deg", "Aircraft Heading",
          "Heading of the aircraft, clockwise from north."),
    Field("MTI_LR",            1, RequiredBlank, Text,     "L=left|R=right",   "",    "MTI Left or Right",
          "Side of the aircraft on which the scanned area lies."),
    Field("SQUINT_ANGLE",      6, RequiredBlank, Real,     "-60.00..+85.00",   "deg", "Squint Angle",
          "Angle between the cross-track direction of the aircraft and the radar line of sight.").Alias("sqnta"),
    Field("COSGRZ",            7, Required,      Real,     "0.00000..1.00000|9.99999=unknown", "", "Cosine of Graze Angle",
          "Cosine of the angle between the line of sight and the ground.").Alias("cosgz"),
    Field("NO_VALID_TARGETS",  3, Required,      Integer,  "001..999",         "",    "Number of Valid Targets",
          "How many target records follow.").Alias("nvtgt"),
    Repeat("NO_VALID_TARGETS"),
        Field("TGT_LOC",          23, Required,      Location, "{ddmmss.sssXdddmmss.sssY}|{+dd.ddddddd+ddd.ddddddd}", "", "Target n Location",
              "Latitude and longitude of the target.").Alias("tgloc"),
        Field("TGT_LOC_ACCY",      6, Required,      Real,     "000.00..999.99",   "ft",  "Target n Location Accuracy",
              "Accuracy of the target location.").Alias("tglca"),
        Field("TGT_VEL_R",         4, RequiredBlank, Integer,  "-200..+200",       "",    "Target n Radial Velocity",
              "Speed of the target along the line of sight.").Alias("tgrdv"),
        Field("TGT_SPEED",         3, RequiredBlank, Integer,  "000..200",         "",    "Target n Estimated Ground Speed",
              "Estimated speed of the target over the ground.").Alias("tggsp"),
        Field("TGT_HEADING",       3, RequiredBlank, Integer,  "000..359",         "deg", "Target n Heading",
              "Direction in which the target moves, clockwise from north.").Alias("tghea"),
        Field("TGT_AMPLITUDE",     2, RequiredBlank, Integer,  "00..15",           "",    "Target n Signal Amplitude",
              "Relative strength of the radar return of the target.").Alias("tgsig"),
        Field("TGT_CAT",           1, RequiredBlank, Text,     "H=helicopter|T=tracked|U=unknown|W=wheeled", "", "Target n Classification Category",
              "Kind of the target as far as the radar could tell.").Alias("tgcat"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMTIRPB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MTIRPB",
        .name = "Moving Target Report",
        .length = 0,
        .lengthRule = "77 + NO_VALID_TARGETS*42",
        .placement = "either file header or image subheader",
        .purpose =
            "Reports the moving targets that a radar found in one packet, together with the aircraft position: "
            "where they are, how fast and in which direction they move.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; imaging-nitf TRE description "
            "file and its MTIRPB test record; NITRO plug-in table; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
