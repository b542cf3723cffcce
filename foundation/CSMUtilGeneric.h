#pragma once

#include "CSMApi.h"
#include "Export.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Util {
/// Composes messages, raises errors and warnings of the CSM API, and checks ranges.
class ORMO_CSM_API CSMUtilGeneric
{
public:
    /// Composes one problem line, prefix + owner + "::" + field, without "::" when the owner is empty. The prefix
    /// brings the space at its end; owner and field are trimmed.
    /// With aAppend set the line is added to aMessage, behind a line feed when aMessage is not empty; otherwise it
    /// replaces aMessage. Nothing happens when the prefix or the field is null or empty. The texts may point into
    /// aMessage.
    static void ConstructMessage(bool aAppend, const char* aPrefix, const char* aOwner, const char* aField,
                                 std::string& aMessage);

    /// Throws a TSMError. An empty or null message or function name is replaced by a fixed text.
    [[noreturn]] static void ThrowTSMError(const char* aMessage, const char* aFunction, TSMError::ErrorType aType);

    /// Makes a warning that the caller frees with DeleteTSMWarning; aWarning is null after a failure.
    static void ConstructTSMWarning(const char* aFunction, const char* aMessage, TSMWarning::WarningType aType,
                                    TSMWarning** aWarning) noexcept;
    static void DeleteTSMWarning(TSMWarning** aWarning) noexcept;

    /// Whether the text is an unsigned integer from aLower to aUpper. Mind the order: the upper bound comes first.
    static bool IsWithinValueRange(const char* aValue, unsigned long long aUpper, unsigned long long aLower) noexcept;

    /// A new array {aFirst, aSecond}; the caller frees it with delete[].
    static unsigned long* ValueRange(unsigned long aFirst, unsigned long aSecond);

    /// Whether a number lies in a range: a list, separated by commas, of single numbers and of "low..high" pairs that
    /// include both ends. Either end may be left out.
    ///
    /// Numbers compare by their exact decimal value, so "007" is 7 and "1e2" is 100. White space around each is
    /// allowed. "5" is in "1..9", "00090" in "-90..+90", "3" in "1,3,5..7" and "12" in "10..", but "4" is not in
    /// "1,3,5..7". False for a null argument, for a value that is not one whole number, and when any part of the range
    /// is not one. aValue stays as it is.
    static bool IsInRange(const char*& aValue, const char* aRange) noexcept;

    /// How many bytes stand before entry aIndex, counted from 0, of entries that follow one another with the given
    /// lengths: for the lengths 10, 20 and 30, index 0 gives 0, index 2 gives 30 and index 3, the end, gives 60.
    /// False, with aBytes 0, for an index below 0 or beyond the end and for a sum that does not fit 64 bits.
    static bool GetNumOfBytesToSkip(long aIndex, const std::vector<unsigned long>& aLengths,
                                    unsigned long long& aBytes) noexcept;

private:
    CSMUtilGeneric() = delete;
    ~CSMUtilGeneric() = delete;
    CSMUtilGeneric& operator=(const CSMUtilGeneric&) = delete;
};
}  // namespace ORMO::SensorModel::CSM::Util
