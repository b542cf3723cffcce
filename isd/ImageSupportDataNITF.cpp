#include "isd/ImageSupportDataNITF.h"

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "raster/GDALNITFFileReader.h"

#include <algorithm>
#include <string_view>

namespace ORMO::SensorModel::CSM {

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

NITFImageSubheader* ImageSupportDataNITF::Parts::Image(std::size_t aIndex) const noexcept
{
    return static_cast<NITFImageSubheader*>(Segment(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex));
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

namespace {

std::FILE* StreamOf(const Detail::Lazy<Detail::IsdStream>& aStream, const ImageSupportDataNITF::Parts& aParts)
{
    const Detail::IsdStream* const stream = aStream.TryGet([&aParts]() -> std::unique_ptr<const Detail::IsdStream> {
        std::FILE* const file = aParts.source->OpenStream();
        return file == nullptr ? nullptr : std::make_unique<const Detail::IsdStream>(file, aParts.areStreamsClosed);
    });
    return stream == nullptr ? nullptr : stream->file;
}

}  // namespace

std::FILE* ImageSupportDataNITF::GetFileHandle() const
{
    return StreamOf(m_parts->stream, *m_parts);
}

std::FILE* ImageSupportDataNITF::GetImagePixelFileHandle() const
{
    return StreamOf(m_parts->pixelStream, *m_parts);
}

void ImageSupportDataNITF::CloseFileHandleOnResetOrDelete(bool aClose) noexcept
{
    m_parts->areStreamsClosed = aClose;
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

const char* ImageSupportDataNITF::GetNITFFileHeaderFieldFVER() const noexcept
{
    constexpr std::size_t WIDTH_OF_NAME = 4;  // "NITF" or "NSIF"
    return m_parts->versionText.c_str() + std::min(WIDTH_OF_NAME, m_parts->versionText.size());
}

const NITFFieldSegment* ImageSupportDataNITF::GetSegment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const
{
    ClearMessages();
    const NITFFieldSegment* const segment = m_parts->Segment(aKind, aIndex);
    if (segment == nullptr) {
        RefuseQuery("ERROR: There is no segment " + Detail::Quoted(Detail::SegmentName(aKind, aIndex)) +
                    (aIndex < m_parts->Count(aKind) ? " to ask: it was not read." : " in the file."));
    }
    return segment;
}

// A kind has one class, so the segment of a kind is of that class.
const NITFImageSubheader* ImageSupportDataNITF::GetImageSubheader(std::size_t aIndex) const
{
    return static_cast<const NITFImageSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex));
}

const NITFTextSubheader* ImageSupportDataNITF::GetTextSubheader(std::size_t aIndex) const
{
    return static_cast<const NITFTextSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_TEXT, aIndex));
}

const NITF21GraphicSubheader* ImageSupportDataNITF::GetGraphicSubheader(std::size_t aIndex) const
{
    return static_cast<const NITF21GraphicSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC, aIndex));
}

const NITF20SymbolSubheader* ImageSupportDataNITF::GetSymbolSubheader(std::size_t aIndex) const
{
    return static_cast<const NITF20SymbolSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_SYMBOL, aIndex));
}

const NITF20LabelSubheader* ImageSupportDataNITF::GetLabelSubheader(std::size_t aIndex) const
{
    return static_cast<const NITF20LabelSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_LABEL, aIndex));
}

const NITFDESSubheader* ImageSupportDataNITF::GetDataExtensionSegment(std::size_t aIndex) const
{
    return static_cast<const NITFDESSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aIndex));
}

const NITFRESSubheader* ImageSupportDataNITF::GetReservedExtensionSegment(std::size_t aIndex) const
{
    return static_cast<const NITFRESSubheader*>(GetSegment(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, aIndex));
}

bool ImageSupportDataNITF::CheckVersionSpecific(NITFCnst::DataSegmentType aKind, std::string_view aName) const
{
    ClearMessages();
    return Detail::IsVersionSpecific(aKind, m_parts->Version()) ||
           RefuseQuery("ERROR: " + Detail::Quoted(aName) + " names no segments that only " + GetFileTypeAndVersion() +
                       " has.");
}

const NITFDrawnSegment* ImageSupportDataNITF::GetVersionSpecificDataSegment(NITFCnst::DataSegmentType aKind,
                                                                            std::size_t aIndex) const
{
    return CheckVersionSpecific(aKind, NITFStdDataSegment::GetDataSegmentName(aKind))
               ? static_cast<const NITFDrawnSegment*>(GetSegment(aKind, aIndex))
               : nullptr;
}

bool ImageSupportDataNITF::IsOverflowPlaced(std::size_t aDes) const
{
    const NITFDESSubheader* const des = GetDataExtensionSegment(aDes);
    return des != nullptr && des->IsOverflowPlaced();
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

bool ImageSupportDataNITF::SetCurrentImageSegment(long aSegment)
{
    if (GetImageSubheader(static_cast<std::size_t>(aSegment)) == nullptr) {
        return false;
    }
    m_currentImageSegment = aSegment;
    return true;
}

bool ImageSupportDataNITF::WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut) const
{
    constexpr std::uint64_t PIECE = 1U << 20U;
    ClearMessages();
    const std::string name = Detail::SegmentName(aKind, aIndex);
    const NITFStdDataSegmentInfos::Infos* const infos = m_parts->infos.Get(aKind);
    if (infos == nullptr || aIndex >= infos->size() || aOut == nullptr) {
        return RefuseQuery("ERROR: There is no segment " + Detail::Quoted(name) + " in the file.");
    }
    const std::uint64_t start = (*infos)[aIndex]->GetSegmentDataStart();
    const std::uint64_t end = start + (*infos)[aIndex]->GetSegmentDataSize();
    if (end > m_parts->source->Size()) {
        return RefuseQuery("ERROR: The data of " + name + " end at byte " + std::to_string(end) +
                           ", beyond the end of the file at " + std::to_string(m_parts->source->Size()) + ".");
    }
    std::string piece;
    for (std::uint64_t offset = start; offset != end; offset += piece.size()) {
        if (!m_parts->source->Read(offset, std::min(PIECE, end - offset), piece) ||
            std::fwrite(piece.data(), 1, piece.size(), aOut) != piece.size()) {
            return RefuseQuery("ERROR: The data of " + name + " cannot be read or written.");
        }
    }
    return true;
}

bool ImageSupportDataNITF::PlaceOfName(const char* aName, NITFCnst::DataSegmentType& aKind, std::size_t& aIndex) const
{
    const std::string_view name = Detail::Trimmed(aName);
    const auto colon = name.find(':');
    aKind = NITFStdDataSegment::GetDataSegmentCode(std::string(name.substr(0, colon)).c_str());
    aIndex = 0;
    bool isName = aKind != NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    if (colon != std::string_view::npos) {
        isName = isName && Detail::ToCount(name.substr(colon + 1), aIndex);
    } else if (aKind == NITFCnst::DATA_SEGMENT_TYPE_IMAGE && m_currentImageSegment >= 0) {
        aIndex = static_cast<std::size_t>(m_currentImageSegment);
    }
    if (!isName) {
        ClearMessages();
        RefuseQuery("ERROR: There is no segment " + Detail::Quoted(Detail::ViewOf(aName)) + " in the file.");
    }
    return isName;
}

const NITFFieldSegment* ImageSupportDataNITF::SegmentOfName(const char* aName) const
{
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    std::size_t index = 0;
    return PlaceOfName(aName, kind, index) ? GetSegment(kind, index) : nullptr;
}

bool ImageSupportDataNITF::Told(bool aAnswer, const NITFFieldSegment& aSegment) const
{
    SetMessages(aSegment.GetErrorMessage(), aSegment.GetWarningMessage());
    return aAnswer;
}

template<typename Ask>
bool ImageSupportDataNITF::AskSegment(const char* aSegment, Ask aAsk) const
{
    const NITFFieldSegment* const segment = SegmentOfName(aSegment);
    return segment != nullptr && Told(aAsk(*segment), *segment);
}

bool ImageSupportDataNITF::GetFieldAsBool(const char* aSegment, const char* aField, bool& aValue)
{
    return AskSegment(aSegment, [&](const NITFFieldSegment& aOwner) { return aOwner.GetFieldAsBool(aField, aValue); });
}

bool ImageSupportDataNITF::GetFieldAsDouble(const char* aSegment, const char* aField, double& aValue)
{
    return AskSegment(aSegment,
                      [&](const NITFFieldSegment& aOwner) { return aOwner.GetFieldAsDouble(aField, aValue); });
}

bool ImageSupportDataNITF::GetFieldAsLong(const char* aSegment, const char* aField, long& aValue)
{
    return AskSegment(aSegment, [&](const NITFFieldSegment& aOwner) { return aOwner.GetFieldAsLong(aField, aValue); });
}

bool ImageSupportDataNITF::GetFieldAsString(const char* aSegment, const char* aField, const char*& aValue,
                                            std::size_t& aLength)
{
    return AskSegment(aSegment,
                      [&](const NITFFieldSegment& aOwner) { return aOwner.GetFieldAsString(aField, aValue, aLength); });
}

bool ImageSupportDataNITF::GetFieldAsUnsignedLong(const char* aSegment, const char* aField, unsigned long& aValue)
{
    return AskSegment(aSegment,
                      [&](const NITFFieldSegment& aOwner) { return aOwner.GetFieldAsUnsignedLong(aField, aValue); });
}

int ImageSupportDataNITF::IsFieldValueInRange(const char* aSegment, const char* aField, const char* aValue) const
{
    const NITFFieldSegment* const segment = SegmentOfName(aSegment);
    const int verdict = segment == nullptr ? -1 : segment->IsFieldValueInRange(aField, aValue);
    if (segment != nullptr && verdict < 0) {
        RefuseQuery("ERROR: " + Detail::Quoted(Detail::ViewOf(aSegment)) + " has no field " +
                    Detail::Quoted(Detail::ViewOf(aField)) + ", or there is no value to hold against it.");
    }
    return verdict;
}

const char* ImageSupportDataNITF::SerializeDataSegment(const char* aSegment)
{
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    std::size_t index = 0;
    const bool exists = PlaceOfName(aSegment, kind, index) && GetSegment(kind, index) != nullptr;
    return exists ? m_parts->Segment(kind, index)->SerializeDataSegment("") : nullptr;
}

}  // namespace ORMO::SensorModel::CSM
