#include "segments/NITFDataSegment.h"

#include "fields/MessageText.h"
#include "fields/Xml.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "segments/detail/SegmentData.h"
#include "segments/detail/SegmentLayout.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr int MOST_SEGMENT_NUMBER = 999;
constexpr std::size_t LEAST_BYTES = 2;
constexpr std::size_t MOST_BYTES = 999999;

/// The input of a subheader when its number and length are possible; raises else.
NITFFieldSegment::Input& Checked(const NITFFieldSegment::Layout& aLayout, NITFFieldSegment::Input& aInput)
{
    const Detail::SegmentWords& words = *aLayout.words;
    const int number = aInput.info.GetSegmentIndex();
    const NITFCnst::Version version = aInput.info.GetNITFVersion();
    const bool readable = version == NITFCnst::NITF_VERSION_NUMBER_20 || version == NITFCnst::NITF_VERSION_NUMBER_21 ||
                          version == NITFCnst::NSIF_VERSION_NUMBER_10;
    const char* source = words.reader;
    std::string text;
    if (number < 0 || number > MOST_SEGMENT_NUMBER) {
        text = words.numberFault;
        source = words.numberReader == nullptr ? source : words.numberReader;
    } else if (!readable || number > words.mostNumber || aInput.raw.size() < LEAST_BYTES ||
               aInput.raw.size() > MOST_BYTES || aInput.raw[0] == '\0' || aInput.raw[1] == '\0') {
        text = std::string("ERROR: Failed to clone the raw ") + words.kindWord +
               " subheader (index number = " + std::to_string(number) + ") from the input " + words.kindWord +
               " data stream.";
    }
    if (!text.empty()) {
        const Detail::FindingMark mark = aInput.Findings().Now();
        aInput.Findings().Add(Detail::MakeFinding(text), text);
        aInput.Findings().PlaceAt(mark, aLayout.Owner(), number);
        throw ImageSupportDataConstructionException(text.c_str(), source);
    }
    return aInput;
}

}  // namespace

struct NITFDataSegment::Data : Detail::SegmentData
{
    using SegmentData::SegmentData;
};

NITFDataSegment::NITFDataSegment(const Layout& aLayout, Input& aInput)
    : NITFFieldSegment(aLayout, Checked(aLayout, aInput)),
      m_number(aInput.info.GetSegmentIndex()),
      m_data(std::make_shared<Data>(aInput.source, aInput.info.GetSegmentDataStart(), aInput.info.GetSegmentDataSize()))
{
    ReadTREs(aInput);
    NITFFieldSegment::SetDisplayLevel();
    NITFFieldSegment::SetAttachmentLevel();
    FinishReading(aInput);
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
    if (m_data == other->m_data || m_data->IsSamePlace(*other->m_data)) {
        return true;
    }
    return m_data->Size() == other->m_data->Size() && m_data->Equals(*other->m_data);
}

bool NITFDataSegment::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFDataSegment*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::CloneObj(aOther)) {
        return false;
    }
    m_number = other->m_number;
    m_data = other->m_data;
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
}

std::string NITFDataSegment::DataFaultText() const
{
    return {};
}

void NITFDataSegment::AppendDataElements(std::string&) const {}
void NITFDataSegment::AppendElementsAfterTREs(std::string&) const {}

std::string_view NITFDataSegment::FieldLeftOut() const noexcept
{
    return {};
}

bool NITFDataSegment::IsDataAvailable() const noexcept
{
    return m_data->IsAvailable();
}

bool NITFDataSegment::HasDataSource() const noexcept
{
    return m_data->HasSource();
}

const std::shared_ptr<const Detail::ByteSource>& NITFDataSegment::DataSource() const noexcept
{
    return m_data->Source();
}

bool NITFDataSegment::ReadData(std::string& aOut) const
{
    return m_data->Read(aOut);
}

bool NITFDataSegment::ReadDataFront(std::size_t aMost, std::string& aOut) const
{
    return m_data->ReadFront(aMost, aOut);
}

std::string NITFDataSegment::DataFault() const
{
    return m_data->Fault();
}

bool NITFDataSegment::GetData(const char*& aData, std::size_t& aLength, std::string* aErrors) const
{
    const std::string* const bytes = m_data->Bytes();
    aData = bytes == nullptr ? nullptr : bytes->c_str();
    aLength = bytes == nullptr ? 0 : bytes->size();
    if (bytes == nullptr && aErrors != nullptr) {
        const std::string fault = m_data->Fault();
        Detail::AppendBlock(*aErrors, DataFaultText());
        Detail::AppendBlock(
            *aErrors, "ERROR: The data of " + std::string(Inside().layout->Owner()) + ' ' + std::to_string(m_number) +
                          " are not available: " + (fault.empty() ? "the file cannot be read" : fault) + ".");
    }
    return bytes != nullptr;
}

void NITFDataSegment::AppendDataElement(const char* aElement, std::string& aXml) const
{
    bool text = true;
    const std::size_t before = aXml.size();
    const bool read = m_data->ForEachPiece([&](std::string_view aPiece) {
        text = text && Detail::IsXmlText(aPiece);
        return true;
    });
    aXml += Inside().layout->words->indent;
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
            Util::CSMUtilString::AppendBase64(aPiece, aXml);
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

std::string NITFDataSegment::Xml(const std::string& aIndent, int aIndex) const
{
    const char* const element = Inside().layout->Owner();
    std::string xml = aIndent + "<" + element;
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_INDEX, std::to_string(aIndex), xml);
    xml += ">\n";
    AppendFieldElements(xml, FieldLeftOut());
    AppendDataElements(xml);
    AppendTREElements(xml);
    AppendElementsAfterTREs(xml);
    xml += aIndent + "</" + element + ">\n";
    return xml;
}

const char* NITFDataSegment::SerializeDataSegment(const char* aIndent)
{
    m_xml = Xml(aIndent == nullptr ? "" : aIndent, m_number);
    return m_xml.c_str();
}

bool NITFDataSegment::Serialize(char** aXml, int aIndex, std::size_t* aLength) const
{
    if (aXml == nullptr) {
        return false;
    }
    const std::string xml = Xml("", aIndex);
    if (aLength != nullptr) {
        *aLength = xml.size();
    }
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

}  // namespace ORMO::SensorModel::CSM
