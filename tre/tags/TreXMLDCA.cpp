#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreXMLDCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag       width need              form     values                    unit     label
    Field("TRESHL",     4, Required,         Integer, "0000|0005|0283|0773",    "bytes", "User-defined Subheader Length",
          "Length of the description that follows."),
    WhenAtLeast("TRESHL", 5),
        Field("TRECRC",     5, Conditional,      Integer,
              "00000..65535|99999=not calculated",
              "", "Cyclic Redundancy Check",
              "Check value of the XML data."),
    End(),
    WhenAtLeast("TRESHL", 283),
        Field("TRESHFT",    8, Conditional,      Text,    "XSD|XML|DTD|XSL|XSLT|any=another kind", "",      "XML File Type",
              "Kind of the XML document."),
        Field("TRESHDT",   20, Conditional,      Date,    "{YYYY-MM-DDThh:mm:ssZ}", "",      "Date and Time",
              "Moment at which the XML document was made."),
        Field("TRESHRP",   40, Conditional,      Text,    "",                       "",      "Responsible Party",
              "Organization that answers for the content."),
        Field("TRESHSI",   60, Conditional,      Text,    "",                       "",      "Specification Identifier",
              "Name of the specification that the document follows."),
        Field("TRESHSV",   10, Conditional,      Text,    "",                       "",      "Specification Version",
              "Version of that specification."),
        Field("TRESHSD",   20, Conditional,      Date,    "{YYYY-MM-DDThh:mm:ssZ}", "",      "Specification Date",
              "Date of that specification."),
        Field("TRESHTN",  120, ConditionalBlank, Text,    "",                       "",      "Target Namespace",
              "Name space that the document declares."),
    End(),
    WhenAtLeast("TRESHL", 773),
        Field("TRESHLPG", 125, ConditionalBlank, Text,    "",                       "",      "Location Polygon",
              "Closed outline around the area that the document concerns."),
        Field("TRESHLPT",  25, ConditionalBlank, Text,    "",                       "",      "Location Point",
              "Single place that the document concerns."),
        Field("TRESHLI",   20, ConditionalBlank, Text,    "",                       "",      "Location Identifier",
              "Code of the area that the document concerns."),
        Field("TRESHLIN", 120, ConditionalBlank, Text,    "",                       "",      "Location Identifier Namespace URI",
              "Place where the location code is defined."),
        Field("TRESHABS", 200, ConditionalBlank, Text,    "",                       "",      "Abstract",
              "Short summary of the document."),
    End(),
    Rest("TREDATA",  Required,         Bytes,   "",                       "",      "User-defined Data",
         "The XML document itself."),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreXMLDCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "XMLDCA",
        .name = "XML Data Content",
        .length = 0,
        .lengthRule = "4 + TRESHL + length of the XML data; TRESHL is 0, 5, 283 or 773",
        .placement = "any extension area of the file header or of a subheader",
        .purpose =
            "Carries an XML document inside an extension, with the same description as the data extension segment "
            "XML_DATA_CONTENT.",
        .sources =
            "OSML imagery-io structure definition (cites STDI-0002 Vol 1 App AE); NFX MATLAB TRE class (cites "
            "STDI-0002-1 App AE, Table AE-1)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes = "The check value is the CRC-16 with the polynomial 0x8005 and the start value 0 over TREDATA."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
