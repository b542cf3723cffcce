#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMTIMSA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                  width need           form      values                            unit                label
    Field("IMAGE_SEG_INDEX",      3, Required,      Integer,  "001..999",                       "",                 "Image Segment Index",
          "Number of this image segment in the file."),
    Field("GEOCOORDS_STATIC",     2, Required,      Integer,
          "00=static or not applicable|99=not static",
          "", "Static Geocoordinates Flag",
          "Tells whether the corner coordinates of the image subheader hold for all frames."),
    Field("LAYER_ID",            36, RequiredBlank, Text,     "any=usually a UUID",             "",                 "Layer Identifier",
          "Names the layer that the segment belongs to."),
    Field("CAMERA_SET_INDEX",     3, Required,      Integer,  "000..999",                       "",                 "Camera Set Index",
          "Number of the camera set that the segment belongs to."),
    Field("CAMERA_ID",           36, RequiredBlank, Text,
          "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}|blank",
          "", "Camera UUID",
          "Identifier of the camera that took the frames, as in CAMSDA."),
    Field("TIME_INTERVAL_INDEX",  6, Required,      Integer,  "000000..999999",                 "",                 "Time Interval Index",
          "Number of the time interval, as in TMINTA."),
    Field("TEMP_BLOCK_INDEX",     3, Required,      Integer,  "000..999",                       "",                 "Temporal Block Index",
          "Number of the temporal block within the time interval."),
    Field("NOMINAL_FRAME_RATE",  13, Required,      Real,     "0..9.9999999E+99|NaN=not known", "frames/s",         "Nominal Frame Rate",
          "Usual number of frames per second in the segment."),
    Field("REFERENCE_FRAME_NUM",  9, RequiredBlank, Integer,
          "000000001..999999999|blank=not known",
          "", "Absolute Frame Number",
          "Number of the first frame of the segment within the collection."),
    Field("BASE_TIMESTAMP",      24, Required,      Time,     "{YYYYMMDDhhmmss.sssssssss}",     "UTC",              "Base Timestamp",
          "Time from which the frame times are counted."),
    Field("DT_MULTIPLIER",        8, Required,      Unsigned, "1..18446744073709551615",        "ns",               "Delta Time Multiplier",
          "Duration of one unit of the delta times."),
    Field("DT_SIZE",              1, Required,      Unsigned, "1..8",                           "bytes",            "Size of Delta Time Values",
          "Length of each delta time."),
    Field("NUMBER_FRAMES",        4, Required,      Unsigned, "1..4294967295",                  "",                 "Number of Frames",
          "How many frames the segment holds."),
    Field("NUMBER_DT",            4, Required,      Unsigned, "0..4294967295",                  "",                 "Number of Delta Time Values",
          "How many delta times follow; a single one holds for all frames."),
    Repeat("NUMBER_DT"),
        Sized("DT",                  "DT_SIZE", 0, Conditional,   Unsigned, "",                               "DT_MULTIPLIER ns", "Delta Time",
              "Time step to the next frame, in units of the multiplier."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMTIMSA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MTIMSA",
        .name = "Motion Imagery Segment",
        .length = 0,
        .lengthRule = "152 + NUMBER_DT*DT_SIZE",
        .placement = "image subheader",
        .purpose =
            "Gives the time of every frame in one image segment of motion imagery and ties the segment to its layer, "
            "camera, time interval and temporal block.",
        .sources =
            "imaging-nitf TRE description file; pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE "
            "parser; OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX "
            "MATLAB TRE class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The first frame time is BASE_TIMESTAMP + DT_1*DT_MULTIPLIER nanoseconds, each further one is later by "
            "its DT; a single DT serves all frames. Opticks reads the binary numbers in the byte order of the "
            "machine; the most significant byte comes first."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
