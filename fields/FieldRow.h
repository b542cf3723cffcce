#pragma once

#include <cstdint>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

class WalkContext;

/// Whether a field must stand in the data and may be blank: the five field types of the field model.
enum class Need : std::int8_t
{
    Conditional = 0,
    ConditionalBlank = 1,
    Optional = 2,
    Required = 3,
    RequiredBlank = 4
};

/// What the bytes of a field are. The character sets are those of MIL-STD-2500C, 5.1.7.
enum class Form : std::uint8_t
{
    Text,                  ///< BCS-A
    Ecs,                   ///< ECS-A: BCS-A and 0xA0 to 0xFF
    Utf8,                  ///< UTF-8 text
    Opaque,                ///< text or not: what another field names decides
    Integer,               ///< BCS-N, a whole number
    Real,                  ///< BCS-N, a number with or without point and exponent
    Digits,                ///< BCS-NPI, a number
    DigitText,             ///< BCS-NPI, a code that is read as text
    NumberText,            ///< BCS-N, read as text
    Date,                  ///< a date, or a date and time
    Time,                  ///< a time of day
    Location,              ///< a latitude with a longitude, or a grid position
    FileProfile,           ///< the name that opens a file header
    ClassificationReason,  ///< a letter of the security block with a value kind of its own
    Colour,                ///< three bytes: red, green, blue
    Unsigned,              ///< binary, unsigned
    Signed,                ///< binary, two's complement
    Float,                 ///< binary, IEEE 754
    Bytes,                 ///< binary without a structure of its own
    Records                ///< a run of tagged record extensions
};

/// A row describes a field, or opens or closes a group of rows.
enum class RowKind : std::uint8_t
{
    Field,
    Repeat,
    When,
    End
};

/// How a When row compares the field that it names.
enum class Test : std::uint8_t
{
    IsOneOf,
    IsNoneOf,
    Filled,
    Positive,
    AtLeast,
    AnyBit,
    Function
};

/// A count or width that plain rows cannot say; false when the fields it needs are no numbers.
using CountFunction = bool (*)(const WalkContext&, std::uint64_t& aOut);
/// A condition that plain rows cannot say.
using TestFunction = bool (*)(const WalkContext&);

/// One line of a table: a field with all that is known of it, or the mark of a repeat, a condition or an end.
struct FieldRow
{
    RowKind kind = RowKind::Field;
    Need need = Need::Required;
    Form form = Form::Text;
    Test test = Test::IsOneOf;
    bool locked = false;      ///< never offered for editing: it decides how the rest is read
    const char* tag = "";     ///< the field's own tag; in a mark, the field that it looks at
    std::uint32_t width = 0;  ///< bytes; 0 when computed
    const char* values = "";  ///< value rule; in a When, the alternatives
    const char* unit = "";
    const char* label = "";  ///< long name
    const char* explanation = "";
    const char* sizeTag = nullptr;  ///< the field that holds the width
    std::int32_t sizeAdjust = 0;    ///< added to the value of sizeTag or to the count
    std::uint64_t number = 0;       ///< times of a fixed repeat, bound of AtLeast, mask of AnyBit
    bool rest = false;              ///< the field takes all bytes that are left; a repeat goes on while there are any
    CountFunction count = nullptr;  ///< width or count by function
    TestFunction condition = nullptr;
    bool isReadThrough = false;   ///< of a repeat: it is begun even when its turns cannot all be there
    const char* alias = nullptr;  ///< another common spelling, accepted on look-up
    bool oftenBlank = false;      ///< a blank is against the rule but usual: it is worth a warning, not an error
    const char* rule = nullptr;   ///< identifier of the validation rule that the row's values are; null for the common
    bool isMild = false;          ///< whatever stands there against the rule is worth a warning, not an error

    constexpr bool IsField() const noexcept { return kind == RowKind::Field; }
    constexpr bool IsGroup() const noexcept { return kind == RowKind::Repeat || kind == RowKind::When; }
    constexpr bool HasFixedWidth() const noexcept { return width != 0; }
    constexpr bool MayBeBlank() const noexcept
    {
        return need == Need::ConditionalBlank || need == Need::Optional || need == Need::RequiredBlank;
    }
    constexpr bool IsRequired() const noexcept { return need == Need::Required || need == Need::RequiredBlank; }
    constexpr bool IsBinary() const noexcept { return form >= Form::Colour && form != Form::Records; }

    /// The same row, never offered for editing.
    constexpr FieldRow Locked() const noexcept
    {
        FieldRow row = *this;
        row.locked = true;
        return row;
    }
    /// The same row, blank in many real files though its standard allows no blanks.
    constexpr FieldRow OftenBlank() const noexcept
    {
        FieldRow row = *this;
        row.oftenBlank = true;
        return row;
    }
    /// The same row, whose values are a validation rule of its own.
    constexpr FieldRow Rule(const char* aRule) const noexcept
    {
        FieldRow row = *this;
        row.rule = aRule;
        return row;
    }
    /// The same for a rule that only warns.
    constexpr FieldRow MildRule(const char* aRule) const noexcept
    {
        FieldRow row = Rule(aRule);
        row.isMild = true;
        return row;
    }
    /// The same row of a computed width, which is blamed on the named field when it cannot be worked out.
    constexpr FieldRow By(const char* aTag) const noexcept
    {
        FieldRow row = *this;
        row.sizeTag = aTag;
        return row;
    }
    /// The same repeat, begun even when its turns cannot all be there: the first missing field tells more than the
    /// count. For counts of few digits.
    constexpr FieldRow ReadThrough() const noexcept
    {
        FieldRow row = *this;
        row.isReadThrough = true;
        return row;
    }
    /// The same row, found by another spelling too.
    constexpr FieldRow Alias(const char* aName) const noexcept
    {
        FieldRow row = *this;
        row.alias = aName;
        return row;
    }
};

/// A field of fixed width.
constexpr FieldRow Field(const char* aTag, std::uint32_t aWidth, Need aNeed, Form aForm, const char* aValues,
                         const char* aUnit, const char* aLabel, const char* aExplanation = "") noexcept
{
    FieldRow row;
    row.tag = aTag;
    row.width = aWidth;
    row.need = aNeed;
    row.form = aForm;
    row.values = aValues;
    row.unit = aUnit;
    row.label = aLabel;
    row.explanation = aExplanation;
    return row;
}

/// A field whose width is the value of another field plus an adjustment: Sized("UDHD", "UDHDL", -3, ...). A length that
/// covers only the fields counted along with it, so that nothing is left, means that the field does not stand at all.
constexpr FieldRow Sized(const char* aTag, const char* aSizeTag, std::int32_t aAdjust, Need aNeed, Form aForm,
                         const char* aValues, const char* aUnit, const char* aLabel,
                         const char* aExplanation = "") noexcept
{
    FieldRow row = Field(aTag, 0, aNeed, aForm, aValues, aUnit, aLabel, aExplanation);
    row.sizeTag = aSizeTag;
    row.sizeAdjust = aAdjust;
    return row;
}

/// A field whose width a function works out.
constexpr FieldRow Computed(const char* aTag, CountFunction aWidth, Need aNeed, Form aForm, const char* aValues,
                            const char* aUnit, const char* aLabel, const char* aExplanation = "") noexcept
{
    FieldRow row = Field(aTag, 0, aNeed, aForm, aValues, aUnit, aLabel, aExplanation);
    row.count = aWidth;
    return row;
}

/// A field that takes every byte that is left.
constexpr FieldRow Rest(const char* aTag, Need aNeed, Form aForm, const char* aValues, const char* aUnit,
                        const char* aLabel, const char* aExplanation = "") noexcept
{
    FieldRow row = Field(aTag, 0, aNeed, aForm, aValues, aUnit, aLabel, aExplanation);
    row.rest = true;
    return row;
}

/// The rows up to End() stand as often as the named field says, plus an adjustment.
constexpr FieldRow Repeat(const char* aCountTag, std::int32_t aAdjust = 0) noexcept
{
    FieldRow row;
    row.kind = RowKind::Repeat;
    row.tag = aCountTag;
    row.sizeAdjust = aAdjust;
    return row;
}

/// The rows up to End() stand a fixed number of times.
constexpr FieldRow Times(std::uint64_t aTimes) noexcept
{
    FieldRow row;
    row.kind = RowKind::Repeat;
    row.number = aTimes;
    return row;
}

/// The rows up to End() stand as often as a function works out; the label says how. The tag, when given, is the field
/// that a bad count is blamed on.
constexpr FieldRow RepeatBy(const char* aLabel, CountFunction aCount, const char* aTag = "") noexcept
{
    FieldRow row;
    row.kind = RowKind::Repeat;
    row.tag = aTag;
    row.label = aLabel;
    row.count = aCount;
    return row;
}

/// The rows up to End() stand as often as there are bytes left; only whole turns are good.
constexpr FieldRow RepeatToEnd() noexcept
{
    FieldRow row;
    row.kind = RowKind::Repeat;
    row.rest = true;
    return row;
}

constexpr FieldRow Condition(const char* aTag, Test aTest, const char* aValues, std::uint64_t aNumber = 0) noexcept
{
    FieldRow row;
    row.kind = RowKind::When;
    row.tag = aTag;
    row.test = aTest;
    row.values = aValues;
    row.number = aNumber;
    return row;
}

/// The rows up to End() stand when the field, without trailing blanks, is one of the texts ("1" or "A|B").
constexpr FieldRow When(const char* aTag, const char* aValues) noexcept
{
    return Condition(aTag, Test::IsOneOf, aValues);
}

/// The rows up to End() stand when the field, without trailing blanks, is none of the texts.
constexpr FieldRow WhenNot(const char* aTag, const char* aValues) noexcept
{
    return Condition(aTag, Test::IsNoneOf, aValues);
}

/// The rows up to End() stand when the field is not blank.
constexpr FieldRow WhenFilled(const char* aTag) noexcept
{
    return Condition(aTag, Test::Filled, "");
}

/// The rows up to End() stand when the number in the field is above zero.
constexpr FieldRow WhenPositive(const char* aTag) noexcept
{
    return Condition(aTag, Test::Positive, "");
}

/// The rows up to End() stand when the number in the field is at least `aBound`.
constexpr FieldRow WhenAtLeast(const char* aTag, std::uint64_t aBound) noexcept
{
    return Condition(aTag, Test::AtLeast, "", aBound);
}

/// The rows up to End() stand when the binary field has one of the bits of `aMask` set.
constexpr FieldRow WhenAnyBit(const char* aTag, std::uint64_t aMask) noexcept
{
    return Condition(aTag, Test::AnyBit, "", aMask);
}

/// The rows up to End() stand when a function says so; the label tells when.
constexpr FieldRow WhenBy(const char* aLabel, TestFunction aTest) noexcept
{
    FieldRow row = Condition("", Test::Function, "");
    row.label = aLabel;
    row.condition = aTest;
    return row;
}

/// Closes the innermost open Repeat or When.
constexpr FieldRow End() noexcept
{
    FieldRow row;
    row.kind = RowKind::End;
    return row;
}

}  // namespace ORMO::SensorModel::CSM::Detail
