#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePIAPRD, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag          width  need         form     values                       unit label
    Field("ACCESSID",     64, Optional,    Text,    "",                          "", "Access ID",
          "Identifier of the product in the archive."),
    Field("FMCONTROL",    32, Optional,    Text,    "",                          "", "Foreign Material Control Number",
          "Control number of the foreign material that the product deals with.").Alias("FMCNTROL"),
    Field("SUBDET",        1, Optional,    Text,    "P=poor|F=fair|G=good|E=excellent", "", "Subjective Detail",
          "Personal rating of the useful detail."),
    Field("PRODCODE",      2, Optional,    Text,    "any=product category code", "", "Product Code",
          "Category of the product."),
    Field("PRODUCERSE",    6, Optional,    Text,    "",                          "", "Producer Subelement",
          "Part of the producing body that made the product.").Alias("PRODCRSE"),
    Field("PRODIDNO",     20, Optional,    Text,    "",                          "", "Product ID Number",
          "Number that the producer gave to the product."),
    Field("PRODSNME",     10, Required,    Text,    "",                          "", "Product Short Name",
          "Short name of the product."),
    Field("PRODUCERCD",    2, Optional,    Text,    "any=producer code",         "", "Producer Code",
          "Body that made or last changed the product.").Alias("PRODCRCD"),
    Field("PRODCRTIME",   14, Optional,    Date,    "{CCYYMMDDhhmmss}",          "", "Product Create Time",
          "Moment at which the product was made or last changed.").Alias("PRODCRTM"),
    Field("MAPID",        40, Optional,    Text,    "",                          "", "Map ID",
          "Map that goes with the product."),
    Field("SECTITLEREP",   2, Required,    Integer, "00..99",                    "", "Section Title Repetitions",
          "How many section entries follow.").Alias("SECTTREP"),
    Repeat("SECTITLEREP"),
        Field("SECTITLE",     40, Conditional, Text,    "",                          "", "Section Title",
              "Title of a section of the product."),
        Field("PPNUM",         5, Conditional, Text,    "",                          "", "Page or Part Number",
              "Page or part at which the section begins."),
        Field("TPP",           3, Conditional, Integer, "001..999",                  "", "Total Pages or Parts",
              "How many pages or parts the section has."),
    End(),
    Field("REQORGREP",     2, Required,    Integer, "00..99",                    "", "Requesting Organization Repetitions",
          "How many requesting organizations follow.").Alias("RQORGREP"),
    Repeat("REQORGREP"),
        Field("REQORG",       64, Conditional, Text,    "",                          "", "Requesting Organization",
              "Organization that asked for the product."),
    End(),
    Field("KEYWORDREP",    2, Required,    Integer, "00..99",                    "", "Keyword Repetitions",
          "How many keyword texts follow.").Alias("KEYWDREP"),
    Repeat("KEYWORDREP"),
        Field("KEYWORD",     255, Conditional, Text,    "",                          "", "Keyword String",
              "Keywords for the product."),
    End(),
    Field("ASSRPTREP",     2, Required,    Integer, "00..99",                    "", "Associated Report Repetitions",
          "How many associated reports follow.").Alias("ASRPTREP"),
    Repeat("ASSRPTREP"),
        Field("ASSRPT",       20, Conditional, Text,    "",                          "", "Associated Report",
              "Report that deals with the product."),
    End(),
    Field("ATEXTREP",      2, Required,    Integer, "00..99",                    "", "Associated Text Repetitions",
          "How many texts follow."),
    Repeat("ATEXTREP"),
        Field("ATEXT",       255, Conditional, Text,    "",                          "", "Associated Text",
              "Text that goes with the product."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TrePIAPRD::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "PIAPRD",
        .name = "Profile for Imagery Access Product, Version D",
        .length = 0,
        .lengthRule =
            "201 + SECTITLEREP*48 + REQORGREP*64 + KEYWORDREP*255 + ASSRPTREP*20 + ATEXTREP*255 (maximum "
            "63759)",
        .placement = "file header",
        .purpose =
            "Describes the product that a file holds: identifiers, producer, sections, requesters, keywords, "
            "reports and texts.",
        .sources =
            "STDI-0002 Volume 1 Appendix C, Table C-5 (2025-06); GDAL TRE description file; imaging-nitf TRE "
            "description file; NITRO plug-in table; OSML imagery-io structure definition; NFX TRE class",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
