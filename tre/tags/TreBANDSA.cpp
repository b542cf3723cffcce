#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreBANDSA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

constexpr auto SPACING = "00.0001..99.9999=with unit f or m|0000.01..9999.99=with unit r";

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag              width  need           form     values            unit    label
    Field("ROW_SPACING",       7, Required,      Real,    SPACING,          "ft, m or urad (ROW_SPACING_UNITS)", "Row Spacing",
          "Distance or angle between neighbouring image rows at the image centre."),
    Field("ROW_SPACING_UNITS", 1, Required,      Text,    "f=feet|m=metres|r=microradians", "", "Unit of Row Spacing",
          "Unit of the row spacing."),
    Field("COL_SPACING",       7, Required,      Real,    SPACING,          "ft, m or urad (COL_SPACING_UNITS)", "Column Spacing",
          "Distance or angle between neighbouring pixels of a row at the image centre."),
    Field("COL_SPACING_UNITS", 1, Required,      Text,    "f=feet|m=metres|r=microradians", "", "Unit of Column Spacing",
          "Unit of the column spacing."),
    Field("FOCAL_LENGTH",      6, Required,      Real,    "000.01..899.99|999.99=not available", "cm", "Focal Length",
          "Effective distance from the lens to the detector."),
    Field("COUNT",             4, Required,      Integer, "0001..0999",     "",     "Number of Bands",
          "Number of band records that follow.").Alias("BANDCOUNT"),
    Repeat("COUNT"),
        Field("BANDPEAK",          5, RequiredBlank, Real,    "00.01..19.99",   "um",   "Band n Peak Response",
              "Wavelength at which the band responds most strongly."),
        Field("BANDLBOUND",        5, RequiredBlank, Real,    "00.01..19.99",   "um",   "Band n Lower Wavelength Bound",
              "Wavelength of the lower half-response point of the band."),
        Field("BANDUBOUND",        5, RequiredBlank, Real,    "00.01..19.99",   "um",   "Band n Upper Wavelength Bound",
              "Wavelength of the upper half-response point of the band."),
        Field("BANDWIDTH",         5, RequiredBlank, Real,    "00.01..19.99",   "um",   "Band n Width",
              "Wavelength difference between the half-response points of the band."),
        Field("BANDCALDRK",        6, RequiredBlank, Real,    "0000.1..9999.9", "",     "Band n Calibration (Dark)",
              "Calibrated received power that corresponds to a pixel value of zero in this band."),
        Field("BANDCALINC",        5, RequiredBlank, Real,    "00.01..19.99",   "",     "Band n Calibration (Increment)",
              "Mean change of received power for a step of one in the pixel value of this band."),
        Field("BANDRESP",          5, RequiredBlank, Real,    "000.1..999.9",   "urad", "Band n Spatial Response Interval",
              "Nominal angle that one pixel of the band covers, optical effects included."),
        Field("BANDASD",           5, RequiredBlank, Real,    "000.1..999.9",   "urad", "Band n Angular Sample Distance",
              "Angle between the centres of neighbouring pixels of the band."),
        Field("BANDGSD",           5, RequiredBlank, Real,    "00.01..99.99",   "m",    "Band n Ground Sample Distance",
              "Distance on the ground between the centres of neighbouring pixels of the band."),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreBANDSA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "BANDSA",
        .name = "Multispectral/Hyperspectral Band Parameters",
        .length = 0,
        .lengthRule = "26 + COUNT*46",
        .placement = "image subheader",
        .purpose =
            "Adds spacing, focal length and per-band wavelength, calibration and sample-distance facts to a "
            "multispectral image subheader. Superseded by BANDSB.",
        .sources =
            "NITRO plug-in table; Opticks TRE parser; length limits 72 to 45980 quoted for STDI-0002 version "
            "3.0 Appendix E in a public Kaitai Struct description",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View(),
        .notes =
            "The meanings of BANDCALDRK, BANDCALINC, BANDRESP and BANDASD are recalled, without a source at hand."};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
