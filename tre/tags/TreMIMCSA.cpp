#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMIMCSA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                 width need           form     values                            unit        label
    Field("LAYER_ID",           36, Required,      Text,    "any=usually a UUID",             "",         "Layer Identifier",
          "Names the layer (one kind of imagery, such as visible or infrared) that this summary is about."),
    Field("NOMINAL_FRAME_RATE", 13, Required,      Real,    "0..9.9999999E+99|NaN=not known", "frames/s", "Nominal Frame Rate",
          "Usual number of frames per second in the layer."),
    Field("MIN_FRAME_RATE",     13, Required,      Real,    "0..9.9999999E+99|NaN=not known", "frames/s", "Minimum Frame Rate",
          "Lowest number of frames per second in the layer."),
    Field("MAX_FRAME_RATE",     13, Required,      Real,    "0..9.9999999E+99|NaN=not known", "frames/s", "Maximum Frame Rate",
          "Highest number of frames per second in the layer."),
    Field("T_RSET",              2, Required,      Integer, "00=no frames left out|01..99",   "",         "Temporal Resolution Set",
          "Level of reduction in time of the imagery."),
    Field("MI_REQ_DECODER",      2, Required,      Text,
          "NC|NM|C8|M8|C9|M9|CA|MA|CB|MB|CD|MD|CE|ME",
          "", "Required Decoder",
          "Compression code of the decoder that the layer needs."),
    Field("MI_REQ_PROFILE",     36, RequiredBlank, Text,
          "any=Not Applicable for NC and NM",
          "", "Required Decoder Profile",
          "Profile that the decoder must support."),
    Field("MI_REQ_LEVEL",        6, RequiredBlank, Text,    "any=N/A for NC and NM",          "",         "Required Decoder Level",
          "Level that the decoder must support."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 121);

}  // namespace

const Detail::TreLayout& TreMIMCSA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MIMCSA",
        .name = "Motion Imagery Collection Summary",
        .length = 121,
        .lengthRule = "",
        .placement = "file header",
        .purpose =
            "Summarises one layer of a motion imagery collection: its frame rates, whether frames were thinned out, "
            "and which decoder a reader needs.",
        .sources =
            "imaging-nitf TRE description file; pynitf TRE definition (cites NGA.STND.0044 1.3); Opticks NITF TRE "
            "parser; OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX "
            "MATLAB TRE class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
