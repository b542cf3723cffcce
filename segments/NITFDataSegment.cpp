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
        aInput.Findings().Add(Detail::MakeFinding(text, "RD-09"), text);
        aInput.Findings().PlaceAt(mark, aLayout.Owner(), number);
        throw ImageSupportDataConstructionException(text.c_str(), source);
    }
    return aInput;
}

}  // namespace

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

void NITFDataSegment::AppendDataElements(Document&) const {}
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

void NITFDataSegment::AppendDataElement(const char* aElement, Document& aOut) const
{
    // Data of one piece are read once; of more, the first look finds out how they can be written.
    std::string whole;
    bool text = true;
    const bool read = m_data->ForEachPiece([&](std::string_view aPiece) {
        text = text && Detail::IsXmlText(aPiece);
        if (aPiece.size() == m_data->Size()) {
            whole = aPiece;
        }
        return true;
    });
    if (!read) {
        return;
    }
    const Detail::XmlOut::Mark before = aOut.Now();
    std::string& xml = aOut.Text();
    xml.append(Inside().layout->words->indent).append("<").append(aElement);
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_BASE64_ENCODED, text ? "F" : "T", xml);
    xml += '>';
    const auto append = [&](std::string_view aPiece) {
        // The file may change between the two looks at it; what is written stays well-formed.
        const bool same = !text || Detail::IsXmlText(aPiece);
        if (same && text) {
            Detail::AppendXmlText(aPiece, xml);
        } else if (same) {
            Util::CSMUtilString::AppendBase64(aPiece, xml);
        }
        aOut.Pass();
        return same;
    };
    if (whole.empty() ? !m_data->ForEachPiece(append) : !append(whole)) {
        aOut.TakeBack(before);
        return;
    }
    xml.append("</").append(aElement).append(">\n");
}

void NITFDataSegment::AppendElement(Document& aOut, std::string_view aIndent, int aIndex) const
{
    const char* const element = Inside().layout->Owner();
    std::string& xml = aOut.Text();
    xml.append(aIndent).append("<").append(element);
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_INDEX, std::to_string(aIndex), xml);
    xml += ">\n";
    AppendFieldElements(xml, FieldLeftOut());
    AppendDataElements(aOut);
    AppendTREElements(aOut);
    AppendElementsAfterTREs(xml);
    xml.append(aIndent).append("</").append(element).append(">\n");
    aOut.Pass();
}

const char* NITFDataSegment::SerializeDataSegment(const char* aIndent)
{
    m_xml = ElementText(aIndent, m_number);
    return m_xml.c_str();
}

bool NITFDataSegment::Serialize(char** aXml, int aIndex, std::size_t* aLength) const
{
    if (aXml == nullptr) {
        return false;
    }
    const std::string xml = ElementText("", aIndex);
    if (aLength != nullptr) {
        *aLength = xml.size();
    }
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

}  // namespace ORMO::SensorModel::CSM
