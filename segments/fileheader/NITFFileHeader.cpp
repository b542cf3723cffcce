#include "segments/fileheader/NITFFileHeader.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "fields/ValueRule.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "segments/RawNITFMetadataStdDataSegment.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Detail::Quoted;

namespace {

constexpr std::size_t MOST_HEADER_BYTES = 999999;
constexpr std::uint64_t LEAST_FILE_LENGTH = 39;
constexpr std::uint64_t MOST_FILE_LENGTH = 999999999999;
// The fewest data bytes behind the overflow number of NITF 2.1: the tag and length of one TRE and a byte of it.
constexpr std::size_t LEAST_EXTENSION_BYTES = 12;
constexpr const char* STREAM_ERROR = "ERROR: NITF file header data stream contains errors - ";

bool Is20(const NITFFieldSegment::Parts& aParts) noexcept
{
    return aParts.layout->kind->version == NITFCnst::NITF_VERSION_NUMBER_20;
}

/// The input of a header of a possible length; raises else.
NITFFieldSegment::Input& Checked(const NITFFieldSegment::Layout& aLayout, NITFFieldSegment::Input& aInput)
{
    if (aInput.raw.size() <= Detail::MOST_BYTES_REFUSED || aInput.raw.size() > MOST_HEADER_BYTES) {
        Finding finding = Detail::MakeFinding(Detail::NO_HEADER);
        finding.owner = finding.segment = NITFCnst::XML_ELEMENT_NITF_FILE_HEADER;
        finding.detail = std::to_string(aInput.raw.size()) + " byte(s) are no header";
        finding.offset = 0;
        aInput.Findings().Add(std::move(finding), Detail::NO_HEADER);
        throw ImageSupportDataConstructionException(Detail::NO_HEADER, aLayout.source);
    }
    return aInput;
}

std::string TurnName(const char* aTag, std::size_t aTurn)
{
    std::string number = std::to_string(aTurn);
    number.insert(0, number.size() < 3 ? 3 - number.size() : 0, '0');
    return aTag + number;
}

/// A conditional field that is not as it must be: the text of the field, and that of the walk that meets it.
void AddConditionalFault(const NITFFieldSegment::Parts& aParts, const char* aTag, const std::string& aField,
                         const std::string& aWhat, Detail::FindingList& aFindings)
{
    const Detail::SegmentWords& words = *aParts.layout->words;
    const Finding finding = aParts.About(STREAM_ERROR + aWhat, aField);
    aFindings.Add(finding,
                  Detail::Block(finding) + "\n\n" + words.conditionalPrefix + Quoted(aTag) + words.streamSuffix);
}

/// The lengths of all segments of a kind, in the bounds of their rows. NITF 2.0 has no lower ones, and all nines are a
/// length there.
bool ExtractLengths(const NITFFieldSegment::Parts& aParts, bool aSalvage, const char* aTag, std::size_t aCount,
                    std::vector<std::uint64_t>& aLengths, Detail::FindingList& aFindings)
{
    const Detail::FieldTable& table = aParts.layout->table;
    std::uint64_t least = 0;
    std::uint64_t most = 0;
    const bool bounded = Detail::FirstRange(table.Row(table.FindAny(aTag)).values, least, most);
    least = Is20(aParts) ? 0 : least;
    aLengths.resize(aCount);
    for (std::size_t turn = 1; turn <= aCount; ++turn) {
        const std::string name = TurnName(aTag, turn);
        std::uint64_t& length = aLengths[turn - 1];
        const bool isNumber = bounded && Detail::ToCount(aParts.record.Text(name), length);
        if (!isNumber || length < least || length > most) {
            AddConditionalFault(aParts, aTag, name, "value of field " + Quoted(aTag) + " is invalid.", aFindings);
            if (!isNumber || !aSalvage) {
                return false;
            }
        }
    }
    return true;
}

bool ExtractRelatedSegmentFields(const NITFFieldSegment::Parts& aParts, bool aSalvage,
                                 std::vector<NITFSegmentLengths>& aKinds, Detail::FindingList& aFindings)
{
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        if (kind.mark[0] == '\0' || kind.version != aParts.layout->kind->version) {
            continue;
        }
        NITFSegmentLengths lengths;
        lengths.type = kind.mark;
        lengths.count = static_cast<std::size_t>(aParts.Number(kind.count));
        std::vector<std::uint64_t> headers;
        if (!ExtractLengths(aParts, aSalvage, kind.headerLength, lengths.count, headers, aFindings) ||
            !ExtractLengths(aParts, aSalvage, kind.dataLength, lengths.count, lengths.data, aFindings)) {
            return false;
        }
        lengths.headers.assign(headers.begin(), headers.end());
        aKinds.push_back(std::move(lengths));
    }
    return true;
}

bool ExtractFileLength(const NITFFieldSegment::Parts& aParts, std::uint64_t& aLength, Detail::FindingList& aFindings)
{
    if (Detail::ToCount(aParts.record.Text("FL"), aLength) && aLength >= LEAST_FILE_LENGTH &&
        aLength <= MOST_FILE_LENGTH) {
        return true;
    }
    aLength = 0;
    aFindings.Add(aParts.About(
        "ERROR: Cannot find NITF file header field " + Quoted("FL") + " in the metadata store or its value is invalid.",
        "FL"));
    return false;
}

bool CheckAreas(const NITFFieldSegment::Parts& aParts, Detail::FindingList& aFindings)
{
    for (const Detail::ExtensionArea& area : aParts.layout->kind->areas) {
        const std::string_view bytes = aParts.record.Text(area.area);
        if (!Is20(aParts) && bytes.data() != nullptr && bytes.size() < LEAST_EXTENSION_BYTES) {
            AddConditionalFault(aParts, area.area, area.area,
                                "failed to extract field " + Quoted(area.area) + " from the data stream.", aFindings);
            return false;
        }
    }
    return true;
}

/// In NITF 2.0, where the bytes that later writers use for a colour are part of the name, the colour reads as the
/// default one.
void FillColour(Detail::FieldStore& aFields)
{
    const Detail::FieldEntry* const colour = aFields.Find("FBKGC");
    if (colour != nullptr && colour->length == 0) {
        aFields.Replace(*colour, std::string(3, NITFCnst::NITF20_DEFAULT_FBKGC_VALUE));
    }
}

}  // namespace

NITFFileHeader::NITFFileHeader(const Layout& aLayout, Input& aInput)
    : NITFFieldSegment(aLayout, Checked(aLayout, aInput)),
      m_fileName(aInput.fileName == nullptr ? "" : aInput.fileName),
      m_streaming(aInput.streaming)
{
    Detail::FindingList& findings = aInput.Findings();
    FillColour(Mine().record.Store());
    const bool good = CheckAreas(Inside(), findings) &&
                      ExtractRelatedSegmentFields(Inside(), aInput.salvage, m_lengths, findings) &&
                      ExtractFileLength(Inside(), m_fileLength, findings);
    if (!good && !aInput.salvage) {
        Refuse(aInput);
    }
    if (!CheckVersion()) {
        const std::string text = std::string("ERROR: Expected NITF version ") +
                                 Quoted(Is20(Inside()) ? NITFCnst::NITF_VERSION_200 : NITFCnst::NITF_VERSION_210) + '.';
        findings.Add(Inside().About(text, "FHDR"), text);
        throw ImageSupportDataConstructionException(
            text.c_str(), (std::string(aLayout.className) + "::CheckFileHeaderVersion").c_str());
    }
    const auto& entries = Inside().record.Store().Entries();
    const std::uint64_t consumed =
        entries.empty() ? 0 : Inside().record.Store().Position(entries.back()) + entries.back().length;
    if (consumed != GetFileHeaderLength()) {
        Finding finding =
            Inside().About("WARN: The NITF file header fields end after " + std::to_string(consumed) +
                               " byte(s), HL says " + std::to_string(GetFileHeaderLength()) + " byte(s); HL decides.",
                           "HL");
        finding.rule = "FH-02";
        findings.Add(std::move(finding));
    }
    ReadTREs(aInput);
    CheckForTreRPFHDR();
    FinishReading(aInput);
}

NITFFileHeader::NITFFileHeader(const NITFFileHeader& aOther)
    : NITFFieldSegment(aOther),
      m_fileName(aOther.m_fileName),
      m_fileLength(aOther.m_fileLength),
      m_lengths(aOther.m_lengths),
      m_isRPF(aOther.m_isRPF),
      m_streaming(aOther.m_streaming),
      m_rpfByteOrder(aOther.m_rpfByteOrder)
{
}

NITFFileHeader::~NITFFileHeader() = default;

NITFFieldSegment::Input NITFFileHeader::MakeInput(const char* aFileName, const char* aRaw, std::size_t aLength,
                                                  const char* aVersionText, bool aStreaming, bool aSpecificOnly)
{
    Input input;
    input.raw.assign(aRaw == nullptr ? "" : aRaw, aRaw == nullptr ? 0 : aLength);
    input.versionText = aVersionText;
    input.fileName = aFileName;
    input.streaming = aStreaming;
    input.specificOnly = aSpecificOnly;
    return input;
}

bool NITFFileHeader::CloneObj(const NITFStdDataSegment& aOther)
{
    const auto* const other = dynamic_cast<const NITFFileHeader*>(&aOther);
    if (other == nullptr || !NITFFieldSegment::CloneObj(aOther)) {
        return false;
    }
    m_fileName = other->m_fileName;
    m_fileLength = other->m_fileLength;
    m_lengths = other->m_lengths;
    m_isRPF = other->m_isRPF;
    m_streaming = other->m_streaming;
    m_rpfByteOrder = other->m_rpfByteOrder;
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
    std::swap(m_fileLength, other->m_fileLength);
    std::swap(m_lengths, other->m_lengths);
    std::swap(m_isRPF, other->m_isRPF);
    std::swap(m_streaming, other->m_streaming);
    std::swap(m_rpfByteOrder, other->m_rpfByteOrder);
}

NITFCnst::Version NITFFileHeader::GetVersion() const noexcept
{
    return Inside().layout->kind->version;
}

bool NITFFileHeader::CheckVersion() const
{
    if (Is20(Inside())) {
        return FieldText("FHDR") == NITFCnst::STR_NITF_0200;
    }
    const std::string_view version = FieldText("FVER");
    const bool nsif = version == NITFCnst::NSIF_VERSION_100 && FieldText("FHDR") == NITFCnst::NSIF_FILE_FORMAT;
    return version == NITFCnst::NITF_VERSION_210 || nsif;
}

void NITFFileHeader::CheckForTreRPFHDR()
{
    const TRE* const rpf = GetTREStore().First("RPFHDR");
    if (rpf == nullptr) {
        return;
    }
    const char* order = nullptr;
    std::size_t length = 0;
    if (!rpf->GetFieldAsBinary("LBEI", order, length) || length != 1) {
        return;
    }
    const auto mark = static_cast<unsigned char>(*order);
    m_isRPF = mark == 0x00 || mark == 0xFF;
    if (m_isRPF) {
        m_rpfByteOrder = mark == 0x00 ? Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN : Util::CSMCnst::BYTE_ORDER_LITTLE_ENDIAN;
    }
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

/// The mark of a kind that only one version has; empty for any other.
const char* VersionSpecificType(NITFCnst::DataSegmentType aKind, NITFCnst::Version aVersion) noexcept
{
    return Detail::IsVersionSpecific(aKind, aVersion) ? Detail::FindKind(aKind, aVersion)->mark : "";
}

}  // namespace

std::size_t NITFFileHeader::GetNumOfVersionSpecificDataSegment(NITFCnst::DataSegmentType aKind) const noexcept
{
    return CountOf(VersionSpecificType(aKind, GetVersion()));
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
    return CopyLengths(VersionSpecificType(aKind, GetVersion()), aData, aHeaders);
}

unsigned long NITFFileHeader::GetOverflowUserDefinedHeaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf("UDHOFL"));
}

unsigned long NITFFileHeader::GetOverflowExtendedHeaderData() const noexcept
{
    return static_cast<unsigned long>(NumberOf(Is20(Inside()) ? "XHDOFL" : "XHDLOFL"));
}

bool NITFFileHeader::CloneRawFileHeader(const char* aBytes, std::size_t aLength)
{
    if (aBytes == nullptr || aLength == 0) {
        return false;
    }
    Mine().raw.assign(aBytes, aLength);
    return true;
}

void NITFFileHeader::FreeRawMetaDataObject() noexcept
{
    Mine().metadata.Reset();
}

char* NITFFileHeader::CloneNITFFileHeader(const char* aBytes, std::size_t aLength)
{
    if (aBytes == nullptr || aLength == 0) {
        return nullptr;
    }
    auto* const copy = new char[aLength + 1];
    *std::copy_n(aBytes, aLength, copy) = '\0';
    return copy;
}

void NITFFileHeader::AppendElement(Document& aOut, std::string_view aIndent, int /*aIndex*/) const
{
    constexpr const char* ELEMENT = NITFCnst::XML_ELEMENT_NITF_FILE_HEADER;
    std::string& xml = aOut.Text();
    xml.append(aIndent).append("<").append(ELEMENT).append(">\n");
    AppendFieldElements(xml);
    AppendTREElements(aOut);
    xml.append(aIndent).append("</").append(ELEMENT).append(">\n");
}

const char* NITFFileHeader::SerializeDataSegment(const char* aIndent)
{
    m_xml = ElementText(aIndent, 0);
    return m_xml.c_str();
}

bool NITFFileHeader::Serialize(char** aXml, std::size_t& aLength) const
{
    aLength = 0;
    if (aXml == nullptr) {
        return false;
    }
    const std::string xml = ElementText("", 0);
    aLength = xml.size();
    return Util::CSMUtilString::Copy(xml.c_str(), aXml);
}

}  // namespace ORMO::SensorModel::CSM
