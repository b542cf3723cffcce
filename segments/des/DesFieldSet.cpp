#include "segments/des/DesFieldSet.h"

#include "fields/FieldStore.h"
#include "fields/FieldValue.h"
#include "fields/FieldWalk.h"
#include "fields/FieldXml.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/des/detail/DesLayout.h"
#include "segments/detail/Findings.h"

#include <limits>
#include <mutex>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;

namespace {

constexpr auto DATA_BYTE_ORDER = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
constexpr const char* NO_TYPE = "UNKNOWN";

}  // namespace

struct DesFieldSet::Names
{
    std::vector<std::string> texts;
    std::vector<const char*> pointers;
};

DesFieldSet::DesFieldSet() : m_type(NO_TYPE), m_fields(std::make_unique<Detail::FieldStore>()) {}

DesFieldSet::DesFieldSet(const DesFieldSet& aOther)
    : m_type(aOther.m_type), m_data(aOther.m_data), m_fields(std::make_unique<Detail::FieldStore>(*aOther.m_fields))
{
}

DesFieldSet& DesFieldSet::operator=(const DesFieldSet& aOther)
{
    DesFieldSet copy(aOther);
    m_type.swap(copy.m_type);
    m_data.swap(copy.m_data);
    m_fields.swap(copy.m_fields);
    m_names.reset();
    return *this;
}

DesFieldSet::~DesFieldSet() = default;

bool DesFieldSet::Equals(const DesFieldSet& aOther) const noexcept
{
    return this == &aOther || (m_type == aOther.m_type && m_data == aOther.m_data && *m_fields == *aOther.m_fields);
}

void DesFieldSet::TakeData(const char* aType, const char* aData, std::size_t aLength, const char* aMessage,
                           const char* aSource)
{
    const std::string_view type = Detail::Trimmed(aType);
    if (aData == nullptr || aLength == 0 || type.empty()) {
        throw InitializationException(aMessage, aSource);
    }
    m_type = type;
    m_data.assign(aData, aLength);
}

void DesFieldSet::CutFields(const Detail::DesLayout& aLayout, const char* aArea)
{
    const std::string area(aArea);
    const std::string owner(aLayout.owner);
    *m_fields = Detail::FieldStore(aLayout.table);
    const Detail::WalkResult result = Detail::FieldWalk::Read(m_data, *m_fields);
    if (!result.IsGood() || result.consumed != m_data.size()) {
        std::string text = aLayout.misfit;
        Detail::AppendBlock(text, "ERROR: The input " + area +
                                      " data stream, field tags, and/or field sizes information of " + m_type +
                                      " the " + area + " are invalid.");
        Detail::AppendBlock(text, "ERROR: Failed to extracted all the " + area + " fields from the input " + area +
                                      " data stream [expected = " + aLayout.lengths +
                                      ", found = " + std::to_string(m_data.size()) + "].");
        const std::string family = aLayout.misfit[0] == '\0' ? "DesD" + area.substr(1) : owner;
        throw InitializationException(text.c_str(), (family + "::PopulateNITFDes" + area + "FieldsMap").c_str());
    }
    std::string blank;
    for (const FieldEntry& entry : m_fields->Entries()) {
        const FieldRow& row = m_fields->Row(entry);
        const bool filled = row.IsBinary() || !Detail::TrimBlanks(m_fields->Value(entry)).empty();
        if (row.IsRequired() && !row.MayBeBlank() && !filled) {
            blank += blank.empty() ? "" : ", ";
            blank += row.tag;
        }
    }
    if (!blank.empty()) {
        std::string text;
        if (Detail::TrimBlanks(FieldText(aLayout.leading)).empty() && aLayout.leading[0] != '\0') {
            text = std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ' + Detail::Quoted(aLayout.leading) + '.';
        }
        Detail::AppendBlock(text, "ERROR: Missing " + blank + " required field(s).");
        throw InitializationException(text.c_str(), (owner + "::Init" + owner).c_str());
    }
}

std::string_view DesFieldSet::FieldText(std::string_view aName) const noexcept
{
    bool found = false;
    return m_fields->Find(aName, found);
}

bool DesFieldSet::GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const
{
    const FieldEntry* const entry = m_fields->Find(Detail::Trimmed(aName));
    aValue = entry == nullptr ? nullptr : m_fields->Value(*entry).data();
    aLength = entry == nullptr ? 0 : entry->length;
    return entry != nullptr;
}

bool DesFieldSet::GetFieldAsBool(const char* aName, bool& aValue) const
{
    const char* text = nullptr;
    std::size_t length = 0;
    return GetFieldAsString(aName, text, length) && Util::CSMUtilString::ToBool(text, aValue);
}

bool DesFieldSet::GetFieldAsDouble(const char* aName, double& aValue) const
{
    const FieldEntry* const entry = m_fields->Find(Detail::Trimmed(aName));
    return entry != nullptr &&
           Detail::ValueAsDouble(m_fields->Row(*entry), m_fields->Value(*entry), DATA_BYTE_ORDER, aValue);
}

bool DesFieldSet::GetFieldAsLong(const char* aName, long& aValue) const
{
    const FieldEntry* const entry = m_fields->Find(Detail::Trimmed(aName));
    std::int64_t value = 0;
    if (entry == nullptr ||
        !Detail::ValueAsInt64(m_fields->Row(*entry), m_fields->Value(*entry), DATA_BYTE_ORDER, value) ||
        value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
        return false;
    }
    aValue = static_cast<long>(value);
    return true;
}

bool DesFieldSet::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const
{
    const FieldEntry* const entry = m_fields->Find(Detail::Trimmed(aName));
    std::uint64_t value = 0;
    if (entry == nullptr ||
        !Detail::ValueAsUInt64(m_fields->Row(*entry), m_fields->Value(*entry), DATA_BYTE_ORDER, value) ||
        value > std::numeric_limits<std::uint32_t>::max()) {
        return false;
    }
    aValue = static_cast<unsigned long>(value);
    return true;
}

bool DesFieldSet::IsFieldEditable(const char* aName) const
{
    const FieldEntry* const entry = m_fields->Find(Detail::Trimmed(aName));
    return entry != nullptr && m_fields->Table().IsEditable(entry->row);
}

int DesFieldSet::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    Detail::Turns turns{};
    const std::uint16_t row = m_fields->Table().Resolve(Detail::Trimmed(aName), turns);
    if (row == Detail::NO_ROW || aValue == nullptr) {
        return -1;
    }
    return Detail::CheckValue(m_fields->Table().Row(row), aValue) == Detail::Verdict::Good ? 1 : 0;
}

int DesFieldSet::ValidateFieldValues(std::string& aErrors) const
{
    int count = 0;
    for (const FieldEntry& entry : m_fields->Entries()) {
        const FieldRow& row = m_fields->Row(entry);
        const Detail::Verdict verdict = Detail::CheckValue(row, m_fields->Value(entry));
        if (verdict == Detail::Verdict::Good) {
            continue;
        }
        const std::string sentence = std::string(Detail::FaultSentence(row, verdict)) + ' ';
        Util::CSMUtilGeneric::ConstructMessage(true, sentence.c_str(), m_type.c_str(), m_fields->Name(entry).c_str(),
                                               aErrors);
        ++count;
    }
    return count;
}

std::size_t DesFieldSet::GetNumOfFields() const noexcept
{
    return m_fields->Entries().size();
}

bool DesFieldSet::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const
{
    if (aIndex >= GetNumOfFields()) {
        return false;
    }
    const FieldEntry& entry = m_fields->Entries()[aIndex];
    aName = m_fields->Name(entry);
    aValue = m_fields->Value(entry).data();
    aLength = entry.length;
    return true;
}

void DesFieldSet::AppendXml(std::string& aXml, const char* aIndent, const char* aElement) const
{
    std::size_t position = 0;
    for (const FieldEntry& entry : m_fields->Entries()) {
        Detail::AppendFieldElement(*m_fields, entry, Detail::FieldNaming::PositionAndTag, ++position, aIndent, aElement,
                                   aXml);
    }
}

const std::vector<const char*>* DesFieldSet::FieldNames() const
{
    static std::mutex making;
    const std::lock_guard lock(making);
    if (m_names == nullptr) {
        auto names = std::make_unique<Names>();
        names->texts.reserve(GetNumOfFields());
        for (const FieldEntry& entry : m_fields->Entries()) {
            names->pointers.push_back(names->texts.emplace_back(m_fields->Name(entry)).c_str());
        }
        m_names = std::move(names);
    }
    return &m_names->pointers;
}

}  // namespace ORMO::SensorModel::CSM
