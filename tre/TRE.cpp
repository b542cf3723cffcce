#include "tre/TRE.h"

#include "fields/ByteCursor.h"
#include "fields/FieldRecord.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "tre/SupportedTREs.h"
#include "tre/detail/TreFault.h"
#include "tre/detail/TreMaker.h"
#include "tre/detail/TreParts.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRecord;
using Detail::ViewOf;

namespace {

constexpr std::size_t TAG_WIDTH = TRE::Parts::TAG_WIDTH;
constexpr std::size_t LENGTH_WIDTH = TRE::Parts::LENGTH_WIDTH;
constexpr std::size_t HEADER_WIDTH = TRE::Parts::HEADER_WIDTH;

}  // namespace

TRE::TRE(Parts& aParts) noexcept : m_parts(&aParts) {}

TRE::TRE(const char* aTag, const char* aData, std::size_t aLength, Type aType)
{
    if (aData == nullptr && aLength != 0) {
        throw std::invalid_argument("ERROR: Invalid/NULL input argument(s).");
    }
    m_parts = Parts::New(ViewOf(aTag), {}, {aData, aLength}, aType);
}

TRE::TRE(const TRE& aOther) : m_parts(aOther.m_parts->Copy()) {}

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
    const Parts& mine = *m_parts;
    const Parts& theirs = *aOther.m_parts;
    if (ViewOf(mine.tag) != ViewOf(theirs.tag) || mine.type != theirs.type || mine.layout != theirs.layout) {
        return false;
    }
    return mine.fields == nullptr || theirs.fields == nullptr ? mine.Data() == theirs.Data()
                                                              : *mine.fields == *theirs.fields;
}

bool TRE::operator!=(const TRE& aOther) const
{
    return !(*this == aOther);
}

bool TRE::CloneObj(const TRE& aOther)
{
    std::unique_ptr<Parts> copy = aOther.m_parts->Copy();
    copy->maker = m_parts->maker;
    m_parts = std::move(copy);
    return true;
}

void TRE::Swap(TRE& aOther) noexcept
{
    std::swap(m_parts, aOther.m_parts);
    std::swap(m_parts->maker, aOther.m_parts->maker);
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
    Detail::TreFault fault;
    fault.kind = Detail::TreFault::Kind::Length;
    fault.expected = aExpected;
    fault.found = aLength;
    fault.Throw(ViewOf(aTag));
}

void TRE::InitNITFTreFieldsMap()
{
    if (m_parts->layout == nullptr) {
        return;
    }
    const Detail::TreFault fault = Detail::TreMaker::Fit(*m_parts->fields, m_parts->Data(), *m_parts->layout);
    if (!fault.IsGood()) {
        fault.Throw(m_parts->tag);
    }
    m_parts->views.Reset();
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
        throw InitializationException(Detail::NotExtracted(ViewOf(aTag), expected, extracted).c_str(),
                                      "TRE::PopulateNITFTreFieldsMap");
    }
}

const char* TRE::GetTag() const noexcept
{
    return m_parts->tag;
}

TRE::Type TRE::GetTREType() const noexcept
{
    return m_parts->type;
}

SupportedTreFactory::Enum TRE::GetSupportedTREFactoryCode() const noexcept
{
    return m_parts->group;
}

std::int32_t TRE::GetUniqueExtensionTypeID() const noexcept
{
    return m_parts->code;
}

bool TRE::IsGenericTRE() const noexcept
{
    return m_parts->layout == nullptr;
}

const char* TRE::GetExtensionArea() const noexcept
{
    return m_parts->area;
}

std::uint64_t TRE::GetFileOffset() const noexcept
{
    return m_parts->offset;
}

std::size_t TRE::GetLengthOfDataField() const noexcept
{
    return m_parts->Length();
}

const char* TRE::GetRawTREDataString(std::size_t& aLength) const
{
    const std::string_view data = m_parts->Data();
    aLength = data.size();
    return data.data();
}

bool TRE::GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    if (!IsBinaryField(aName)) {
        aValue = nullptr;
        aLength = 0;
        return false;
    }
    return GetFieldAsString(aName, aValue, aLength);
}

bool TRE::GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    aValue = nullptr;
    aLength = 0;
    return m_parts->fields != nullptr && m_parts->fields->Text(ViewOf(aName), aValue, aLength);
}

bool TRE::GetFieldAsBool(const char* aName, bool& aValue) const
{
    return m_parts->fields != nullptr && m_parts->fields->AsBool(ViewOf(aName), aValue);
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
    std::int32_t value = 0;
    if (m_parts->fields == nullptr || !m_parts->fields->As(ViewOf(aName), value)) {
        return false;
    }
    aValue = value;
    return true;
}

bool TRE::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const
{
    std::uint32_t value = 0;
    if (m_parts->fields == nullptr || !m_parts->fields->As(ViewOf(aName), value)) {
        return false;
    }
    aValue = value;
    return true;
}

bool TRE::GetDoubleField(const char* aName, double& aValue) const
{
    return m_parts->fields != nullptr && m_parts->fields->As(ViewOf(aName), aValue);
}

bool TRE::GetIntegerField(const char* aName, std::int64_t& aValue) const
{
    return m_parts->fields != nullptr && m_parts->fields->As(ViewOf(aName), aValue);
}

bool TRE::GetUnsignedIntegerField(const char* aName, std::uint64_t& aValue) const
{
    return m_parts->fields != nullptr && m_parts->fields->As(ViewOf(aName), aValue);
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
    if (m_parts->fields == nullptr) {
        return false;
    }
    const Detail::FieldStore& store = m_parts->fields->Store();
    return std::any_of(store.Entries().begin(), store.Entries().end(),
                       [&store](const FieldEntry& aEntry) { return store.Row(aEntry).IsBinary(); });
}

bool TRE::IsBinaryField(const char* aName) const
{
    return m_parts->fields != nullptr && m_parts->fields->IsBinary(ViewOf(aName));
}

bool TRE::IsFieldEditable(const char* aName) const
{
    return m_parts->fields != nullptr && m_parts->fields->IsEditable(ViewOf(aName));
}

int TRE::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    return m_parts->fields == nullptr ? -1 : m_parts->fields->Allows(ViewOf(aName), aValue);
}

int TRE::ValidateFieldValues(std::string& aErrors) const
{
    Detail::FindingList problems;
    Detail::TreMaker::Check(*this, {}, problems);
    Detail::AppendProblemLines(problems, aErrors);
    return static_cast<int>(problems.Errors());
}

Util::CSMCnst::ByteOrder TRE::GetBinaryDataByteOrder() const
{
    return m_parts->fields == nullptr ? Util::CSMCnst::ByteOrder{} : m_parts->fields->Store().Order();
}

std::size_t TRE::GetNumOfFields() const noexcept
{
    return m_parts->fields == nullptr ? 0 : m_parts->fields->Store().Entries().size();
}

bool TRE::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const
{
    return m_parts->fields != nullptr && m_parts->fields->At(aIndex, aName, aValue, aLength);
}

const char* TRE::GetTREName() const
{
    return m_parts->name == nullptr ? Util::CSMCnst::CLASS_UNKNOWN : m_parts->name;
}

const char* TRE::GetTRERegisterGroup() const
{
    return SupportedTREs::GetGroupDescription(m_parts->tag);
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
    if (!Detail::HandOut(Detail::TrimmedEnd(std::string_view(text).substr(0, TAG_WIDTH)), aTag) ||
        !Detail::HandOut(std::string_view(text).substr(start, wanted), aData)) {
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
    *aOut = Detail::NewArray<char>(HEADER_WIDTH + m_parts->Length() + 1);
    if (*aOut == nullptr) {
        return false;
    }
    std::copy_n(m_parts->text.data(), HEADER_WIDTH, *aOut);
    m_parts->CopyData(*aOut + HEADER_WIDTH);
    return true;
}

}  // namespace ORMO::SensorModel::CSM
