#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePTPRAA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag       width  need         form     values      unit label
    Field("SISEGID",    4, Required,    Text,    "",         "",  "Segment Model ID",
          "Identifier of the stereo segment that this record describes."),
    Field("SNACE",      8, Required,    Real,    "",         "m", "Segment Absolute CE 90%",
          "Absolute horizontal error of the segment at 90 percent probability."),
    Field("SNALE",      8, Required,    Real,    "",         "m", "Segment Absolute LE 90%",
          "Absolute vertical error of the segment at 90 percent probability."),
    Field("SNMCE",      8, Required,    Real,    "",         "m", "Segment Mensuration 1 Pixel CE 90%",
          "Part of the horizontal error of the segment due to measuring with an uncertainty of one pixel."),
    Field("SNMLE",      8, Required,    Real,    "",         "m", "Segment Mensuration 1 Pixel LE 90%",
          "Part of the vertical error of the segment due to measuring with an uncertainty of one pixel."),
    Field("EXACERF",    1, Required,    Text,    "",         "",  "Exceeds Absolute CE Requirement",
          "Flag that tells whether the absolute horizontal error breaks the product requirement."),
    Field("EXALERF",    1, Required,    Text,    "",         "",  "Exceeds Absolute LE Requirement",
          "Flag that tells whether the absolute vertical error breaks the product requirement."),
    Field("NBRSEG",     3, Required,    Integer, "000..999", "",  "Number of Remaining Segments",
          "How many other segments are compared with this one."),
    Repeat("NBRSEG"),
        Field("RASEGID",    4, Conditional, Text,    "",         "",  "Stereo Image Segment ID",
              "Identifier of the other segment."),
        Field("SNRCE0-1",   8, Conditional, Real,    "",         "m", "Segment Relative CEP 50% (0-1 nm)",
              "Horizontal error that half of the measured differences between points of the two segments stay below, "
              "for points up to 1 nautical mile apart."),
        Field("SNRLE0-1",   8, Conditional, Real,    "",         "m", "Segment Relative LEP 50% (0-1 nm)",
              "Vertical error that half of the measured differences between points of the two segments stay below, for "
              "points up to 1 nautical mile apart."),
        Field("SNRCE1-5",   8, Conditional, Real,    "",         "m", "Segment Relative CEP 50% (1-5 nm)",
              "Horizontal error that half of the measured differences between points of the two segments stay below, "
              "for points 1 to 5 nautical miles apart."),
        Field("SNRLE1-5",   8, Conditional, Real,    "",         "m", "Segment Relative LEP 50% (1-5 nm)",
              "Vertical error that half of the measured differences between points of the two segments stay below, for "
              "points 1 to 5 nautical miles apart."),
        Field("SNRCE5-15",  8, Conditional, Real,    "",         "m", "Segment Relative CEP 50% (5-15 nm)",
              "Horizontal error that half of the measured differences between points of the two segments stay below, "
              "for points 5 to 15 nautical miles apart."),
        Field("SNRLE5-15",  8, Conditional, Real,    "",         "m", "Segment Relative LEP 50% (5-15 nm)",
              "Vertical error that half of the measured differences between points of the two segments stay below, for "
              "points 5 to 15 nautical miles apart."),
        Field("SNRCE15-30", 8, Conditional, Real,    "",         "m", "Segment Relative CEP 50% (15-30 nm)",
              "Horizontal error that half of the measured differences between points of the two segments stay below, "
              "for points 15 to 30 nautical miles apart."),
        Field("SNRLE15-30", 8, Conditional, Real,    "",         "m", "Segment Relative LEP 50% (15-30 nm)",
              "Vertical error that half of the measured differences between points of the two segments stay below, for "
              "points 15 to 30 nautical miles apart."),
        Field("SNRCE>30",   8, Conditional, Real,    "",         "m", "Segment Relative CEP 50% (more than 30 nm)",
              "Horizontal error that half of the measured differences between points of the two segments stay below, "
              "for points more than 30 nautical miles apart."),
        Field("SNRLE>30",   8, Conditional, Real,    "",         "m", "Segment Relative LEP 50% (more than 30 nm)",
              "Vertical error that half of the measured differences between points of the two segments stay below, for "
              "points more than 30 nautical miles apart."),
        Field("EXRCE0-1",   1, Conditional, Text,    "",         "",  "Exceeds Relative CEP Requirement (0-1 nm)",
              "Flag that tells whether the horizontal relative error breaks the product requirement, for points up to "
              "1 nautical mile apart."),
        Field("EXRLE0-1",   1, Conditional, Text,    "",         "",  "Exceeds Relative LEP Requirement (0-1 nm)",
              "Flag that tells whether the vertical relative error breaks the product requirement, for points up to 1 "
              "nautical mile apart."),
        Field("EXRCE1-5",   1, Conditional, Text,    "",         "",  "Exceeds Relative CEP Requirement (1-5 nm)",
              "Flag that tells whether the horizontal relative error breaks the product requirement, for points 1 to 5 "
              "nautical miles apart."),
        Field("EXRLE1-5",   1, Conditional, Text,    "",         "",  "Exceeds Relative LEP Requirement (1-5 nm)",
              "Flag that tells whether the vertical relative error breaks the product requirement, for points 1 to 5 "
              "nautical miles apart."),
        Field("EXRCE5-15",  1, Conditional, Text,    "",         "",  "Exceeds Relative CEP Requirement (5-15 nm)",
              "Flag that tells whether the horizontal relative error breaks the product requirement, for points 5 to "
              "15 nautical miles apart."),
        Field("EXRLE5-15",  1, Conditional, Text,    "",         "",  "Exceeds Relative LEP Requirement (5-15 nm)",
              "Flag that tells whether the vertical relative error breaks the product requirement, for points 5 to 15 "
              "nautical miles apart."),
        Field("EXRCE15-30", 1, Conditional, Text,    "",         "",  "Exceeds Relative CEP Requirement (15-30 nm)",
              "Flag that tells whether the horizontal relative error breaks the product requirement, for points 15 to "
              "30 nautical miles apart."),
        Field("EXRLE15-30", 1, Conditional, Text,    "",         "",  "Exceeds Relative LEP Requirement (15-30 nm)",
              "Flag that tells whether the vertical relative error breaks the product requirement, for points 15 to 30 "
              "nautical miles apart."),
        Field("EXRCE>30",   1, Conditional, Text,    "",         "",  "Exceeds Relative CEP Requirement (more than 30 nm)",
              "Flag that tells whether the horizontal relative error breaks the product requirement, for points more "
              "than 30 nautical miles apart."),
        Field("EXRLE>30",   1, Conditional, Text,    "",         "",  "Exceeds Relative LEP Requirement (more than 30 nm)",
              "Flag that tells whether the vertical relative error breaks the product requirement, for points more "
              "than 30 nautical miles apart."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TrePTPRAA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PTPRAA",
        .name = "Segment to Segment Relative Accuracy",
        .length = 0,
        .lengthRule = "41 + 94*NBRSEG",
        .placement = "segment level: in the file of a stereo image segment",
        .purpose =
            "States the accuracy of one stereo image segment of a DPPDB and its relative accuracy with every "
            "other segment, by distance.",
        .sources = "MIL-PRF-89034 Table 38; STDI-0002 Volume 1 Appendix V (list of DPPDB tags); NITRO plug-in table",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
