#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreSTREOB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag           width  need           form     values                       unit   label
    Field("ST_ID",         60, Required,      Text,    "",                          "",    "Stereo Mate Image ID",
          "Image identifier of the stereo mate, made of the identification fields of its standard identification "
          "extension."),
    Field("N_MATES",        1, Required,      Integer, "1..3",                      "",    "Number of Stereo Mates",
          "How many stereo mates the image has."),
    Field("MATE_INSTANCE",  1, Required,      Integer, "1..3",                      "",    "Mate Instance",
          "Which of the stereo mates this extension describes, not above N_MATES."),
    Field("B_CONV",         5, RequiredBlank, Real,    "00.00..99.99|100.0..179.9", "deg", "Beginning Convergence Angle",
          "Angle between the two lines of sight at the first lines of the pair."),
    Field("E_CONV",         5, RequiredBlank, Real,    "00.00..99.99|100.0..179.9", "deg", "Ending Convergence Angle",
          "Angle between the two lines of sight at the last lines of the pair."),
    Field("B_ASYM",         5, RequiredBlank, Real,    "00.00..90.00",              "deg", "Beginning Asymmetry Angle",
          "Asymmetry angle of the pair at its first lines."),
    Field("E_ASYM",         5, RequiredBlank, Real,    "00.00..90.00",              "deg", "Ending Asymmetry Angle",
          "Asymmetry angle of the pair at its last lines."),
    Field("B_BIE",          6, RequiredBlank, Real,    "-90.00..+90.00",            "deg", "Beginning Bisector Intercept Elevation",
          "Bisector intercept elevation angle, less the convergence angle, at the first lines of the pair."),
    Field("E_BIE",          6, RequiredBlank, Real,    "-90.00..+90.00",            "deg", "Ending Bisector Intercept Elevation",
          "Bisector intercept elevation angle, less the convergence angle, at the last lines of the pair."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 94);

}  // namespace

const Detail::TreLayout& TreSTREOB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "STREOB",
        .name = "Stereo Information",
        .length = 94,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Names one stereo mate of the image and gives the convergence, asymmetry and bisector angles at "
            "the beginning and end of the pair.",
        .sources =
            "STDI-0002 Volume 1 Appendix E (2025-02); GDAL TRE description file; imaging-nitf TRE description "
            "file; NITRO plug-in table; OSSIM tag class; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
