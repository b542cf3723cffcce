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
    Field("QUAL_FLAG_ATT",    1, Required,    Integer, "0=suspect|1=good",               "", "Attitude Data Quality Flag",
          "Tells whether the attitude can be relied on."),
    Field("INTERP_TYPE_ATT",  1, Required,    Integer,
          "0=nearest|1=linear|2=Lagrange polynomials|3=spherical",
          "", "Interpolation Type",
          "Rule by which the attitude between the given times is found."),
    When("INTERP_TYPE_ATT", "2|3"),
        Field("INTERP_ORDER_ATT", 1, Conditional, Integer, "1|3|5|7",                        "", "Interpolation Order",
              "Order of the interpolation."),
    End(),
    Field("ATT_TYPE",         1, Required,    Integer, "0=predicted|1=actual|2=refined", "", "Attitude Type",
          "Origin of the attitude data."),
    Field("ECI_ECF_ATT",      1, Required,    Integer,
          "0=inertial (ECI)|1=earth-fixed (ECF)",
          "", "Coordinate Reference Frame Flag",
          "Coordinate system that the quaternions refer to."),
};
constexpr FieldRow WHEN_INERTIAL[] = {When("ECI_ECF_ATT", "0")};
constexpr FieldRow TAIL[] = {
    //    tag           width need         form     values                          unit     label
    Field("DT_ATT",       13, Required,    Real,    "000.000000001..999.999999999", "s",     "Time Between Attitude Reference Points",
          "Time step between neighbouring attitudes."),
    Field("DATE_ATT",      8, Required,    Date,    "{YYYYMMDD}",                   "",      "Day of First Attitude Reference Point",
          "Date of the first attitude."),
    Field("T0_ATT",       16, Required,    Time,    "{HHmmss.sssssssss}",           "",      "Time of First Attitude Reference Point",
          "Time of day of the first attitude."),
    Field("NUM_ATT",       5, Required,    Integer, "00001..99999",                 "",      "Number of Attitude Reference Points",
          "How many attitudes follow."),
    Repeat("NUM_ATT"),
        Field("Q1",           18, Required,    Real,    "-1..+1",                       "",      "Quaternion Q1",
              "First component of the attitude quaternion."),
        Field("Q2",           18, Required,    Real,    "-1..+1",                       "",      "Quaternion Q2",
              "Second component of the attitude quaternion."),
        Field("Q3",           18, Required,    Real,    "-1..+1",                       "",      "Quaternion Q3",
              "Third component of the attitude quaternion."),
        Field("Q4",           18, Required,    Real,    "-1..+1",                       "",      "Quaternion Q4",
              "Fourth component of the attitude quaternion; this is the scalar part."),
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

DesDESSHFCSATTB::DesDESSHFCSATTB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESSHF(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESSHFCSATTB::InitDESSHFFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESSHFs::CSATTB, "Common Sensor Attitude Data", COMMON_SENSOR_LENGTHS,
                                   "DesDESSHFCSATTB", COMMON_SENSOR_SUBHEADER_TABLE.View()};
    return LAYOUT;
}

DesDESDATACSATTB::DesDESDATACSATTB(const char* aType, const char* aData, std::size_t aLength)
{
    InitDesDESDATA(aType, aData, aLength);
}

const DesFieldSet::Layout& DesDESDATACSATTB::InitDESDATAFieldsMap() const
{
    static constexpr Layout LAYOUT{SupportedDESDATAs::CSATTB, "Common Sensor Attitude Data", "55 and more",
                                   "DesDESDATACSATTB", TABLE.View()};
    static constexpr Layout FIRST_EDITION{SupportedDESDATAs::CSATTB, "Common Sensor Attitude Data", "55 and more",
                                          "DesDESDATACSATTB", FIRST_TABLE.View()};
    // The version that tells the editions apart stands in the subheader; the length tells them too.
    return Detail::FitsExactly(FIRST_TABLE.View(), Data()) ? FIRST_EDITION : LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
