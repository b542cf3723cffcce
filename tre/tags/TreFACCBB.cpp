#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreFACCBB, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag     width  need           form     values      unit     label
    Field("NUM_ATT",  2, Required,      Integer, "01..99",   "",      "Number of Attributes",
          "How many attribute definitions follow."),
    Repeat("NUM_ATT"),
        Field("CODE",     3, Required,      Text,    "any=three-character FACC attribute code", "", "Attribute Code",
              "FACC code of the attribute being defined."),
        Field("NAME",    80, Required,      Text,    "",         "",      "Attribute Name",
              "Name of the attribute in plain words."),
        Field("STATUS",   4, Required,      Text,    "",         "",      "Attribute Code Status",
              "Where the code comes from; the default says that it belongs to the FACC catalogue."),
        Field("UNITS",    4, RequiredBlank, Text,
              "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|any=another unit code of DIGEST Part 3|blank=none",
              "", "Attribute Value Units",
              "Unit of measure of the attribute values, blank when they carry no unit."),
        Field("NUM_VAL",  3, Required,      Integer, "001..999", "",      "Number of Values",
              "How many values of this attribute are listed."),
        Repeat("NUM_VAL"),
            Field("LEN_VAL",  3, Required,      Integer, "001..999", "bytes", "Length of Value",
                  "Number of bytes that the next field takes."),
            Sized("VAL", "LEN_VAL", 0, Required, Bytes, "", "UNITS", "Attribute Value",
                  "One value that the attribute can take."),
            Field("DESC",    80, Required,      Text,    "",         "",      "Value Description",
                  "Meaning of that value in plain words."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreFACCBB::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "FACCBB",
        .name = "Attribute FACC Code Definition",
        .length = 0,
        .lengthRule =
            "2 + sum over NUM_ATT attributes of (94 + sum over NUM_VAL values of (83 + LEN_VAL)); at most "
            "99985",
        .placement = "image subheader",
        .purpose =
            "Explains the attribute codes that the cells of a coded raster or matrix stand for, in terms of "
            "the DIGEST feature and attribute coding catalogue.",
        .sources =
            "STDI-0002 Volume 1 Appendix P, Table P-15 (2024-04); NFX TRE class; NITF Metadata Register (2016 "
            "draft); NATO NSIF list of approved support data extensions (title of FACCB)",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
