#include "fields/FieldWalk.h"
#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

/// The version that adds them stands in the subheader; bytes behind the fields of the first edition tell too.
bool HasMore(const WalkContext& aContext)
{
    return aContext.BytesLeft() != 0;
}

// STDI-0002 Volume 2 Appendix D.
// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag                   width need           form     values                             unit     label
    Field("SHAPEFILE_ID",         36, Required,      Text,    "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}", "",      "Shapefile ID",
          "Identifier of the shapefile; parts of one shapefile share it."),
    Field("SHAPES_ID",            36, Required,      Text,    "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}", "",      "Shapes ID",
          "Identifier of the whole set of shapes, which may be spread over several shapefiles."),
    Field("NUMAIS",                3, Required,      Integer, "ALL=all image segments|000..998", "",      "Number of Associated Image Segments",
          "Tells how many image segments the shapes belong to."),
    WhenNot("NUMAIS", "ALL"),
        Repeat("NUMAIS"),
            Field("AISDLVL",               3, Conditional,   Integer, "001..999",                        "",      "Associated Image Segment Display Level",
                  "Display level of an image segment that the shapes belong to."),
        End(),
    End(),
    Field("TIMESTAMP",            24, RequiredBlank, Time,
          "{CCYYMMDDhhmmss.sssssssss}|blank=no time",
          "UTC", "UTC Timestamp",
          "Time to which the shapes belong."),
    Field("NUM_ASSOC_ELEM",        3, Required,      Integer, "000..999",                        "",      "Number of Associated Elements",
          "How many further elements the shapes belong to."),
    Repeat("NUM_ASSOC_ELEM"),
        Field("ASSOC_ELEM_ID",        36, Conditional,   Text,
              "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}",
              "", "Associated Element UUID",
              "Identifier of an element that the shapes belong to."),
    End(),
    Field("SHAPE_USE",            25, Required,      Text,
          "IMAGE_SHAPE|CLOUD_SHAPES|MOSAIC_SOURCE_SHAPES|USER_DEF_SHAPES",
          "", "Shapefile Use",
          "What the shapes outline."),
    Field("NUM_SHAPE_USE_ATTR",    3, Required,      Integer, "000..999",                        "",      "Number of Shape Use Attributes",
          "How many attributes tell apart segments with the same use."),
    Repeat("NUM_SHAPE_USE_ATTR"),
        Field("SHAPE_USE_ATTR_NAME",  15, Conditional,   Text,    "",                                "",      "Shape Use Attribute Name",
              "Name of the attribute."),
        Field("SHAPE_USE_ATTR_VAL",   10, Conditional,   Text,    "",                                "",      "Shape Use Attribute Value",
              "Value of the attribute."),
    End(),
    Field("SHAPE_CLASS",          11, Required,      Text,
          "NULL SHAPE|POINT|POLYLINE|POLYGON|MULTIPOINT|POINTZ|POLYLINEZ|POLYGONZ|MULTIPOINTZ|POINTM|POLYLINEM|"
          "POLYGONM|MULTIPOINTM|MULTIPATCH",
          "", "Type of Shapes",
          "Geometry type of the shapes."),
    Field("SHAPE_COORD",          10, Required,      Text,    "WGS-84|LineSample",               "",      "Coordinate System",
          "Tells whether the shapes are given in geographic or in image coordinates."),
    Field("SHAPE_VERSION",        11, Required,      Integer, "-9999999999..+9999999999",        "",      "Shapefile Version",
          "Version of the shapefile format."),
    Field("SHAPE_PART",            3, Required,      Integer, "001..999",                        "",      "Shape Part Number",
          "Number of this shapefile within the set."),
    Field("SHAPE_NUM_PARTS",       3, Required,      Integer, "001..999",                        "",      "Number of Shape Parts",
          "How many shapefiles make up the set."),
    Field("SOURCE",               18, RequiredBlank, Text,    "any=such as PAN, MS, SWIR or CAVIS", "",      "Source Sensor",
          "Sensors from whose data the shapes were found."),
    Field("SHAPE1_NAME",           3, RequiredBlank, Text,    "SHP|SHX|DBF|blank",               "",      "Name of First Component File",
          "Kind of the first part of the shapefile in this segment."),
    Field("SHAPE1_START",          9, RequiredBlank, Integer, "000000000..999999998|blank",      "bytes", "Start of First Component File",
          "Distance of the first part from the start of the segment data."),
    Field("SHAPE2_NAME",           3, RequiredBlank, Text,    "SHP|SHX|DBF|blank",               "",      "Name of Second Component File",
          "Kind of the second part of the shapefile in this segment."),
    Field("SHAPE2_START",          9, RequiredBlank, Integer, "000000000..999999998|blank",      "bytes", "Start of Second Component File",
          "Distance of the second part from the start of the segment data."),
    Field("SHAPE3_NAME",           3, RequiredBlank, Text,    "SHP|SHX|DBF|blank",               "",      "Name of Third Component File",
          "Kind of the third part of the shapefile in this segment."),
    Field("SHAPE3_START",          9, RequiredBlank, Integer, "000000000..999999998|blank",      "bytes", "Start of Third Component File",
          "Distance of the third part from the start of the segment data."),
    WhenBy("the second edition adds supporting files", HasMore),
        Field("NUM_SUPPORTING_FILES",  2, Conditional,   Integer, "00..99",                          "",      "Number of Supporting Files",
              "How many supporting files, such as PRJ, the segment holds."),
        Repeat("NUM_SUPPORTING_FILES"),
            Field("SUPPORTING_NAME_LEN",   2, Conditional,   Integer, "01..99",                          "bytes", "Supporting File Name Length",
                  "Length of the name of the supporting file."),
            Sized("SUPPORTING_NAME",      "SUPPORTING_NAME_LEN", 0, Conditional,   Text,    "",                                "",      "Supporting File Name",
                  "Name of the supporting file."),
            Field("SUPPORTING_START",      9, Conditional,   Integer, "000000000..999999998",            "bytes", "Supporting File Start",
                  "Distance of the supporting file from the start of the segment data."),
            Field("SUPPORTING_SIZE",       9, Conditional,   Integer, "000000001..999999998",            "bytes", "Supporting File Size",
                  "Length of the supporting file."),
        End(),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS) == 222);

}  // namespace

DesDESSHFCSSHPB::DesDESSHFCSSHPB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSSHPB::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSSHPB, "Image/Cloud Cover Shapefile, version B", "222 and more",
                                   "DesDESSHFCSSHPB", TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
