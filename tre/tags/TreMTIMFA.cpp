#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMTIMFA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                  width need           form     values                             unit   label
    Field("LAYER_ID",            36, Required,      Text,    "any=usually a UUID",              "",    "Layer Identifier",
          "Names the layer that the list is about."),
    Field("CAMERA_SET_INDEX",     3, Required,      Integer, "001..999",                        "",    "Camera Set Index",
          "Number of the camera set that the list is about."),
    Field("TIME_INTERVAL_INDEX",  6, Required,      Integer, "000001..999999",                  "",    "Time Interval Index",
          "Number of the time interval, as in TMINTA."),
    Field("NUM_CAMERAS_DEFINED",  3, Required,      Integer, "000..999",                        "",    "Number of Defined Cameras",
          "How many cameras are listed."),
    Repeat("NUM_CAMERAS_DEFINED"),
        Field("CAMERA_ID",           36, Required,      Text,    "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}", "",    "Camera UUID",
              "Identifier of the camera, as in CAMSDA."),
        Field("NUM_TEMP_BLOCKS",      3, Required,      Integer, "001..999",                        "",    "Number of Temporal Blocks",
              "How many temporal blocks this camera has."),
        Repeat("NUM_TEMP_BLOCKS"),
            Field("START_TIMESTAMP",     24, RequiredBlank, Time,    "{YYYYMMDDhhmmss.sssssssss}|blank", "UTC", "Temporal Block Start Time",
                  "Time of the beginning of the block."),
            Field("END_TIMESTAMP",       24, RequiredBlank, Time,    "{YYYYMMDDhhmmss.sssssssss}|blank", "UTC", "Temporal Block End Time",
                  "Time of the end of the block."),
            Field("IMAGE_SEG_INDEX",      3, RequiredBlank, Integer, "001..999|blank=not in this file", "",    "Image Segment Index",
                  "Number of the image segment that holds the block."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMTIMFA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MTIMFA",
        .name = "Motion Imagery File",
        .length = 0,
        .lengthRule = "48 + sum over the NUM_CAMERAS_DEFINED cameras of (39 + 51*NUM_TEMP_BLOCKS)",
        .placement = "file header",
        .purpose =
            "Lists for one layer, camera set and time interval how the imagery of each camera is cut into temporal "
            "blocks and which image segment of the file holds each block.",
        .sources =
            "imaging-nitf TRE description file; pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE "
            "parser; OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX "
            "MATLAB TRE class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "A block that was not collected has times but a blank segment index; an unused entry is blank throughout "
            "and stands last."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
