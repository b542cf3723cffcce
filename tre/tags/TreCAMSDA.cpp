#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCAMSDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                      width need           form     values                unit       label
    Field("NUM_CAMERA_SETS",          3, Required,      Integer, "001..999",           "",        "Number of Camera Sets",
          "How many camera sets the whole collection has."),
    Field("NUM_CAMERA_SETS_IN_TRE",   3, Required,      Integer, "001..999",           "",        "Number of Camera Sets in TRE",
          "How many camera sets this extension defines."),
    Field("FIRST_CAMERA_SET_IN_TRE",  3, Required,      Integer, "001..999",           "",        "First Camera Set in TRE",
          "Number of the first camera set that this extension defines."),
    Repeat("NUM_CAMERA_SETS_IN_TRE"),
        Field("NUM_CAMERAS_IN_SET",       3, Required,      Integer, "001..999",           "",        "Number of Cameras",
              "How many cameras belong to the set."),
        Repeat("NUM_CAMERAS_IN_SET"),
            Field("CAMERA_ID",               36, Required,      Text,
                  "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}",
                  "", "Camera UUID",
                  "Identifier of the camera."),
            Field("CAMERA_DESC",             80, RequiredBlank, Text,    "",                   "",        "Camera Description",
                  "Free description of the camera."),
            Field("LAYER_ID",                36, Required,      Text,    "any=usually a UUID", "",        "Layer Identifier",
                  "Names the layer that the camera belongs to."),
            Field("IDLVL",                    3, Required,      Integer, "001..999",           "",        "Image Display Level",
                  "Display level of the images of the camera."),
            Field("IALVL",                    3, Required,      Integer, "000..998",           "",        "Image Attachment Level",
                  "Display level of the image that the images of the camera are attached to; 000 when to none."),
            Field("ILOC",                    10, Required,      Text,
                  "any=row and column, five characters each",
                  "pixels", "Image Location",
                  "Place of the first pixel of the camera image, relative to what it is attached to."),
            Field("NROWS",                    8, Required,      Integer, "00000001..99999999", "rows",    "Number of Pixel Rows",
                  "Rows of the camera image."),
            Field("NCOLS",                    8, Required,      Integer, "00000001..99999999", "columns", "Number of Pixel Columns",
                  "Columns of the camera image."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCAMSDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CAMSDA",
        .name = "Camera Set Definition",
        .length = 0,
        .lengthRule = "9 + sum over the NUM_CAMERA_SETS_IN_TRE sets of (3 + 184*NUM_CAMERAS_IN_SET)",
        .placement = "file header",
        .purpose =
            "Defines the camera sets of a motion imagery collection and places each camera image in the common "
            "coordinate system; several of these extensions may share the sets among them.",
        .sources =
            "imaging-nitf TRE description file; pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE "
            "parser; OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX "
            "MATLAB TRE class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "NUM_CAMERA_SETS_IN_TRE is at most 534 and NUM_CAMERAS_IN_SET at most 543 in NFX, which is what fits one "
            "record."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
