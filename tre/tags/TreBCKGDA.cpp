#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreBCKGDA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need      form     values                unit        label
    Field("BGWIDTH",  8, Required, Integer, "00000000..99999999", "PIXUNITS", "Background Width",
          "Width of the background."),
    Field("BGHEIGHT", 8, Required, Integer, "00000000..99999999", "PIXUNITS", "Background Height",
          "Height of the background."),
    Field("BGRED",    8, Required, Integer, "00000000..99999999", "",         "Background Red",
          "Red part of the background colour."),
    Field("BGGREEN",  8, Required, Integer, "00000000..99999999", "",         "Background Green",
          "Green part of the background colour."),
    Field("BGBLUE",   8, Required, Integer, "00000000..99999999", "",         "Background Blue",
          "Blue part of the background colour."),
    Field("PIXSIZE",  8, Required, Real,    "",                   "",         "Pixel Size",
          "Size of a pixel, to be read with the unit field that follows."),
    Rest("PIXUNITS", Required, Text, "DEVICE PIXELS|INCHES|CENTIMETERS|POINTS", "", "Pixel Units",
          "Unit in which the sizes of this extension are measured; it takes all bytes that are left, since its width "
          "is not settled."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreBCKGDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "BCKGDA",
        .name = "Background",
        .length = 0,
        .lengthRule = "48 + the length of PIXUNITS",
        .placement = "not stated in public sources",
        .purpose =
            "Describes the background on which an image is shown or printed: its size, its colour and the size "
            "and unit of its pixels.",
        .sources = "NITRO plug-in table; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
