#include "segments/fileheader/NITFFileHeader.h"

#include "fields/FieldWalk.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "fields/Xml.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentContents.h"
#include "segments/detail/SegmentKinds.h"
#include "segments/detail/SegmentWords.h"
#include "segments/fileheader/detail/FileHeaderReader.h"
#include "tre/TREFactory.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::Quoted;

namespace {

constexpr std::size_t MOST_HEADER_BYTES = 999999;
constexpr std::uint64_t LEAST_FILE_LENGTH = 39;
constexpr std::uint64_t MOST_FILE_LENGTH = 999999999999;
constexpr const char* STREAM_ERROR = "ERROR: NITF file header data stream contains errors - ";

std::string TurnName(const char* aTag, std::size_t aTurn)
{
    std::string number = std::to_string(aTurn);
    number.insert(0, number.size() < 3 ? 3 - number.size() : 0, '0');
    return aTag + number;
}

}  // namespace

NITFFileHeader::NITFFileHeader(const char* aFileName, NITFCnst::Version aVersion, const char* aVersionText,
                               const Detail::FieldTable& aTable)
    : NITFFieldSegment(aVersionText, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, aTable),
      m_fileName(aFileName == nullptr ? "" : aFileName),
      m_version(aVersion)
{
}

NITFFileHeader::NITFFileHeader(const NITFFileHeader& aOther)
    : NITFFieldSegment(aOther),
      m_fileName(aOther.m_fileName),
      m_version(aOther.m_version),
      m_fileLength(aOther.m_fileLength),
      m_lengths(aOther.m_lengths),
      m_isRPF(aOther.m_isRPF),
      m_streaming(aOther.m_streaming),
      m_rpfByteOrder(aOther.m_rpfByteOrder)
{
}

NITFFileHeader::~NITFFileHeader() = default;

bool NITFFileHeader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFFileHeader*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::CloneObj(aOther)) {
        return false;
    }
    m_fileName = other->m_fileName;
    m_version = other->m_version;
    m_fileLength = other->m_fileLength;
    m_lengths = other->m_lengths;
    m_isRPF = other->m_isRPF;
    m_streaming = other->m_streaming;
    m_rpfByteOrder = other->m_rpfByteOrder;
    FreeRawMetaDataObject();
    return true;
}

void NITFFileHeader::Swap(NITFStdDataSegment& aOther) noexcept
{
    auto* const other = dynamic_cast<NITFFileHeader*>(&aOther);
    if (other == nullptr) {
        return;
    }
    NITFFieldSegment::Swap(aOther);
    std::swap(m_fileName, other->m_fileName);
    std::swap(m_version, other->m_version);
    std::swap(m_fileLength, other->m_fileLength);
    std::swap(m_lengths, other->m_lengths);
    std::swap(m_isRPF, other->m_isRPF);
    std::swap(m_streaming, other->m_streaming);
    std::swap(m_rpfByteOrder, other->m_rpfByteOrder);
    std::swap(m_metadata, other->m_metadata);
}

const char* NITFFileHeader::ClassName() const noexcept
{
    return m_version == NITFCnst::NITF_VERSION_NUMBER_20 ? "NITF20FileHeader" : "NITF21FileHeader";
}

std::string NITFFileHeader::FaultText(const Detail::WalkResult& aResult, const std::string& aTag) const
{
    if (aResult.fault == Detail::Fault::Short) {
        return {};
    }
    return STREAM_ERROR + ("value of field " + Quoted(aTag)) + " is invalid.";
}

bool NITFFileHeader::CheckVersionSpecificFields(std::string&)
{
    return true;
}

void NITFFileHeader::Init(std::string aRaw, bool aStreaming, const Detail::KindFields* aKinds, std::size_t aKindCount,
                          bool aSpecificOnly)
{
    const std::string source = std::string(ClassName()) + "::" + ClassName();
    std::string errors;
    const std::size_t length = aRaw.size();
    if (length <= Detail::MOST_BYTES_REFUSED || length > MOST_HEADER_BYTES) {
        errors = "ERROR: Failed to retrieve the NITF file header from the input file.";
        throw ImageSupportDataConstructionException(errors.c_str(), source.c_str());
    }
    m_streaming = aStreaming;
    std::uint64_t consumed = 0;
    bool good = ReadFields(std::move(aRaw), 0, consumed, errors);
    good = good && CheckVersionSpecificFields(errors);
    good = good && CheckRequiredFields(errors) == 0;
    m_lengths.clear();
    for (std::size_t i = 0; good && i != aKindCount; ++i) {
        good = ExtractRelatedSegmentFields(aKinds[i], errors);
    }
    good = good && ExtractFileLength(errors);
    if (!good) {
        m_lengths.clear();
        if (errors.empty()) {
            errors = Words().summary;
        }
        throw ImageSupportDataConstructionException(errors.c_str(), source.c_str());
    }
    CheckFileHeaderVersion();
    if (consumed != GetFileHeaderLength()) {
        AddWarning("WARN: The NITF file header fields end after " + std::to_string(consumed) + " byte(s), HL says " +
                   std::to_string(GetFileHeaderLength()) + " byte(s); HL decides.");
    }
    ExtractFileHeaderTREs(aSpecificOnly);
    CheckForTreRPFHDR();
}

std::uint64_t NITFFileHeader::LeastLength(std::uint64_t aStandard) const noexcept
{
    return aStandard;
}

bool NITFFileHeader::ExtractLengths(const char* aTag, std::size_t aCount, std::vector<std::uint64_t>& aLengths,
                                    std::string& aErrors)
{
    const Detail::FieldTable& table = Contents().fields.Table();
    std::uint64_t least = 0;
    std::uint64_t most = 0;
    const bool bounded = Detail::FirstRange(table.Row(table.FindAny(aTag)).values, least, most);
    least = LeastLength(least);
    aLengths.resize(aCount);
    for (std::size_t turn = 1; turn <= aCount; ++turn) {
        const std::string name = TurnName(aTag, turn);
        std::uint64_t& length = aLengths[turn - 1];
        if (!bounded || !Detail::ToCount(FieldText(name), length) || length < least || length > most) {
            Detail::AppendBlock(aErrors,
                                STREAM_ERROR + ("value of field " + Quoted(aTag)) + " is invalid.\n" + PlaceOf(name));
            return false;
        }
    }
    return true;
}

bool NITFFileHeader::ExtractRelatedSegmentFields(const Detail::KindFields& aKind, std::string& aErrors)
{
    NITFSegmentLengths lengths;
    lengths.type = aKind.type;
    lengths.count = static_cast<std::size_t>(NumberOf(aKind.count));
    std::vector<std::uint64_t> headers;
    if (!ExtractLengths(aKind.header, lengths.count, headers, aErrors) ||
        !ExtractLengths(aKind.data, lengths.count, lengths.data, aErrors)) {
        return false;
    }
    lengths.headers.assign(headers.begin(), headers.end());
    m_lengths.push_back(std::move(lengths));
    return true;
}

bool NITFFileHeader::ExtractFileLength(std::string& aErrors)
{
    if (Detail::ToCount(FieldText("FL"), m_fileLength) && m_fileLength >= LEAST_FILE_LENGTH &&
        m_fileLength <= MOST_FILE_LENGTH) {
        return true;
    }
    m_fileLength = 0;
    Detail::AppendBlock(aErrors, "ERROR: Cannot find NITF file header field " + Quoted("FL") +
                                     " in the metadata store or its value is invalid.\n" + PlaceOf("FL"));
    return false;
}

void NITFFileHeader::ExtractFileHeaderTREs(bool aSpecificOnly)
{
    ReadTREs("UDHD", aSpecificOnly, false, TRE::TRE_TYPE_REGISTERED_EXTENSION, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
    ReadTREs("XHD", aSpecificOnly, false, TRE::TRE_TYPE_CONTROLLED_EXTENSION, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
}

void NITFFileHeader::CheckForTreRPFHDR()
{
    const std::vector<TRE*>* const tres = GetTREStore().Find("RPFHDR");
    if (tres == nullptr) {
        return;
    }
    const char* order = nullptr;
    std::size_t length = 0;
    if (!tres->front()->GetFieldAsBinary("LBEI", order, length) || length != 1) {
        return;
    }
    const auto mark = static_cast<unsigned char>(*order);
    m_isRPF = mark == 0x00 || mark == 0xFF;
    if (m_isRPF) {
        m_rpfByteOrder = mark == 0x00 ? Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN : Util::CSMCnst::BYTE_ORDER_LITTLE_ENDIAN;
    }
}

bool NITFFileHeader::AddNITFFileHeaderTRE(TRE* aTre)
{
    const bool added = AddDataSegmentTRE(Contents().tres, aTre);
    FreeRawMetaDataObject();
    return added;
}

std::uint64_t NITFFileHeader::GetFileHeaderLength() const noexcept
{
    return NumberOf("HL");
}

const char* NITFFileHeader::GetFileHeaderField(const char* aTag) const noexcept
{
    return FieldText(Detail::Trimmed(aTag)).data();
}

bool NITFFileHeader::GetFieldValueCLEVEL(int& aLevel) const noexcept
{
    return Util::CSMUtilString::ToInteger(GetFileHeaderField("CLEVEL"), aLevel);
}

bool NITFFileHeader::GetFileBackgroundColor(int& aRed, int& aGreen, int& aBlue) const noexcept
{
    const std::string_view colour = FieldText("FBKGC");
    if (colour.size() != 3) {
        return false;
    }
    aRed = static_cast<unsigned char>(colour[0]);
    aGreen = static_cast<unsigned char>(colour[1]);
    aBlue = static_cast<unsigned char>(colour[2]);
    return true;
}

const NITFSegmentLengths* NITFFileHeader::LengthsOf(const char* aType) const noexcept
{
    const auto it = std::find_if(m_lengths.begin(), m_lengths.end(), [aType](const NITFSegmentLengths& aLengths) {
        return std::string_view(aLengths.type) == aType;
    });
    return it == m_lengths.end() ? nullptr : &*it;
}

std::size_t NITFFileHeader::CountOf(const char* aType) const noexcept
{
    const NITFSegmentLengths* const lengths = LengthsOf(aType);
    return lengths == nullptr ? 0 : lengths->count;
}

bool NITFFileHeader::CopyLengths(const char* aType, std::vector<std::uint64_t>& aData,
                                 std::vector<std::uint32_t>& aHeaders) const
{
    aData.clear();
    aHeaders.clear();
    const NITFSegmentLengths* const lengths = LengthsOf(aType);
    if (lengths == nullptr || lengths->data.size() < lengths->count || lengths->headers.size() < lengths->count) {
        return false;
    }
    aData = lengths->data;
    aHeaders = lengths->headers;
    return true;
}

namespace {

/// The type tag of a kind that only one version has; empty for any other.
const char* VersionSpecificType(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    const bool is20 = aVersion == NITFCnst::NITF_VERSION_NUMBER_20;
    if (aKind == NITFCnst::DATA_SEGMENT_TYPE_LABEL && is20) {
        return "LA";
    }
    const auto drawn = is20 ? NITFCnst::DATA_SEGMENT_TYPE_SYMBOL : NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC;
    return aKind == drawn ? "SY" : "";
}

}  // namespace

std::size_t NITFFileHeader::GetNumOfVersionSpecificDataSegment(NITFCnst::DataSegmentType aKind) const noexcept
{
    return CountOf(VersionSpecificType(aKind, m_version));
}

bool NITFFileHeader::GetImageSegmentsInfo(std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const
{
    return CopyLengths("IM", aData, aHeaders);
}

bool NITFFileHeader::GetTextSegmentsInfo(std::vector<std::uint64_t>& aData, std::vector<std::uint32_t>& aHeaders) const
{
    return CopyLengths("TE", aData, aHeaders);
}

bool NITFFileHeader::GetDataExtensionSegmentsInfo(std::vector<std::uint64_t>& aData,
                                                  std::vector<std::uint32_t>& aHeaders) const
{
    return CopyLengths("DE", aData, aHeaders);
}

bool NITFFileHeader::GetReservedExtensionSegmentsInfo(std::vector<std::uint64_t>& aData,
                                                      std::vector<std::uint32_t>& aHeaders) const
{
    return CopyLengths("RE", aData, aHeaders);
}

bool NITFFileHeader::GetVersionSpecificSegmentsInfo(NITFCnst::DataSegmentType aKind, std::vector<std::uint64_t>& aData,
                                                    std::vector<std::uint32_t>& aHeaders) const
{
    return CopyLengths(VersionSpecificType(aKind, m_version), aData, aHeaders);
}

unsigned long NITFFileHeader::GetOverflowUserDefinedHeaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("UDHOFL"));
}

unsigned long NITFFileHeader::GetOverflowExtendedHeaderData() const noexcept
{
    const bool is20 = m_version == NITFCnst::NITF_VERSION_NUMBER_20;
    return static_cast<unsigned long>(NumberOf(is20 ? "XHDOFL" : "XHDLOFL"));
}

bool NITFFileHeader::CloneRawFileHeader(const char* aBytes, std::size_t aLength)
{
    if (aBytes == nullptr || aLength == 0) {
        return false;
    }
    Contents().raw.assign(aBytes, aLength);
    return true;
}

const RawNITFMetadata* NITFFileHeader::GetAllFileHeaderMetadata() const
{
    if (m_metadata == nullptr) {
        m_metadata = MakeRawMetadata();
    }
    return m_metadata.get();
}

void NITFFileHeader::FreeRawMetaDataObject() noexcept
{
    m_metadata.reset();
}

std::string NITFFileHeader::Xml(const std::string& aIndent) const
{
    std::string xml = aIndent + "<" + NITFCnst::XML_ELEMENT_NITF_FILE_HEADER + ">\n";
    AppendFieldElements(xml);
    AppendTREElements(xml);
    xml += aIndent + "</" + NITFCnst::XML_ELEMENT_NITF_FILE_HEADER + ">\n";
    return xml;
}

const char* NITFFileHeader::SerializeDataSegment(const char* aIndent)
{
    m_xml = Xml(aIndent == nullptr ? "" : aIndent);
    return m_xml.c_str();
}

bool NITFFileHeader::Serialize(char** aXml, std::size_t& aLength) const
{
    aLength = 0;
    if (aXml == nullptr) {
        return false;
    }
    const std::string xml = Xml("");
    aLength = xml.size();
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

}  // namespace ORMO::SensorModel::CSM
