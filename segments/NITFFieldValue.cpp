#include "segments/NITFFieldValue.h"

#include "fields/DateText.h"
#include "fields/FieldRecord.h"
#include "fields/Number.h"
#include "foundation/detail/Ascii.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/TreHelp.h"
#include "tre/detail/TreParts.h"

#include <iterator>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRecord;
using Detail::FieldRow;
using Kind = NITFFieldValue::Kind;
using Util::CSMCnst;

namespace {

/// Null for a TRE without a layout.
const FieldRecord* RecordOf(const TRE& aOwner) noexcept
{
    return TRE::Parts::Of(aOwner).fields;
}

const FieldRecord* RecordOf(const NITFFieldSegment& aOwner) noexcept
{
    return &aOwner.Inside().record;
}

/// Whether a value rule is the picture of a date.
bool IsDateRule(std::string_view aRule) noexcept
{
    return aRule.substr(0, 5) == "{CCYY" || aRule.substr(0, 5) == "{YYYY" || aRule.substr(0, 5) == "{DDHH";
}

Kind KindOf(const FieldRecord& aRecord, const FieldEntry& aEntry, NITFFieldValue& aValue)
{
    const FieldRow& row = aRecord.Store().Row(aEntry);
    const std::string_view trimmed = Detail::TrimBlanks(aValue.text);
    const bool isText = !row.IsBinary() && row.form != Detail::Form::Records;
    aValue.text = isText ? trimmed : aValue.text;
    if (aValue.text.empty()) {
        return Kind::None;
    }
    // A byte of a number may look like a blank; other bytes that nobody filled are blanks in real files.
    const Kind other = trimmed.empty() ? Kind::None : isText ? Kind::Text : Kind::Bytes;
    switch (Detail::DataTypeOf(row)) {
        case CSMCnst::DATA_TYPE_INT32:
        case CSMCnst::DATA_TYPE_UINT32:
        case CSMCnst::DATA_TYPE_INT64:
        case CSMCnst::DATA_TYPE_UINT64:
            return aRecord.As(aEntry, aValue.integer) ? Kind::Integer : other;
        case CSMCnst::DATA_TYPE_DOUBLE:
            return aRecord.As(aEntry, aValue.real) ? Kind::Real : other;
        default:
            return isText && IsDateRule(row.values) && aValue.date.Read(aValue.text) ? Kind::Date : other;
    }
}

template<typename Owner>
NITFFieldValue ValueOf(const Owner& aOwner, std::string_view aField)
{
    NITFFieldValue value;
    const FieldRecord* const record = RecordOf(aOwner);
    if (const FieldEntry* const entry = record == nullptr ? nullptr : record->Find(aField); entry != nullptr) {
        value.text = record->Store().Value(*entry);
        value.kind = KindOf(*record, *entry, value);
    }
    return value;
}

template<typename Owner>
bool InfoOf(const Owner& aOwner, std::string_view aField, TreDetailedInfo& aInfo)
{
    const FieldRecord* const record = RecordOf(aOwner);
    const FieldEntry* const entry = record == nullptr ? nullptr : record->Find(aField);
    if (entry == nullptr) {
        return false;
    }
    aInfo = Detail::FieldInfo(record->Store().Row(*entry), record->Store().Name(*entry), entry->length);
    return true;
}

}  // namespace

bool NITFDate::Read(std::string_view aText) noexcept
{
    Detail::DateParts parts{};
    if (!Detail::ReadDate(Detail::Trimmed(aText), parts)) {
        return false;
    }
    *this = {parts[0], parts[1], parts[2], parts[3], parts[4], parts[5]};
    return true;
}

std::string NITFDate::Iso(char aBetween) const
{
    const int parts[] = {year, month, day, hour, minute, second};
    const char between[] = {'\0', '-', '-', aBetween, ':', ':'};
    std::string date;
    for (std::size_t i = 0; i != std::size(parts) && parts[i] >= 0; ++i) {
        const std::string digits = std::to_string(parts[i]);
        date += i == 0 ? std::string() : std::string(1, between[i]);
        date += std::string((i == 0 ? 4U : 2U) - digits.size(), '0') + digits;
    }
    // An hour alone would be no time of any notation.
    date += hour >= 0 && minute < 0 ? ":--" : "";
    return date + (hour >= 0 ? "Z" : "");
}

bool NITFDate::operator==(const NITFDate& aOther) const noexcept
{
    return year == aOther.year && month == aOther.month && day == aOther.day && hour == aOther.hour &&
           minute == aOther.minute && second == aOther.second;
}

NITFFieldValue NITFFieldValue::Of(const TRE& aOwner, std::string_view aField)
{
    return ValueOf(aOwner, aField);
}

NITFFieldValue NITFFieldValue::Of(const NITFFieldSegment& aOwner, std::string_view aField)
{
    return ValueOf(aOwner, aField);
}

bool NITFFieldValue::GetInfo(const TRE& aOwner, std::string_view aField, TreDetailedInfo& aInfo)
{
    return InfoOf(aOwner, aField, aInfo);
}

bool NITFFieldValue::GetInfo(const NITFFieldSegment& aOwner, std::string_view aField, TreDetailedInfo& aInfo)
{
    return InfoOf(aOwner, aField, aInfo);
}

}  // namespace ORMO::SensorModel::CSM
