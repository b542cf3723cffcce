#include "segments/image/NITFImageSubheader.h"

#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/Xml.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentContents.h"

#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr int MOST_SEGMENT_NUMBER = 999;
constexpr long LEAST_BYTES = 2;
constexpr long MOST_BYTES = 999999;

}  // namespace

NITFImageSubheader::NITFImageSubheader(const char* aVersionText, const Detail::FieldTable& aTable)
    : NITFFieldSegment(aVersionText, NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aTable)
{
}

NITFImageSubheader::NITFImageSubheader(const NITFImageSubheader& aOther)
    : NITFFieldSegment(aOther), m_number(aOther.m_number)
{
}

NITFImageSubheader::~NITFImageSubheader() = default;

bool NITFImageSubheader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFImageSubheader*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::CloneObj(aOther)) {
        return false;
    }
    m_number = other->m_number;
    m_metadata.reset();
    return true;
}

void NITFImageSubheader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFImageSubheader*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFFieldSegment::Swap(aOther);
    std::swap(m_number, other->m_number);
    std::swap(m_metadata, other->m_metadata);
}

std::string NITFImageSubheader::FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const
{
    return aResult.fault == Detail::Fault::Short
               ? std::string()
               : "ERROR: Value of image subheader field " + Detail::Quoted(aTag) + " is invalid.";
}

void NITFImageSubheader::InitNITFImageSubheader(int aNumber)
{
    Contents() = Detail::SegmentContents{{}, Detail::FieldStore(GetFieldTable()), {}};
    m_metadata.reset();
    if (aNumber > MOST_SEGMENT_NUMBER || aNumber < 0) {
        throw ImageSupportDataConstructionException("ERROR: Input image segment number is out of valid range.",
                                                    "NITFImageSubheader::InitNITFImageSubheader");
    }
    m_number = aNumber;
}

bool NITFImageSubheader::CloneRawNITFImageSubheader(const char* aRaw, long aLength)
{
    m_raw.assign(aRaw, static_cast<std::size_t>(aLength));
    return true;
}

void NITFImageSubheader::InitNITFImageSegment(const char* aRaw, NITFCnst::Version aVersion, int aNumber, long aLength,
                                              char** aErrors)
{
    const bool numberGood = aNumber >= 0 && aNumber < MOST_SEGMENT_NUMBER;
    if (numberGood) {
        m_number = aNumber;
    }
    const bool versionGood = aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ||
                             aVersion == NITFCnst::NITF_VERSION_NUMBER_21 ||
                             aVersion == NITFCnst::NSIF_VERSION_NUMBER_10;
    if (numberGood && versionGood && aRaw != nullptr && aLength >= LEAST_BYTES && aLength <= MOST_BYTES &&
        aRaw[0] != '\0' && aRaw[1] != '\0' && CloneRawNITFImageSubheader(aRaw, aLength)) {
        return;
    }
    const std::string message =
        "ERROR: Failed to clone the raw image subheader (index number = " + std::to_string(aNumber) +
        ") from the input image data stream.";
    if (aErrors != nullptr) {
        Util::CSMUtilString::Copy(message.c_str(), aErrors);
    }
    throw ImageSupportDataConstructionException(message.c_str(), "NITFImageSubheader::InitNITFImageSegment");
}

void NITFImageSubheader::ReadImageSubheader(const char* aRaw, long aLength, const NITFStdDataSegmentInfo& aInfo,
                                            bool aSpecificOnly, Util::CSMCnst::ByteOrder aByteOrder,
                                            const char* aSource)
{
    InitNITFImageSegment(aRaw, aInfo.GetNITFVersion(), aInfo.GetSegmentIndex(), aLength, nullptr);
    SetNITFStdDataSegmentInfo(aInfo);
    std::string errors;
    std::uint64_t consumed = 0;
    if (!ReadFields(std::move(m_raw), aInfo.GetSegmentHeaderStart(), consumed, errors)) {
        throw ImageSupportDataConstructionException(errors.c_str(), aSource);
    }
    AddSurplusWarning(consumed);
    ReadTREs("UDID", aSpecificOnly, false, TRE::TRE_TYPE_REGISTERED_EXTENSION, aByteOrder);
    ReadTREs("IXSHD", aSpecificOnly, false, TRE::TRE_TYPE_CONTROLLED_EXTENSION, aByteOrder);
}

const char* NITFImageSubheader::GetImageSubheader(long& aLength) const noexcept
{
    std::size_t length = 0;
    const char* const raw = GetRawHeader(length);
    aLength = static_cast<long>(length);
    return raw;
}

const char* NITFImageSubheader::GetImageSegmentField(const char* aTag) const noexcept
{
    return FieldText(Detail::Trimmed(aTag)).data();
}

unsigned long NITFImageSubheader::GetNumOfImageBands() const noexcept
{
    const std::uint64_t bands = NumberOf("NBANDS");
    return static_cast<unsigned long>(bands != 0 ? bands : NumberOf("XBANDS"));
}

unsigned long NITFImageSubheader::GetOverflowUserDefinedImageData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("UDOFL"));
}

unsigned long NITFImageSubheader::GetOverflowImageExtendedSubheaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("IXSOFL"));
}

bool NITFImageSubheader::AddImageSegmentTRE(TRE* aTre)
{
    m_metadata.reset();
    return AddDataSegmentTRE(Contents().tres, aTre);
}

const RawNITFMetadata* NITFImageSubheader::GetAllImageSegmentMetadata() const
{
    if (m_metadata == nullptr) {
        m_metadata = MakeRawMetadata();
    }
    return m_metadata.get();
}

std::string NITFImageSubheader::Xml(const std::string& aIndent, int aIndex) const
{
    std::string xml = aIndent + "<" + NITFCnst::XML_ELEMENT_IMAGE_SEGMENT;
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_INDEX, std::to_string(aIndex), xml);
    xml += ">\n";
    AppendFieldElements(xml);
    AppendTREElements(xml);
    xml += aIndent + "</" + NITFCnst::XML_ELEMENT_IMAGE_SEGMENT + ">\n";
    return xml;
}

const char* NITFImageSubheader::SerializeDataSegment(const char* aIndent)
{
    m_xml = Xml(aIndent == nullptr ? "" : aIndent, m_number);
    return m_xml.c_str();
}

bool NITFImageSubheader::Serialize(char** aXml, int aIndex, std::size_t* aLength) const
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
