#pragma once

#include "../foundation/Export.h"
#include "../tre/TreDetailedInfo.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class NITFFieldSegment;
class TRE;

/// A date, and a time of day in UTC, as far as a field tells them: -1 from the first part on that is unknown.
struct ORMO_CSM_API NITFDate
{
    int year = -1;
    int month = -1;
    int day = -1;
    int hour = -1;
    int minute = -1;
    int second = -1;

    /// Reads CCYYMMDDhhmmss, CCYYMMDD or DDhhmmssZMONYY, blanks around it left out. False, with nothing changed, when
    /// the text is no date of the calendar.
    [[nodiscard]] bool Read(std::string_view aText) noexcept;
    /// "2000-06-02T19:23:21Z", up to the first part that is unknown. `aBetween` stands between date and time.
    std::string Iso(char aBetween = 'T') const;

    bool operator==(const NITFDate& aOther) const noexcept;
    bool operator!=(const NITFDate& aOther) const noexcept { return !(*this == aOther); }
};

/// The value of a field of a header or TRE, by the type that its table gives it. Texts are views of the owner's memory.
struct ORMO_CSM_API NITFFieldValue
{
    enum class Kind : std::uint8_t
    {
        None,     ///< there is no such field, or it is blank
        Integer,  ///< a whole number
        Real,
        Date,
        Text,  ///< also what stands where a number or date is wanted and is none
        Bytes  ///< binary without a structure of its own
    };

    Kind kind = Kind::None;
    std::int64_t integer = 0;
    double real = 0.0;
    NITFDate date;
    std::string_view text;  ///< whatever the kind: without the blanks around it, but of binary fields all

    static NITFFieldValue Of(const TRE& aOwner, std::string_view aField);
    static NITFFieldValue Of(const NITFFieldSegment& aOwner, std::string_view aField);

    /// What the table says of a field; its width is that in this owner. False when the owner has no such field.
    static bool GetInfo(const TRE& aOwner, std::string_view aField, TreDetailedInfo& aInfo);
    static bool GetInfo(const NITFFieldSegment& aOwner, std::string_view aField, TreDetailedInfo& aInfo);
};

}  // namespace ORMO::SensorModel::CSM
