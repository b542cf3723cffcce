#include "segments/NITFWords.h"

#include "fields/ValueRule.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/NITFFieldValue.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace ORMO::SensorModel::CSM {

std::string NITFWords::Shown(std::string_view aText)
{
    std::string text(Detail::Trimmed(aText));
    std::replace_if(
        text.begin(), text.end(),
        [](char aCharacter) {
            const auto byte = static_cast<unsigned char>(aCharacter);
            return byte < 0x20 || byte > 0x7E;
        },
        '.');
    return text;
}

std::string NITFWords::Shown(std::string_view aText, std::size_t aMost)
{
    constexpr std::size_t POINTS = 3;
    std::string text = Shown(aText);
    if (text.size() > aMost) {
        text.resize(aMost < POINTS ? 0 : aMost - POINTS);
        text += "...";
    }
    return text;
}

std::string NITFWords::Number(std::string_view aText)
{
    const std::string_view text = Detail::Trimmed(aText);
    if (text.empty() || text.find_first_not_of("0123456789") != std::string_view::npos) {
        return Shown(text);
    }
    const auto first = text.find_first_not_of('0');
    return first == std::string_view::npos ? "0" : std::string(text.substr(first));
}

bool NITFWords::ToIsoDate(std::string_view aText, char aBetween, std::string& aDate)
{
    NITFDate date;
    if (!date.Read(aText)) {
        return false;
    }
    aDate = date.Iso(aBetween);
    return true;
}

std::string NITFWords::Date(std::string_view aText, char aBetween)
{
    std::string date;
    return ToIsoDate(aText, aBetween, date) ? date : IsFilled(aText) ? Shown(aText) : "";
}

std::string NITFWords::Size(std::uint64_t aBytes)
{
    constexpr std::array<const char*, 4> UNITS{"kB", "MB", "GB", "TB"};
    constexpr double STEP = 1000.0;
    if (aBytes < 1000) {
        return Count(aBytes, "byte");
    }
    double size = static_cast<double>(aBytes) / STEP;
    std::size_t unit = 0;
    // What would be shown as 1000 belongs to the next unit.
    while (size >= 999.5 && unit + 1 != UNITS.size()) {
        size /= STEP;
        ++unit;
    }
    const int decimals = size < 9.995 ? 2 : size < 99.95 ? 1 : 0;
    return Util::CSMUtilString::ToString(size, false, decimals) + ' ' + UNITS[unit];
}

std::string NITFWords::Position(double aLatitude, double aLongitude)
{
    constexpr int DECIMALS = 6;
    return Util::CSMUtilString::ToString(std::fabs(aLatitude), false, DECIMALS) + (aLatitude < 0 ? " S " : " N ") +
           Util::CSMUtilString::ToString(std::fabs(aLongitude), false, DECIMALS) + (aLongitude < 0 ? " W" : " E");
}

std::string NITFWords::Joined(std::initializer_list<std::string_view> aTexts)
{
    std::string joined;
    for (const std::string_view text : aTexts) {
        joined += joined.empty() || text.empty() ? "" : ", ";
        joined += text;
    }
    return joined;
}

bool NITFWords::IsFilled(std::string_view aText) noexcept
{
    return std::any_of(aText.begin(), aText.end(), [](char aCharacter) {
        return Detail::IsDigit(aCharacter) || Detail::UpperCase(aCharacter) != Detail::LowerCase(aCharacter);
    });
}

std::string NITFWords::Count(std::uint64_t aCount, std::string_view aWord)
{
    return std::to_string(aCount) + ' ' + std::string(aWord) + (aCount == 1 ? "" : "s");
}

namespace {

std::string MeaningOf(const Detail::FieldRecord& aRecord, std::string_view aField)
{
    const Detail::FieldEntry* const entry = aRecord.Find(aField);
    if (entry == nullptr) {
        return "";
    }
    const std::string shown = NITFWords::Shown(aRecord.Store().Value(*entry));
    for (std::string_view rest(aRecord.Store().Row(*entry).values); !rest.empty();) {
        const std::string_view alternative = Detail::NextAlternative(rest);
        const std::string_view value = Detail::WithoutMeaning(alternative);
        if (value == shown && value.size() < alternative.size()) {
            return std::string(alternative.substr(value.size() + 1)) + " (" + shown + ')';
        }
    }
    return shown;
}

}  // namespace

std::string NITFWords::Meaning(const NITFFieldSegment& aSegment, std::string_view aField)
{
    return MeaningOf(aSegment.Inside().record, aField);
}

std::string NITFWords::Meaning(const TRE& aTre, std::string_view aField)
{
    const Detail::FieldRecord* const record = TRE::Parts::Of(aTre).fields;
    return record == nullptr ? "" : MeaningOf(*record, aField);
}

}  // namespace ORMO::SensorModel::CSM
