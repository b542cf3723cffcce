#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCONTXA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                width need      form     values                        unit     label
    Field("CONTEXT_TYPE",      2, Required, Text,
          "IS=image segments|FR=frames|FH|CS=camera sets|CM=cameras|TI=time intervals|TB=temporal blocks",
          "", "Context Type",
          "Says what the numbers in the index list count."),
    Field("AGGREGATION_MODE",  1, Required, Text,    "I=independent|A=aggregated", "",      "Aggregation Mode",
          "Tells whether the wrapped extensions hold for each listed item by itself or for all of them taken "
          "together."),
    Field("INDEX_LIST_LENGTH", 4, Required, Integer, "0001..9999",                 "bytes", "Index List Length",
          "Length of the index list."),
    Sized("INDEX_LIST",        "INDEX_LIST_LENGTH", 0, Required, Text,
          "any=numbers and ranges such as 2,4-7,10-",
          "", "Index List",
          "Numbers of the items to which the wrapped extensions apply."),
    RepeatToEnd(),
        Field("TRETAG",            6, Required, Text,    "any=a registered tag",       "",      "Tag of Wrapped TRE",
              "Tag of an extension that is wrapped here."),
        Field("TREL",              5, Required, Integer, "00001..99985",               "bytes", "Length of Wrapped TRE",
              "Length of the data of the wrapped extension."),
        Sized("TREDATA",           "TREL", 0, Required, Bytes,   "",                           "",      "Data of Wrapped TRE",
              "Data of the wrapped extension, laid out as anywhere else."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCONTXA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CONTXA",
        .name = "Context Metadata Wrapper",
        .length = 0,
        .lengthRule = "7 + INDEX_LIST_LENGTH + the wrapped extensions (11 + TREL each)",
        .placement = "image subheader or file header",
        .purpose =
            "Wraps extensions that hold for a named set of things, such as image segments, frames, cameras or time "
            "intervals; wrappers may stand inside each other.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AF and NGA.STND.0044); NFX MATLAB TRE "
            "class (cites STDI-0002-1 App AF)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "NFX lists the context types without meanings; those given are read from its texts, and FH is not "
            "explained."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
