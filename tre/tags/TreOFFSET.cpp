#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreOFFSET, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag   width  need      form     values                unit       label
    Field("LINE",   8, Required, Integer, "00000000..99999999", "lines",   "Along Scan Offset of First Pixel",
          "Line of the collected image at which this image begins."),
    Field("SAMPLE", 8, Required, Integer, "00000000..99999999", "samples", "Cross Scan Offset of First Pixel",
          "Sample of the collected image at which this image begins."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 16);

}  // namespace

const Detail::TreLayout& TreOFFSET::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "OFFSET",
        .name = "Image Offset",
        .length = 16,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Tells where the first pixel of an image lies within the larger collected image, as line and "
            "sample.",
        .sources = "NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View(),
        .notes = "The placement is recalled."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
