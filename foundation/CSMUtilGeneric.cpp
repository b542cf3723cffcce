#include "foundation/CSMUtilGeneric.h"

#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/DecimalNumber.h"

#include <exception>
#include <limits>
#include <memory>

namespace ORMO::SensorModel::CSM::Util {
namespace {
using Detail::DecimalNumber;
using Detail::ViewOf;

constexpr const char* UNKNOWN_FUNCTION = "unknown";

/// True when the text of one end of a range is a number; an end left out is no limit.
bool ReadEnd(std::string_view aText, DecimalNumber& aOut, bool& aIsLimit)
{
    aIsLimit = !aText.empty();
    return !aIsLimit || DecimalNumber::Parse(aText, aOut);
}

/// Reads one part of a range, "number" or "low..high", and tells whether it holds the value. False when it is neither.
bool ReadPart(std::string_view aPart, const DecimalNumber& aValue, bool& aHolds)
{
    constexpr std::string_view DOTS = "..";
    const std::string_view part = Detail::Trimmed(aPart);
    const std::size_t dots = part.find(DOTS);
    const bool isPair = dots != std::string_view::npos;
    const std::string_view low = isPair ? Detail::Trimmed(part.substr(0, dots)) : part;
    const std::string_view high = isPair ? Detail::Trimmed(part.substr(dots + DOTS.size())) : part;

    DecimalNumber lowest;
    DecimalNumber highest;
    bool hasLowest = false;
    bool hasHighest = false;
    if (!ReadEnd(low, lowest, hasLowest) || !ReadEnd(high, highest, hasHighest) || (!hasLowest && !hasHighest)) {
        return false;
    }
    aHolds = (!hasLowest || DecimalNumber::Compare(lowest, aValue) <= 0) &&
             (!hasHighest || DecimalNumber::Compare(aValue, highest) <= 0);
    return true;
}
}  // namespace

void CSMUtilGeneric::ConstructMessage(bool aAppend, const char* aPrefix, const char* aOwner, const char* aField,
                                      std::string& aMessage)
{
    if (ViewOf(aPrefix).empty() || ViewOf(aField).empty()) {
        return;
    }
    // The line is complete before the message changes, since the texts may be parts of the message.
    const std::string_view owner = Detail::Trimmed(ViewOf(aOwner));
    const std::string_view field = Detail::Trimmed(aField);
    std::string line;
    if (!field.empty()) {
        line.append(aPrefix).append(owner).append(owner.empty() ? "" : "::").append(field);
    }
    if (!aAppend) {
        aMessage.clear();
    } else if (!aMessage.empty()) {
        aMessage += '\n';
    }
    aMessage += line;
}

void CSMUtilGeneric::ThrowTSMError(const char* aMessage, const char* aFunction, TSMError::ErrorType aType)
{
    const std::string_view message = ViewOf(aMessage);
    const std::string_view function = ViewOf(aFunction);
    throw TSMError(aType, std::string(message.empty() ? CSMMsg::Error::UNKNOWN_ERROR : message),
                   std::string(function.empty() ? UNKNOWN_FUNCTION : function));
}

void CSMUtilGeneric::ConstructTSMWarning(const char* aFunction, const char* aMessage, TSMWarning::WarningType aType,
                                         TSMWarning** aWarning) noexcept
{
    if (aWarning == nullptr) {
        return;
    }
    *aWarning = nullptr;
    try {
        const std::string_view function = Detail::Trimmed(ViewOf(aFunction));
        const std::string_view message = Detail::Trimmed(ViewOf(aMessage));
        *aWarning = std::make_unique<TSMWarning>(aType, std::string(message),
                                                 std::string(function.empty() ? UNKNOWN_FUNCTION : function))
                        .release();
    } catch (const std::exception&) {
        // Memory is short: there is no warning then.
    }
}

void CSMUtilGeneric::DeleteTSMWarning(TSMWarning** aWarning) noexcept
{
    if (aWarning != nullptr) {
        delete *aWarning;
        *aWarning = nullptr;
    }
}

bool CSMUtilGeneric::IsWithinValueRange(const char* aValue, unsigned long long aUpper,
                                        unsigned long long aLower) noexcept
{
    unsigned long value = 0;
    return CSMUtilString::ToUnsignedLong(aValue, value) && aLower <= value && value <= aUpper;
}

unsigned long* CSMUtilGeneric::ValueRange(unsigned long aFirst, unsigned long aSecond)
{
    return new unsigned long[2]{aFirst, aSecond};
}

bool CSMUtilGeneric::IsInRange(const char*& aValue, const char* aRange) noexcept
{
    try {
        DecimalNumber value;
        if (aRange == nullptr || !DecimalNumber::Parse(Detail::Trimmed(ViewOf(aValue)), value)) {
            return false;
        }
        bool isInside = false;
        std::string_view rest = aRange;
        for (bool isLast = false; !isLast;) {
            const std::size_t comma = rest.find(',');
            bool holds = false;
            if (!ReadPart(rest.substr(0, comma), value, holds)) {
                return false;
            }
            isInside = isInside || holds;
            isLast = comma == std::string_view::npos;
            rest.remove_prefix(isLast ? rest.size() : comma + 1);
        }
        return isInside;
    } catch (const std::exception&) {
        return false;
    }
}

bool CSMUtilGeneric::GetNumOfBytesToSkip(long aIndex, const std::vector<unsigned long>& aLengths,
                                         unsigned long long& aBytes) noexcept
{
    aBytes = 0;
    if (aIndex < 0 || static_cast<unsigned long>(aIndex) > aLengths.size()) {
        return false;
    }
    unsigned long long sum = 0;
    for (std::size_t i = 0; i != static_cast<std::size_t>(aIndex); ++i) {
        if (aLengths[i] > std::numeric_limits<unsigned long long>::max() - sum) {
            return false;
        }
        sum += aLengths[i];
    }
    aBytes = sum;
    return true;
}
}  // namespace ORMO::SensorModel::CSM::Util
