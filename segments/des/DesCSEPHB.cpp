#include "fields/RowList.h"
#include "segments/des/DesTypes.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/CommonSensorRows.h"
#include "segments/des/detail/DesLayout.h"

namespace ORMO::SensorModel::CSM {

namespace {

using namespace Detail;
using enum Detail::Need;
using enum Detail::Form;

// STDI-0002 Volume 2 Appendix M.
// clang-format off
constexpr FieldRow HEAD[] = {
    //    tag               width need         form     values                            unit label
    Field("QUAL_FLAG_EPH",    1, Required,    Integer, "0=suspect|1=good",               "", "Ephemeris Data Quality Flag",
          "Tells whether the positions can be relied on."),
    Field("INTERP_TYPE_EPH",  1, Required,    Integer, "0=nearest|1=linear|2=Lagrange polynomials", "", "Interpolation Type",
          "Rule by which the position between the given times is found."),
    When("INTERP_TYPE_EPH", "2"),
        Field("INTERP_ORDER_EPH", 1, Conditional, Integer, "3|5|7",                          "", "Interpolation Order",
              "Order of the interpolation."),
    End(),
    Field("EPHEM_FLAG",       1, Required,    Integer, "0=predicted|1=actual|2=refined", "", "Ephemeris Source Type",
          "Origin of the positions."),
    Field("ECI_ECF_EPHEM",    1, Required,    Integer,
          "0=inertial (ECI)|1=earth-fixed (ECF)",
          "", "Coordinate Reference Frame Flag",
          "Coordinate system of the positions."),
};
constexpr FieldRow WHEN_INERTIAL[] = {When("ECI_ECF_EPHEM", "0")};
constexpr FieldRow TAIL[] = {
    //    tag           width need         form     values                          unit     label
    Field("DT_EPHEM",     13, Required,    Real,    "000.000000001..999.999999999", "s",     "Time Between Ephemeris Vectors",
          "Time step between neighbouring positions."),
    Field("DATE_EPHEM",    8, Required,    Date,    "{YYYYMMDD}",                   "",      "Day of First Ephemeris Vector",
          "Date of the first position."),
    Field("T0_EPHEM",     16, Required,    Time,    "{HHmmss.sssssssss}",           "",      "Time of First Ephemeris Vector",
          "Time of day of the first position."),
    Field("NUM_EPHEM",     5, Required,    Integer, "00001..99999",                 "",      "Number of Ephemeris Vectors",
          "How many positions follow."),
    Repeat("NUM_EPHEM"),
        Field("EPHEM_X",      12, Required,    Real,    "-99999999.99..+99999999.99",   "m",     "X Coordinate",
              "X coordinate of the platform."),
        Field("EPHEM_Y",      12, Required,    Real,    "-99999999.99..+99999999.99",   "m",     "Y Coordinate",
              "Y coordinate of the platform."),
        Field("EPHEM_Z",      12, Required,    Real,    "-99999999.99..+99999999.99",   "m",     "Z Coordinate",
              "Z coordinate of the platform."),
    End(),
    Field("RESERVED_LEN",  9, Required,    Integer, "000000000..999999999",         "bytes", "Size of Reserved Field",
          "Length of the reserved field that follows."),
    WhenPositive("RESERVED_LEN"),
        Sized("RESERVED",     "RESERVED_LEN", 0, Conditional, Bytes,   "",                             "",      "Reserved Data Field",
              "Bytes for additions to the layout."),
    End(),
};
// clang-format on
constexpr FieldRow END[] = {End()};
constexpr auto ROWS = JoinRows(HEAD, WHEN_INERTIAL, InCondition(INERTIAL_TERMS).rows, END, TAIL);
constexpr auto TABLE = MakeTable(ROWS.rows);
static_assert(TABLE.wellFormed);
static_assert(FixedWidth(ROWS.rows) == 55);
constexpr auto FIRST_ROWS = JoinRows(HEAD, TAIL);
constexpr auto FIRST_TABLE = MakeTable(FIRST_ROWS.rows);
static_assert(FIRST_TABLE.wellFormed);

}  // namespace

DesDESSHFCSEPHB::DesDESSHFCSEPHB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSEPHB::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSEPHB, "Common Sensor Ephemeris Data", COMMON_SENSOR_LENGTHS,
                                   "DesDESSHFCSEPHB", COMMON_SENSOR_SUBHEADER_TABLE.View()};
    return LAYOUT;
}

DesDESDATACSEPHB::DesDESDATACSEPHB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESDATA(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESDATACSEPHB::InitDESDATAFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESDATAs::CSEPHB, "Common Sensor Ephemeris Data", "55 and more",
                                   "DesDESDATACSEPHB", TABLE.View()};
    static constexpr Layout FIRST_EDITION{SupportedDESDATAs::CSEPHB, "Common Sensor Ephemeris Data", "55 and more",
                                          "DesDESDATACSEPHB", FIRST_TABLE.View()};
    // The version that tells the editions apart stands in the subheader; the length tells them too.
    return Detail::FitsExactly(FIRST_TABLE.View(), Data()) ? FIRST_EDITION : LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
