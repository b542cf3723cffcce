#pragma once

#include "fields/RowList.h"

namespace ORMO::SensorModel::CSM::Detail {

// Rows that RSMAPA, RSMDCA and RSMECA have in common. STDI-0002 Volume 1 Appendix U.

/// The local rectangular system in which the adjustable parameters are defined: its origin and three axes.
// clang-format off
inline constexpr FieldRow RSM_LOCAL_SYSTEM[] = {
    //    tag  width  need            form        values    unit label
    Field("XUOL", 21, Need::Required, Form::Real, "",       "m", "Local Coordinate Origin (XUOL)",
          "WGS 84 earth-centred x coordinate of the origin of the local rectangular system in which the adjustable "
          "parameters are defined."),
    Field("YUOL", 21, Need::Required, Form::Real, "",       "m", "Local Coordinate Origin (YUOL)",
          "WGS 84 earth-centred y coordinate of the origin of the local rectangular system in which the adjustable "
          "parameters are defined."),
    Field("ZUOL", 21, Need::Required, Form::Real, "",       "m", "Local Coordinate Origin (ZUOL)",
          "WGS 84 earth-centred z coordinate of the origin of the local rectangular system in which the adjustable "
          "parameters are defined."),
    Field("XUXL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (XUXL)",
          "WGS 84 earth-centred x component of the unit vector along the x axis of the local system."),
    Field("XUYL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (XUYL)",
          "WGS 84 earth-centred y component of the unit vector along the x axis of the local system."),
    Field("XUZL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (XUZL)",
          "WGS 84 earth-centred z component of the unit vector along the x axis of the local system."),
    Field("YUXL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (YUXL)",
          "WGS 84 earth-centred x component of the unit vector along the y axis of the local system."),
    Field("YUYL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (YUYL)",
          "WGS 84 earth-centred y component of the unit vector along the y axis of the local system."),
    Field("YUZL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (YUZL)",
          "WGS 84 earth-centred z component of the unit vector along the y axis of the local system."),
    Field("ZUXL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (ZUXL)",
          "WGS 84 earth-centred x component of the unit vector along the z axis of the local system."),
    Field("ZUYL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (ZUYL)",
          "WGS 84 earth-centred y component of the unit vector along the z axis of the local system."),
    Field("ZUZL", 21, Need::Required, Form::Real, "-1..+1", "",  "Local Coordinate Unit Vector (ZUZL)",
          "WGS 84 earth-centred z component of the unit vector along the z axis of the local system."),
};
// clang-format on

/// Which corrections are active, and their places in the list of adjustable parameters.
// clang-format off
inline constexpr FieldRow RSM_PARAMETER_INDICES[] = {
    //    tag width  need                 form           values                     unit label
    Field("IRO",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row Constant Index",
          "Place in the parameter list of the constant image row correction; blank when that correction is not "
          "used.").Alias("IR0"),
    Field("IRX",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row X Index",
          "Place in the parameter list of the image row correction that is a term in x of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRY",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row Y Index",
          "Place in the parameter list of the image row correction that is a term in y of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRZ",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row Z Index",
          "Place in the parameter list of the image row correction that is a term in z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRXX", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row X^2 Index",
          "Place in the parameter list of the image row correction that is a term in x squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRXY", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row XY Index",
          "Place in the parameter list of the image row correction that is a term in x times y of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRXZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row XZ Index",
          "Place in the parameter list of the image row correction that is a term in x times z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRYY", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row Y^2 Index",
          "Place in the parameter list of the image row correction that is a term in y squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRYZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row YZ Index",
          "Place in the parameter list of the image row correction that is a term in y times z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("IRZZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Row Z^2 Index",
          "Place in the parameter list of the image row correction that is a term in z squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICO",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column Constant Index",
          "Place in the parameter list of the constant image column correction; blank when that correction is not "
          "used.").Alias("IC0"),
    Field("ICX",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column X Index",
          "Place in the parameter list of the image column correction that is a term in x of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICY",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column Y Index",
          "Place in the parameter list of the image column correction that is a term in y of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICZ",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column Z Index",
          "Place in the parameter list of the image column correction that is a term in z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICXX", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column X^2 Index",
          "Place in the parameter list of the image column correction that is a term in x squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICXY", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column XY Index",
          "Place in the parameter list of the image column correction that is a term in x times y of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICXZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column XZ Index",
          "Place in the parameter list of the image column correction that is a term in x times z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICYY", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column Y^2 Index",
          "Place in the parameter list of the image column correction that is a term in y squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICYZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column YZ Index",
          "Place in the parameter list of the image column correction that is a term in y times z of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("ICZZ", 2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Image Column Z^2 Index",
          "Place in the parameter list of the image column correction that is a term in z squared of the local ground "
          "coordinates; blank when that correction is not used."),
    Field("GXO",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground X Constant Index",
          "Place in the parameter list of the constant shift of the ground x coordinate; blank when it is not "
          "used.").Alias("GX0"),
    Field("GYO",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Y Constant Index",
          "Place in the parameter list of the constant shift of the ground y coordinate; blank when it is not "
          "used.").Alias("GY0"),
    Field("GZO",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Z Constant Index",
          "Place in the parameter list of the constant shift of the ground z coordinate; blank when it is not "
          "used.").Alias("GZ0"),
    Field("GXR",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Rotation X Index",
          "Place in the parameter list of the rotation of the ground about the x axis; blank when it is not used."),
    Field("GYR",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Rotation Y Index",
          "Place in the parameter list of the rotation of the ground about the y axis; blank when it is not used."),
    Field("GZR",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Rotation Z Index",
          "Place in the parameter list of the rotation of the ground about the z axis; blank when it is not used."),
    Field("GS",   2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Scale Index",
          "Place in the parameter list of the change of scale of the ground coordinates; blank when it is not used."),
    Field("GXX",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground X Adjustment Proportional to X Index",
          "Place in the parameter list of the shift of ground x that grows with x; blank when it is not used."),
    Field("GXY",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground X Adjustment Proportional to Y Index",
          "Place in the parameter list of the shift of ground x that grows with y; blank when it is not used."),
    Field("GXZ",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground X Adjustment Proportional to Z Index",
          "Place in the parameter list of the shift of ground x that grows with z; blank when it is not used."),
    Field("GYX",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Y Adjustment Proportional to X Index",
          "Place in the parameter list of the shift of ground y that grows with x; blank when it is not used."),
    Field("GYY",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Y Adjustment Proportional to Y Index",
          "Place in the parameter list of the shift of ground y that grows with y; blank when it is not used."),
    Field("GYZ",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Y Adjustment Proportional to Z Index",
          "Place in the parameter list of the shift of ground y that grows with z; blank when it is not used."),
    Field("GZX",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Z Adjustment Proportional to X Index",
          "Place in the parameter list of the shift of ground z that grows with x; blank when it is not used."),
    Field("GZY",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Z Adjustment Proportional to Y Index",
          "Place in the parameter list of the shift of ground z that grows with y; blank when it is not used."),
    Field("GZZ",  2, Need::RequiredBlank, Form::Integer, "01..36|blank=not active", "", "Ground Z Adjustment Proportional to Z Index",
          "Place in the parameter list of the shift of ground z that grows with z; blank when it is not used."),
};
// clang-format on

}  // namespace ORMO::SensorModel::CSM::Detail
