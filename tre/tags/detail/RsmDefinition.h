#pragma once

#include "fields/RowList.h"
#include "tre/tags/detail/RsmAdjustable.h"

namespace ORMO::SensorModel::CSM::Detail {

// The definition of the adjustable parameters that RSMAPB, RSMDCB and RSMECB have in common. STDI-0002 Volume 1
// Appendix U.

// clang-format off
inline constexpr FieldRow RSM_DEFINITION_HEAD[] = {
    //    tag     width need      form     values                          unit                    label
    Field("NPAR",    2, Need::Required, Form::Integer, "01..36",                       "",                     "Number of Active RSM Adjustable Parameters",
          "How many adjustable parameters are active.").Locked(),
    Field("APTYP",   1, Need::Required, Form::Text,    "I=image space|G=ground space", "",                     "Adjustable Parameter Type",
          "Tells whether the parameters correct image coordinates or ground coordinates."),
    Field("LOCTYP",  1, Need::Required, Form::Text,
          "R=rectangular ground coordinates|N=image row, column and height",
          "", "Local Coordinate System Identifier",
          "Kind of the local coordinate system in which the parameters are defined."),
    Field("NSFX",   21, Need::Required, Form::Real,    "",                             "m or pixels (LOCTYP)", "Normalization Scale Factor for X",
          "Scale that normalises the local x coordinate."),
    Field("NSFY",   21, Need::Required, Form::Real,    "",                             "m or pixels (LOCTYP)", "Normalization Scale Factor for Y",
          "Scale that normalises the local y coordinate."),
    Field("NSFZ",   21, Need::Required, Form::Real,    "",                             "m",                    "Normalization Scale Factor for Z",
          "Scale that normalises the local z coordinate."),
    Field("NOFFX",  21, Need::Required, Form::Real,    "",                             "m or pixels (LOCTYP)", "Normalization Offset for X",
          "Offset that normalises the local x coordinate."),
    Field("NOFFY",  21, Need::Required, Form::Real,    "",                             "m or pixels (LOCTYP)", "Normalization Offset for Y",
          "Offset that normalises the local y coordinate."),
    Field("NOFFZ",  21, Need::Required, Form::Real,    "",                             "m",                    "Normalization Offset for Z",
          "Offset that normalises the local z coordinate."),
    When("LOCTYP", "R"),
};
inline constexpr FieldRow RSM_DEFINITION_TAIL[] = {
    End(),
    //    tag     width need         form     values        unit label
    Field("APBASE",  1, Need::Required,    Form::Text,    "Y=on|N=off", "", "Basis Option",
          "Tells whether the active parameters are linear combinations of the parameters listed next, by the matrix "
          "A."),
    When("APTYP", "I"),
        Field("NISAP",   2, Need::Conditional, Form::Integer, "01..99",     "", "Number of Image-Space Adjustable Parameters",
              "How many image-space parameters are listed."),
        Field("NISAPR",  2, Need::Conditional, Form::Integer, "00..99",     "", "Number of Image-Space Adjustable Parameters for Image Row Coordinate",
              "How many of them correct the image row."),
        Repeat("NISAPR"),
            Field("XPWRR",   1, Need::Conditional, Form::Integer, "0..5",       "", "Row Parameter Power of X",
                  "Power of the normalised local x coordinate in the term of this row parameter."),
            Field("YPWRR",   1, Need::Conditional, Form::Integer, "0..5",       "", "Row Parameter Power of Y",
                  "Power of the normalised local y coordinate in the term of this row parameter."),
            Field("ZPWRR",   1, Need::Conditional, Form::Integer, "0..5",       "", "Row Parameter Power of Z",
                  "Power of the normalised local z coordinate in the term of this row parameter."),
        End(),
        Field("NISAPC",  2, Need::Conditional, Form::Integer, "00..99",     "", "Number of Image-Space Adjustable Parameters for Image Column Coordinate",
              "How many of them correct the image column."),
        Repeat("NISAPC"),
            Field("XPWRC",   1, Need::Conditional, Form::Integer, "0..5",       "", "Column Parameter Power of X",
                  "Power of the normalised local x coordinate in the term of this column parameter."),
            Field("YPWRC",   1, Need::Conditional, Form::Integer, "0..5",       "", "Column Parameter Power of Y",
                  "Power of the normalised local y coordinate in the term of this column parameter."),
            Field("ZPWRC",   1, Need::Conditional, Form::Integer, "0..5",       "", "Column Parameter Power of Z",
                  "Power of the normalised local z coordinate in the term of this column parameter."),
        End(),
    End(),
    When("APTYP", "G"),
        Field("NGSAP",   2, Need::Conditional, Form::Integer, "01..16",     "", "Number of Ground-Space Adjustable Parameters",
              "How many ground-space parameters are listed."),
        Repeat("NGSAP"),
            Field("GSAPID",  4, Need::Conditional, Form::Text,
                  "OFFX|OFFY|OFFZ|ROTX|ROTY|ROTZ|SCAL|XRTX|XRTY|XRTZ|YRTX|YRTY|YRTZ|ZRTX|ZRTY|ZRTZ",
                  "", "Ground-Space Adjustable Parameter ID",
                  "Name of one ground-space parameter: offset, rotation, scale, or the rate of one coordinate along "
                  "another."),
        End(),
    End(),
    When("APBASE", "Y"),
        Field("NBASIS",  2, Need::Conditional, Form::Integer, "01..99",     "", "Number of Basis Adjustable Parameters",
              "Number of parameters of the basis set; it is the number of columns of the matrix A."),
        Repeat("NPAR"),
            Repeat("NBASIS"),
                Field("AEL",    21, Need::Conditional, Form::Real,    "",           "", "Matrix A Element",
                      "One element of the matrix A that makes the active parameters from the basis set, row by row."),
            End(),
        End(),
    End(),
};
// clang-format on

/// The definition as it stands in a record that always has it.
inline constexpr auto RSM_DEFINITION =
    JoinRows(RSM_DEFINITION_HEAD, InCondition(RSM_LOCAL_SYSTEM).rows, RSM_DEFINITION_TAIL);

}  // namespace ORMO::SensorModel::CSM::Detail
