#include "segments/NITFFieldSegment.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/Location.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/TreArea.h"

#include <type_traits>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::FieldEntry;
using Detail::FieldRow;
using Detail::FieldTable;
using Detail::Quoted;

namespace {

constexpr std::uint64_t MOST_DISPLAY_LEVEL = 999;
constexpr std::uint64_t MOST_ATTACHMENT_LEVEL = 998;

constexpr const char* NOT_INTEGRAL = " is not an integral type.";
constexpr const char* NOT_POSITIVE_INTEGRAL = " doesn't exist or its data type is not a positive integral type.";
constexpr const char* NOT_REAL = " doesn't exist or its data type is not floating point type.";
constexpr const char* NOT_CONVERTED =
    "ERROR: Internal system error. Failed to convert the requested field value from a string representation to an "
    "unsigned long.";

/// What a read that stopped has to say: the text that the kind has for it, with field, value and place.
void AddReadFault(const NITFFieldSegment::Parts& aParts, const Detail::WalkResult& aResult,
                  Detail::FindingList& aFindings)
{
    const NITFFieldSegment::Layout& layout = *aParts.layout;
    const Detail::SegmentWords& words = *layout.words;
    Finding finding = Detail::MakeFinding(Finding::Level::Error, "", layout.Owner());
    finding.offset = aParts.fileOffset;
    if (layout.kind->mark[0] == '\0') {
        finding.segment = layout.Owner();
    }
    aParts.record.Describe(aResult, finding);
    const FieldRow& row = layout.table.Row(aResult.row);
    const std::string tag = row.IsField() ? row.tag : finding.field;
    if (aResult.fault == Detail::Fault::Short) {
        const bool conditional = row.need == Detail::Need::Conditional || row.need == Detail::Need::ConditionalBlank;
        const std::string walk = (conditional                        ? words.conditionalPrefix
                                  : layout.requiredPrefix != nullptr ? layout.requiredPrefix
                                                                     : words.requiredPrefix) +
                                 Quoted(tag) + words.streamSuffix;
        if (conditional && words.fieldPrefix != nullptr) {
            finding.sentence = words.fieldPrefix + Quoted(tag) + " from the data stream.";
            const std::string text = Detail::Block(finding) + "\n\n" + walk;
            aFindings.Add(std::move(finding), text);
            return;
        }
        finding.sentence = walk;
    } else {
        finding.sentence = words.invalidPrefix + Quoted(tag) + " is invalid.";
    }
    aFindings.Add(std::move(finding));
}

}  // namespace

Detail::AreaPlace NITFFieldSegment::Parts::PlaceOf(const Detail::ExtensionArea& aArea,
                                                   const Detail::FieldEntry& aEntry) const noexcept
{
    return {aArea.area, fileOffset + record.Store().Position(aEntry),
            aArea.registered ? TRE::TRE_TYPE_REGISTERED_EXTENSION : TRE::TRE_TYPE_CONTROLLED_EXTENSION};
}

std::uint64_t NITFFieldSegment::Parts::Number(std::string_view aName) const noexcept
{
    std::uint64_t number = 0;
    return Detail::ToCount(record.Text(aName), number) ? number : 0;
}

Finding NITFFieldSegment::Parts::About(Finding::Level aLevel, std::string_view aSentence, std::string_view aField) const
{
    Finding finding = Detail::MakeFinding(aLevel, aSentence, layout->Owner(), aField);
    if (layout->kind->mark[0] == '\0') {
        finding.segment = layout->Owner();  // there is one of them, so no number is missing
    }
    const FieldEntry* const entry = record.Find(aField);
    if (entry != nullptr) {
        finding.value = record.Store().Value(*entry);
        finding.offset = fileOffset + record.Store().Position(*entry);
    }
    return finding;
}

Finding NITFFieldSegment::Parts::About(std::string_view aSentence, std::string_view aField) const
{
    return About(Detail::MakeFinding(aSentence).level, aSentence, aField);
}

NITFFieldSegment::NITFFieldSegment(const Layout& aLayout, Input& aInput)
    : NITFStdDataSegment(aInput.versionText, aLayout.kind->kind), m_parts(std::make_unique<Parts>())
{
    Detail::FindingList& findings = aInput.Findings();
    aInput.mark = findings.Now();
    SetNITFStdDataSegmentInfo(aInput.info);
    m_parts->layout = &aLayout;
    m_parts->raw = std::move(aInput.raw);
    m_parts->fileOffset = aInput.info.GetSegmentHeaderStart();
    m_parts->source = aInput.source;
    m_parts->record = Detail::FieldRecord(aLayout.table);
    const Detail::WalkResult result = m_parts->record.Read(m_parts->raw);
    if (!result.IsGood()) {
        AddReadFault(*m_parts, result, findings);
        Refuse(aInput);
    }
    if (result.consumed < m_parts->raw.size() && aLayout.kind->kind != NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        const std::string_view surplus =
            std::string_view(m_parts->raw).substr(static_cast<std::size_t>(result.consumed));
        const bool blank = surplus.find_first_not_of(' ') == std::string_view::npos;
        Finding finding = Detail::MakeFinding(
            "WARN: The fields of the subheader take " + std::to_string(result.consumed) +
                " byte(s), the file header says " + std::to_string(m_parts->raw.size()) + "; the " +
                std::to_string(surplus.size()) + " surplus " + (blank ? "blank(s) are" : "byte(s) are") + " left out.",
            "FH-10");
        finding.offset = m_parts->fileOffset + result.consumed;
        finding.value = surplus.substr(0, 64);
        findings.Add(std::move(finding));
    }
}

NITFFieldSegment::NITFFieldSegment(const NITFFieldSegment& aOther)
    : NITFStdDataSegment(aOther), m_parts(std::make_unique<Parts>(*aOther.m_parts))
{
}

NITFFieldSegment::~NITFFieldSegment() = default;

bool NITFFieldSegment::operator==(const NITFStdDataSegment& aOther) const
{
    const auto* const other = dynamic_cast<const NITFFieldSegment*>(&aOther);
    return this == &aOther || (other != nullptr && NITFStdDataSegment::operator==(aOther) &&
                               m_parts->record == other->m_parts->record && m_parts->tres == other->m_parts->tres);
}

bool NITFFieldSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFFieldSegment*>(&aOther);
    // A segment of another kind or version has other fields: the object would be of one class and say the other.
    if (other == nullptr || other->m_parts->layout != m_parts->layout) {
        return false;
    }
    auto parts = std::make_unique<Parts>(*other->m_parts);
    if (!NITFStdDataSegment::CloneObj(aOther)) {
        return false;
    }
    m_parts = std::move(parts);
    return true;
}

void NITFFieldSegment::Assign(const NITFStdDataSegment& aOther)
{
    if (this != &aOther && !CloneObj(aOther)) {
        const std::string name = m_parts->layout->className;
        throw RequestedOperationFailedException(
            ("ERROR: System failed to assign all the member variables of one " + name + " to another.").c_str(),
            (name + "::Assign").c_str());
    }
}

void NITFFieldSegment::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFFieldSegment*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFStdDataSegment::Swap(aOther);
    std::swap(m_parts, other->m_parts);
}

bool NITFFieldSegment::SetDisplayLevel()
{
    const char* const tag = m_parts->layout->kind->drawing.displayLevel;
    std::uint64_t level = 0;
    if (tag == nullptr || !Detail::ToCount(FieldText(tag), level) || level == 0 || level > MOST_DISPLAY_LEVEL) {
        return false;
    }
    SetLevels(level, GetDataSegmentAttachmentLevel());
    return true;
}

bool NITFFieldSegment::SetAttachmentLevel()
{
    const char* const tag = m_parts->layout->kind->drawing.attachmentLevel;
    std::uint64_t level = 0;
    if (tag == nullptr || !Detail::ToCount(FieldText(tag), level) || level > MOST_ATTACHMENT_LEVEL) {
        return false;
    }
    SetLevels(GetDataSegmentDisplayLevel(), level);
    return true;
}

bool NITFFieldSegment::GetLocation(long& aRow, long& aColumn) const noexcept
{
    const char* const tag = m_parts->layout->kind->drawing.location;
    return tag != nullptr && Detail::SplitLocation(FieldText(tag), aRow, aColumn);
}

long NITFFieldSegment::GetLOCRowValue() const
{
    long row = 0;
    long column = 0;
    static_cast<void>(GetLocation(row, column));
    return row;
}

long NITFFieldSegment::GetLOCColumnValue() const
{
    long row = 0;
    long column = 0;
    static_cast<void>(GetLocation(row, column));
    return column;
}

bool NITFFieldSegment::GetCCSColumnAndRow(long& aColumn, long& aRow) const
{
    if (!GetLocation(aRow, aColumn)) {
        return NITFStdDataSegment::GetCCSColumnAndRow(aColumn, aRow);
    }
    aColumn += NITFStdDataSegment::GetCCSColumnValue();
    aRow += NITFStdDataSegment::GetCCSRowValue();
    return m_parts->placed || GetDataSegmentAttachmentLevel() == 0;
}

long NITFFieldSegment::GetCCSRowValue() const
{
    return GetLOCRowValue() + NITFStdDataSegment::GetCCSRowValue();
}

long NITFFieldSegment::GetCCSColumnValue() const
{
    return GetLOCColumnValue() + NITFStdDataSegment::GetCCSColumnValue();
}

bool NITFFieldSegment::GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const
{
    if (!GetLocation(aRow, aColumn)) {
        return NITFStdDataSegment::GetCommonCoordinateSys(aRow, aColumn, aCCSRow, aCCSColumn);
    }
    return GetCCSColumnAndRow(aCCSColumn, aCCSRow);
}

void NITFFieldSegment::SetAttachedTo(long aColumn, long aRow) noexcept
{
    SetCCSOffsets(aColumn, aRow);
    m_parts->placed = true;
}

void NITFFieldSegment::ReadTREs(Input& aInput)
{
    const Detail::FieldStore& fields = m_parts->record.Store();
    for (const Detail::ExtensionArea& area : m_parts->layout->kind->areas) {
        const FieldEntry* const entry = fields.Find(area.area);
        if (entry == nullptr) {
            continue;
        }
        const std::string_view bytes = fields.Value(*entry);
        Detail::ExtractTREs(bytes, m_parts->tres, {aInput.specificOnly, false}, aInput.byteOrder,
                            m_parts->PlaceOf(area, *entry), aInput.Findings());
    }
}

void NITFFieldSegment::FinishReading(Input& aInput)
{
    Detail::FindingList& findings = aInput.Findings();
    findings.PlaceAt(aInput.mark, m_parts->layout->Owner(), aInput.Index());
    SetMessages(findings.Blocks(true, aInput.mark), findings.Blocks(false, aInput.mark));
}

void NITFFieldSegment::Refuse(Input& aInput) const
{
    Detail::FindingList& findings = aInput.Findings();
    findings.PlaceAt(aInput.mark, m_parts->layout->Owner(), aInput.Index());
    std::string text = findings.Blocks(true, aInput.mark);
    // The file header says more of what was wrong itself.
    if (text.empty() || m_parts->layout->kind->kind != NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        Detail::AppendBlock(text, m_parts->layout->summary);
    }
    throw ImageSupportDataConstructionException(text.c_str(), m_parts->layout->source);
}

std::uint64_t NITFFieldSegment::NumberOf(std::string_view aName) const noexcept
{
    return m_parts->Number(aName);
}

std::string_view NITFFieldSegment::FieldText(std::string_view aName) const noexcept
{
    return m_parts->record.Text(aName);
}

const char* NITFFieldSegment::GetRawHeader(std::size_t& aLength) const noexcept
{
    aLength = m_parts->raw.size();
    return m_parts->raw.c_str();
}

const TREStore& NITFFieldSegment::GetTREStore() const noexcept
{
    return m_parts->tres;
}

bool NITFFieldSegment::AddTRE(TRE* aTre)
{
    const bool added = AddDataSegmentTRE(m_parts->tres, aTre);
    TREsChanged();
    return added;
}

void NITFFieldSegment::TREsChanged()
{
    m_parts->metadata.Reset();
}

std::size_t NITFFieldSegment::GetNumOfFields() const noexcept
{
    return m_parts->record.Store().Entries().size();
}

bool NITFFieldSegment::GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue,
                                  std::size_t& aLength) const
{
    return m_parts->record.At(aIndex, aName, aValue, aLength);
}

std::uint64_t NITFFieldSegment::GetFieldOffset(std::size_t aIndex) const noexcept
{
    const Detail::FieldStore& store = m_parts->record.Store();
    return m_parts->fileOffset +
           (aIndex < store.Entries().size() ? store.Position(store.Entries()[aIndex]) : store.Size());
}

const char* NITFFieldSegment::TreRefusal() const noexcept
{
    return nullptr;
}

const TREStore& NITFFieldSegment::QueriedTREs() const noexcept
{
    return m_parts->tres;
}

bool NITFFieldSegment::GetDataField(std::string_view, const char*&, std::size_t&) const
{
    return false;
}

const TRE* NITFFieldSegment::FirstTRE(std::string_view aTag) const
{
    const std::string_view tag = Detail::Trimmed(aTag);
    const TRE* const own = QueriedTREs().First(tag);
    return own == nullptr ? GetOverflowTREStore().First(tag) : own;
}

std::string_view NITFFieldSegment::CheckedName(const char* aName, const char* aTreTag, bool aText) const
{
    ClearMessages();
    const std::string_view name = Detail::Trimmed(aName);
    if (name.empty()) {
        const Detail::SegmentWords& words = *m_parts->layout->words;
        const bool ofTre = !Detail::Trimmed(aTreTag).empty();
        AddError(ofTre && words.emptyTreName != nullptr ? words.emptyTreName
                 : aText                                ? words.emptyTextName
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
                                        const char* aTreTag) const
{
    aValue = nullptr;
    aLength = 0;
    const std::string_view name = CheckedName(aName, aTreTag, true);
    if (name.empty()) {
        return false;
    }
    const Detail::SegmentWords& words = *m_parts->layout->words;
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        if (tre != nullptr && tre->GetFieldAsString(aName, aValue, aLength)) {
            return true;
        }
        AddError(words.requestedTre + Quoted(name) + " not found.");
        return false;
    }
    if (m_parts->record.Text(name, aValue, aLength) || GetDataField(name, aValue, aLength)) {
        return true;
    }
    AddError(words.requested + Quoted(name) + words.notFound);
    return false;
}

bool NITFFieldSegment::GetFieldAsBinary(const char* aName, const char*& aValue, std::size_t& aLength,
                                        const char* aTreTag) const
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

bool NITFFieldSegment::GetFieldAsBool(const char* aName, bool& aValue, const char* aTreTag) const
{
    const std::string_view name = CheckedName(aName, aTreTag, false);
    const char* text = nullptr;
    std::size_t length = 0;
    if (name.empty() || !GetFieldAsString(aName, text, length, aTreTag)) {
        return false;
    }
    if (m_parts->record.AsBool(name, aValue)) {
        return true;
    }
    const TRE* const tre = FirstTRE(Detail::Trimmed(aTreTag));
    if (tre != nullptr && tre->GetFieldAsBool(aName, aValue)) {
        return true;
    }
    AddError("ERROR: Data type of " + Quoted(name) + " is not a boolean type.");
    return false;
}

template<typename Value, typename Public, typename OfTre>
bool NITFFieldSegment::Number(const char* aName, Public& aValue, const char* aTreTag, OfTre aOfTre) const
{
    constexpr bool REAL = std::is_floating_point_v<Value>;
    const std::string_view name = CheckedName(aName, aTreTag, false);
    if (name.empty()) {
        return false;
    }
    const Detail::SegmentWords& words = *m_parts->layout->words;
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        if (tre != nullptr && (tre->*aOfTre)(aName, aValue)) {
            return true;
        }
        AddError(words.isNotAField == nullptr
                     ? words.requestedTre + Quoted(name) + " not found."
                     : words.treNumber + Quoted(name) + (REAL ? NOT_REAL : NOT_POSITIVE_INTEGRAL));
        return false;
    }
    const Detail::FieldRecord& record = m_parts->record;
    const FieldEntry* const entry = record.Find(name);
    if (entry == nullptr) {
        AddError(words.isNotAField == nullptr ? words.requested + Quoted(name) + words.notFound
                                              : "ERROR: Data type of " + Quoted(name) + words.isNotAField);
        return false;
    }
    const FieldRow& row = record.Store().Row(*entry);
    const bool real = row.form == Detail::Form::Real || row.form == Detail::Form::Float;
    if (REAL && !real) {
        AddWarning("WARN: Data type of field " + Quoted(name) + " is not floating point type.");
    } else if (!REAL && !Detail::IsIntegral(row)) {
        AddError("ERROR: Data type of " + Quoted(name) + NOT_INTEGRAL);
        return false;
    }
    Value value{};
    if (!record.As(*entry, value)) {
        AddError(REAL ? "ERROR: The value of field " + Quoted(name) + " is no number." : NOT_CONVERTED);
        return false;
    }
    aValue = value;
    return true;
}

bool NITFFieldSegment::GetFieldAsDouble(const char* aName, double& aValue, const char* aTreTag) const
{
    return Number<double>(aName, aValue, aTreTag, &TRE::GetFieldAsDouble);
}

bool NITFFieldSegment::GetFieldAsInt64(const char* aName, std::int64_t& aValue, const char* aTreTag) const
{
    return Number<std::int64_t>(aName, aValue, aTreTag, &TRE::GetFieldAsInt64);
}

bool NITFFieldSegment::GetFieldAsUInt64(const char* aName, std::uint64_t& aValue, const char* aTreTag) const
{
    return Number<std::uint64_t>(aName, aValue, aTreTag, &TRE::GetFieldAsUInt64);
}

bool NITFFieldSegment::GetFieldAsLong(const char* aName, long& aValue, const char* aTreTag) const
{
    return Number<std::int32_t>(aName, aValue, aTreTag, &TRE::GetFieldAsLong);
}

bool NITFFieldSegment::GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue, const char* aTreTag) const
{
    return Number<std::uint32_t>(aName, aValue, aTreTag, &TRE::GetFieldAsUnsignedLong);
}

Util::CSMCnst::DataType NITFFieldSegment::GetFieldValueDataType(const char* aName) const
{
    Detail::Turns turns{};
    const FieldTable& table = m_parts->layout->table;
    const std::string_view name = Detail::Trimmed(aName);
    std::uint16_t row = table.Resolve(name, turns);
    row = row == Detail::NO_ROW ? table.FindAny(name) : row;
    return row == Detail::NO_ROW ? Util::CSMCnst::DATA_TYPE_UNKNOWN : Detail::DataTypeOf(table.Row(row));
}

int NITFFieldSegment::IsFieldValueInRange(const char* aName, const char* aValue) const
{
    return m_parts->record.Allows(Detail::ViewOf(aName), aValue);
}

bool NITFFieldSegment::IsBinaryField(const char* aName) const
{
    return m_parts->record.IsBinary(Detail::ViewOf(aName));
}

bool NITFFieldSegment::IsFieldEditable(const char* aName, const char* aTreTag) const
{
    const std::string_view tag = Detail::Trimmed(aTreTag);
    if (!tag.empty()) {
        const TRE* const tre = FirstTRE(tag);
        return tre != nullptr && tre->IsFieldEditable(aName);
    }
    return m_parts->record.IsEditable(Detail::ViewOf(aName));
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
