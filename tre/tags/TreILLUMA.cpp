#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreILLUMA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width need      form  values unit label
    Rest("CEDATA", Required, Utf8, "", "", "Illumination XML Document",
         "The illumination data of the image as an XML document."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreILLUMA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "ILLUMA",
        .name = "Illumination (XML)",
        .length = 0,
        .lengthRule = "1..99985",
        .placement = "image subheader (not settled by the sources used)",
        .purpose =
            "Describes the natural and artificial light on the target as an XML document; ILLUMB carries such data in "
            "fields of fixed width.",
        .sources =
            "pynitf TRE definition; XML schema of the appendix STDI-0002 Volume 1 Appendix AL; OSML imagery-io "
            "structure definition; NFX list of tags",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The standard gives the data no field tag; CEDATA is the name of the data of every TRE. The root element "
            "of the document is ILLUMA."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
