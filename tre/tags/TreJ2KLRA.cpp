#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreJ2KLRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag      width  need         form     values                  unit label
    Field("ORIG",      1, Required,    Integer,
          "0=original NPJE|1=parsed NPJE|2=original EPJE|3=parsed EPJE|4=original TPJE|5=parsed TPJE|6=original LPJE|"
          "7=parsed LPJE|8=original other|9=parsed other",
          "", "Original Compressed Data",
          "Tells how the data were compressed and whether they are the original stream or were cut out of it."),
    Field("NLEVELS_O", 2, Required,    Integer, "00..32",               "", "Number of Wavelet Levels in Original Image",
          "How many wavelet levels the original stream had."),
    Field("NBANDS_O",  5, Required,    Integer, "00001..16384",         "", "Number of Bands in Original Image",
          "How many bands the original stream had."),
    Field("NLAYERS_O", 3, Required,    Integer, "001..999",             "", "Number of Layers in Original Image",
          "How many quality layers the original stream had."),
    Repeat("NLAYERS_O"),
        Field("LAYER_ID",  3, Required,    Integer, "000..998",             "", "Layer ID Number",
              "Number of the quality layer, from zero."),
        Field("BITRATE",   9, Required,    Real,    "00.000000..37.000000", "bits per pixel per band", "Bit Rate",
              "Target rate reached with this and all lower layers."),
    End(),
    When("ORIG", "1|3|5|7|9"),
        Field("NLEVELS_I", 2, Conditional, Integer, "00..32",               "", "Number of Wavelet Levels in This Image",
              "How many wavelet levels are left in this file."),
        Field("NBANDS_I",  5, Conditional, Integer, "00001..16384",         "", "Number of Bands in This Image",
              "How many bands are left in this file."),
        Field("NLAYERS_I", 3, Conditional, Integer, "001..999",             "", "Number of Layers in This Image",
              "How many quality layers are left in this file."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreJ2KLRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "J2KLRA",
        .name = "JPEG 2000 Layer Target Bit-Rates",
        .length = 0,
        .lengthRule = "11 + NLAYERS_O*12 + (10 if ORIG is odd)",
        .placement = "image subheader",
        .purpose =
            "Tells with which wavelet levels, bands and quality layers a JPEG 2000 image was first compressed "
            "and, when it was cut down afterwards, what of it is left.",
        .sources =
            "BIIF profile BPJ2K01.00 Table 9-3; BPJ2K01.20 Table 8-3; GDAL TRE description file; imaging-nitf "
            "TRE description file; NITRO plug-in table; OSSIM tag class; Opticks TRE parser; jbpy TRE "
            "definition; OSML imagery-io structure definition; NITF Metadata Register (2016 draft); two J2KLRA "
            "blocks of image files (83 and 239 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
