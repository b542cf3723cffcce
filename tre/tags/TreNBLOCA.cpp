#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreNBLOCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag             width  need         form      values           unit     label
    Field("FRAME_1_OFFSET",   4, Required,    Unsigned, "439..999999",   "bytes", "First Image Frame Offset",
          "Distance of the first frame from the start of the image subheader, that is the length of that subheader."),
    Field("NUMBER_OF_FRAMES", 4, Required,    Unsigned, "1..24996",      "",      "Number of Blocks",
          "How many frames or blocks the list covers, the first one included."),
    Repeat("NUMBER_OF_FRAMES", -1),
        Field("FRAME_OFFSET",     4, Conditional, Unsigned, "1..4294967295", "bytes", "Image Frame Offset",
              "Distance of the frame from the start of the frame before it; the list begins with the second "
              "frame.").Alias("FRAME_OFFSETS"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreNBLOCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "NBLOCA",
        .name = "NITF Image Block Offsets",
        .length = 0,
        .lengthRule = "8 + (NUMBER_OF_FRAMES-1)*4",
        .placement = "image subheader",
        .purpose =
            "Lists where each block or frame of an image begins, so that the blocks can be read in any order "
            "or in parallel.",
        .sources =
            "STDI-0002 Volume 1 Appendix I, Table I-1 (2021-10); NITRO plug-in table; OSML imagery-io "
            "structure definition; NFX TRE class and its byte-level test",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
