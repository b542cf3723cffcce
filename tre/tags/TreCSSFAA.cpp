#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSSFAA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag        width  need           form     values                      unit  label
    Field("NUM_BANDS",   1, Required,      Integer, "1..9",                     "",   "Number of Bands",
          "How many bands are described."),
    Repeat("NUM_BANDS"),
        Field("BAND_TYPE",   1, RequiredBlank, Text,    "M=panchromatic|R=red|G=green|B=blue|N=near infrared|blank=other", "", "Band Category",
              "Letter that classes the band."),
        Field("BAND_ID",     6, Required,      Text,    "any=as in the ISUBCAT field of the image subheader", "nm", "Band Wavelength Center",
              "Centre wavelength of the band, written as in the image subheader."),
        Field("FOC_LENGTH", 11, Required,      Real,    "00000.00001..99999.99999", "mm", "Focal Length",
              "Focal length of the sensor for this band."),
        Field("NUM_DAP",     8, Required,      Integer, "00000001..99999999",       "",   "Number of Linear Arrays",
              "How many detector lines the band has; always one for basic products."),
        Field("NUM_FIR",     8, Required,      Integer, "00000001",                 "",   "First Sample Number",
              "Number of the first sample of the detector line; always one."),
        Field("DELTA",       7, Required,      Integer, "0000001..9999999",         "",   "Number of Detector Elements",
              "How many detector elements the line has."),
        Field("OPPOFF_X",    7, Required,      Real,    "",                         "m",  "Principal Point Offset X",
              "Shift of the principal point along the X axis; from -100.00 to +100.00 in the earlier editions."),
        Field("OPPOFF_Y",    7, Required,      Real,    "",                         "m",  "Principal Point Offset Y",
              "Shift of the principal point along the Y axis; from -100.00 to +100.00 in the earlier editions."),
        Field("OPPOFF_Z",    7, Required,      Real,    "",                         "m",  "Principal Point Offset Z",
              "Shift of the principal point along the Z axis; from -100.00 to +100.00 in the earlier editions."),
        Field("START_X",    11, Required,      Real,    "-99999.9999..+99999.9999", "mm", "First Pixel Mounting X",
              "X coordinate at which the first pixel of the detector line is mounted."),
        Field("START_Y",    11, Required,      Real,    "-99999.9999..+99999.9999", "mm", "First Pixel Mounting Y",
              "Y coordinate at which the first pixel of the detector line is mounted."),
        Field("FINISH_X",   11, Required,      Real,    "-99999.9999..+99999.9999", "mm", "Last Pixel Mounting X",
              "X coordinate at which the last pixel of the detector line is mounted."),
        Field("FINISH_Y",   11, Required,      Real,    "-99999.9999..+99999.9999", "mm", "Last Pixel Mounting Y",
              "Y coordinate at which the last pixel of the detector line is mounted."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCSSFAA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSSFAA",
        .name = "Sensor Field Alignment Data",
        .length = 0,
        .lengthRule = "1 + NUM_BANDS*106 (minimum 107)",
        .placement = "TRE_OVERFLOW data extension segment that belongs to the image segments of a sensor",
        .purpose =
            "Describes, band by band, the focal length, the detector line and its mounting in the focal plane "
            "of a commercial sensor.",
        .sources =
            "STDI-0006 Table 3.7-1; STDI-0002 Volume 1 Appendix D, Table D-6 (2025-02); GDAL TRE description "
            "file; imaging-nitf TRE description file; NITRO plug-in table; OSML imagery-io structure "
            "definition; NFX TRE class; NITF Metadata Register (2016 draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
