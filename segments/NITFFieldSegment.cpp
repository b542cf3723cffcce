#include "segments/NITFFieldSegment.h"

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
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentWords.h"
#include "tre/detail/TreArea.h"

#include <limits>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::FieldTable;
using Detail::Quoted;
using Detail::SegmentContents;

namespace {

constexpr const char* NOT_INTEGRAL = " is not an integral type.";
constexpr const char* NOT_POSITIVE_INTEGRAL = " doesn't exist or its data type is not a positive integral type.";
constexpr const char* NOT_REAL = " doesn't exist or its data type is not floating point type.";
constexpr const char* NOT_CONVERTED =
    "ERROR: Internal system error. Failed to convert the requested field value from a string representation to an "
    "unsigned long.";

constexpr auto HEADER_BYTE_ORDER = Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;

}  // namespace

NITFFieldSegment::NITFFieldSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind, const FieldTable& aTable)
    : NITFStdDataSegment(aVersionText, aKind), m_contents(std::make_unique<SegmentContents>())
{
    m_contents->fields = Detail::FieldStore(aTable);
}

NITFFieldSegment::NITFFieldSegment(const NITFFieldSegment& aOther)
    : NITFStdDataSegment(aOther),
      m_contents(std::make_unique<SegmentContents>(*aOther.m_contents)),
      m_fileOffset(aOther.m_fileOffset)
{
}

NITFFieldSegment::~NITFFieldSegment() = default;

bool NITFFieldSegment::operator==(const NITFStdDataSegment& aOther) const
{
    const auto* const other = dynamic_cast<const NITFFieldSegment*>(&aOther);
    return this == &aOther ||
           (other != nullptr && NITFStdDataSegment::operator==(aOther) &&
            m_contents->fields == other->m_contents->fields && m_contents->tres == other->m_contents->tres);
}

bool NITFFieldSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFFieldSegment*>(&aOther);
    if (other == nullptr) {
        return false;
    }
    auto contents = std::make_unique<SegmentContents>(*other->m_contents);
    if (!NITFStdDataSegment::CloneObj(aOther)) {
        return false;
    }
    m_contents = std::move(contents);
    m_fileOffset = other->m_fileOffset;
    m_views.reset();
    return true;
}

void NITFFieldSegment::Assign(const NITFStdDataSegment& aOther)
{
    if (this != &aOther && !CloneObj(aOther)) {
        const std::string owner = Words().className != nullptr ? Words().className : Words().owner;
        throw RequestedOperationFailedException(
            ("ERROR: System failed to assign all the member variables of one " + owner + " to another.").c_str(),
            (owner + "::Assign").c_str());
    }
}

void NITFFieldSegment::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFFieldSegment*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFStdDataSegment::Swap(aOther);
    std::swap(m_contents, other->m_contents);
    std::swap(m_fileOffset, other->m_fileOffset);
    std::swap(m_views, other->m_views);
}

std::string NITFFieldSegment::FaultText(const Detail::WalkResult&, const std::string&) const
{
    return {};
}

bool NITFFieldSegment::ReadFields(std::string aRaw, std::uint64_t aFileOffset, std::uint64_t& aConsumed,
                                  std::string& aErrors)
{
    SegmentContents& contents = *m_contents;
    contents.raw = std::move(aRaw);
    m_fileOffset = aFileOffset;
    m_views.reset();
    const Detail::WalkResult result = Detail::FieldWalk::Read(contents.raw, contents.fields);
    aConsumed = result.consumed;
    if (result.IsGood()) {
        return true;
    }
    const Detail::SegmentWords& words = Words();
    const FieldTable& table = contents.fields.Table();
    const FieldRow& row = table.Row(result.row);
    std::string name;
    table.AppendName(result.row, result.turns, name);
    name = name.empty() ? row.label : name;
    const std::string tag = row.IsField() ? row.tag : name;
    std::string text = FaultText(result, tag);
    if (text.empty()) {
        const bool conditional = row.need == Detail::Need::Conditional || row.need == Detail::Need::ConditionalBlank;
        text = std::string(conditional ? words.conditionalPrefix : words.requiredPrefix) + Quoted(tag) +
               words.streamSuffix;
    }
    text += "\n[" + std::string(words.owner) + " field " + name + " at byte offset " +
            std::to_string(aFileOffset + result.offset);
    if (result.fault == Detail::Fault::Short) {
        text +=
            ": " + std::to_string(result.wanted) + " byte(s) needed, " + std::to_string(result.available) + " left]";
    } else {
        text += ": value " + Detail::Shown(result.value) +
                (result.fault == Detail::Fault::NotANumber ? " is not a number]"
                 : result.fault == Detail::Fault::LengthTooSmall
                     ? " is below " + std::to_string(result.wanted) + "]"
                     : " promises " + std::to_string(result.wanted) + " byte(s), " + std::to_string(result.available) +
                           " left]");
    }
    Detail::AppendBlock(aErrors, text);
    Detail::AppendBlock(aErrors, words.summary);
    contents = SegmentContents{{}, Detail::FieldStore(table), {}};
    return false;
}

long NITFFieldSegment::CheckRequiredFields(std::string& aErrors) const
{
    const Detail::FieldStore& fields = m_contents->fields;
    const FieldTable& table = fields.Table();
    long count = 0;
    for (std::uint16_t row = 0; row != table.Size(); ++row) {
        const bool wanted = table.Row(row).IsField() && table.Row(row).IsRequired() && table.Link(row).depth == 0;
        if (wanted && fields.EntriesOf(row).empty()) {
            Util::CSMUtilGeneric::ConstructMessage(true,
                                                   (std::string(CSMMsg::Error::MISSING_REQUIRED_FIELD) + ' ').c_str(),
                                                   Words().owner, table.Row(row).tag, aErrors);
            ++count;
        }
    }
    return count;
}

int NITFFieldSegment::ReadTREs(const char* aFieldName, bool aSpecificOnly, bool aValidate, TRE::Type aUnknownType,
                               Util::CSMCnst::ByteOrder aByteOrder)
{
    const Detail::FieldStore& fields = m_contents->fields;
    const FieldEntry* const entry = fields.Find(aFieldName);
    if (entry == nullptr) {
        return 0;
    }
    const std::string_view area = fields.Value(*entry);
    Detail::FindingList findings;
    const int count = Detail::ExtractTREs(area, m_contents->tres, {aSpecificOnly, aValidate}, aByteOrder,
                                          {aFieldName, m_fileOffset + fields.Position(*entry), aUnknownType}, findings);
    if (!findings.IsEmpty()) {
        AddWarning(findings.Blocks(false));
    }
    return count;
}

void NITFFieldSegment::AddSurplusWarning(std::uint64_t aConsumed)
{
    const std::string_view raw(m_contents->raw);
    if (aConsumed >= raw.size()) {
        return;
    }
    const std::string_view surplus = raw.substr(static_cast<std::size_t>(aConsumed));
    const bool blank = surplus.find_first_not_of(' ') == std::string_view::npos;
    AddWarning("WARN: The fields of the " + std::string(Words().owner) + " subheader at byte offset " +
               std::to_string(m_fileOffset) + " take " + std::to_string(aConsumed) + " byte(s), the file header says " +
               std::to_string(raw.size()) + "; the " + std::to_string(surplus.size()) + " surplus " +
               (blank ? "blank(s) are" : "byte(s) (" + Detail::Shown(surplus) + ") are") + " left out.");
}

std::uint64_t NITFFieldSegment::NumberOf(std::string_view aName) const noexcept
{
    std::uint64_t number = 0;
    return Detail::ToCount(FieldText(aName), number) ? number : 0;
}

std::string NITFFieldSegment::PlaceOf(std::string_view aName) const
{
    const Detail::FieldStore& fields = m_contents->fields;
    const FieldEntry* const entry = fields.Find(aName);
    std::string text = std::string("[") + Words().owner + " field ";
    text += aName;
    if (entry != nullptr) {
        text += " at byte offset " + std::to_string(m_fileOffset + fields.Position(*entry)) + ": value " +
                Detail::Shown(fields.Value(*entry));
    }
    return text + "]";
}

std::string_view NITFFieldSegment::FieldText(std::string_view aName) const noexcept
{
    bool found = false;
    return m_contents->fields.Find(aName, found);
}

const char* NITFFieldSegment::GetRawHeader(std::size_t& aLength) const noexcept
{
    aLength = m_contents->raw.size();
    return m_contents->raw.c_str();
}

const TREStore& NITFFieldSegment::GetTREStore() const noexcept
{
    return m_contents->tres;
}

const FieldTable& NITFFieldSegment::GetFieldTable() const
{
    return m_contents->fields.Table();
}

std::size_t NITFFieldSegment::GetNumOfFields() const noexcept
{
    return m_contents->fields.Entries().size();
}

bool NITFFieldSegment::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue,
                                  std::size_t& aLength) const
{
    const Detail::FieldStore& fields = m_contents->fields;
    if (aIndex >= fields.Entries().size()) {
        return false;
    }
    const FieldEntry& entry = fields.Entries()[aIndex];
    aName.clear();
    fields.AppendName(entry, aName);
    aValue = fields.Value(entry).data();
    aLength = entry.length;
    return true;
}

const char* NITFFieldSegment::TreRefusal() const noexcept
{
    return nullptr;
}

const TREStore& NITFFieldSegment::QueriedTREs() const noexcept
{
    return m_contents->tres;
}

const TRE* NITFFieldSegment::FirstTRE(std::string_view aTag) const
{
    const std::string tag(aTag);
    const std::vector<TRE*>* tres = QueriedTREs().Find(tag.c_str());
    tres = tres == nullptr ? GetOverflowTREStore().Find(tag.c_str()) : tres;
    return tres == nullptr ? nullptr : tres->front();
}

std::string_view NITFFieldSegment::CheckedName(const char* aName, const char* aTreTag, bool aText)
{
    ClearMessages();
    const std::string_view name = Detail::Trimmed(aName);
    if (name.empty()) {
        const Detail::SegmentWords& words = Words();
        AddError(!Detail::Trimmed(aTreTag).empty() ? words.emptyTreName
                 : aText                           ? words.emptyTextName
                                                   : words.emptyName);
        return {};
    }
    if (TreRefusal() != nullptr && !Detail::Trimmed(aTreTag).empty()) {
        AddError(TreRefusal());
        return {};
    }
    return name;
}

bool NITFFieldSegment::GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength,
                                        const char* aTreTag)
{
    aValue = nullptr;
    aLength = 0;
    const std::string_view name = CheckedName(aName, aTreTag, true);
    if (name.empty()) {
        return false;
    }
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        if (tre != nullptr && tre->GetFieldAsString(aName, aValue, aLength)) {
            return true;
        }
        AddError(Words().requestedTre + Quoted(name) + " not found.");
        return false;
    }
    const FieldEntry* const entry = m_contents->fields.Find(name);
    if (entry == nullptr) {
        AddError(Words().requested + Quoted(name) + Words().notFound);
        return false;
    }
    aValue = m_contents->fields.Value(*entry).data();
    aLength = entry->length;
    return true;
}

bool NITFFieldSegment::GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength,
                                        const char* aTreTag)
{
    if (!GetFieldAsString(aName, aValue, aLength, aTreTag)) {
        return false;
    }
    const std::string_view tag = Detail::Trimmed(aTreTag);
    const TRE* const tre = tag.empty() ? nullptr : FirstTRE(tag);
    if (tre != nullptr ? tre->IsBinaryField(aName) : IsBinaryField(aName)) {
        return true;
    }
    aValue = nullptr;
    aLength = 0;
    AddError("ERROR: Data type of " + Quoted(Detail::Trimmed(aName)) + " is not binary.");
    return false;
}

bool NITFFieldSegment::GetFieldAsBool(const char* aName, bool& aValue, const char* aTreTag)
{
    const std::string_view name = CheckedName(aName, aTreTag, false);
    const char* text = nullptr;
    std::size_t length = 0;
    if (name.empty() || !GetFieldAsString(aName, text, length, aTreTag)) {
        return false;
    }
    if (!Util::CSMUtilString::ToBool(text, aValue)) {
        AddError("ERROR: Data type of " + Quoted(name) + " is not a boolean type.");
        return false;
    }
    return true;
}

template<typename Value, typename OfField, typename OfTre>
bool NITFFieldSegment::Number(const char* aName, Value& aValue, const char* aTreTag, bool aReal, OfField aOfField,
                              OfTre aOfTre)
{
    const std::string_view name = CheckedName(aName, aTreTag, false);
    if (name.empty()) {
        return false;
    }
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        if (tre != nullptr && aOfTre(*tre, aValue)) {
            return true;
        }
        const char* const reason = Words().isNotAField == nullptr ? " not found."
                                   : aReal                        ? NOT_REAL
                                                                  : NOT_POSITIVE_INTEGRAL;
        AddError(Words().requestedTre + Quoted(name) + reason);
        return false;
    }
    const FieldEntry* const entry = m_contents->fields.Find(name);
    if (entry == nullptr) {
        const Detail::SegmentWords& words = Words();
        AddError(words.isNotAField == nullptr ? words.requested + Quoted(name) + words.notFound
                                              : "ERROR: Data type of " + Quoted(name) + words.isNotAField);
        return false;
    }
    const FieldRow& row = m_contents->fields.Row(*entry);
    const bool real = row.form == Detail::Form::Real || row.form == Detail::Form::Float;
    if (aReal && !real) {
        AddWarning("WARN: Data type of field " + Quoted(name) + " is not floating point type.");
    } else if (!aReal && !Detail::IsIntegral(row)) {
        AddError("ERROR: Data type of " + Quoted(name) + NOT_INTEGRAL);
        return false;
    }
    if (!aOfField(row, m_contents->fields.Value(*entry), aValue)) {
        AddError(NOT_CONVERTED);
        return false;
    }
    return true;
}

bool NITFFieldSegment::GetFieldAsDouble(const char* aName, double& aValue, const char* aTreTag)
{
    return Number(
        aName, aValue, aTreTag, true,
        [](const FieldRow& aRow, std::string_view aText, double& aOut) {
            return Detail::ValueAsDouble(aRow, aText, HEADER_BYTE_ORDER, aOut);
        },
        [aName](const TRE& aTre, double& aOut) { return aTre.GetFieldAsDouble(aName, aOut); });
}

bool NITFFieldSegment::GetFieldAsInt64(const char* aName, std::int64_t& aValue, const char* aTreTag)
{
    return Number(
        aName, aValue, aTreTag, false,
        [](const FieldRow& aRow, std::string_view aText, std::int64_t& aOut) {
            return Detail::ValueAsInt64(aRow, aText, HEADER_BYTE_ORDER, aOut);
        },
        [aName](const TRE& aTre, std::int64_t& aOut) { return aTre.GetFieldAsInt64(aName, aOut); });
}

bool NITFFieldSegment::GetFieldAsUInt64(const char* aName, std::uint64_t& aValue, const char* aTreTag)
{
    return Number(
        aName, aValue, aTreTag, false,
        [](const FieldRow& aRow, std::string_view aText, std::uint64_t& aOut) {
            return Detail::ValueAsUInt64(aRow, aText, HEADER_BYTE_ORDER, aOut);
        },
        [aName](const TRE& aTre, std::uint64_t& aOut) { return aTre.GetFieldAsUInt64(aName, aOut); });
}

bool NITFFieldSegment::GetFieldAsLong(const char* aName, long& aValue, const char* aTreTag)
{
    return Number(
        aName, aValue, aTreTag, false,
        [](const FieldRow& aRow, std::string_view aText, long& aOut) {
            std::int64_t value = 0;
            const bool fits = Detail::ValueAsInt64(aRow, aText, HEADER_BYTE_ORDER, value) &&
                              value >= std::numeric_limits<std::int32_t>::min() &&
                              value <= std::numeric_limits<std::int32_t>::max();
            aOut = fits ? static_cast<long>(value) : aOut;
            return fits;
        },
        [aName](const TRE& aTre, long& aOut) { return aTre.GetFieldAsLong(aName, aOut); });
}

bool NITFFieldSegment::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue, const char* aTreTag)
{
    return Number(
        aName, aValue, aTreTag, false,
        [](const FieldRow& aRow, std::string_view aText, unsigned long& aOut) {
            std::uint64_t value = 0;
            const bool fits = Detail::ValueAsUInt64(aRow, aText, HEADER_BYTE_ORDER, value) &&
                              value <= std::numeric_limits<std::uint32_t>::max();
            aOut = fits ? static_cast<unsigned long>(value) : aOut;
            return fits;
        },
        [aName](const TRE& aTre, unsigned long& aOut) { return aTre.GetFieldAsUnsignedLong(aName, aOut); });
}

Util::CSMCnst::DataType NITFFieldSegment::GetFieldValueDataType(const char* aName) const
{
    Detail::Turns turns{};
    const FieldTable& table = GetFieldTable();
    const std::string_view name = Detail::Trimmed(aName);
    std::uint16_t row = table.Resolve(name, turns);
    row = row == Detail::NO_ROW ? table.FindAny(name) : row;
    return row == Detail::NO_ROW ? Util::CSMCnst::DATA_TYPE_UNKNOWN : Detail::DataTypeOf(table.Row(row));
}

int NITFFieldSegment::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    Detail::Turns turns{};
    const FieldTable& table = GetFieldTable();
    const std::string_view name = Detail::Trimmed(aName);
    std::uint16_t row = table.Resolve(name, turns);
    row = row == Detail::NO_ROW ? table.FindAny(name) : row;
    if (row == Detail::NO_ROW || aValue == nullptr) {
        return -1;
    }
    return Detail::CheckValue(table.Row(row), aValue) == Detail::Verdict::Good ? 1 : 0;
}

bool NITFFieldSegment::IsBinaryField(const char* aName) const
{
    const FieldEntry* const entry = m_contents->fields.Find(Detail::Trimmed(aName));
    return entry != nullptr && m_contents->fields.Row(*entry).IsBinary();
}

bool NITFFieldSegment::IsFieldEditable(const char* aName, const char* aTreTag) const
{
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        return tre != nullptr && tre->IsFieldEditable(aName);
    }
    const FieldEntry* const entry = m_contents->fields.Find(Detail::Trimmed(aName));
    return entry != nullptr && GetFieldTable().IsEditable(entry->row);
}

bool NITFFieldSegment::IsTREOfThisDataSegment(const char* aTag) const
{
    return !Detail::Trimmed(aTag).empty() && FirstTRE(Detail::Trimmed(aTag)) != nullptr;
}

bool NITFFieldSegment::GetTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const std::vector<TRE*>* const own = QueriedTREs().Find(aTag);
    const std::vector<TRE*>* const overflow = aIncludeOverflow ? GetOverflowTREStore().Find(aTag) : nullptr;
    const std::size_t total = (own == nullptr ? 0 : own->size()) + (overflow == nullptr ? 0 : overflow->size());
    if (total == 0) {
        return true;
    }
    if (!GetTREPointerArray(aArray, total)) {
        return false;
    }
    for (const std::vector<TRE*>* const tres : {own, overflow}) {
        for (std::size_t i = 0; tres != nullptr && i != tres->size(); ++i) {
            aArray[aCount++] = (*tres)[i];
        }
    }
    return true;
}

bool NITFFieldSegment::GetAllTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    const TREStore& own = QueriedTREs();
    const TREStore& overflow = GetOverflowTREStore();
    if (!aIncludeOverflow || overflow.IsEmpty()) {
        return RetrieveTREs(own, aArray, aCount);
    }
    aCount = 0;
    if (!GetTREPointerArray(aArray, own.Size() + overflow.Size())) {
        return false;
    }
    for (const TREStore* const store : {&own, &overflow}) {
        for (const auto& [tag, tres] : store->ByTag()) {
            for (const TRE* const tre : tres) {
                aArray[aCount++] = tre;
            }
        }
    }
    return true;
}

}  // namespace ORMO::SensorModel::CSM
