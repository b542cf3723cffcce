#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMICIDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                    width need      form     values                      unit     label
    Field("MIIS_CORE_ID_VERSION",   2, Required, Integer, "01",                       "",      "Core Identifier Version",
          "Version of the structure of the core identifiers."),
    Field("NUM_CAMERA_IDS_IN_TRE",  3, Required, Integer, "001..999",                 "",      "Number of Core Identifiers",
          "How many cameras are listed here."),
    Repeat("NUM_CAMERA_IDS_IN_TRE"),
        Field("CAMERA_ID",             36, Required, Text,    "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}", "",      "Camera UUID",
              "Identifier of the camera, as in CAMSDA."),
        Field("CORE_ID_LENGTH",         3, Required, Integer, "001..999",                 "bytes", "Core Identifier Length",
              "Length of the core identifier."),
        Sized("CAMERA_CORE_ID",        "CORE_ID_LENGTH", 0, Required, Text,    "any=text of MISB ST 1204", "",      "Core Identifier",
              "Core identifier of the camera in its text form."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMICIDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MICIDA",
        .name = "Motion Imagery Core Identification",
        .length = 0,
        .lengthRule = "5 + sum over the NUM_CAMERA_IDS_IN_TRE cameras of (39 + CORE_ID_LENGTH)",
        .placement = "file header",
        .purpose =
            "Ties the cameras of a motion imagery collection to their core identifiers, which name sensor and "
            "platform worldwide.",
        .sources =
            "pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE parser; OSML imagery-io structure "
            "definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX MATLAB TRE class (cites STDI-0002-1 App "
            "AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "pynitf spells the count NUM_CAMERA_IDS and the identifier CAMERAS_ID; the spelling of the other sources "
            "is followed."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
