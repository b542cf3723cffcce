#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreCSEPHA, TRE);

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// clang-format off
constexpr FieldRow ROWS[] = {
    //    tag        width  need      form     values                        unit label
    Field("EPHEM_FLAG", 12, Required, Text,    "PREDICTED|COLLECT-TIME|REFINED", "", "Ephemeris Flag",
          "Origin of the satellite positions: predicted, measured during the collection, or refined afterwards."),
    Field("DT_EPHEM",    5, Required, Real,    "000.1..999.9",               "s", "Time Between Ephemeris Vectors",
          "Time step between neighbouring positions, always positive."),
    Field("DATE_EPHEM",  8, Required, Date,    "{YYYYMMDD}",                 "",  "Day of First Ephemeris Vector",
          "Date of the first position in the list."),
    Field("T0_EPHEM",   13, Required, Time,    "{hhmmss.ssssss}",            "",  "Time of First Ephemeris Vector",
          "Time of day of the first position in the list."),
    Field("NUM_EPHEM",   3, Required, Integer, "001..999",                   "",  "Number of Ephemeris Vectors",
          "How many positions follow."),
    Repeat("NUM_EPHEM"),
        Field("EPHEM_X",    12, Required, Real,    "-99999999.99..+99999999.99", "m", "X Coordinate of Ephemeris Vector",
              "Earth-centred, Earth-fixed X coordinate of the satellite.").Alias("X"),
        Field("EPHEM_Y",    12, Required, Real,    "-99999999.99..+99999999.99", "m", "Y Coordinate of Ephemeris Vector",
              "Earth-centred, Earth-fixed Y coordinate of the satellite.").Alias("Y"),
        Field("EPHEM_Z",    12, Required, Real,    "-99999999.99..+99999999.99", "m", "Z Coordinate of Ephemeris Vector",
              "Earth-centred, Earth-fixed Z coordinate of the satellite.").Alias("Z"),
    End(),
};
// clang-format on
constexpr auto TABLE = MakeTable(ROWS);
static_assert(TABLE.wellFormed);

}  // namespace

const Detail::TreLayout& TreCSEPHA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT{
        .tag = "CSEPHA",
        .name = "Ephemeris Data",
        .length = 0,
        .lengthRule = "41 + NUM_EPHEM*36 (minimum 77, maximum 36005)",
        .placement = "TRE_OVERFLOW data extension segment that belongs to the image segments of a sensor",
        .purpose =
            "Lists satellite positions at regular times around the imaging interval; a further CSEPHA "
            "continues the list when there are more than 999 positions.",
        .sources =
            "STDI-0006 section 3.4; STDI-0006 Table 3.4-1; STDI-0002 Volume 1 Appendix D, Table D-3 (2025-02); "
            "GDAL TRE description file; imaging-nitf TRE description file; NITRO plug-in table; pynitf TRE "
            "definition; OSML imagery-io structure definition; NFX TRE class; NITF Metadata Register (2016 "
            "draft)",
        .certainty = Detail::LayoutCertainty::Agreed,
        .table = TABLE.View()};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
