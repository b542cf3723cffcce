#include "segments/NITFStdDataSegment.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/QueryMessages.h"
#include "segments/detail/SegmentKind.h"
#include "tre/TREFactory.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <new>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

struct KindName
{
    NITFCnst::DataSegmentType kind;
    const char* name;
};

// In the order in which a name is compared.
constexpr std::array<KindName, 9> KIND_NAMES{{
    {NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::KEY_CSM_NITF_METADATA_NITF_FILE_HEADER},
    {NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::KEY_CSM_NITF_METADATA_IMAGE_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, NITFCnst::KEY_CSM_NITF_METADATA_GRAPHIC_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, NITFCnst::KEY_CSM_NITF_METADATA_DATA_EXTENSION_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, NITFCnst::KEY_CSM_NITF_METADATA_SYMBOL_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_LABEL, NITFCnst::KEY_CSM_NITF_METADATA_LABEL_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::KEY_CSM_NITF_METADATA_TEXT_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, NITFCnst::KEY_CSM_NITF_METADATA_RESERVED_EXTENSION_SEGMENT},
    {NITFCnst::DATA_SEGMENT_TYPE_RESERVED, NITFCnst::KEY_CSM_NITF_METADATA_RESERVED_SEGMENT},
}};

}  // namespace

const char* NITFStdDataSegment::GetDataSegmentName(NITFCnst::DataSegmentType aType) noexcept
{
    const auto* const it = std::find_if(KIND_NAMES.begin(), KIND_NAMES.end(),
                                        [aType](const KindName& aName) { return aName.kind == aType; });
    return it == KIND_NAMES.end() ? NITFCnst::STR_UNKNOWN_DATA_SEGMENT : it->name;
}

const char* NITFStdDataSegment::GetDataSegmentWord(NITFCnst::DataSegmentType aType) noexcept
{
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        if (kind.kind == aType) {
            return kind.word;
        }
    }
    return nullptr;
}

NITFCnst::DataSegmentType NITFStdDataSegment::GetDataSegmentCode(const char* aName) noexcept
{
    const std::string_view name = Detail::Trimmed(aName);
    const auto* const it = std::find_if(KIND_NAMES.begin(), KIND_NAMES.end(),
                                        [name](const KindName& aKind) { return name == aKind.name; });
    return it == KIND_NAMES.end() ? NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN : it->kind;
}

bool NITFStdDataSegment::DisplayLevelSortPredicate(const NITFStdDataSegment* aFirst,
                                                   const NITFStdDataSegment* aSecond) noexcept
{
    return aFirst != nullptr && aSecond != nullptr && aFirst->m_displayLevel < aSecond->m_displayLevel;
}

bool NITFStdDataSegment::GetTREPointerArray(const TRE**& aArray, std::size_t aCount) noexcept
{
    // More than the address space holds would raise, with or without nothrow.
    const bool possible = aCount <= static_cast<std::size_t>(PTRDIFF_MAX) / sizeof(const TRE*);
    aArray = possible ? new (std::nothrow) const TRE* [aCount] {} : nullptr;
    return aArray != nullptr;
}

void NITFStdDataSegment::DeleteTREPointerArray(const TRE**& aArray, std::size_t aCount, bool aDestroy)
{
    for (std::size_t i = 0; aArray != nullptr && aDestroy && i != aCount; ++i) {
        TRE* tre = const_cast<TRE*>(aArray[i]);
        TREFactory::Destroy(&tre);
    }
    delete[] aArray;
    aArray = nullptr;
}

void NITFStdDataSegment::DeleteCharBuffer(char** aBuffer) noexcept
{
    if (aBuffer != nullptr) {
        delete[] * aBuffer;
        *aBuffer = nullptr;
    }
}

/// What reading or validating said, and what each thread's last query said.
struct ORMO_CSM_LOCAL NITFStdDataSegment::Messages
{
    std::string error;
    std::string warning;
    Detail::QueryMessages queries;
};

NITFStdDataSegment::NITFStdDataSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind)
    : m_versionText(Detail::Trimmed(aVersionText)), m_kind(aKind), m_messages(std::make_unique<Messages>())
{
    if (m_versionText.empty()) {
        throw InitializationException("ERROR: NULL/empty input NITF file version string.",
                                      "NITFStdDataSegment::NITFStdDataSegment");
    }
}

NITFStdDataSegment::NITFStdDataSegment(const NITFStdDataSegment& aOther)
    : m_kind(aOther.m_kind), m_messages(std::make_unique<Messages>())
{
    if (!NITFStdDataSegment::CloneObj(aOther)) {
        throw std::invalid_argument(
            "ERROR: Failed to initialize all the member variables properly using the input NITFStdDataSegment object.");
    }
}

NITFStdDataSegment::~NITFStdDataSegment() = default;

const char* NITFStdDataSegment::GetErrorMessage() const noexcept
{
    const Detail::QueryMessages::Texts* const texts = m_messages->queries.Find();
    return texts == nullptr ? m_messages->error.c_str() : texts->error.c_str();
}

const char* NITFStdDataSegment::GetWarningMessage() const noexcept
{
    const Detail::QueryMessages::Texts* const texts = m_messages->queries.Find();
    return texts == nullptr ? m_messages->warning.c_str() : texts->warning.c_str();
}

std::uint64_t NITFStdDataSegment::GetSegmentDataSize() const noexcept
{
    return m_info == nullptr ? 0 : m_info->GetSegmentDataSize();
}

std::uint64_t NITFStdDataSegment::GetSegmentDataStart() const noexcept
{
    return m_info == nullptr ? 0 : m_info->GetSegmentDataStart();
}

void NITFStdDataSegment::GetCCSOffsetValues(long& aColumn, long& aRow) const noexcept
{
    aColumn = m_ccsColumn;
    aRow = m_ccsRow;
}

bool NITFStdDataSegment::IsNITFDataSegmentFieldEditable(const char* aName) const
{
    const std::string_view name = Detail::Trimmed(aName);
    const FieldTexts* const map = name.empty() ? nullptr : GetFieldEditabilityMap();
    if (map == nullptr) {
        return false;
    }
    const auto it = map->find(std::string(name));
    return it != map->end() && !it->second.empty() && (it->second.front() == 'T' || it->second.front() == 't');
}

bool NITFStdDataSegment::AddOverflowTRE(const TRE* aTre)
{
    TRE* copy = nullptr;
    if (aTre == nullptr || !TREFactory::CloneTRE(*aTre, &copy)) {
        return false;
    }
    if (!m_overflow.Add(copy)) {
        TREFactory::Destroy(&copy);
        return false;
    }
    TREsChanged();
    return true;
}

void NITFStdDataSegment::TakeOverflowTREs(TREStore& aStore)
{
    aStore.HandOver(m_overflow);
    TREsChanged();
}

bool NITFStdDataSegment::GetAllOverflowTREs(const TRE**& aArray, std::size_t& aCount) const
{
    return RetrieveTREs(m_overflow, aArray, aCount);
}

bool NITFStdDataSegment::ContainsEmbeddedBinaryData() const
{
    return m_embeddedBinary;
}
long NITFStdDataSegment::GetLOCRowValue() const
{
    return 0;
}
long NITFStdDataSegment::GetLOCColumnValue() const
{
    return 0;
}

bool NITFStdDataSegment::GetCCSColumnAndRow(long& aColumn, long& aRow) const
{
    aColumn = -1;
    aRow = -1;
    return false;
}

long NITFStdDataSegment::GetCCSRowValue() const
{
    return m_ccsRow;
}
long NITFStdDataSegment::GetCCSColumnValue() const
{
    return m_ccsColumn;
}

bool NITFStdDataSegment::GetCommonCoordinateSys(long& aRow, long& aColumn, long& aCCSRow, long& aCCSColumn) const
{
    aRow = aColumn = aCCSRow = aCCSColumn = -1;
    return false;
}

bool NITFStdDataSegment::GetFieldAsBinary(const char*, const char*&, std::size_t&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsBool(const char*, bool&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsDouble(const char*, double&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsInt64(const char*, std::int64_t&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsLong(const char*, long&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsString(const char*, const char*&, std::size_t&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsUInt64(const char*, std::uint64_t&, const char*) const
{
    return false;
}
bool NITFStdDataSegment::GetFieldAsUnsignedLong(const char*, unsigned long&, const char*) const
{
    return false;
}
const std::vector<const char*>* NITFStdDataSegment::GetAllFieldDescriptions() const
{
    return nullptr;
}
const std::vector<bool>* NITFStdDataSegment::GetBinaryFieldList() const
{
    return nullptr;
}

bool NITFStdDataSegment::GetTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    if (!aIncludeOverflow || m_overflow.IsEmpty() || Detail::Trimmed(aTag).empty()) {
        return true;
    }
    return RetrieveTREs(m_overflow, aTag, aArray, aCount);
}

bool NITFStdDataSegment::IsBinaryField(const char*) const
{
    return false;
}
bool NITFStdDataSegment::IsFieldEditable(const char*, const char*) const
{
    return false;
}
bool NITFStdDataSegment::IsTREOfThisDataSegment(const char*) const
{
    return false;
}

bool NITFStdDataSegment::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    aErrors = 0;
    aWarnings = 0;
    return true;
}

NITFStdDataSegment& NITFStdDataSegment::operator=(const NITFStdDataSegment& aOther)
{
    Assign(aOther);
    return *this;
}

bool NITFStdDataSegment::operator==(const NITFStdDataSegment& aOther) const
{
    return this == &aOther ||
           (m_attachmentLevel == aOther.m_attachmentLevel && m_ccsColumn == aOther.m_ccsColumn &&
            m_ccsRow == aOther.m_ccsRow && m_embeddedBinary == aOther.m_embeddedBinary && m_kind == aOther.m_kind &&
            m_versionText == aOther.m_versionText && m_overflow == aOther.m_overflow);
}

bool NITFStdDataSegment::operator!=(const NITFStdDataSegment& aOther) const
{
    return !(*this == aOther);
}

void NITFStdDataSegment::Assign(const NITFStdDataSegment& aOther)
{
    if (this != &aOther && !CloneObj(aOther)) {
        throw RequestedOperationFailedException(
            "ERROR: System failed to assign all the member variables of one NITFStdDataSegment to another.",
            "NITFStdDataSegment::Assign");
    }
}

void NITFStdDataSegment::CleanAllOverflowTREs() noexcept
{
    m_overflow.Clear();
}

bool NITFStdDataSegment::CloneOverflowTREs(const NITFStdDataSegment& aOther)
{
    if (this == &aOther) {
        return true;
    }
    CleanAllOverflowTREs();
    const auto& others = aOther.m_overflow.InOrder();
    return std::all_of(others.begin(), others.end(), [this](const TRE* aTre) { return AddOverflowTRE(aTre); });
}

bool NITFStdDataSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    m_embeddedBinary = aOther.m_embeddedBinary;
    m_versionText = aOther.m_versionText;
    m_info = aOther.m_info == nullptr ? nullptr : std::make_unique<NITFStdDataSegmentInfo>(*aOther.m_info);
    m_ccsColumn = aOther.m_ccsColumn;
    m_ccsRow = aOther.m_ccsRow;
    m_kind = aOther.m_kind;
    m_attachmentLevel = aOther.m_attachmentLevel;
    m_displayLevel = aOther.m_displayLevel;
    SetMessages(aOther.GetErrorMessage(), aOther.GetWarningMessage());
    return NITFStdDataSegment::CloneOverflowTREs(aOther);
}

bool NITFStdDataSegment::SetAttachmentLevel()
{
    return false;
}
bool NITFStdDataSegment::SetDisplayLevel()
{
    return false;
}

void NITFStdDataSegment::Swap(NITFStdDataSegment& aOther) noexcept
{
    std::swap(m_embeddedBinary, aOther.m_embeddedBinary);
    std::swap(m_versionText, aOther.m_versionText);
    std::swap(m_info, aOther.m_info);
    std::swap(m_ccsColumn, aOther.m_ccsColumn);
    std::swap(m_ccsRow, aOther.m_ccsRow);
    std::swap(m_kind, aOther.m_kind);
    std::swap(m_overflow, aOther.m_overflow);
    std::swap(m_attachmentLevel, aOther.m_attachmentLevel);
    std::swap(m_displayLevel, aOther.m_displayLevel);
    std::swap(m_messages, aOther.m_messages);
}

void NITFStdDataSegment::SetNITFStdDataSegmentInfo(const NITFStdDataSegmentInfo& aInfo)
{
    m_info = std::make_unique<NITFStdDataSegmentInfo>(aInfo);
}

void NITFStdDataSegment::SetMessages(std::string aErrors, std::string aWarnings)
{
    m_messages->error = std::move(aErrors);
    m_messages->warning = std::move(aWarnings);
    m_messages->queries.Forget();
}

void NITFStdDataSegment::ClearMessages() const
{
    m_messages->queries.Begin();
}

void NITFStdDataSegment::AddError(const std::string& aMessage) const
{
    Detail::AppendBlock(m_messages->queries.Current().error, aMessage);
}

void NITFStdDataSegment::AddWarning(const std::string& aMessage) const
{
    Detail::AppendBlock(m_messages->queries.Current().warning, aMessage);
}

void NITFStdDataSegment::SetLevels(std::uint64_t aDisplay, std::uint64_t aAttachment) noexcept
{
    m_displayLevel = aDisplay;
    m_attachmentLevel = aAttachment;
}

void NITFStdDataSegment::SetCCSOffsets(long aColumn, long aRow) noexcept
{
    m_ccsColumn = static_cast<std::int32_t>(aColumn);
    m_ccsRow = static_cast<std::int32_t>(aRow);
}

bool NITFStdDataSegment::RetrieveTREs(const TREStore& aStore, const TRE**& aArray, std::size_t& aCount)
{
    aCount = 0;
    aArray = nullptr;
    if (aStore.IsEmpty()) {
        return true;
    }
    if (!GetTREPointerArray(aArray, aStore.Size())) {
        return false;
    }
    for (const auto& [tag, tres] : aStore.ByTag()) {
        for (const TRE* const tre : tres) {
            aArray[aCount++] = tre;
        }
    }
    return true;
}

bool NITFStdDataSegment::RetrieveTREs(const TREStore& aStore, const char* aTag, const TRE**& aArray,
                                      std::size_t& aCount)
{
    aCount = 0;
    aArray = nullptr;
    const std::vector<TRE*>* const tres = aStore.Find(aTag);
    if (tres == nullptr) {
        return true;
    }
    if (!GetTREPointerArray(aArray, tres->size())) {
        return false;
    }
    std::copy(tres->begin(), tres->end(), aArray);
    aCount = tres->size();
    return true;
}

bool NITFStdDataSegment::AddDataSegmentTRE(TREStore& aStore, TRE* aTre)
{
    return aStore.Add(aTre);
}

void NITFStdDataSegment::CleanNITFTreMap(TREStore& aStore) noexcept
{
    aStore.Clear();
}

}  // namespace ORMO::SensorModel::CSM
