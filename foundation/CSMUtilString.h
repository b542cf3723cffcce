#pragma once

#include "CSMCnst.h"
#include "Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM::Util {
/// Text and number conversions.
///
/// White space, letter case and the decimal point are those of the C locale whatever locale the process has set; bytes
/// above 127 are ordinary characters. A text handed out through a `char**` or `wchar_t**` is a new, NUL-terminated
/// array that the caller frees with DeleteCString or DeleteWCharBuffer; after a failure the output is null.
/// "Empty" means null or of no length. Operations that return bool answer false and throw nothing, unless they say so.
class ORMO_CSM_API CSMUtilString
{
public:
    /// The text without white space at both ends.
    /// Throws std::invalid_argument when the text is null.
    static std::string Trim(const char* aText);
    static std::string Trim(const std::string& aText);
    /// As above; does nothing when aOut is null.
    static void Trim(const char* aText, char** aOut);
    /// Trims without copying: answers where the kept text begins inside aText and sets aLength to its size.
    /// A null or empty text is answered as it is, with length 0.
    static const char* Trim(const char* aText, std::size_t& aLength, bool aFromStart, bool aFromEnd) noexcept;
    static std::string TrimStart(const char* aText);
    static void TrimStart(const char* aText, char** aOut);
    static std::string TrimEnd(const char* aText);
    static void TrimEnd(const char* aText, char** aOut);

    /// Maps the letters A to Z (a to z); every other byte stays. A null argument throws std::invalid_argument.
    static std::string ToLower(const char* aText);
    static std::string ToLower(const std::string& aText);
    static void ToLower(const char* aText, char** aOut);
    static std::string ToUpper(const char* aText);
    static std::string ToUpper(const std::string& aText);
    static void ToUpper(const char* aText, char** aOut);

    /// "true" or "false" in any letter case, white space around it allowed. aOut is set on success only.
    static bool ToBool(const char* aText, bool& aOut) noexcept;

    /// A decimal integer within 32 bits, white space around it and a leading sign allowed.
    /// One decimal point may stand in it, and what follows is dropped: "12.7" and "12." give 12, ".7" and "-.7" give 0.
    /// A value that does not fit is refused. aOut is set on success only; so it is in the other integer forms.
    static bool ToLong(const char* aText, long& aOut) noexcept;
    static bool ToInteger(const char* aText, int& aOut) noexcept;
    /// As ToLong, from 0 to 4294967295; a minus sign is refused, even before 0.
    static bool ToUnsignedLong(const char* aText, unsigned long& aOut) noexcept;
    /// As ToLong, within 64 bits.
    static bool ToInt64(const char* aText, std::int64_t& aOut) noexcept;
    /// As ToUnsignedLong, within 64 bits.
    static bool ToUInt64(const char* aText, std::uint64_t& aOut) noexcept;

    /// A decimal number with optional sign, point and exponent, white space around it allowed.
    /// Only digits, points, signs and an exponent letter may stand in the text. Within that, the longest part at the
    /// start that is a number counts, as in a scan: "1e", "1e+" and "1+e5" give 1, "1e5.5" gives 100000.
    /// A magnitude beyond the range of a double is refused; one too small for it gives 0.
    static bool ToDouble(const char* aText, double& aOut) noexcept;

    /// Decimal text without padding.
    static std::string ToString(int aValue);
    static std::string ToString(long aValue);
    static std::string ToString(long long aValue);
    static std::string ToString(unsigned int aValue);
    static std::string ToString(unsigned long aValue);
    static std::string ToString(unsigned long long aValue);
    /// Scientific ("1.50e+00") or fixed ("1.50") text with aPrecision digits after the point, 20 when it is negative.
    static std::string ToString(double aValue, bool aScientific, int aPrecision);
    static bool ToString(char** aOut, double aValue, bool aScientific, int aPrecision) noexcept;

    /// Duplicates a text; false when an argument is null.
    static bool Copy(const char* aText, char** aOut) noexcept;
    static bool Copy(const wchar_t* aText, wchar_t** aOut) noexcept;

    /// Joins two texts; a null part counts as empty. The out form does nothing when aOut is null.
    static std::string Concat(const char* aFirst, const char* aSecond);
    static void Concat(const char* aFirst, const char* aSecond, char** aOut);

    /// Converts UTF-8 text into wide text (UTF-32) and back.
    /// Throws TSMError for a null argument and for text that is not well-formed: bytes that are not UTF-8, overlong
    /// forms, surrogates and values above 10FFFF are never replaced in silence.
    static void ConvertFromCharToWChar(const char* aText, wchar_t** aOut);
    static void ConvertFromWCharToChar(const wchar_t* aText, char** aOut);

    /// Appends bytes as UTF-8, each of them taken for the Latin-1 character of its value. Throws std::bad_alloc.
    static void AppendLatin1AsUtf8(std::string_view aBytes, std::string& aOut);

    /// -1, 0 or 1 by the values of the bytes. A null text stands before every other text, the empty one included.
    static int Compare(const char* aFirst, const char* aSecond) noexcept;
    static int Compare(bool aIgnoreCase, const char* aFirst, const char* aSecond) noexcept;
    static int Compare(bool aIgnoreCase, const std::string& aFirst, const std::string& aSecond) noexcept;

    /// Whether the text begins (ends) with the part. A null argument throws std::invalid_argument; so does an empty one
    /// in the two-argument form of StartWith. Elsewhere every text begins and ends with the empty part.
    static bool StartWith(bool aIgnoreCase, const char* aText, const char* aPart);
    static bool StartWith(const char* aText, const char* aPart);
    static bool EndWith(bool aIgnoreCase, const char* aText, const char* aPart);
    static bool EndWith(const char* aText, const char* aPart);
    /// Whether the part occurs in the text; the empty part always does. A null argument throws std::invalid_argument.
    static bool Contains(const char* aText, const char* aPart);

    /// Position of the first occurrence of the part; -1 when it is absent or lies beyond the range of int.
    /// An empty argument throws std::invalid_argument.
    static int Find(const char* aText, const char* aPart);
    static int IndexOf(const char* aText, const char* aPart);
    /// Position of the last character of the text that is any one of aCharacters; -1 when there is none.
    /// An empty argument throws std::invalid_argument.
    static int LastIndexOf(const char* aText, const char* aCharacters);
    /// How often the character occurs in the text; 0 for a null text.
    static std::size_t CharacterCount(char aCharacter, const char* aText) noexcept;

    /// Copies aLength characters from aStart; false when the text does not hold all of them.
    static bool SubString(const char* aText, std::size_t aStart, std::size_t aLength, char** aOut) noexcept;
    static bool SubString(const std::string& aText, std::size_t aStart, std::size_t aLength,
                          std::string& aOut) noexcept;
    /// Copies aCount bytes, NUL bytes included, from aOffset; false when the buffer does not hold all of them.
    /// The copy through `char**` has one more byte, a NUL.
    static bool GetBytes(const char* aBuffer, std::size_t aBufferLength, std::size_t aOffset, std::size_t aCount,
                         char** aOut) noexcept;
    static bool GetBytes(const char* aBuffer, std::size_t aBufferLength, std::size_t aOffset, std::size_t aCount,
                         std::string& aOut) noexcept;
    /// Trims and copies in one step; false when an argument is null.
    static bool MemCopyTrimmedString(const char* aText, char** aOut) noexcept;

    /// Replaces every occurrence of aFind from left to right; inserted text is not searched again. An empty aFind
    /// replaces nothing, a null replacement counts as empty. A null text throws std::invalid_argument; the out form
    /// does nothing when aOut is null.
    static std::string Replace(const char* aInputStr, const char* aFind, const char* aReplacement);
    static std::string Replace(const std::string& aInputStr, const std::string& aFind, const std::string& aReplacement);
    static void Replace(const char* aInputStr, const char* aFind, const char* aReplacement, char** aOut);

    /// Splits a text at any of the delimiter characters; empty tokens are never produced.
    /// The caller frees the tokens with DeleteCStringArray. A text of delimiters only gives true and no token.
    static bool Tokenize(const char* aDelimiters, const char* aText, char**& aTokens, std::size_t& aCount) noexcept;

    /// The part of a "key=value" text before (after) its first "=". The value may be empty, the key may not.
    /// A text in another form throws std::invalid_argument.
    static std::string GetKeyFromKeyValuePair(const char* aText);
    static void GetKeyFromKeyValuePair(const char* aText, char** aOut);
    static std::string GetValueFromKeyValuePair(const char* aText);
    static void GetValueFromKeyValuePair(const char* aText, char** aOut);

    /// Standard base64 with "=" padding; no bytes give the empty text.
    static bool Base64Encode(const char* aBytes, std::size_t aLength, char** aOut) noexcept;
    /// Appends the same to a text. Throws std::bad_alloc.
    static void AppendBase64(std::string_view aBytes, std::string& aOut);
    /// Decodes up to the first character outside of the base64 alphabet and ignores the rest. The bytes may include
    /// NUL; one NUL, not counted in aLength, follows them.
    static bool Base64Decode(const char* aText, char** aOut, std::size_t& aLength) noexcept;

    /// A big-endian unsigned value of aCount bytes, the full width (4 or 8) when aCount is 0.
    /// False, with aOut 0, for null bytes and for a count above the width.
    static bool BinaryToUnsignedLong(const char* aBytes, std::size_t aCount, unsigned long& aOut) noexcept;
    static bool BinaryToUnsignedInt64(const char* aBytes, std::size_t aCount, std::uint64_t& aOut) noexcept;
    /// The decimal text of a big-endian unsigned value of any number of bytes, without leading zeros: the bytes 01 00
    /// give "256", nine bytes FF give "4722366482869645213695", bytes of zero give "0". False for null or no bytes.
    /// The time grows with the square of the count; 100,000 bytes take about a second.
    static bool DecimalRepresentationOfBinary(const char* aBytes, std::size_t aCount, char** aOut) noexcept;

    /// Rounds a value to the figures that its uncertainty supports.
    ///
    /// The uncertainty is rounded to one significant figure, and the value is rounded to the decimal place of that
    /// figure. Both start from the shortest decimal text that gives the same double, and halves go away from zero.
    ///
    /// | value    | uncertainty | fixed            | scientific                 |
    /// |----------|-------------|------------------|----------------------------|
    /// | 1234.567 | 0.023       | 1234.57, 0.02    | 1.23457e+03, 2.e-02        |
    /// | 1234.567 | 0.096       | 1234.6, 0.1      | 1.2346e+03, 1.e-01         |
    /// | 1234.567 | 23          | 1230, 20         | 1.23e+03, 2.e+01           |
    /// | -0.15    | 0.1         | -0.2, 0.1        | -2.e-01, 1.e-01            |
    /// | 7        | 20          | 10, 20           | 1.e+01, 2.e+01             |
    /// | 3        | 20          | 0.e+00, 20       | 0.e+00, 2.e+01             |
    ///
    /// Scientific text always shows its point. A value that rounds to zero is "0.e+00" in both notations. False for an
    /// uncertainty that is not positive, and when either number is not finite.
    static bool SignificantFigures(double aValue, double aUncertainty, char** aValueText, char** aUncertaintyText,
                                   bool aScientific) noexcept;
    /// Reports how a numeric text is written. White space around it is allowed; an exponent is allowed and not counted.
    ///
    /// aSignificantFigures counts from the first digit that is not zero to the last digit; without a decimal point,
    /// zeros at the end only hold the place and do not count. A zero has one figure. aDecimals counts the digits after
    /// the point.
    ///
    /// | text     | sign | point | figures | decimals |
    /// |----------|------|-------|---------|----------|
    /// | "0.0230" | no   | yes   | 3       | 4        |
    /// | "-1200"  | yes  | no    | 2       | 0        |
    /// | "+1200." | yes  | yes   | 4       | 0        |
    /// | "1.50e3" | no   | yes   | 3       | 2        |
    /// | "0.00"   | no   | yes   | 1       | 2        |
    ///
    /// False, with every output cleared, for a text that is not one whole number.
    static bool GetSignificantFiguresInfo(const char* aText, bool& aHasSign, bool& aHasDecimalPoint,
                                          int& aSignificantFigures, int& aDecimals) noexcept;
    /// Formats a positive uncertainty to aFigures significant figures. Fewer than 1 count as 1, more than 17 as 17: a
    /// double carries no more. Rounds as SignificantFigures does.
    ///
    /// | uncertainty | figures | fixed  | scientific |
    /// |-------------|---------|--------|------------|
    /// | 0.0256      | 1       | 0.03   | 3.e-02     |
    /// | 0.0256      | 2       | 0.026  | 2.6e-02    |
    /// | 0.5         | 3       | 0.500  | 5.00e-01   |
    /// | 9.96        | 2       | 10     | 1.0e+01    |
    /// | 1234        | 2       | 1200   | 1.2e+03    |
    ///
    /// False for an uncertainty that is not positive or not finite.
    static bool TruncateUncertaintyValue(double aUncertainty, char** aOut, bool aScientific, int aFigures) noexcept;

    /// Reverses the bytes of each of aCount elements in place; false for a null pointer.
    static bool Swap16BitWord(std::int16_t* aWords, std::size_t aCount) noexcept;
    static bool Swap16BitWord(std::uint16_t* aWords, std::size_t aCount) noexcept;
    static bool Swap32BitWord(std::int32_t* aWords, std::size_t aCount) noexcept;
    static bool Swap32BitWord(std::uint32_t* aWords, std::size_t aCount) noexcept;
    static bool Swap32BitFloat(float* aValues, std::size_t aCount) noexcept;
    static bool Swap64BitDouble(double* aValues, std::size_t aCount) noexcept;
    /// The byte order of this host.
    static CSMCnst::ByteOrder SystemByteOrder() noexcept;

    /// Allocates an array of aCount null pointers and answers aCount; 0, with a null array, on failure and for no
    /// count.
    static std::size_t GetCStringArray(char**& aArray, std::size_t aCount) noexcept;
    static std::size_t GetConstCStringArray(const char**& aArray, std::size_t aCount) noexcept;
    static std::size_t GetCStringVectorContainerArray(std::vector<char*>**& aArray, std::size_t aCount) noexcept;

    /// Frees what this class hands out and sets the pointer to null; a null pointer is ignored.
    static void DeleteCString(char*& aText) noexcept;
    static void DeleteWCharBuffer(wchar_t*& aText) noexcept;
    /// Frees each of the aCount texts, then the array.
    static void DeleteCStringArray(char**& aArray, std::size_t aCount) noexcept;
    static void DeleteConstCStringArray(const char**& aArray, std::size_t aCount) noexcept;
    /// Frees every text of each of the aCount vectors, the vectors, then the array.
    static void DeleteCStringVectorContainerArray(std::vector<char*>**& aArray, std::size_t aCount) noexcept;

private:
    CSMUtilString() = delete;
    ~CSMUtilString() = delete;
    CSMUtilString& operator=(const CSMUtilString&) = delete;
};
}  // namespace ORMO::SensorModel::CSM::Util
