#pragma once

#include "fields/FieldWalk.h"
#include "fields/RowList.h"

#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

// What the segments of the common sensor model share. STDI-0002 Volume 2 Appendix M.

/// The subheader fields of CSATTB, CSEPHB, CSSFAB and CSCSDB.
// clang-format off
inline constexpr FieldRow COMMON_SENSOR_SUBHEADER[] = {
    //    tag               width need         form     values                             unit     label
    Field("UUID",             36, Need::Required,    Form::Text,    "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}", "",      "DES UUID",
          "Identifier of this segment, by which others refer to it."),
    Field("NUMAIS",            3, Need::Required,    Form::Integer, "ALL=all image segments|001..998", "",      "Number of Associated Image Segments",
          "Tells how many image segments the data belong to."),
    WhenNot("NUMAIS", "ALL"),
        Repeat("NUMAIS"),
            Field("AISDLVL",           3, Need::Conditional, Form::Integer, "001..999",                        "",      "Associated Image Segment Display Level",
                  "Display level of an image segment that the data belong to."),
        End(),
    End(),
    Field("NUM_ASSOC_ELEM",    3, Need::Required,    Form::Integer, "000..276",                        "",      "Number of Associated Elements",
          "How many further elements, such as other segments, the data belong to."),
    Repeat("NUM_ASSOC_ELEM"),
        Field("ASSOC_ELEM_UUID",  36, Need::Conditional, Form::Text,
              "{xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx}",
              "", "Associated Element UUID",
              "Identifier of an element that the data belong to."),
    End(),
    Field("RESERVEDSUBH_LEN",  4, Need::Required,    Form::Integer, "0000..9999",                      "bytes", "Length of Reserved Subheader Field",
          "Length of the reserved field that follows."),
    WhenPositive("RESERVEDSUBH_LEN"),
        Sized("RESERVEDSUBH",     "RESERVEDSUBH_LEN", 0, Need::Conditional, Form::Bytes,   "",                                "",      "Reserved Subheader Field",
              "Bytes kept for later additions to the user-defined subheader."),
    End(),
};
// clang-format on
inline constexpr auto COMMON_SENSOR_SUBHEADER_TABLE = MakeTable(COMMON_SENSOR_SUBHEADER);
static_assert(COMMON_SENSOR_SUBHEADER_TABLE.wellFormed);
static_assert(FixedWidth(COMMON_SENSOR_SUBHEADER) == 46);
inline constexpr const char* COMMON_SENSOR_LENGTHS =
    "46 and 3 for each image segment, 36 for each element and RESERVEDSUBH_LEN";

/// The prediction of the pole and of universal time that goes with inertial coordinates since the second edition. The
/// meanings and units are recalled, names and widths are not.
// clang-format off
inline constexpr FieldRow INERTIAL_TERMS[] = {
    //    tag       width need         form  values                    unit      label
    Field("TA_POLE",  19, Need::Conditional, Form::Real, "2000000..3000000",       "days",   "Polar Motion Epoch",
          "Julian date from which the terms of the polar motion count."),
    Field("A_POLE",   11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient A",
          "Constant term of the x coordinate of the pole."),
    Field("B_POLE",   11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient B",
          "Linear term of the x coordinate of the pole."),
    Field("CJ1_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient CJ1",
          "Periodic term (sine) of the x coordinate of the pole for the period PJ1_POLE."),
    Field("CJ2_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient CJ2",
          "Periodic term (sine) of the x coordinate of the pole for the period PJ2_POLE."),
    Field("DJ1_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient DJ1",
          "Periodic term (cosine) of the x coordinate of the pole for the period PJ1_POLE."),
    Field("DJ2_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient DJ2",
          "Periodic term (cosine) of the x coordinate of the pole for the period PJ2_POLE."),
    Field("PJ1_POLE", 10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Polar Motion Period PJ1",
          "Period number 1 of the x coordinate of the pole."),
    Field("PJ2_POLE", 10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Polar Motion Period PJ2",
          "Period number 2 of the x coordinate of the pole."),
    Field("E_POLE",   11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient E",
          "Constant term of the y coordinate of the pole."),
    Field("F_POLE",   11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient F",
          "Linear term of the y coordinate of the pole."),
    Field("GK1_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient GK1",
          "Periodic term (sine) of the y coordinate of the pole for the period PK1_POLE."),
    Field("GK2_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient GK2",
          "Periodic term (sine) of the y coordinate of the pole for the period PK2_POLE."),
    Field("HK1_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient HK1",
          "Periodic term (cosine) of the y coordinate of the pole for the period PK1_POLE."),
    Field("HK2_POLE", 11, Need::Conditional, Form::Real, "-1..+1",                 "arcsec", "Polar Motion Coefficient HK2",
          "Periodic term (cosine) of the y coordinate of the pole for the period PK2_POLE."),
    Field("PK1_POLE", 10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Polar Motion Period PK1",
          "Period number 1 of the y coordinate of the pole."),
    Field("PK2_POLE", 10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Polar Motion Period PK2",
          "Period number 2 of the y coordinate of the pole."),
    Field("TB_UT",    19, Need::Conditional, Form::Real, "2000000..3000000",       "days",   "Universal Time Epoch",
          "Julian date from which the terms of the difference between universal times count."),
    Field("I_UT",     12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient I",
          "Constant term of the difference between universal times."),
    Field("J_UT",     12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient J",
          "Linear term of the difference between universal times."),
    Field("KN1_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient KN1",
          "Periodic term (sine) of the difference between universal times for the period PN1_UT."),
    Field("KN2_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient KN2",
          "Periodic term (sine) of the difference between universal times for the period PN2_UT."),
    Field("KN3_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient KN3",
          "Periodic term (sine) of the difference between universal times for the period PN3_UT."),
    Field("KN4_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient KN4",
          "Periodic term (sine) of the difference between universal times for the period PN4_UT."),
    Field("LN1_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient LN1",
          "Periodic term (cosine) of the difference between universal times for the period PN1_UT."),
    Field("LN2_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient LN2",
          "Periodic term (cosine) of the difference between universal times for the period PN2_UT."),
    Field("LN3_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient LN3",
          "Periodic term (cosine) of the difference between universal times for the period PN3_UT."),
    Field("LN4_UT",   12, Need::Conditional, Form::Real, "-1..+1",                 "s",      "Universal Time Coefficient LN4",
          "Periodic term (cosine) of the difference between universal times for the period PN4_UT."),
    Field("PN1_UT",   10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Universal Time Period PN1",
          "Period number 1 of the difference between universal times."),
    Field("PN2_UT",   10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Universal Time Period PN2",
          "Period number 2 of the difference between universal times."),
    Field("PN3_UT",   10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Universal Time Period PN3",
          "Period number 3 of the difference between universal times."),
    Field("PN4_UT",   10, Need::Conditional, Form::Real, "000.000000..500.000000", "days",   "Universal Time Period PN4",
          "Period number 4 of the difference between universal times."),
};
// clang-format on
static_assert(FixedWidth(INERTIAL_TERMS) == 370);

/// Whether the fields of the table end where the data end.
inline bool FitsExactly(const FieldTable& aTable, std::string_view aData)
{
    FieldStore store(aTable);
    const WalkResult result = FieldWalk::Read(aData, store);
    return result.IsGood() && result.consumed == aData.size();
}

}  // namespace ORMO::SensorModel::CSM::Detail
