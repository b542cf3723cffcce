#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreFSYNWA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                 width need      form     values                  unit     label
    Field("START_FRAME_NUMBER", 9, Required, Integer, "000000001..999999999", "",      "Start Frame Number",
          "First frame of the segment to which the wrapped extensions apply."),
    Field("END_FRAME_NUMBER",   9, Required, Integer,
          "000000000=to the last frame|000000001..999999999",
          "", "End Frame Number",
          "Last frame of the segment to which the wrapped extensions apply."),
    RepeatToEnd(),
        Field("TRETAG",             6, Required, Text,    "any=a registered tag", "",      "Tag of Wrapped TRE",
              "Tag of an extension that is wrapped here."),
        Field("TREL",               5, Required, Integer, "00001..99985",         "bytes", "Length of Wrapped TRE",
              "Length of the data of the wrapped extension."),
        Sized("TREDATA",            "TREL", 0, Required, Bytes,   "",                     "",      "Data of Wrapped TRE",
              "Data of the wrapped extension, laid out as anywhere else."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreFSYNWA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "FSYNWA",
        .name = "Frame-Synchronous Metadata Wrapper",
        .length = 0,
        .lengthRule = "18 + the wrapped extensions (11 + TREL each)",
        .placement = "image subheader",
        .purpose =
            "Wraps extensions that hold only for certain frames of a motion imagery segment, so that extensions made "
            "for still images can be used frame by frame.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX MATLAB TRE "
            "class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "A later wrapper wins over an earlier one for the same frame and tag."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
