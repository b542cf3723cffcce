#pragma once

#include "fields/RowList.h"

namespace ORMO::SensorModel::CSM::Detail {

// Rows that ACCHZB, ACCPOB and ACCVTB have in common. STDI-0002 Volume 1 Appendix P.

inline constexpr auto ACCURACY_UNITS = "UM|MM|CM|DM|M|KM|IN|FT|YD|FM|FF|MI|NM|ML|MSC|SEC|MA|DEG|blank=accuracy unknown";

// clang-format off
/// The absolute horizontal accuracy of a region.
inline constexpr FieldRow ACCURACY_AAH[] = {
    Field("UNIAAH", 3, Need::RequiredBlank, Form::Text, ACCURACY_UNITS, "", "Unit of Measure for AAH",
          "Unit in which the absolute horizontal accuracy is given; blank when that accuracy is not known, and "
          "then the value is left out."),
    WhenFilled("UNIAAH"),
        Field("AAH", 5, Need::Conditional, Form::Integer, "00000..99999", "UNIAAH", "Absolute horizontal accuracy",
              "Size of the absolute horizontal accuracy of this region, in the unit stated just before."),
    End(),
};

/// The absolute vertical accuracy of a region.
inline constexpr FieldRow ACCURACY_AAV[] = {
    Field("UNIAAV", 3, Need::RequiredBlank, Form::Text, ACCURACY_UNITS, "", "Unit of Measure for AAV",
          "Unit in which the absolute vertical accuracy is given; blank when that accuracy is not known, and then "
          "the value is left out."),
    WhenFilled("UNIAAV"),
        Field("AAV", 5, Need::Conditional, Form::Integer, "00000..99999", "UNIAAV", "Absolute vertical accuracy",
              "Size of the absolute vertical accuracy of this region, in the unit stated just before."),
    End(),
};

/// The point-to-point horizontal accuracy of a region.
inline constexpr FieldRow ACCURACY_APH[] = {
    Field("UNIAPH", 3, Need::RequiredBlank, Form::Text, ACCURACY_UNITS, "", "Unit of Measure for APH",
          "Unit in which the point-to-point horizontal accuracy is given; blank when that accuracy is not known, "
          "and then the value is left out."),
    WhenFilled("UNIAPH"),
        Field("APH", 5, Need::Conditional, Form::Integer, "00000..99999", "UNIAPH", "Point-to-point horizontal accuracy",
              "Size of the point-to-point horizontal accuracy of this region, in the unit stated just before."),
    End(),
};

/// The point-to-point vertical accuracy of a region.
inline constexpr FieldRow ACCURACY_APV[] = {
    Field("UNIAPV", 3, Need::RequiredBlank, Form::Text, ACCURACY_UNITS, "", "Unit of Measure for APV",
          "Unit in which the point-to-point vertical accuracy is given; blank when that accuracy is not known, and "
          "then the value is left out."),
    WhenFilled("UNIAPV"),
        Field("APV", 5, Need::Conditional, Form::Integer, "00000..99999", "UNIAPV", "Point-to-point vertical accuracy",
              "Size of the point-to-point vertical accuracy of this region, in the unit stated just before."),
    End(),
};

/// The polygon around a region.
inline constexpr FieldRow ACCURACY_POLYGON[] = {
    Field("NUM_PTS", 3, Need::Required, Form::Integer, "000=whole image|004..999", "", "Number of Points in Bounding Polygon",
          "How many corner points outline the region; zero means that the values hold for the whole "
          "image.").Alias("NUMPTS"),
    Repeat("NUM_PTS"),
        Field("LON", 15, Need::Conditional, Form::Real, "", "GEOPSB UNI", "Longitude or Easting",
              "Longitude, or easting in a map grid, of one corner point of the region."),
        Field("LAT", 15, Need::Conditional, Form::Real, "", "GEOPSB UNI", "Latitude or Northing",
              "Latitude, or northing in a map grid, of one corner point of the region."),
    End(),
};

/// The end of the repeat of the regions.
inline constexpr FieldRow ACCURACY_END[] = {End()};
// clang-format on

}  // namespace ORMO::SensorModel::CSM::Detail
