#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreHISTOA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto PIXEL_TYPE = "INT=unsigned integer|SI=signed integer|R=real|C=complex|B=bi-level|U=user defined";
constexpr auto COMPRESSION = "any=up to two groups of a code as in PC and a letter, filled up with zeros";
constexpr auto KERNEL = "00..99|-1=other kernel, see the comments";
constexpr auto CURVE = "00..99|-1=other curve, see the comments";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag         width  need           form     values                unit    label
    Field("SYSTYPE",     20, Required,      Text,    "any=registered system name or commercial platform and sensor code", "", "System Type",
          "Sensor system that collected the original image."),
    Field("PC",          12, Required,      Text,    "any=up to three codes of four characters, filled up with zeros", "", "Prior Compression",
          "Compressions that the image had gone through before it was put into this format; codes are for example NONE, "
          "NC00, C3Q0 to C3Q5, C4LO, C5NL, JP20, J2NL, J2VL, J2LO, WVLO, WVNL, UNKC, OTLO and OTNL."),
    Field("PE",           4, Required,      Text,    "EH08|EH11|UE08|UE11|DGHC|UNKP|NONE|GEOR|ORTH|MOSC|SRES", "", "Prior Enhancements",
          "Enhancement that had been applied before the image was put into this format."),
    Field("REMAP_FLAG",   1, RequiredBlank, Text,    "0=no|1=yes|blank=not applicable|2..9=reserved", "", "System Specific Remap",
          "Tells whether a remap special to the system was applied."),
    Field("LUTID",        2, Required,      Integer,
          "00=none|07|08=piecewise extended density|11=unity|12..64=linear-logarithmic|any=reserved",
          "", "Data Mapping ID",
          "Identifier of the data mapping named in the exploitation support data."),
    Field("NEVENTS",      2, Required,      Integer, "01..99",             "",     "Number of Processing Events",
          "How many processing events follow, oldest first."),
    Repeat("NEVENTS"),
        Field("PDATE",       14, Required,      Date,    "{CCYYMMDDhhmmss}",   "",     "Processing Date and Time",
              "Moment of the processing event."),
        Field("PSITE",       10, Required,      Text,    "",                   "",     "Processing Site",
              "Site that did the processing."),
        Field("PAS",         10, Required,      Text,    "",                   "",     "Softcopy Processing Application",
              "Program that did the processing."),
        Field("NIPCOM",       1, Required,      Integer, "0..9",               "",     "Number of Image Processing Comments",
              "How many comment lines follow."),
        Repeat("NIPCOM"),
            Field("IPCOM",       80, Conditional,   Text,    "",                   "",     "Image Processing Comment",
                  "Line of free text that explains the processing."),
        End(),
        Field("IBPP",         2, Required,      Integer, "01..64",             "bits", "Input Bit Depth",
              "Significant bits of a pixel before the event."),
        Field("IPVTYPE",      3, Required,      Text,    PIXEL_TYPE,           "",     "Input Pixel Value Type",
              "Kind of pixel value before the event."),
        Field("INBWC",       10, Required,      Text,    COMPRESSION,          "",     "Input Bandwidth Compression",
              "Compression or expansion applied before the enhancements of this event; the letter is C for compressed, "
              "E for expanded and 0 for neither."),
        Field("DISP_FLAG",    1, RequiredBlank, Integer,
              "0=not ready|1=ready|2=ready, no further tonal processing|3=ready, further tonal processing allowed|"
              "blank=always displayable|4..9=reserved",
              "", "Display-Ready Flag",
              "Tells whether the image can be displayed as it is."),
        Field("ROT_FLAG",     1, Required,      Integer, "0=no|1=yes",         "",     "Image Rotation Flag",
              "Tells whether the image was rotated."),
        When("ROT_FLAG", "1"),
            Field("ROT_ANGLE",    8, Conditional,   Real,    "000.0000..359.9999", "deg",  "Angle of Rotation",
                  "Clockwise angle of the rotation."),
        End(),
        Field("ASYM_FLAG",    1, RequiredBlank, Integer, "0=no|1=yes|blank=not applicable", "", "Asymmetric Correction Flag",
              "Tells whether rows and columns were scaled differently."),
        When("ASYM_FLAG", "1"),
            Field("ZOOMROW",      7, Conditional,   Real,    "00.0000..99.9999",   "",     "Magnification in Row Direction",
                  "Factor applied in the line direction."),
            Field("ZOOMCOL",      7, Conditional,   Real,    "00.0000..99.9999",   "",     "Magnification in Column Direction",
                  "Factor applied in the element direction."),
        End(),
        Field("PROJ_FLAG",    1, Required,      Integer, "0=no|1=yes",         "",     "Image Projection Flag",
              "Tells whether the image was projected out of its collection geometry."),
        Field("SHARP_FLAG",   1, Required,      Integer, "0=no|1=yes",         "",     "Sharpening Flag",
              "Tells whether the image was sharpened."),
        When("SHARP_FLAG", "1"),
            Field("SHARPFAM",     2, Conditional,   Integer, KERNEL,               "",     "Sharpening Family Number",
                  "Family of the sharpening kernel."),
            Field("SHARPMEM",     2, Conditional,   Integer, KERNEL,               "",     "Sharpening Member Number",
                  "Member of the sharpening kernel family."),
        End(),
        Field("MAG_FLAG",     1, Required,      Integer, "0=no|1=yes",         "",     "Symmetrical Magnification Flag",
              "Tells whether the image was enlarged or reduced equally in both directions."),
        When("MAG_FLAG", "1"),
            Field("MAG_LEVEL",    7, Conditional,   Real,    "00.0000..99.9999",   "",     "Level of Relative Magnification",
                  "Factor of the enlargement; below one for a reduction."),
        End(),
        Field("DRA_FLAG",     1, Required,      Integer, "0=no|1=same for all pixels|2=varies over the image", "", "Dynamic Range Adjustment Flag",
              "Tells whether the range of pixel values was adjusted."),
        When("DRA_FLAG", "1"),
            Field("DRA_MULT",     7, Conditional,   Real,    "000.000..999.999",   "",     "Dynamic Range Adjustment Multiplier",
                  "Factor of the adjustment, applied after the subtraction."),
            Field("DRA_SUB",      5, Conditional,   Integer, "-9999..+9999",       "",     "Dynamic Range Adjustment Subtractor",
                  "Value subtracted from each pixel before the multiplication."),
        End(),
        Field("TTC_FLAG",     1, Required,      Integer, "0=no|1=yes",         "",     "Tonal Transfer Curve Flag",
              "Tells whether a tonal transfer curve was applied."),
        When("TTC_FLAG", "1"),
            Field("TTCFAM",       2, Conditional,   Integer, CURVE,                "",     "Tonal Transfer Curve Family Number",
                  "Family of the tonal transfer curve."),
            Field("TTCMEM",       2, Conditional,   Integer, CURVE,                "",     "Tonal Transfer Curve Member Number",
                  "Member of the tonal transfer curve family."),
        End(),
        Field("DEVLUT_FLAG",  1, Required,      Integer, "0=no|1=yes",         "",     "Device Look-Up Table Flag",
              "Tells whether a table that compensates for the display device was applied."),
        Field("OBPP",         2, Required,      Integer, "01..64",             "bits", "Output Bit Depth",
              "Significant bits of a pixel after the event."),
        Field("OPVTYPE",      3, Required,      Text,    PIXEL_TYPE,           "",     "Output Pixel Value Type",
              "Kind of pixel value after the event."),
        Field("OUTBWC",      10, Required,      Text,    COMPRESSION,          "",     "Output Bandwidth Compression",
              "Compression or expansion applied after the enhancements of this event; the letter is C for compressed, "
              "E for expanded and 0 for neither."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreHISTOA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "HISTOA",
        .name = "Softcopy History",
        .length = 0,
        .lengthRule =
            "41 + sum over the NEVENTS events of (74 + 80*NIPCOM + 8 if ROT_FLAG=1 + 14 if ASYM_FLAG=1 + 4 "
            "if SHARP_FLAG=1 + 7 if MAG_FLAG=1 + 12 if DRA_FLAG=1 + 4 if TTC_FLAG=1); minimum 115, maximum "
            "83512",
        .placement = "image subheader",
        .purpose =
            "Keeps the history of the pixel processing of an image: what had been done before it was put into "
            "this format and each later processing event with its parameters.",
        .sources =
            "STDI-0002 Appendix L; STDI-0002 version 4 page L-10; STDI-0002 Volume 1 Appendix L, Tables L-1 to "
            "L-4; GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; OSSIM tag "
            "class; pynitf TRE definition; OSML imagery-io structure definition; NFX TRE class; NITF Metadata "
            "Register (2016 draft); three HISTOA blocks of image files (115, 276 and 337 bytes)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The codes of PC, INBWC and OUTBWC are examples; registers know more. The values 2 and 3 of DISP_FLAG "
            "stand in newer code lists only."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
