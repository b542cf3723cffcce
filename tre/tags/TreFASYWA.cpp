#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreFASYWA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width need      form     values                        unit     label
    Field("START_TIMESTAMP", 24, Required, Time,    "{YYYYMMDDhhmmss.sssssssss}", "UTC",   "Start Timestamp",
          "Beginning of the time for which the wrapped extensions hold."),
    Field("END_TIMESTAMP",   24, Required, Time,
          "{YYYYMMDDhhmmss.sssssssss}|------------------------=to the end of the temporal block",
          "UTC", "End Timestamp",
          "End of the time for which the wrapped extensions hold."),
    RepeatToEnd(),
        Field("TRETAG",           6, Required, Text,    "any=a registered tag",       "",      "Tag of Wrapped TRE",
              "Tag of an extension that is wrapped here."),
        Field("TREL",             5, Required, Integer, "00001..99985",               "bytes", "Length of Wrapped TRE",
              "Length of the data of the wrapped extension."),
        Sized("TREDATA",         "TREL", 0, Required, Bytes,   "",                           "",      "Data of Wrapped TRE",
              "Data of the wrapped extension, laid out as anywhere else."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreFASYWA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "FASYWA",
        .name = "Frame-Asynchronous Metadata Wrapper",
        .length = 0,
        .lengthRule = "48 + the wrapped extensions (11 + TREL each)",
        .placement = "image subheader or file header",
        .purpose =
            "Wraps extensions that hold for a point or a stretch of time rather than for particular frames of motion "
            "imagery, such as navigation data.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX MATLAB TRE "
            "class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "A later wrapper wins over an earlier one for the same time and tag."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
