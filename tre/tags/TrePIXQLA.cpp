#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIXQLA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag           width need         form     values        unit    label
    Field("NUMAIS",        3, Required,    Integer,
          "ALL=all other image segments|000..998",
          "", "Number of Associated Image Segments",
          "Tells how many image segments the quality mask belongs to."),
    WhenNot("NUMAIS", "ALL"),
        Repeat("NUMAIS"),
            Field("AISDLVL",       3, Conditional, Integer, "001..999",   "",     "Associated Image Segment Display Level",
                  "Display level of an image segment that the quality mask belongs to."),
        End(),
    End(),
    Field("NPIXQUAL",      4, Required,    Integer, "0001..9999", "bits", "Number of Pixel Quality Conditions",
          "How many quality conditions, and so how many bits, each mask value holds."),
    Field("PQ_BIT_VALUE",  1, Required,    Text,    "1",          "",     "Pixel Quality Bit Value",
          "Value of a mask bit that says that its condition is present."),
    Repeat("NPIXQUAL"),
        Field("PQ_CONDITION", 40, Required,    Text,
              "any=registered text such as Saturated or Dead",
              "", "Pixel Quality Condition",
              "Quality condition that the j-th bit of a mask value stands for, beginning with the least significant "
              "bit."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TrePIXQLA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIXQLA",
        .name = "Pixel Quality",
        .length = 0,
        .lengthRule = "8 + 3*NUMAIS (nothing when NUMAIS is ALL) + 40*NPIXQUAL",
        .placement = "image subheader (of the image segment that holds the quality bits)",
        .purpose =
            "Gives the meaning of each bit of a pixel quality mask that is carried as an image segment of its own, "
            "and names the images that the mask belongs to.",
        .sources =
            "GDAL TRE description file; NITRO plug-in table; pynitf TRE definition (cites STDI-0002 page AA-14); OSML "
            "imagery-io structure definition (cites STDI-0002 Vol 1 App AA); NFX MATLAB TRE class (cites STDI-0002-1 "
            "App AA, Tables AA-1 to AA-5, 2022-10); SarPy TRE definition (same lineage as the NITRO table)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "NPIXQUAL is at most 64 in NFX and OSML; other sources state no limit. No display level follows a NUMAIS "
            "of 000, which GDAL expects too."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
