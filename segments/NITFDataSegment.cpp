#include "segments/NITFDataSegment.h"

#include "fields/ByteSource.h"
#include "fields/MessageText.h"
#include "fields/Xml.h"
#include "foundation/CSMExceptions.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentData.h"
#include "segments/detail/SegmentWords.h"

#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr int MOST_SEGMENT_NUMBER = 999;
constexpr long LEAST_BYTES = 2;
constexpr long MOST_BYTES = 999999;

}  // namespace

NITFDataSegment::NITFDataSegment(const char* aVersionText, NITFCnst::DataSegmentType aKind,
                                 const Detail::FieldTable& aTable)
    : NITFFieldSegment(aVersionText, aKind, aTable), m_data(std::make_shared<Detail::SegmentData>(nullptr, 0, 0))
{
}

NITFDataSegment::NITFDataSegment(const NITFDataSegment& aOther)
    : NITFFieldSegment(aOther), m_number(aOther.m_number), m_data(aOther.m_data)
{
}

NITFDataSegment::~NITFDataSegment() = default;

bool NITFDataSegment::operator==(const NITFStdDataSegment& aOther) const
{
    const auto* const other = dynamic_cast<const NITFDataSegment*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::operator==(aOther)) {
        return false;
    }
    if (m_data == other->m_data) {
        return true;
    }
    // Data that cannot be had equal nothing but themselves.
    std::string mine;
    std::string others;
    return m_data->Size() == other->m_data->Size() && m_data->Read(mine) && other->m_data->Read(others) &&
           mine == others;
}

bool NITFDataSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFDataSegment*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::CloneObj(aOther)) {
        return false;
    }
    m_number = other->m_number;
    m_data = other->m_data;
    m_metadata.reset();
    return true;
}

void NITFDataSegment::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFDataSegment*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFFieldSegment::Swap(aOther);
    std::swap(m_number, other->m_number);
    std::swap(m_data, other->m_data);
    std::swap(m_metadata, other->m_metadata);
}

std::string NITFDataSegment::DataFaultText() const
{
    return {};
}

std::string_view NITFDataSegment::FieldLeftOut() const noexcept
{
    return {};
}

void NITFDataSegment::ReadSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                    std::shared_ptr<const Detail::ByteSource> aSource, const char* aFamily,
                                    const char* aReader)
{
    const std::string word = KindWord();
    const int number = aInfo.GetSegmentIndex();
    if (number < 0 || number > MOST_SEGMENT_NUMBER) {
        throw ImageSupportDataConstructionException(
            ("ERROR: Input " + word + " segment number out of valid range.").c_str(), aFamily);
    }
    if (aRaw == nullptr || aLength < LEAST_BYTES || aLength > MOST_BYTES) {
        throw ImageSupportDataConstructionException(
            ("ERROR: Failed to clone the raw " + word + " subheader (index number = " + std::to_string(number) +
             ") from the input " + word + " data stream.")
                .c_str(),
            aFamily);
    }
    m_number = number;
    SetNITFStdDataSegmentInfo(aInfo);
    m_data = std::make_shared<Detail::SegmentData>(std::move(aSource), aInfo.GetSegmentDataStart(),
                                                   aInfo.GetSegmentDataSize());
    std::string errors;
    std::uint64_t consumed = 0;
    if (!ReadFields(std::string(aRaw, static_cast<std::size_t>(aLength)), aInfo.GetSegmentHeaderStart(), consumed,
                    errors)) {
        throw ImageSupportDataConstructionException(errors.c_str(), aReader);
    }
    AddSurplusWarning(consumed);
}

bool NITFDataSegment::IsDataAvailable() const noexcept
{
    return m_data->IsAvailable();
}

bool NITFDataSegment::GetData(const char*& aData, std::size_t& aLength, std::string* aErrors) const
{
    const std::string* const bytes = m_data->Bytes();
    aData = bytes == nullptr ? nullptr : bytes->c_str();
    aLength = bytes == nullptr ? 0 : bytes->size();
    if (bytes == nullptr && aErrors != nullptr) {
        const std::string fault = m_data->Fault();
        Detail::AppendBlock(*aErrors, DataFaultText());
        Detail::AppendBlock(*aErrors,
                            "ERROR: The data of " + std::string(Words().owner) + ' ' + std::to_string(m_number) +
                                " are not available: " + (fault.empty() ? "the file cannot be read" : fault) + ".");
    }
    return bytes != nullptr;
}

bool NITFDataSegment::WriteData(std::FILE* aOut, std::string* aErrors) const
{
    const bool written = aOut != nullptr && m_data->ForEachPiece([aOut](std::string_view aPiece) {
        return std::fwrite(aPiece.data(), 1, aPiece.size(), aOut) == aPiece.size();
    });
    if (!written && aErrors != nullptr) {
        const std::string fault = m_data->Fault();
        Detail::AppendBlock(*aErrors,
                            "ERROR: The data of " + std::string(Words().owner) + ' ' + std::to_string(m_number) +
                                " cannot be written: " + (fault.empty() ? "reading or writing failed" : fault) + ".");
    }
    return written;
}

const RawNITFMetadata* NITFDataSegment::GetAllSegmentMetadata() const
{
    if (m_metadata == nullptr) {
        m_metadata = MakeRawMetadata();
    }
    return m_metadata.get();
}

void NITFDataSegment::AppendDataElement(const char* aElement, std::string& aXml) const
{
    bool text = true;
    const std::size_t before = aXml.size();
    const bool read = m_data->ForEachPiece([&](std::string_view aPiece) {
        text = text && Detail::IsXmlText(aPiece);
        return true;
    });
    aXml += Words().indent;
    aXml += '<';
    aXml += aElement;
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_BASE64_ENCODED, text ? "F" : "T", aXml);
    aXml += '>';
    const bool complete = read && m_data->ForEachPiece([&](std::string_view aPiece) {
        // The file may change between the two looks at it; what is written stays well-formed.
        const bool same = !text || Detail::IsXmlText(aPiece);
        if (same && text) {
            Detail::AppendXmlText(aPiece, aXml);
        } else if (same) {
            Detail::AppendBase64(aPiece, aXml);
        }
        return same;
    });
    if (!complete) {
        aXml.resize(before);
        return;
    }
    aXml += "</";
    aXml += aElement;
    aXml += ">\n";
}

const char* NITFDataSegment::SerializeDataSegment(const char* aIndent)
{
    const std::string indent = aIndent == nullptr ? "" : aIndent;
    const char* const element = Words().owner;
    m_xml = indent + "<" + element;
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_INDEX, std::to_string(m_number), m_xml);
    m_xml += ">\n";
    AppendFieldElements(m_xml, FieldLeftOut());
    AppendDataElements(m_xml);
    AppendTREElements(m_xml);
    m_xml += indent + "</" + element + ">\n";
    return m_xml.c_str();
}

}  // namespace ORMO::SensorModel::CSM
