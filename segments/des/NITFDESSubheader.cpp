#include "segments/des/NITFDESSubheader.h"

#include "fields/FieldWalk.h"
#include "fields/FieldXml.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/des/DesDESDATA.h"
#include "segments/des/DesDESSHF.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/XmlProduct.h"
#include "segments/detail/Findings.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentData.h"
#include "segments/detail/SegmentWords.h"
#include "tre/detail/TreArea.h"

#include <algorithm>
#include <array>
#include <mutex>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* MISSING_FIELD = "ERROR: Failed to retrieve required field from the DES metadata store.";

/// What DESOFLW says: which area of which kind of segment ran over.
struct OverflowArea
{
    std::string_view word;
    std::string_view area;
    NITFCnst::DataSegmentType kind;
    NITFCnst::DataSegmentType kindIn20;
};

constexpr auto NO_KIND = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
constexpr std::array<OverflowArea, 8> OVERFLOW_AREAS{{
    {"IXSHD", "IXSHD", NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::DATA_SEGMENT_TYPE_IMAGE},
    {"UDID", "UDID", NITFCnst::DATA_SEGMENT_TYPE_IMAGE, NITFCnst::DATA_SEGMENT_TYPE_IMAGE},
    {"SXSHD", "SXSHD", NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, NITFCnst::DATA_SEGMENT_TYPE_SYMBOL},
    {"LXSHD", "LXSHD", NO_KIND, NITFCnst::DATA_SEGMENT_TYPE_LABEL},
    {"LSXHD", "LXSHD", NO_KIND, NITFCnst::DATA_SEGMENT_TYPE_LABEL},  // as MIL-STD-2500A prints it once
    {"TXSHD", "TXSHD", NITFCnst::DATA_SEGMENT_TYPE_TEXT, NITFCnst::DATA_SEGMENT_TYPE_TEXT},
    {"UDHD", "UDHD", NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER},
    {"XHD", "XHD", NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER},
}};

std::string InvalidValue(const char* aField)
{
    return "ERROR: Value of DES field " + Detail::Quoted(aField) + " is invalid.";
}

}  // namespace

/// The data cut into fields, or why they cannot be.
struct NITFDESSubheader::TypedData
{
    std::mutex guard;
    bool tried = false;
    std::unique_ptr<DesDESDATA> fields;
    std::string fault;
};

NITFDESSubheader::NITFDESSubheader(const char* aVersionText, const Detail::FieldTable& aTable)
    : NITFDataSegment(aVersionText, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aTable),
      m_typedData(std::make_shared<TypedData>())
{
}

NITFDESSubheader::NITFDESSubheader(const NITFDESSubheader& aOther) = default;
NITFDESSubheader::~NITFDESSubheader() = default;

bool NITFDESSubheader::operator==(const NITFStdDataSegment& aOther) const
{
    const auto* const other = dynamic_cast<const NITFDESSubheader*>(&aOther);
    return other != nullptr && NITFDataSegment::operator==(aOther) && m_carried == other->m_carried;
}

bool NITFDESSubheader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFDESSubheader*>(&aOther);
    if (other == nullptr) {
        return false;
    }
    TREStore carried(other->m_carried);
    if (!NITFDataSegment::CloneObj(aOther)) {
        return false;
    }
    m_carried = std::move(carried);
    m_isOverflow = other->m_isOverflow;
    m_isStreaming = other->m_isStreaming;
    m_hasTarget = other->m_hasTarget;
    m_targetKind = other->m_targetKind;
    m_targetIndex = other->m_targetIndex;
    m_targetArea = other->m_targetArea;
    m_subheader = other->m_subheader;
    m_typedData = other->m_typedData;
    return true;
}

void NITFDESSubheader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFDESSubheader*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFDataSegment::Swap(aOther);
    std::swap(m_isOverflow, other->m_isOverflow);
    std::swap(m_isStreaming, other->m_isStreaming);
    std::swap(m_hasTarget, other->m_hasTarget);
    std::swap(m_targetKind, other->m_targetKind);
    std::swap(m_targetIndex, other->m_targetIndex);
    std::swap(m_targetArea, other->m_targetArea);
    std::swap(m_carried, other->m_carried);
    std::swap(m_subheader, other->m_subheader);
    std::swap(m_typedData, other->m_typedData);
}

std::string NITFDESSubheader::FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const
{
    return aResult.fault == Detail::Fault::Short ? std::string() : InvalidValue(aTag.c_str());
}

const char* NITFDESSubheader::TreRefusal() const noexcept
{
    return m_isOverflow ? nullptr : "ERROR: This Data Extension Segment is not a TRE_OVERFLOW DES.";
}

std::string NITFDESSubheader::GetDESTypeID() const
{
    return std::string(Detail::Trimmed(FieldText(IsNITF20() ? "DESTAG" : "DESID")));
}

void NITFDESSubheader::InitNITFDES(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                   std::shared_ptr<const Detail::ByteSource> aSource,
                                   Util::CSMCnst::ByteOrder aByteOrder, bool aSpecificOnly, const char* aReader)
{
    ReadSubheader(aRaw, aLength, aInfo, std::move(aSource), "NITFDESSubheader::InitNITFDES", aReader);
    const std::string type = GetDESTypeID();
    m_isOverflow = IsOverflowType(type);
    m_isStreaming = type == NITFCnst::DES_DESID_STREAMING_FILE_HEADER;
    if (!m_isOverflow) {
        InitDESSHF();
        return;
    }
    const std::string fault = LinkFault();
    m_hasTarget = fault.empty();
    if (!m_hasTarget) {
        AddFault(fault, "WARN: The overflow DES at byte offset " + std::to_string(FileOffset()) +
                            " does not say whose TREs it carries, so they stay on it.\n" + PlaceOf("DESOFLW") + "\n" +
                            PlaceOf("DESITEM"));
    }
    InitOverflowTREs(aSpecificOnly, aByteOrder);
}

void NITFDESSubheader::AddFault(const std::string& aError, const std::string& aWarning)
{
    AddError(aError);
    AddWarning(aWarning);
}

std::string NITFDESSubheader::LinkFault()
{
    const std::string_view word = Detail::Trimmed(FieldText("DESOFLW"));
    if (word.empty()) {
        return MISSING_FIELD;
    }
    const auto* const area = std::find_if(OVERFLOW_AREAS.begin(), OVERFLOW_AREAS.end(),
                                          [word](const OverflowArea& aArea) { return aArea.word == word; });
    m_targetKind = area == OVERFLOW_AREAS.end() ? NO_KIND : IsNITF20() ? area->kindIn20 : area->kind;
    if (m_targetKind == NO_KIND) {
        return InvalidValue("DESOFLW");
    }
    m_targetArea = area->area;
    std::int64_t item = 0;
    if (!Detail::ToWholeNumber(Detail::Trimmed(FieldText("DESITEM")), item) || item < 0) {
        return InvalidValue("DESITEM");
    }
    m_targetIndex = static_cast<long>(m_targetKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? item : item - 1);
    return m_targetIndex < 0 ? MISSING_FIELD : "";
}

bool NITFDESSubheader::GetOverflowTarget(NITFCnst::DataSegmentType& aKind, long& aIndex, std::string& aArea) const
{
    if (m_hasTarget) {
        aKind = m_targetKind;
        aIndex = m_targetIndex;
        aArea = m_targetArea;
    }
    return m_hasTarget;
}

void NITFDESSubheader::InitOverflowTREs(bool aSpecificOnly, Util::CSMCnst::ByteOrder aByteOrder)
{
    if (Data().Size() == 0) {
        AddFault("ERROR: Input TRE data string is NULL or an empty string.",
                 "WARN: The overflow DES at byte offset " + std::to_string(FileOffset()) + " has no data.");
        return;
    }
    // Nothing of the data is kept but the TREs.
    std::string data;
    if (!Data().Read(data)) {
        AddError("ERROR: The TREs of the overflow DES are not available: " + Data().Fault() + ".");
        return;
    }
    const bool registered = m_targetArea == "UDHD" || m_targetArea == "UDID";
    Detail::FindingList findings;
    Detail::ExtractTREs(data, m_carried, {aSpecificOnly, false}, aByteOrder,
                        {NITFCnst::DES_DESID_TRE_OVERFLOW, Data().Start(),
                         registered ? TRE::TRE_TYPE_REGISTERED_EXTENSION : TRE::TRE_TYPE_CONTROLLED_EXTENSION},
                        findings);
    if (!findings.IsEmpty()) {
        AddWarning(findings.Blocks(false));
    }
}

void NITFDESSubheader::InitDESSHF()
{
    const std::string type = GetDESTypeID();
    const std::string_view fields = FieldText(NITFCnst::NITF_DES_FIELD_DESSHF);
    const bool mayBeEmpty = type == SupportedDESSHFs::XML_DATA_CONTENT;
    if (!SupportedDESSHFs::AbleToCreateDESSHF(type.c_str()) || (fields.empty() && mayBeEmpty)) {
        return;
    }
    DesDESSHF* made = nullptr;
    char* message = nullptr;
    if (SupportedDESSHFs::CreateDESSHF(type.c_str(), fields.data(), fields.size(), &made, &message)) {
        m_subheader.reset(made);
        return;
    }
    // The DES is not lost: its subheader fields stay one field, as those of a type that nobody knows.
    std::string reason(message == nullptr ? "" : message);
    Util::CSMUtilString::DeleteCString(message);
    reason.erase(0, reason.rfind("ERROR: ") + std::string_view("ERROR: ").size());
    AddWarning("WARN: The DESSHF of the DES at byte offset " + std::to_string(FileOffset()) +
               " does not fit its type " + Detail::Quoted(type) + " and is kept as it stands: " + reason);
}

const DesDESDATA* NITFDESSubheader::GetDESDATAFields(std::string* aErrors) const
{
    TypedData& typed = *m_typedData;
    const std::lock_guard lock(typed.guard);
    if (!typed.tried) {
        const std::string type = GetDESTypeID();
        std::string data;
        // Only the data of a known type are read at all.
        const bool known = SupportedDESDATAs::AbleToCreateDESDATA(type.c_str());
        if (known && !Data().Read(data)) {
            typed.fault = "ERROR: The data of the DES are not available: " + Data().Fault() + ".";
        } else {
            DesDESDATA* made = nullptr;
            char* message = nullptr;
            SupportedDESDATAs::CreateDESDATA(type.c_str(), known ? data.data() : "", known ? data.size() : 1, &made,
                                             &message);
            typed.fields.reset(made);
            typed.fault = message == nullptr ? "" : message;
            Util::CSMUtilString::DeleteCString(message);
        }
        typed.tried = true;
    }
    if (typed.fields == nullptr && aErrors != nullptr) {
        Detail::AppendBlock(*aErrors, typed.fault);
    }
    return typed.fields.get();
}

bool NITFDESSubheader::GetXmlProduct(DesXmlProduct& aProduct) const
{
    if (GetDESTypeID() != SupportedDESSHFs::XML_DATA_CONTENT) {
        return false;
    }
    std::string front;
    // Ends early, which is no fault, once the front is there.
    (void)Data().ForEachPiece([&front](std::string_view aPiece) {
        front += aPiece;
        return front.size() < Detail::MOST_XML_READ;
    });
    aProduct = {};
    return Detail::RecogniseXmlProduct(front, aProduct);
}

std::string_view NITFDESSubheader::FieldLeftOut() const noexcept
{
    return m_subheader == nullptr ? "" : NITFCnst::NITF_DES_FIELD_DESSHF;
}

void NITFDESSubheader::AppendDataElements(std::string& aXml) const
{
    const Detail::FieldStore& fields = Contents().fields;
    const Detail::FieldEntry* const entry = fields.Find(FieldLeftOut());
    if (m_subheader != nullptr && entry != nullptr) {
        const std::string indent = Words().indent;
        const char* const element = NITFCnst::XML_ELEMENT_DES_CMPLX_FIELD;
        aXml += indent + '<' + element;
        Detail::AppendFieldAttributes(fields, *entry, Words().naming, fields.Entries().size(), aXml);
        aXml += ">\n";
        m_subheader->AppendXml(aXml, (indent + "  ").c_str(), NITFCnst::XML_ELEMENT_DESSHF_FIELD);
        aXml += indent + "</" + element + ">\n";
    }
    AppendDataElement(NITFCnst::XML_ELEMENT_DATA, aXml);
}

void NITFDESSubheader::Validate(Detail::Findings& aFindings) const
{
    NITFDataSegment::Validate(aFindings);
    if (!m_isOverflow) {
        ValidateTypedFields(aFindings);
        return;
    }
    // NITF 2.0 leaves the version of its overflow tags open; a conformance sample has 99.
    if (!IsNITF20() && NumberOf(NITFCnst::NITF_DES_FIELD_DESVER) != 1) {
        aFindings.AddError(CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE, Words().owner, NITFCnst::NITF_DES_FIELD_DESVER,
                           PlaceOf(NITFCnst::NITF_DES_FIELD_DESVER));
    }
    if (NumberOf("DESSHL") != 0) {
        aFindings.AddError(CSMMsg::Error::INVALID_REQUIRED_FIELD_VALUE, Words().owner, "DESSHL", PlaceOf("DESSHL"));
    }
}

void NITFDESSubheader::ValidateTypedFields(Detail::Findings& aFindings) const
{
    if (m_subheader == nullptr) {
        return;
    }
    std::string lines;
    m_subheader->ValidateFieldValues(lines);
    aFindings.AddErrors(lines);
    const std::string type = GetDESTypeID();
    if (!IsDataAvailable() || !SupportedDESDATAs::AbleToCreateDESDATA(type.c_str())) {
        return;
    }
    std::string fault;
    const DesDESDATA* const data = GetDESDATAFields(&fault);
    if (data == nullptr) {
        aFindings.AddError(fault);
        return;
    }
    lines.clear();
    data->ValidateFieldValues(lines);
    aFindings.AddErrors(lines);
    const std::string disagreement = data->CheckAgainst(*m_subheader);
    if (!disagreement.empty()) {
        aFindings.AddError("ERROR: The data of the DES do not agree with its subheader fields: " + disagreement);
    }
}

}  // namespace ORMO::SensorModel::CSM
