#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreMITOCA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto POSITION = "{+dd.dddddd+ddd.dddddd}|{Xddmmss.ssYdddmmss.ss}";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                     width  need         form      values                  unit       label
    Field("SCENE_TYPE",               3, Required,    Integer,
          "000=not designated|001=DCGS|002..100=reserved for DCGS|101..999=reserved",
          "", "Scene Type",
          "Set of conventions that the scene follows."),
    Field("SCENE_ID_LEN",             3, Required,    Integer,  "001..999",             "bytes",   "Scene Identifier Length",
          "Length of the scene identifier."),
    Sized("SCENE_ID", "SCENE_ID_LEN", 0, Required, Text, "", "", "Scene Identifier",
          "Identifier that all parts of the scene have in common."),
    Field("LOOK_COMPOSITE_INDEX",     3, Required,    Text,
          "001..999=display level|000=composite absent, corners given|---=composite absent",
          "", "Look Composite Index Value",
          "Display level of the composite image of the whole look, when this file holds it."),
    Field("LOOK_COMPOSITE_ID_LEN",    3, Required,    Integer,  "000..999",             "bytes",   "Look Composite Identifier Length",
          "Length of the identifier of the look composite; 000 when LOOK_COMPOSITE_INDEX is three hyphens."),
    WhenPositive("LOOK_COMPOSITE_ID_LEN"),
        Sized("LOOK_COMPOSITE_ID", "LOOK_COMPOSITE_ID_LEN", 0, Conditional, Text, "",
              "", "Look Composite Image Identifier",
              "Identifier of the composite image of the whole look."),
    End(),
    WhenNot("LOOK_COMPOSITE_INDEX", "---"),
        Field("LOOK_CORNER_1",           21, Conditional, Location, POSITION,               "",        "Look Corner Point 1",
              "Ground location of the look corner at the first row, first column."),
        Field("LOOK_CORNER_2",           21, Conditional, Location, POSITION,               "",        "Look Corner Point 2",
              "Ground location of the look corner at the first row, last column."),
        Field("LOOK_CORNER_3",           21, Conditional, Location, POSITION,               "",        "Look Corner Point 3",
              "Ground location of the look corner at the last row, last column."),
        Field("LOOK_CORNER_4",           21, Conditional, Location, POSITION,               "",        "Look Corner Point 4",
              "Ground location of the look corner at the last row, first column."),
    End(),
    Field("NUM_VOLUMES",              6, Required,    Text,     "000001..999999|------=unknown", "", "Number of Volumes",
          "How many volumes make up the look."),
    Field("LOOK_INSTANCE",            6, Required,    Integer,  "000001..999999",       "",        "Look Instance",
          "Number of the look to which the data of this volume belong."),
    Field("VOLUME_NUM",               6, Required,    Integer,  "000001..999999",       "",        "Volume Number",
          "Number of this volume within the scene."),
    Field("SENSOR_ID",                6, Required,    Text,     "any=registered value", "",        "Sensor Identifier",
          "Sensor that took the images of this volume."),
    Field("SENSOR_ID_TYPE",           4, Required,    Text,     "any=registered value", "",        "Sensor Identifier Type",
          "Kind of sensor that took the images of this volume."),
    Field("MPLAN",                    3, Required,    Text,     "001..012|019|any=other registered mode of the sensor", "", "Mission Plan Mode",
          "Collection mode of the sensor."),
    Field("VOLUME_COMPOSITE_INDEX",   3, Required,    Integer,
          "001..999=display level|000=composite absent",
          "", "Volume Composite Image Index Value",
          "Display level of the composite image of this volume, when this file holds it."),
    Field("VOLUME_COMPOSITE_ID_LEN",  3, Required,    Integer,  "001..999",             "bytes",   "Volume Composite Identifier Length",
          "Length of the identifier of the volume composite."),
    Sized("VOLUME_COMPOSITE_ID", "VOLUME_COMPOSITE_ID_LEN", 0, Required, Text, "",
          "", "Volume Composite Image Identifier",
          "Identifier of the composite image of this volume."),
    Field("VOLUME_CORNER_1",         21, Required,    Location, POSITION,               "",        "Volume Corner Point 1",
          "Ground location of the volume corner at the first row, first column."),
    Field("VOLUME_CORNER_2",         21, Required,    Location, POSITION,               "",        "Volume Corner Point 2",
          "Ground location of the volume corner at the first row, last column."),
    Field("VOLUME_CORNER_3",         21, Required,    Location, POSITION,               "",        "Volume Corner Point 3",
          "Ground location of the volume corner at the last row, last column."),
    Field("VOLUME_CORNER_4",         21, Required,    Location, POSITION,               "",        "Volume Corner Point 4",
          "Ground location of the volume corner at the last row, first column."),
    Field("NUM_COMPONENTS",           3, Required,    Integer,  "001..999",             "",        "Number of Component Image Segments",
          "How many component images the volume has."),
    Field("COMPONENTS_FLAG",          1, Required,    Integer,
          "0=none is in this file|1=all are in this file|2..9=reserved",
          "", "Component Image Segments Presence Flag",
          "Tells whether this file holds the component images."),
    Field("NUM_ROWS",                 8, Required,    Integer,  "00000001..99999999",   "rows",    "Number of Pixel Rows",
          "Rows of the volume composite."),
    Field("NUM_COLS",                 8, Required,    Integer,  "00000001..99999999",   "columns", "Number of Pixel Columns",
          "Columns of the volume composite."),
    Field("DSR",                      7, Required,    Real,     "0001.00..9999.99",     "",        "Down Sample Ratio",
          "How many times the volume composite is coarser than the component images."),
    Field("COMPONENT_ID_LEN",         3, Required,    Integer,  "001..999",             "bytes",   "Component Identifier Length",
          "Length that the identifiers of all component images share."),
    Field("COMPONENT_INDEX_TYPE",     1, Required,    Integer,
          "0=no index|1=display level|2=sequence number|3..9=reserved",
          "", "Component Image Index Type",
          "Meaning of the index field of the component images."),
    Repeat("NUM_COMPONENTS"),
        Sized("COMPONENT_ID", "COMPONENT_ID_LEN", 0, Required, Text, "", "", "Component Image ID",
              "Identifier of the component image within the look."),
        WhenNot("COMPONENT_INDEX_TYPE", "0"),
            Field("ISH_INDEX",                3, Conditional, Integer,  "001..999",             "",        "Image Subheader Index",
                  "Display level or sequence number of the component image in this file."),
        End(),
        Field("COMPONENT_CORNER_1",      21, Required,    Location, POSITION,               "",        "Component Corner Point 1",
              "Ground location of the component corner at the first row, first column."),
        Field("COMPONENT_CORNER_2",      21, Required,    Location, POSITION,               "",        "Component Corner Point 2",
              "Ground location of the component corner at the first row, last column."),
        Field("COMPONENT_CORNER_3",      21, Required,    Location, POSITION,               "",        "Component Corner Point 3",
              "Ground location of the component corner at the last row, last column."),
        Field("COMPONENT_CORNER_4",      21, Required,    Location, POSITION,               "",        "Component Corner Point 4",
              "Ground location of the component corner at the last row, first column."),
        WhenNot("VOLUME_COMPOSITE_INDEX", "000"),
            Field("UPPER_LEFT_ROW",           8, Conditional, Integer,  "00000000..99999998",   "rows",    "Upper Left Row Pixel Offset",
                  "Row of the upper left corner of the component image, counted in the volume composite."),
            Field("UPPER_LEFT_COL",           8, Conditional, Integer,  "00000000..99999998",   "columns", "Upper Left Column Pixel Offset",
                  "Column of the upper left corner of the component image, counted in the volume composite."),
            Field("UPPER_RIGHT_ROW",          8, Conditional, Integer,  "00000000..99999998",   "rows",    "Upper Right Row Pixel Offset",
                  "Row of the upper right corner of the component image, counted in the volume composite."),
            Field("UPPER_RIGHT_COL",          8, Conditional, Integer,  "00000000..99999998",   "columns", "Upper Right Column Pixel Offset",
                  "Column of the upper right corner of the component image, counted in the volume composite."),
            Field("LOWER_RIGHT_ROW",          8, Conditional, Integer,  "00000000..99999998",   "rows",    "Lower Right Row Pixel Offset",
                  "Row of the lower right corner of the component image, counted in the volume composite."),
            Field("LOWER_RIGHT_COL",          8, Conditional, Integer,  "00000000..99999998",   "columns", "Lower Right Column Pixel Offset",
                  "Column of the lower right corner of the component image, counted in the volume composite."),
            Field("LOWER_LEFT_ROW",           8, Conditional, Integer,  "00000000..99999998",   "rows",    "Lower Left Row Pixel Offset",
                  "Row of the lower left corner of the component image, counted in the volume composite."),
            Field("LOWER_LEFT_COL",           8, Conditional, Integer,  "00000000..99999998",   "columns", "Lower Left Column Pixel Offset",
                  "Column of the lower left corner of the component image, counted in the volume composite."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreMITOCA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "MITOCA",
        .name = "Multi-image Scene Table of Contents",
        .length = 0,
        .lengthRule =
            "164 + SCENE_ID_LEN + LOOK_COMPOSITE_ID_LEN + (84 if LOOK_COMPOSITE_INDEX is not ---) + "
            "VOLUME_COMPOSITE_ID_LEN + NUM_COMPONENTS*(COMPONENT_ID_LEN + 84 + (3 if COMPONENT_INDEX_TYPE "
            "is not 0) + (64 if VOLUME_COMPOSITE_INDEX is not 000))",
        .placement = "file header",
        .purpose =
            "Table of contents of a scene that a sensor covered with several images: it ties the scene, its "
            "looks and volumes, the composite images and the component images together.",
        .sources =
            "STDI-0002 Volume 1 Appendix O, Table O-1 (2021-10); OSML imagery-io structure definition; NFX TRE "
            "class and its byte-level test; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
