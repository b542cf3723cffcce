#include "isd/ImageSupportDataNITF.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "raster/GDALNITFFileReader.h"

#include <algorithm>
#include <string_view>

namespace ORMO::SensorModel::CSM {

ImageSupportDataNITF::Parts::~Parts()
{
    if (stream != nullptr) {
        std::fclose(stream);
    }
}

NITFFieldSegment* ImageSupportDataNITF::Parts::Segment(NITFCnst::DataSegmentType aKind,
                                                       std::size_t aIndex) const noexcept
{
    if (aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        return aIndex == 0 ? header.get() : nullptr;
    }
    const NITFStdDataSegmentInfos::Infos* const kind = infos.Get(aKind);
    if (kind == nullptr || aIndex >= kind->size()) {
        return nullptr;
    }
    return segments[static_cast<std::size_t>((*kind)[aIndex]->GetGlobalSegmentIndex())].get();
}

NITFDESSubheader* ImageSupportDataNITF::Parts::Des(std::size_t aIndex) const noexcept
{
    return static_cast<NITFDESSubheader*>(Segment(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aIndex));
}

std::size_t ImageSupportDataNITF::Parts::Count(NITFCnst::DataSegmentType aKind) const noexcept
{
    const NITFStdDataSegmentInfos::Infos* const kind = infos.Get(aKind);
    return kind == nullptr ? 0 : kind->size();
}

int ImageSupportDataNITF::Identify(const unsigned char* aHeaderBytes, std::size_t aLength)
{
    int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    if (!GDALNITFFileReader::IsNITFFile(aHeaderBytes, aLength, version)) {
        return NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    }
    switch (version) {
        case NITFCnst::NITF_VERSION_NUMBER_20:
            return version;
        case NITFCnst::NITF_VERSION_NUMBER_21:
        case NITFCnst::NSIF_VERSION_NUMBER_10:
            return NITFCnst::NITF_VERSION_NUMBER_21;
        default:
            return NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    }
}

bool ImageSupportDataNITF::IsInitUsingTsmNITFISD() const
{
    return m_parts->isOfWrapped;
}

std::uint64_t ImageSupportDataNITF::GetNITFFileSize() const noexcept
{
    return m_parts->source->Size();
}

const char* ImageSupportDataNITF::GetFileTypeAndVersion() const
{
    return m_parts->versionText.c_str();
}

SupportedISD::Type ImageSupportDataNITF::GetIsdRasterFormat()
{
    return SupportedISD::ISD_TYPE_NITF;
}

std::FILE* ImageSupportDataNITF::GetFileHandle() const
{
    if (m_parts->stream == nullptr) {
        m_parts->stream = m_parts->source->OpenStream();
    }
    return m_parts->stream;
}

const NITFFileHeader* ImageSupportDataNITF::GetNITFFileHeader() const noexcept
{
    return m_parts->header.get();
}

const NITFStdDataSegmentInfos& ImageSupportDataNITF::GetSegmentInfos() const noexcept
{
    return m_parts->infos;
}

long ImageSupportDataNITF::GetNumOfImageSegments() const
{
    return static_cast<long>(m_parts->Count(NITFCnst::DATA_SEGMENT_TYPE_IMAGE));
}

NITFFieldSegment* ImageSupportDataNITF::Segment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept
{
    return m_parts->Segment(aKind, aIndex);
}

const NITFFieldSegment* ImageSupportDataNITF::GetSegment(NITFCnst::DataSegmentType aKind,
                                                         std::size_t aIndex) const noexcept
{
    return m_parts->Segment(aKind, aIndex);
}

// A kind has one class, so the segment of a kind is of that class.
const NITFImageSubheader* ImageSupportDataNITF::GetImageSubheader(std::size_t aIndex) const noexcept
{
    return static_cast<const NITFImageSubheader*>(Segment(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex));
}

const NITFTextSubheader* ImageSupportDataNITF::GetTextSubheader(std::size_t aIndex) const noexcept
{
    return static_cast<const NITFTextSubheader*>(Segment(NITFCnst::DATA_SEGMENT_TYPE_TEXT, aIndex));
}

const NITFDESSubheader* ImageSupportDataNITF::GetDataExtensionSegment(std::size_t aIndex) const noexcept
{
    return m_parts->Des(aIndex);
}

const NITFRESSubheader* ImageSupportDataNITF::GetReservedExtensionSegment(std::size_t aIndex) const noexcept
{
    return static_cast<const NITFRESSubheader*>(Segment(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, aIndex));
}

bool ImageSupportDataNITF::IsOverflowPlaced(std::size_t aDes) const noexcept
{
    const NITFDESSubheader* const des = m_parts->Des(aDes);
    return des != nullptr && des->IsOverflowPlaced();
}

NITFFieldSegment* ImageSupportDataNITF::AskedSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex)
{
    ClearMessages();
    NITFFieldSegment* const segment = Segment(aKind, aIndex);
    if (segment == nullptr) {
        m_errorMessage = "ERROR: There is no segment " + Detail::Quoted(Detail::SegmentName(aKind, aIndex)) +
                         " in the file, or it was not read.";
    }
    return segment;
}

std::vector<Finding> ImageSupportDataNITF::GetFindings() const
{
    return m_parts->findings.Findings();
}

namespace {

void AppendLines(const Detail::FindingList& aFindings, bool aErrors, std::vector<std::string>& aLines)
{
    for (std::size_t i = 0; i != aFindings.KeptCount(); ++i) {
        const Finding& finding = aFindings.Kept(i);
        if ((finding.level != Finding::Level::Warning) == aErrors) {
            aLines.push_back(finding.Line());
        }
    }
}

}  // namespace

std::vector<std::string> ImageSupportDataNITF::GetWarnings() const
{
    std::vector<std::string> lines;
    AppendLines(m_parts->findings, true, lines);
    AppendLines(m_parts->findings, false, lines);
    if (m_parts->findings.LeftOut() != 0) {
        lines.push_back(m_parts->findings.LeftOutLine());
    }
    return lines;
}

std::vector<Finding> ImageSupportDataNITF::GetValidationFindings() const
{
    std::vector<Finding> findings = m_parts->validation.Findings();
    std::stable_partition(findings.begin(), findings.end(),
                          [](const Finding& aFinding) { return aFinding.level != Finding::Level::Warning; });
    return findings;
}

std::vector<std::string> ImageSupportDataNITF::GetValidationLines() const
{
    std::vector<std::string> lines;
    AppendLines(m_parts->validation, true, lines);
    AppendLines(m_parts->validation, false, lines);
    if (m_parts->validation.LeftOut() != 0) {
        lines.push_back(m_parts->validation.LeftOutLine());
    }
    return lines;
}

bool ImageSupportDataNITF::GetDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag,
                                             const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFFieldSegment* const segment = Segment(aKind, aIndex);
    return segment != nullptr && segment->GetTRE(aTag, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetAllDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                                                 const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFFieldSegment* const segment = Segment(aKind, aIndex);
    return segment != nullptr && segment->GetAllTREs(aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::SetCurrentImageSegment(long aSegment)
{
    if (aSegment < 0 || aSegment >= GetNumOfImageSegments()) {
        return false;
    }
    m_currentImageSegment = aSegment;
    return true;
}

bool ImageSupportDataNITF::WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut)
{
    constexpr std::uint64_t PIECE = 1U << 20U;
    ClearMessages();
    const NITFStdDataSegmentInfos::Infos* const infos = m_parts->infos.Get(aKind);
    if (infos == nullptr || aIndex >= infos->size() || aOut == nullptr) {
        m_errorMessage =
            "ERROR: There is no segment " + Detail::Quoted(Detail::SegmentName(aKind, aIndex)) + " in the file.";
        return false;
    }
    const std::uint64_t end = (*infos)[aIndex]->GetSegmentDataStart() + (*infos)[aIndex]->GetSegmentDataSize();
    if (end > m_parts->source->Size()) {
        m_errorMessage = "ERROR: The data of " + Detail::SegmentName(aKind, aIndex) + " end at byte " +
                         std::to_string(end) + ", beyond the end of the file at " +
                         std::to_string(m_parts->source->Size()) + ".";
        return false;
    }
    std::string piece;
    for (std::uint64_t offset = (*infos)[aIndex]->GetSegmentDataStart(); offset != end; offset += piece.size()) {
        if (!m_parts->source->Read(offset, std::min(PIECE, end - offset), piece) ||
            std::fwrite(piece.data(), 1, piece.size(), aOut) != piece.size()) {
            m_errorMessage = "ERROR: The data of " + Detail::SegmentName(aKind, aIndex) + " cannot be read or written.";
            return false;
        }
    }
    return true;
}

NITFFieldSegment* ImageSupportDataNITF::SegmentOfName(const char* aName)
{
    std::string_view name = Detail::Trimmed(aName);
    std::size_t index = 0;
    const auto colon = name.find(':');
    const bool indexed = colon != std::string_view::npos;
    if (indexed && !Detail::ToCount(name.substr(colon + 1), index)) {
        return nullptr;
    }
    const NITFCnst::DataSegmentType kind =
        NITFStdDataSegment::GetDataSegmentCode(std::string(name.substr(0, colon)).c_str());
    if (!indexed && kind == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && m_currentImageSegment >= 0) {
        index = static_cast<std::size_t>(m_currentImageSegment);
    }
    return Segment(kind, index);
}

template<typename Value, typename Ask>
bool ImageSupportDataNITF::AskSegment(const char* aSegment, Value& aValue, Ask aAsk)
{
    ClearMessages();
    NITFFieldSegment* const segment = SegmentOfName(aSegment);
    if (segment == nullptr) {
        m_errorMessage = "ERROR: There is no segment " + Detail::Quoted(Detail::ViewOf(aSegment)) + " in the file.";
        return false;
    }
    const bool answered = aAsk(*segment, aValue);
    m_errorMessage = segment->GetErrorMessage();
    m_warningMessage = segment->GetWarningMessage();
    return answered;
}

bool ImageSupportDataNITF::GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue)
{
    return AskSegment(aSegment, aValue,
                      [aField](NITFFieldSegment& aOwner, bool& aOut) { return aOwner.GetFieldAsBool(aField, aOut); });
}

bool ImageSupportDataNITF::GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue)
{
    return AskSegment(aSegment, aValue, [aField](NITFFieldSegment& aOwner, double& aOut) {
        return aOwner.GetFieldAsDouble(aField, aOut);
    });
}

bool ImageSupportDataNITF::GetFieldAsLong(const char* aSegment, const char* aField, long& aValue)
{
    return AskSegment(aSegment, aValue,
                      [aField](NITFFieldSegment& aOwner, long& aOut) { return aOwner.GetFieldAsLong(aField, aOut); });
}

bool ImageSupportDataNITF::GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue,
                                            std::size_t& aLength)
{
    return AskSegment(aSegment, aValue, [aField, &aLength](NITFFieldSegment& aOwner, const char*& aOut) {
        return aOwner.GetFieldAsString(aField, aOut, aLength);
    });
}

bool ImageSupportDataNITF::GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue)
{
    return AskSegment(aSegment, aValue, [aField](NITFFieldSegment& aOwner, unsigned long& aOut) {
        return aOwner.GetFieldAsUnsignedLong(aField, aOut);
    });
}

void ImageSupportDataNITF::CollectSecurityClassificationMarkings(std::vector<std::string>& aMarkings) const
{
    aMarkings.emplace_back(Detail::Trimmed(m_parts->header->GetClassification()));
    for (const std::unique_ptr<NITFFieldSegment>& segment : m_parts->segments) {
        if (segment != nullptr) {
            aMarkings.emplace_back(Detail::Trimmed(segment->GetClassification()));
        }
    }
}

void ImageSupportDataNITF::SetHighestSecurityClassificationMarking()
{
    std::vector<std::string> markings;
    CollectSecurityClassificationMarkings(markings);
    int highest = NITFCnst::RANK_SC_UNKNOWN;
    for (const std::string& marking : markings) {
        const int rank = NITFCnst::GetSecurityClassificationRank(marking.c_str());
        if (rank > highest) {
            highest = rank;
            m_highestMarking = marking;
        }
    }
    // Whatever is classified calls for a SECRET system, TOP SECRET for the one above it.
    m_classificationLevel = highest >= NITFCnst::RANK_SC_TOP_SECRET    ? Util::CSMCnst::CLASS_TYPE_SCI
                            : highest > NITFCnst::RANK_SC_UNCLASSIFIED ? Util::CSMCnst::CLASS_TYPE_SECRET
                                                                       : Util::CSMCnst::CLASS_TYPE_UNCLASSIFIED;
}

}  // namespace ORMO::SensorModel::CSM
