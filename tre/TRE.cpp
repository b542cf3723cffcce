#include "tre/TRE.h"

#include "fields/FieldStore.h"
#include "fields/FieldValue.h"
#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreLayout.h"
#include "tre/detail/TreViews.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::FieldStore;
using Detail::Quoted;

namespace {

constexpr std::size_t TAG_WIDTH = 6;
constexpr std::size_t LENGTH_WIDTH = 5;
constexpr std::size_t HEADER_WIDTH = TAG_WIDTH + LENGTH_WIDTH;

std::string TrimmedTag(const char* aTag)
{
    std::string tag(aTag == nullptr ? "" : aTag);
    tag.erase(tag.find_last_not_of(' ') + 1);
    return tag;
}

const FieldEntry* FindField(const FieldStore* aFields, const char* aName)
{
    if (aFields == nullptr || aName == nullptr) {
        return nullptr;
    }
    return aFields->Find(Detail::Trimmed(aName));
}

/// What a walk that stopped has to say: which field, its bytes, what it wanted and what was there.
std::string FaultText(const char* aTag, const FieldStore& aFields, const Detail::WalkResult& aResult)
{
    std::string text = " Field ";
    std::string name;
    aFields.Table().AppendName(aResult.row, aResult.turns, name);
    text += Quoted(name);
    if (aResult.fault != Detail::Fault::Short) {
        text += " = " + Detail::Shown(aResult.value);
    }
    switch (aResult.fault) {
        case Detail::Fault::Short:
            text += " needs " + std::to_string(aResult.wanted) + " byte(s)";
            break;
        case Detail::Fault::CountBeyondData:
            text += " promises at least " + std::to_string(aResult.wanted) + " byte(s)";
            break;
        case Detail::Fault::LengthTooSmall:
            text += " must be at least " + std::to_string(aResult.wanted);
            break;
        default:
            text += " is not a number";
            break;
    }
    text += ", at data offset " + std::to_string(aResult.offset) + "; " + std::to_string(aResult.available) +
            " byte(s) were left.";
    const FieldRow& row = aFields.Table().Row(aResult.row);
    const bool blank = aResult.fault == Detail::Fault::NotANumber && Detail::Trimmed(aResult.value).empty();
    const bool absent = aResult.fault == Detail::Fault::Short && aResult.available == 0;
    if (row.IsField() && row.IsRequired() && (blank || absent)) {
        Util::CSMUtilGeneric::ConstructMessage(true, (std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ').c_str(),
                                               aTag, name.c_str(), text);
    }
    return text;
}

[[noreturn]] void ThrowNotExtracted(const char* aTag, std::size_t aExpected, std::size_t aExtracted,
                                    const std::string& aDetail)
{
    std::string message = "ERROR: Failed to extracted all the TRE fields from the input CEDATA/REDATA data stream";
    if (aTag != nullptr && *aTag != '\0') {
        message += " for TRE " + Quoted(aTag);
    }
    message += " [expected = " + std::to_string(aExpected) + ", extracted = " + std::to_string(aExtracted) + "].";
    message += aDetail;
    throw InitializationException(message.c_str(), "TRE::PopulateNITFTreFieldsMap");
}

}  // namespace

TRE::TRE(const Detail::TreLayout& aLayout, const char* aData, std::size_t aLength, Type aType,
         Util::CSMCnst::ByteOrder aByteOrder)
    : m_tag(aLayout.tag), m_type(aType), m_byteOrder(aByteOrder), m_layout(&aLayout)
{
    CheckCEREDATALength(aLength, aLayout.tag, aLayout.length != 0 ? aLayout.length : std::max<std::size_t>(aLength, 1),
                        aLayout.length == 0);
    m_text = Compose(aData, aLength);
    TRE::InitNITFTreFieldsMap();
}

TRE::TRE(const char* aTag, const char* aData, std::size_t aLength, Type aType) : m_tag(TrimmedTag(aTag)), m_type(aType)
{
    if (m_tag.empty() || (aData == nullptr && aLength != 0)) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    m_text = Compose(aData, aLength);
}

TRE::TRE(const TRE& aOther)
{
    TRE::CloneObj(aOther);
}

TRE::~TRE() = default;

TRE& TRE::operator=(const TRE& aOther)
{
    if (this != &aOther) {
        CloneObj(aOther);
    }
    return *this;
}

bool TRE::operator==(const TRE& aOther) const
{
    return m_tag == aOther.m_tag && m_type == aOther.m_type && m_layout == aOther.m_layout && m_text == aOther.m_text;
}

bool TRE::operator!=(const TRE& aOther) const
{
    return !(*this == aOther);
}

bool TRE::CloneObj(const TRE& aOther)
{
    m_tag = aOther.m_tag;
    m_type = aOther.m_type;
    m_tagCode = aOther.m_tagCode;
    m_groupCode = aOther.m_groupCode;
    m_byteOrder = aOther.m_byteOrder;
    m_layout = aOther.m_layout;
    m_text = aOther.m_text;
    m_fields = aOther.m_fields == nullptr ? nullptr : std::make_unique<FieldStore>(*aOther.m_fields);
    m_area = aOther.m_area;
    m_fileOffset = aOther.m_fileOffset;
    m_views.reset();
    return true;
}

void TRE::Swap(TRE& aOther) noexcept
{
    std::swap(m_tag, aOther.m_tag);
    std::swap(m_type, aOther.m_type);
    std::swap(m_tagCode, aOther.m_tagCode);
    std::swap(m_groupCode, aOther.m_groupCode);
    std::swap(m_byteOrder, aOther.m_byteOrder);
    std::swap(m_layout, aOther.m_layout);
    std::swap(m_text, aOther.m_text);
    std::swap(m_fields, aOther.m_fields);
    std::swap(m_area, aOther.m_area);
    std::swap(m_fileOffset, aOther.m_fileOffset);
    std::swap(m_views, aOther.m_views);
}

void TRE::CheckCEREDATALength(std::size_t aLength, const char* aTag, std::size_t aExpected, bool aMayDiffer)
{
    if (aExpected == 0) {
        throw std::invalid_argument(
            "ERROR: Internal system errors - invalid input expected CEDATA/REDATA data length.");
    }
    if (aMayDiffer || aLength == aExpected) {
        return;
    }
    std::string message = "ERROR: Expected length of the CEDATA/REDATA ";
    if (aTag != nullptr && *aTag != '\0') {
        message += "of TRE " + Quoted(aTag) + ' ';
    }
    message += "is " + std::to_string(aExpected) + " byte(s). Input CEDATA/REDATA length = " + std::to_string(aLength) +
               " byte(s).";
    throw std::invalid_argument(message);
}

std::string TRE::Compose(const char* aData, std::size_t aLength) const
{
    std::string text;
    text.reserve(HEADER_WIDTH + aLength);
    text = m_tag;
    if (text.size() < TAG_WIDTH) {
        text.append(TAG_WIDTH - text.size(), ' ');
    }
    const std::string length = std::to_string(aLength);
    if (length.size() < LENGTH_WIDTH) {
        text.append(LENGTH_WIDTH - length.size(), '0');
    }
    text += length;
    if (aLength != 0) {
        text.append(aData, aLength);
    }
    return text;
}

void TRE::InitNITFTreFieldsMap()
{
    if (m_layout == nullptr) {
        return;
    }
    std::size_t length = 0;
    const char* const data = GetRawTREDataString(length);
    auto fields = std::make_unique<FieldStore>(m_layout->table);
    const Detail::WalkResult result = Detail::FieldWalk::Read({data, length}, *fields);
    if (!result.IsGood()) {
        const std::size_t extracted = fields->Entries().size();
        ThrowNotExtracted(m_layout->tag, std::max(m_layout->table.FieldCount(), extracted + 1), extracted,
                          FaultText(m_layout->tag, *fields, result));
    }
    if (result.consumed != length) {
        CheckCEREDATALength(length, m_layout->tag, static_cast<std::size_t>(result.consumed), false);
    }
    m_fields = std::move(fields);
}

void TRE::PopulateNITFTreFieldsMap(const char* aTag, const std::string* aData, const std::vector<const char*>& aNames,
                                   const std::vector<int>& aWidths, FieldWidths& aWidthMap, FieldTexts& aValueMap,
                                   int aFirst, int aLast, std::size_t aStart, bool aStartBeyondDataOk) const
{
    aWidthMap.clear();
    aValueMap.clear();
    const int last = aLast < 0 ? static_cast<int>(aNames.size()) - 1 : aLast;
    if (aData == nullptr || aNames.empty() || aNames.size() != aWidths.size() || aFirst < 0 || last < aFirst ||
        static_cast<std::size_t>(aFirst) >= aNames.size() || (!aStartBeyondDataOk && aStart >= aData->size())) {
        return;
    }
    Detail::ByteCursor cursor(std::string_view(*aData).substr(std::min(aStart, aData->size())));
    std::size_t extracted = 0;
    for (std::size_t i = 0; i <= static_cast<std::size_t>(last) && i < aNames.size(); ++i) {
        std::string_view value;
        if (aNames[i] == nullptr || aWidths[i] <= 0 || !cursor.Take(static_cast<std::uint64_t>(aWidths[i]), value)) {
            break;
        }
        if (i >= static_cast<std::size_t>(aFirst)) {
            aWidthMap[aNames[i]] = aWidths[i];
            aValueMap[aNames[i]] = value;
            ++extracted;
        }
    }
    const std::size_t expected = static_cast<std::size_t>(last) - static_cast<std::size_t>(aFirst) + 1;
    if (extracted < expected) {
        aWidthMap.clear();
        aValueMap.clear();
        ThrowNotExtracted(aTag, expected, extracted, {});
    }
}

std::size_t TRE::GetLengthOfDataField() const noexcept
{
    return m_text.size() < HEADER_WIDTH ? 0 : m_text.size() - HEADER_WIDTH;
}

const char* TRE::GetRawTREDataString(std::size_t& aLength) const noexcept
{
    aLength = GetLengthOfDataField();
    return m_text.size() < HEADER_WIDTH ? m_text.c_str() : m_text.data() + HEADER_WIDTH;
}

bool TRE::GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    if (entry == nullptr || !m_fields->Row(*entry).IsBinary()) {
        aValue = nullptr;
        aLength = 0;
        return false;
    }
    return GetFieldAsString(aName, aValue, aLength);
}

bool TRE::GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    aValue = entry == nullptr ? nullptr : m_fields->Value(*entry).data();
    aLength = entry == nullptr ? 0 : entry->length;
    return entry != nullptr;
}

bool TRE::GetFieldAsBool(const char* aName, bool& aValue) const
{
    const char* text = nullptr;
    std::size_t length = 0;
    return GetFieldAsString(aName, text, length) && Util::CSMUtilString::ToBool(text, aValue);
}

bool TRE::GetFieldAsDouble(const char* aName, double& aValue) const
{
    return GetDoubleField(aName, aValue);
}

bool TRE::GetFieldAsInt64(const char* aName, std::int64_t& aValue) const
{
    return GetIntegerField(aName, aValue);
}

bool TRE::GetFieldAsUInt64(const char* aName, std::uint64_t& aValue) const
{
    return GetUnsignedIntegerField(aName, aValue);
}

bool TRE::GetFieldAsLong(const char* aName, long& aValue) const
{
    std::int64_t value = 0;
    if (!GetIntegerField(aName, value) || value < std::numeric_limits<std::int32_t>::min() ||
        value > std::numeric_limits<std::int32_t>::max()) {
        return false;
    }
    aValue = static_cast<long>(value);
    return true;
}

bool TRE::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const
{
    std::uint64_t value = 0;
    if (!GetUnsignedIntegerField(aName, value) || value > std::numeric_limits<std::uint32_t>::max()) {
        return false;
    }
    aValue = static_cast<unsigned long>(value);
    return true;
}

bool TRE::GetDoubleField(const char* aName, double& aValue) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    return entry != nullptr &&
           Detail::ValueAsDouble(m_fields->Row(*entry), m_fields->Value(*entry), GetBinaryDataByteOrder(), aValue);
}

bool TRE::GetIntegerField(const char* aName, std::int64_t& aValue) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    return entry != nullptr &&
           Detail::ValueAsInt64(m_fields->Row(*entry), m_fields->Value(*entry), GetBinaryDataByteOrder(), aValue);
}

bool TRE::GetUnsignedIntegerField(const char* aName, std::uint64_t& aValue) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    return entry != nullptr &&
           Detail::ValueAsUInt64(m_fields->Row(*entry), m_fields->Value(*entry), GetBinaryDataByteOrder(), aValue);
}

const char* TRE::GetTREField(const char* aName) const
{
    const char* text = nullptr;
    std::size_t length = 0;
    GetFieldAsString(aName, text, length);
    return text;
}

bool TRE::ContainsBinaryFields() const
{
    if (m_fields == nullptr) {
        return false;
    }
    const auto entries = m_fields->Entries();
    return std::any_of(entries.begin(), entries.end(),
                       [this](const FieldEntry& aEntry) { return m_fields->Row(aEntry).IsBinary(); });
}

bool TRE::IsBinaryField(const char* aName) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    return entry != nullptr && m_fields->Row(*entry).IsBinary();
}

bool TRE::IsFieldEditable(const char* aName) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    return entry != nullptr && m_fields->Table().IsEditable(entry->row);
}

int TRE::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    const FieldEntry* const entry = FindField(m_fields.get(), aName);
    if (entry == nullptr || aValue == nullptr) {
        return -1;
    }
    return Detail::CheckValue(m_fields->Row(*entry), aValue) == Detail::Verdict::Good ? 1 : 0;
}

int TRE::ValidateFieldValues(std::string& aErrors) const
{
    if (m_fields == nullptr) {
        return 0;
    }
    int count = 0;
    for (const FieldEntry& entry : m_fields->Entries()) {
        const FieldRow& row = m_fields->Row(entry);
        const Detail::Verdict verdict = Detail::CheckValue(row, m_fields->Value(entry));
        if (verdict == Detail::Verdict::Good) {
            continue;
        }
        const bool blank = verdict == Detail::Verdict::Blank;
        const bool required = row.IsRequired();
        const char* const sentence = blank      ? (required ? CSMMsg::Error::MISSING_REQUIRED_FIELD
                                                            : CSMMsg::Error::MISSING_CONDITIONALLY_REQUIRED_FIELD)
                                     : required ? CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE
                                                : CSMMsg::Error::INVALID_CONDITIONALLY_REQUIRED_FIELD_VALUE;
        Util::CSMUtilGeneric::ConstructMessage(true, (std::string(sentence) + ' ').c_str(), m_tag.c_str(),
                                               m_fields->Name(entry).c_str(), aErrors);
        ++count;
    }
    return count;
}

Util::CSMCnst::ByteOrder TRE::GetBinaryDataByteOrder() const
{
    return m_byteOrder;
}

std::size_t TRE::GetNumOfFields() const noexcept
{
    return m_fields == nullptr ? 0 : m_fields->Entries().size();
}

bool TRE::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const
{
    if (aIndex >= GetNumOfFields()) {
        return false;
    }
    const FieldEntry& entry = m_fields->Entries()[aIndex];
    aName.clear();
    m_fields->AppendName(entry, aName);
    aValue = m_fields->Value(entry).data();
    aLength = entry.length;
    return true;
}

const char* TRE::GetTREName() const
{
    return m_layout == nullptr ? Util::CSMCnst::CLASS_UNKNOWN : m_layout->name;
}

const char* TRE::GetTRERegisterGroup() const
{
    return SupportedTREs::GetGroupDescription(m_tag.c_str());
}

const char* TRE::GetTRETypeString(Type aType) noexcept
{
    switch (aType) {
        case TRE_TYPE_CONTROLLED_EXTENSION:
            return NITFCnst::TRE_TYPE_CE;
        case TRE_TYPE_REGISTERED_EXTENSION:
            return NITFCnst::TRE_TYPE_RE;
        default:
            return NITFCnst::TRE_TYPE_UNKNOWN;
    }
}

std::size_t TRE::GetCELRELFieldValue(const char* aText)
{
    if (aText == nullptr) {
        return 0;
    }
    std::size_t length = 0;
    const std::string text(Util::CSMUtilString::Trim(aText, length, true, false));
    if (text.size() <= HEADER_WIDTH) {
        return 0;
    }
    const std::size_t start = text[TAG_WIDTH] == '=' ? TAG_WIDTH + 1 : TAG_WIDTH;
    long value = 0;
    if (!Util::CSMUtilString::ToLong(text.substr(start, LENGTH_WIDTH).c_str(), value) || value < 1) {
        return 0;
    }
    return static_cast<std::size_t>(value);
}

bool TRE::DecomposeTREString(const char* aText, char** aTag, char** aData, std::size_t& aLength)
{
    aLength = 0;
    if (aTag == nullptr || aData == nullptr) {
        return false;
    }
    *aTag = nullptr;
    *aData = nullptr;
    const std::size_t wanted = GetCELRELFieldValue(aText);
    if (wanted == 0) {
        return false;
    }
    std::size_t length = 0;
    const std::string text(Util::CSMUtilString::Trim(aText, length, true, false));
    const std::size_t start = HEADER_WIDTH + (text[TAG_WIDTH] == '=' ? 1U : 0U);
    if (text.size() < start || text.size() - start < wanted) {
        return false;
    }
    if (!Util::CSMUtilString::Copy(TrimmedTag(text.substr(0, TAG_WIDTH).c_str()).c_str(), aTag) ||
        !Util::CSMUtilString::Copy(text.substr(start, wanted).c_str(), aData)) {
        Util::CSMUtilString::DeleteCString(*aTag);
        return false;
    }
    aLength = wanted;
    return true;
}

bool TRE::Write(char** aOut) const
{
    if (aOut == nullptr) {
        return false;
    }
    *aOut = nullptr;
    if (m_text.empty()) {
        return false;
    }
    *aOut = new char[m_text.size() + 1];
    std::copy_n(m_text.c_str(), m_text.size() + 1, *aOut);
    return true;
}

}  // namespace ORMO::SensorModel::CSM
