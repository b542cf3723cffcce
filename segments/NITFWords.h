#pragma once

#include "../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM {

class NITFFieldSegment;
class TRE;

/// Values of NITF fields as a person reads them; never instantiated.
class ORMO_CSM_API NITFWords
{
public:
    /// The text without the blanks around it and with a point for every byte that a terminal cannot show.
    static std::string Shown(std::string_view aText);
    /// The same, cut to a number of characters, three points included.
    static std::string Shown(std::string_view aText, std::size_t aMost);
    /// A number without leading zeros; any other text as Shown.
    static std::string Number(std::string_view aText);
    /// "2000-06-02 19:23:21Z" of CCYYMMDDhhmmss, CCYYMMDD and DDhhmmssZMONYY, up to the first part that is unknown; any
    /// other text as Shown, nothing for one that is not filled. `aBetween` stands between date and time.
    static std::string Date(std::string_view aText, char aBetween = ' ');
    /// The same; false, with nothing set, when the text is no date of the calendar.
    [[nodiscard]] static bool ToIsoDate(std::string_view aText, char aBetween, std::string& aDate);
    /// "825 bytes", "16.4 kB", "1.07 MB": thousands, not 1024.
    static std::string Size(std::uint64_t aBytes);
    /// "34.053700 N 118.242800 W"
    static std::string Position(double aLatitude, double aLongitude);
    /// The texts that are not empty, with a comma between them.
    static std::string Joined(std::initializer_list<std::string_view> aTexts);
    /// Whether there is a letter or digit in the text: fields that nobody filled hold blanks, hyphens or NULs.
    static bool IsFilled(std::string_view aText) noexcept;
    /// "3 images", "1 image"
    static std::string Count(std::uint64_t aCount, std::string_view aWord);
    /// The value of a field with what the table of the header or TRE says that it means: "JPEG 2000 (C8)"; as Shown
    /// when it says nothing.
    static std::string Meaning(const NITFFieldSegment& aSegment, std::string_view aField);
    static std::string Meaning(const TRE& aTre, std::string_view aField);

    NITFWords() = delete;
};

}  // namespace ORMO::SensorModel::CSM
