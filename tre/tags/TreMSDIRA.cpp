#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMSDIRA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width  need         form     values                    unit     label
    Field("PRODID",       9, Required,    Text,    "",                       "",      "Product ID",
          "Identifier of the DPPDB product."),
    Field("PRODVOL",      2, Required,    Integer, "00..99",                 "",      "Product Volume",
          "Number of the volume of the product that contains this directory."),
    Field("PRODTOTVOLS",  2, Required,    Integer, "00..99",                 "",      "Product Total Volumes",
          "How many volumes the product has in total."),
    Field("NUMIMFILE",    3, Required,    Integer, "000..999",               "",      "Number of Image Files",
          "How many image files the directory lists."),
    Repeat("NUMIMFILE"),
        Field("SEGIMGID",     6, Conditional, Text,    "",                       "",      "Segment Image ID",
              "Identifier of the segment image in the listed file."),
        Field("LONCNTCRD",    3, Conditional, Integer, "000..999",               "",      "Longitude Continuous Coordinate System Designator",
              "Code of the continuous longitude system that the file uses."),
        Field("DIMGEOGLO",   84, Conditional, Text,    "",                       "",      "Display Image Geographic Location",
              "Ground positions of the corners of the display image, as four positions of 21 characters."),
        Field("NBRVERT",      2, Conditional, Integer, "00..99",                 "",      "Number of Vertices for Segment Image",
              "How many corner points outline the segment image."),
        Repeat("NBRVERT"),
            Field("SIMGEOGLO",   21, Conditional, Text,    "",                       "",      "Segment Image Geographic Location",
                  "Ground position of one corner point of the segment image."),
        End(),
        Field("VOLNBR",       2, Conditional, Integer, "00..99",                 "",      "Volume Number",
              "Volume on which the listed file is stored."),
        Field("FLOC",         3, Conditional, Integer, "000..999",               "",      "File Location",
              "Position of the listed file on its volume."),
        Field("FLEN",        10, Conditional, Integer, "0000000000..9999999999", "bytes", "File Length",
              "Length of the listed file."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMSDIRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MSDIRA",
        .name = "Master Product Directory Definition",
        .length = 0,
        .lengthRule = "16 + sum over NUMIMFILE image files of (110 + 21*NBRVERT)",
        .placement = "file header of the master product file; listed at product level",
        .purpose =
            "Directory of the image files of a DPPDB product: which segment each file contains, where it lies "
            "on the ground and where it is stored.",
        .sources = "MIL-PRF-89034 Table 7; STDI-0002 Volume 1 Appendix V (list of DPPDB tags); NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
