#include "segments/des/NITFDESSubheader.h"

#include "fields/FieldXml.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/des/DesDESDATA.h"
#include "segments/des/DesDESSHF.h"
#include "segments/des/SupportedDESDATAs.h"
#include "segments/des/SupportedDESSHFs.h"
#include "segments/des/detail/XmlProduct.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/TreArea.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* MISSING_FIELD = "ERROR: Failed to retrieve required field from the DES metadata store.";

std::string InvalidValue(const char* aField)
{
    return "ERROR: Value of DES field " + Detail::Quoted(aField) + " is invalid.";
}

}  // namespace

/// The data cut into fields, or why they cannot be.
struct ORMO_CSM_LOCAL NITFDESSubheader::TypedData
{
    struct Fields
    {
        std::unique_ptr<DesDESDATA> fields;
        std::string fault;
    };

    Detail::Lazy<Fields> made;
};

NITFDESSubheader::NITFDESSubheader(const Layout& aLayout, Input& aInput)
    : NITFDataSegment(aLayout, aInput), m_typedData(std::make_shared<TypedData>())
{
    // The rows tell which types carry overflow: these fields stand in no other.
    m_isOverflow = FieldText("DESOFLW").data() != nullptr;
    m_isStreaming = GetDESTypeID() == NITFCnst::DES_DESID_STREAMING_FILE_HEADER;
    if (!m_isOverflow) {
        InitDESSHF(aInput);
        FinishReading(aInput);
        return;
    }
    std::string errors = LinkFault();
    m_hasTarget = errors.empty();
    if (!m_hasTarget) {
        Finding finding =
            Inside().About("WARN: The overflow DES does not say whose TREs it carries, so they stay on it.", "DESITEM");
        finding.rule = "DE-02";
        finding.field.clear();
        finding.value.clear();
        finding.detail =
            "DESOFLW is " + Detail::Shown(FieldText("DESOFLW")) + ", DESITEM is " + Detail::Shown(FieldText("DESITEM"));
        aInput.Findings().Add(std::move(finding));
    }
    if (GetSegmentDataSize() == 0) {
        Detail::AppendBlock(errors, "ERROR: Input TRE data string is NULL or an empty string.");
        aInput.Findings().Add(Detail::MakeFinding("WARN: The overflow DES has no data.", "DE-05"));
    } else {
        Detail::AppendBlock(errors, InitOverflowTREs(aInput));
    }
    // That the TREs stay where they are is no error of the file's reading, but one of this segment.
    FinishReading(aInput);
    SetMessages(errors, GetWarningMessage());
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
    m_isPlaced = other->m_isPlaced;
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
    std::swap(m_isPlaced, other->m_isPlaced);
    std::swap(m_targetKind, other->m_targetKind);
    std::swap(m_targetIndex, other->m_targetIndex);
    std::swap(m_targetArea, other->m_targetArea);
    std::swap(m_carried, other->m_carried);
    std::swap(m_subheader, other->m_subheader);
    std::swap(m_typedData, other->m_typedData);
}

const char* NITFDESSubheader::TreRefusal() const noexcept
{
    return m_isOverflow ? nullptr : "ERROR: This Data Extension Segment is not a TRE_OVERFLOW DES.";
}

std::string NITFDESSubheader::GetDESTypeID() const
{
    // The name of the type is the second field of the subheader in both versions: DESTAG, DESID.
    return std::string(Detail::Trimmed(FieldText((*GetAllFieldTags())[1])));
}

std::string NITFDESSubheader::LinkFault()
{
    const std::string_view word = Detail::Trimmed(FieldText("DESOFLW"));
    if (word.empty()) {
        return MISSING_FIELD;
    }
    const Detail::AreaOfKind target = Detail::FindArea(word, Inside().layout->kind->version);
    if (target.kind == nullptr) {
        return InvalidValue("DESOFLW");
    }
    m_targetKind = target.kind->kind;
    m_targetArea = target.area->area;
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

std::string NITFDESSubheader::InitOverflowTREs(Input& aInput)
{
    // Nothing of the data is kept but the TREs.
    std::string data;
    if (!ReadData(data)) {
        const std::string text = "The TREs of the overflow DES are not available: " + DataFault() + '.';
        aInput.Findings().Add(Detail::MakeFinding("WARN: " + text, "RD-09"));
        return "ERROR: " + text;
    }
    const Detail::AreaOfKind target = Detail::FindArea(m_targetArea, Inside().layout->kind->version);
    const bool registered = target.area != nullptr && target.area->registered;
    Detail::ExtractTREs(data, m_carried, {aInput.specificOnly, false}, aInput.byteOrder,
                        {NITFCnst::DES_DESID_TRE_OVERFLOW, GetSegmentDataStart(),
                         registered ? TRE::TRE_TYPE_REGISTERED_EXTENSION : TRE::TRE_TYPE_CONTROLLED_EXTENSION, "DE-05"},
                        aInput.Findings());
    return {};
}

void NITFDESSubheader::PlaceOverflowTREs(NITFStdDataSegment& aOwner)
{
    aOwner.TakeOverflowTREs(m_carried);
    m_isPlaced = true;
}

void NITFDESSubheader::InitDESSHF(Input& aInput)
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
    Finding finding = Inside().About(Finding::Level::Warning,
                                     "WARN: The DESSHF does not fit the type of the DES and is kept as it stands.",
                                     NITFCnst::NITF_DES_FIELD_DESSHF);
    finding.rule = "RD-08";
    // Of the texts that the type has for it the last one says most.
    const std::string_view reason = Detail::ViewOf(message);
    finding.detail = reason.substr(reason.rfind("ERROR: ") == std::string_view::npos ? 0 : reason.rfind("ERROR: ") + 7);
    Util::CSMUtilString::DeleteCString(message);
    aInput.Findings().Add(std::move(finding));
}

const DesDESDATA* NITFDESSubheader::GetDESDATAFields(std::string* aErrors) const
{
    const TypedData::Fields& typed = m_typedData->made.Get([this] {
        TypedData::Fields fields;
        const std::string type = GetDESTypeID();
        std::string data;
        // Only the data of a known type are read at all.
        const bool known = SupportedDESDATAs::AbleToCreateDESDATA(type.c_str());
        const std::size_t most = SupportedDESDATAs::GetMostBytes(type.c_str());
        if (most != 0 && GetSegmentDataSize() > most) {
            fields.fault =
                "ERROR: The data of the DES are longer than those of its type can be [most = " + std::to_string(most) +
                ", found = " + std::to_string(GetSegmentDataSize()) + "].";
            return fields;
        }
        if (known && !ReadData(data)) {
            fields.fault = "ERROR: The data of the DES are not available: " + DataFault() + ".";
            return fields;
        }
        DesDESDATA* made = nullptr;
        char* message = nullptr;
        SupportedDESDATAs::CreateDESDATA(type.c_str(), known ? data.data() : "", known ? data.size() : 1, &made,
                                         &message);
        fields.fields.reset(made);
        fields.fault = message == nullptr ? "" : message;
        Util::CSMUtilString::DeleteCString(message);
        return fields;
    });
    if (typed.fields == nullptr && aErrors != nullptr) {
        Detail::AppendBlock(*aErrors, typed.fault);
    }
    return typed.fields.get();
}

bool NITFDESSubheader::GetDataField(std::string_view aName, const char*& aValue, std::size_t& aLength) const
{
    return aName == NITFCnst::NITF_DES_FIELD_DESDATA && GetData(aValue, aLength, nullptr);
}

bool NITFDESSubheader::GetXmlProduct(DesXmlProduct& aProduct) const
{
    std::string front;
    if (GetDESTypeID() != SupportedDESSHFs::XML_DATA_CONTENT || !ReadDataFront(Detail::MOST_XML_READ, front)) {
        return false;
    }
    aProduct = {};
    return Detail::RecogniseXmlProduct(front, aProduct);
}

std::string_view NITFDESSubheader::FieldLeftOut() const noexcept
{
    return m_subheader == nullptr ? "" : NITFCnst::NITF_DES_FIELD_DESSHF;
}

void NITFDESSubheader::AppendDataElements(Document& aOut) const
{
    const Detail::FieldStore& fields = Inside().record.Store();
    const Detail::SegmentWords& words = *Inside().layout->words;
    const Detail::FieldEntry* const entry = fields.Find(FieldLeftOut());
    if (m_subheader != nullptr && entry != nullptr) {
        const std::string indent = words.indent;
        const char* const element = NITFCnst::XML_ELEMENT_DES_CMPLX_FIELD;
        std::string& xml = aOut.Text();
        xml += indent + '<' + element;
        Detail::AppendFieldAttributes(fields, *entry, words.naming, fields.Entries().size(), xml);
        xml += ">\n";
        m_subheader->AppendXml(xml, (indent + "  ").c_str(), NITFCnst::XML_ELEMENT_DESSHF_FIELD);
        xml += indent + "</" + element + ">\n";
    }
    AppendDataElement(NITFCnst::XML_ELEMENT_DATA, aOut);
}

}  // namespace ORMO::SensorModel::CSM
