#include "fields/FieldWalk.h"
#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMTIRPA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr std::uint64_t TARGET_WIDTH = 34;
constexpr std::uint64_t FIXED_PART_WITH_SIX = 39;

/// Sources differ about this width. The targets take a fixed number of bytes each, so the length of the data tells.
bool SquintAngleWidth(const WalkContext& aContext, std::uint64_t& aOut)
{
    aOut = aContext.Total() % TARGET_WIDTH == FIXED_PART_WITH_SIX % TARGET_WIDTH ? 6 : 5;
    return true;
}

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form      values                unit   label
    Field("MTI_DP",            2, RequiredBlank, Integer,  "01..99",             "",    "Destination Point",
          "Number of the route point toward which the aircraft was flying.").Alias("destp"),
    Field("MTI_PACKET_ID",     3, Required,      Integer,  "001..999",           "",    "MTI Packet ID Number",
          "Number of this moving-target packet.").Alias("mtpid"),
    Field("PATCH_NO",          4, Required,      Integer,  "0001..0999",         "",    "Patch Number",
          "Number of the patch to which the packet belongs.").Alias("pchno"),
    Field("WAMTI_FRAME_NO",    5, RequiredBlank, Integer,  "00001..32767",       "",    "Wide Area MTI Frame Number",
          "Number of the frame within a wide-area moving-target scan.").Alias("wamfn"),
    Field("WAMTI_BAR_NO",      1, RequiredBlank, Integer,  "1..7",               "",    "Wide Area MTI Bar Number",
          "Number of the bar within the wide-area frame.").Alias("wambn"),
    Field("UTC",               8, Required,      Real,     "00000.00..86399.99", "s",   "Coordinated Universal Time",
          "Time of day of the scan, in seconds after midnight.").Alias("utc"),
    Computed("SQUINT_ANGLE", SquintAngleWidth, RequiredBlank, Real, "-60.0..+85.0", "deg", "Squint Angle",
          "Angle between the cross-track direction of the aircraft and the radar line of sight; five or six "
          "characters.").Alias("sqnta"),
    Field("COSGRZ",            7, Required,      Real,     "0.00000..1.00000|9.99999=unknown", "", "Cosine of Graze Angle",
          "Cosine of the angle between the line of sight and the ground.").Alias("cosgz"),
    Field("NO_VALID_TARGETS",  3, Required,      Integer,  "001..999",           "",    "Number of Valid Targets",
          "How many target records follow.").Alias("nvtgt"),
    Repeat("NO_VALID_TARGETS"),
        Field("TGT_LOC",          21, Required,      Location, "{ddmmss.ssXdddmmss.ssY}|{+dd.dddddd+ddd.dddddd}", "", "Target n Location",
              "Latitude and longitude of the target.").Alias("tgloc"),
        Field("TGT_VEL_R",         4, RequiredBlank, Integer,  "-200..+200",         "",    "Target n Radial Velocity",
              "Speed of the target along the line of sight.").Alias("tgrdv"),
        Field("TGT_SPEED",         3, RequiredBlank, Integer,  "000..200",           "",    "Target n Estimated Ground Speed",
              "Estimated speed of the target over the ground.").Alias("tggsp"),
        Field("TGT_HEADING",       3, RequiredBlank, Integer,  "000..359",           "deg", "Target n Heading",
              "Direction in which the target moves, clockwise from north.").Alias("tghea"),
        Field("TGT_AMPLITUDE",     2, RequiredBlank, Integer,  "00..15",             "",    "Target n Signal Amplitude",
              "Relative strength of the radar return of the target.").Alias("tgsig"),
        Field("TGT_CAT",           1, RequiredBlank, Text,     "H=helicopter|T=tracked|U=unknown|W=wheeled", "", "Target n Classification Category",
              "Kind of the target as far as the radar could tell.").Alias("tgcat"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMTIRPA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MTIRPA",
        .name = "Moving Target Report",
        .length = 0,
        .lengthRule = "38 + NO_VALID_TARGETS*34, or 39 + NO_VALID_TARGETS*34 where SQUINT_ANGLE takes six characters",
        .placement = "either file header or image subheader",
        .purpose =
            "Reports the moving targets that a radar found in one packet: where they are, how fast and in "
            "which direction they move. Superseded by MTIRPB.",
        .sources = "NITRO plug-in table; MTIRPB tables of GDAL, imaging-nitf and NFX (field tags, meanings)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
