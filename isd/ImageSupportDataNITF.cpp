#include "isd/ImageSupportDataNITF.h"

#include "fields/ByteSource.h"
#include "fields/MessageText.h"
#include "fields/Number.h"
#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/TsmViews.h"
#include "raster/GDALNITFFileReader.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <algorithm>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* SOURCE = "ImageSupportDataNITF::InitImageSupportDataNITF";

[[noreturn]] void Refuse(const std::string& aText)
{
    throw ImageSupportDataConstructionException(aText.c_str(), SOURCE);
}

std::string SegmentName(NITFCnst::DataSegmentType aKind, std::size_t aIndex)
{
    std::string name = NITFStdDataSegment::GetDataSegmentName(aKind);
    return aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? name : name + ' ' + std::to_string(aIndex);
}

}  // namespace

ImageSupportDataNITF::ImageSupportDataNITF(const char* aPath, NITFCnst::Version aVersion)
    : ImageSupportData(
          aPath, SupportedISD::RasterFormat::NITF,
          aVersion == NITFCnst::NITF_VERSION_NUMBER_20 ? NITFCnst::NITF_VERSION_200 : NITFCnst::NITF_VERSION_210),
      m_version(aVersion),
      m_tsmViews(std::make_unique<Detail::TsmViews>())
{
}

ImageSupportDataNITF::~ImageSupportDataNITF()
{
    if (m_stream != nullptr) {
        std::fclose(m_stream);
    }
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

void ImageSupportDataNITF::InitImageSupportDataNITF(bool aImageSegmentsOnly, bool aSpecificOnly, char** aErrors,
                                                    char** aWarnings, int aImageSegment)
{
    if (aErrors != nullptr) {
        *aErrors = nullptr;
    }
    std::string reason;
    m_source = Detail::ByteSource::Open(m_fileName, reason);
    if (m_source == nullptr) {
        Refuse("ERROR: Failed to open the NITF file: " + reason + ".");
    }
    InitFileHeader(aSpecificOnly);
    CheckLengths();
    CheckSegmentPlaces();
    InitImageSubheaders(aSpecificOnly);
    if (!aImageSegmentsOnly) {
        CheckUnreadSegments();
        ExtractTextSegments(aSpecificOnly);
        ExtractDESs(aSpecificOnly);
        ExtractRESs(aSpecificOnly);
        SetDataSegmentsOverflowTREs();
    }
    SetHighestSecurityClassificationMarking();
    if (aImageSegment >= 0) {
        SetCurrentImageSegment(aImageSegment);
    }
    if (m_warningCount > m_warnings.size()) {
        m_warnings.push_back("WARN: " + std::to_string(m_warningCount - m_warnings.size()) +
                             " further messages are left out.");
    }
    for (const std::string& warning : m_warnings) {
        Detail::AppendBlock(m_warningMessage, warning);
    }
    if (aWarnings != nullptr) {
        *aWarnings = nullptr;
        if (!m_warningMessage.empty()) {
            Util::CSMUtilString::Copy(m_warningMessage.c_str(), aWarnings);
        }
    }
}

void ImageSupportDataNITF::InitFileHeader(bool aSpecificOnly)
{
    Detail::RawFileHeader raw;
    std::string errors;
    if (!Detail::ReadRawFileHeader(*m_source, m_version, raw, errors)) {
        Refuse(errors);
    }
    try {
        m_header = CreateNITFFileHeader(raw.bytes, raw.streaming, aSpecificOnly);
    } catch (const ImageSupportDataConstructionException& exception) {
        std::string text = exception.GetAdditionalMessage();
        Detail::AppendBlock(text, raw.hint);
        Refuse(text);
    }
    m_versionText = m_header->GetNITFVersion();
    AddWarning(raw.warnings);
    AddWarning(raw.hint);
    AddWarning(m_header->GetWarningMessage());
}

void ImageSupportDataNITF::CheckLengths()
{
    const std::uint64_t headerLength = m_header->GetFileHeaderLength();
    const std::uint64_t fileLength = m_header->GetFileLength();
    const std::uint64_t size = m_source->Size();
    std::uint64_t sum = headerLength;
    for (const NITFSegmentLengths& kind : m_header->GetSegmentLengths()) {
        for (std::size_t i = 0; i != kind.headers.size(); ++i) {
            sum += kind.headers[i] + kind.data[i];
        }
    }
    // The tables decide where the segments are, so an FL that only fails to cover them is no reason to refuse the file.
    const std::uint64_t covered = fileLength >= headerLength ? std::max(fileLength, sum) : fileLength;
    std::string errors;
    if (!m_infos.Build(m_version, headerLength, covered, m_header->GetSegmentLengths(), errors)) {
        Refuse(errors);
    }
    const bool unknown = std::string_view(m_header->GetFileHeaderField("FL")) == NITFCnst::STR_VAL_999999999999;
    if ((fileLength != sum || fileLength != size) && !unknown) {
        AddWarning("WARN: FL says " + std::to_string(fileLength) + " byte(s), the segment tables add up to " +
                   std::to_string(sum) + ", the file has " + std::to_string(size) +
                   "; the segment tables decide where things are.");
    }
}

void ImageSupportDataNITF::CheckSegmentPlaces()
{
    const std::uint64_t size = m_source->Size();
    for (const NITFStdDataSegmentInfo* const info : m_infos.InFileOrder()) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const std::uint64_t headerEnd = info->GetSegmentDataStart();
        const std::uint64_t dataEnd = headerEnd + info->GetSegmentDataSize();
        if (headerEnd > size) {
            return;  // refused, with the field that is missing, when the subheader is read
        }
        if (dataEnd > size) {
            AddWarning("WARN: The data of " + SegmentName(info->GetDataSegmentType(), index) + " end at byte " +
                       std::to_string(dataEnd) + ", beyond the end of the file at " + std::to_string(size) +
                       "; they are not available.");
        }
    }
}

std::string ImageSupportDataNITF::RawSubheader(const NITFStdDataSegmentInfo& aInfo) const
{
    const std::string name = SegmentName(aInfo.GetDataSegmentType(), static_cast<std::size_t>(aInfo.GetSegmentIndex()));
    std::string raw;
    if (!m_source->ReadUpTo(aInfo.GetSegmentHeaderStart(), aInfo.GetSegmentHeaderSize(), raw)) {
        Refuse("ERROR: The subheader of " + name + " at byte offset " + std::to_string(aInfo.GetSegmentHeaderStart()) +
               " cannot be read.");
    }
    const std::string_view mark = std::string_view(raw).substr(0, 2);
    if (raw.size() >= 2 && mark != aInfo.GetSegmentType()) {
        Refuse("ERROR: The subheader of " + name + " at byte offset " + std::to_string(aInfo.GetSegmentHeaderStart()) +
               " begins with " + Detail::Shown(mark) + " in place of its mark " +
               Detail::Quoted(aInfo.GetSegmentType()) + ".");
    }
    return raw;
}

template<typename Subheader, typename Create>
void ImageSupportDataNITF::ReadSegments(NITFCnst::DataSegmentType aKind,
                                        std::vector<std::unique_ptr<Subheader>>& aSegments, Create aCreate)
{
    const NITFStdDataSegmentInfos::Infos* const infos = m_infos.Get(aKind);
    if (infos == nullptr) {
        return;
    }
    aSegments.reserve(infos->size());
    for (const auto& info : *infos) {
        const auto index = static_cast<std::size_t>(info->GetSegmentIndex());
        const std::string raw = RawSubheader(*info);
        std::string text;
        if (raw.size() < info->GetSegmentHeaderSize()) {
            text = "ERROR: The subheader of " + SegmentName(aKind, index) + " ends at byte " +
                   std::to_string(info->GetSegmentDataStart()) + ", beyond the end of the file at " +
                   std::to_string(m_source->Size()) + ".";
        }
        try {
            std::unique_ptr<Subheader> segment = aCreate(raw, *info);
            if (text.empty()) {
                AddSegmentWarning(*segment, index);
                aSegments.push_back(std::move(segment));
                continue;
            }
        } catch (const ImageSupportDataConstructionException& exception) {
            Detail::AppendBlock(text, exception.GetAdditionalMessage());
            text += "\n[" + SegmentName(aKind, index) + "]";
        }
        Refuse(text);
    }
}

void ImageSupportDataNITF::InitImageSubheaders(bool aSpecificOnly)
{
    ReadSegments(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, m_images,
                 [&](const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo) {
                     return CreateNITFImageSubheader(aRaw, aInfo, aSpecificOnly);
                 });
}

void ImageSupportDataNITF::ExtractTextSegments(bool aSpecificOnly)
{
    ReadSegments(NITFCnst::DATA_SEGMENT_TYPE_TEXT, m_texts,
                 [&](const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo) {
                     return CreateNITFTextSubheader(aRaw, aInfo, aSpecificOnly);
                 });
}

void ImageSupportDataNITF::ExtractDESs(bool aSpecificOnly)
{
    ReadSegments(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, m_des,
                 [&](const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo) {
                     return CreateNITFDESSubheader(aRaw, aInfo, aSpecificOnly);
                 });
}

void ImageSupportDataNITF::ExtractRESs(bool aSpecificOnly)
{
    ReadSegments(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION, m_res,
                 [&](const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo) {
                     return CreateNITFRESSubheader(aRaw, aInfo, aSpecificOnly);
                 });
}

void ImageSupportDataNITF::CheckUnreadSegments()
{
    for (const NITFStdDataSegmentInfo* const info : m_infos.InFileOrder()) {
        const std::string_view type(info->GetSegmentType());
        if (type != "SY" && type != "LA") {
            continue;
        }
        if (!m_source->Holds(info->GetSegmentHeaderStart(), info->GetSegmentHeaderSize())) {
            Refuse("ERROR: The subheader of " +
                   SegmentName(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex())) +
                   " ends at byte " + std::to_string(info->GetSegmentDataStart()) + ", beyond the end of the file at " +
                   std::to_string(m_source->Size()) + ".");
        }
        static_cast<void>(RawSubheader(*info));
    }
}

Util::CSMCnst::ByteOrder ImageSupportDataNITF::TreByteOrder() const noexcept
{
    return m_header->IsRPFFile() ? m_header->GetRPFFileByteOrder() : Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
}

void ImageSupportDataNITF::AddWarning(const std::string& aText)
{
    if (aText.empty()) {
        return;
    }
    if (++m_warningCount <= Detail::MessageText::MOST_MESSAGES) {
        m_warnings.push_back(aText);
    }
}

void ImageSupportDataNITF::AddSegmentWarning(const NITFStdDataSegment& aSegment, std::size_t aIndex)
{
    const std::string text = aSegment.GetWarningMessage();
    if (!text.empty()) {
        AddWarning(text + "\n[" + SegmentName(aSegment.GetDataSegmentType(), aIndex) + "]");
    }
}

std::uint64_t ImageSupportDataNITF::GetNITFFileSize() const noexcept
{
    return m_source->Size();
}

const char* ImageSupportDataNITF::GetFileTypeAndVersion() const
{
    return m_versionText.c_str();
}

SupportedISD::Type ImageSupportDataNITF::GetIsdRasterFormat()
{
    return SupportedISD::ISD_TYPE_NITF;
}

std::FILE* ImageSupportDataNITF::GetFileHandle() const
{
    if (m_stream == nullptr) {
        const int descriptor = ::open(m_source->Path().c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
        m_stream = descriptor < 0 ? nullptr : ::fdopen(descriptor, "rb");
        if (m_stream == nullptr && descriptor >= 0) {
            ::close(descriptor);
        }
    }
    return m_stream;
}

long ImageSupportDataNITF::GetNumOfImageSegments() const
{
    return static_cast<long>(m_images.size());
}

namespace {

template<typename Subheader>
Subheader* At(const std::vector<std::unique_ptr<Subheader>>& aSegments, std::size_t aIndex) noexcept
{
    return aIndex < aSegments.size() ? aSegments[aIndex].get() : nullptr;
}

}  // namespace

const NITFImageSubheader* ImageSupportDataNITF::GetImageSubheader(std::size_t aIndex) const noexcept
{
    return At(m_images, aIndex);
}

const NITFTextSubheader* ImageSupportDataNITF::GetTextSubheader(std::size_t aIndex) const noexcept
{
    return At(m_texts, aIndex);
}

const NITFDESSubheader* ImageSupportDataNITF::GetDataExtensionSegment(std::size_t aIndex) const noexcept
{
    return At(m_des, aIndex);
}

const NITFRESSubheader* ImageSupportDataNITF::GetReservedExtensionSegment(std::size_t aIndex) const noexcept
{
    return At(m_res, aIndex);
}

NITFFieldSegment* ImageSupportDataNITF::Segment(NITFCnst::DataSegmentType aKind, std::size_t aIndex) const noexcept
{
    switch (aKind) {
        case NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER:
            return aIndex == 0 ? m_header.get() : nullptr;
        case NITFCnst::DATA_SEGMENT_TYPE_IMAGE:
            return At(m_images, aIndex);
        case NITFCnst::DATA_SEGMENT_TYPE_TEXT:
            return At(m_texts, aIndex);
        case NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION:
            return At(m_des, aIndex);
        case NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION:
            return At(m_res, aIndex);
        default:
            return nullptr;
    }
}

const NITFFieldSegment* ImageSupportDataNITF::GetSegment(NITFCnst::DataSegmentType aKind,
                                                         std::size_t aIndex) const noexcept
{
    return Segment(aKind, aIndex);
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
    if (aSegment < 0 || static_cast<std::size_t>(aSegment) >= m_images.size()) {
        return false;
    }
    m_currentImageSegment = aSegment;
    return true;
}

bool ImageSupportDataNITF::WriteSegmentData(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::FILE* aOut)
{
    constexpr std::uint64_t PIECE = 1U << 20U;
    ClearMessages();
    const NITFStdDataSegmentInfos::Infos* const infos = m_infos.Get(aKind);
    if (infos == nullptr || aIndex >= infos->size() || aOut == nullptr) {
        m_errorMessage = "ERROR: There is no segment " + Detail::Quoted(SegmentName(aKind, aIndex)) + " in the file.";
        return false;
    }
    const std::uint64_t end = (*infos)[aIndex]->GetSegmentDataStart() + (*infos)[aIndex]->GetSegmentDataSize();
    if (end > m_source->Size()) {
        m_errorMessage = "ERROR: The data of " + SegmentName(aKind, aIndex) + " end at byte " + std::to_string(end) +
                         ", beyond the end of the file at " + std::to_string(m_source->Size()) + ".";
        return false;
    }
    std::string piece;
    for (std::uint64_t offset = (*infos)[aIndex]->GetSegmentDataStart(); offset != end; offset += piece.size()) {
        if (!m_source->Read(offset, std::min(PIECE, end - offset), piece) ||
            std::fwrite(piece.data(), 1, piece.size(), aOut) != piece.size()) {
            m_errorMessage = "ERROR: The data of " + SegmentName(aKind, aIndex) + " cannot be read or written.";
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
    aMarkings.emplace_back(Detail::Trimmed(m_header->GetClassification()));
    for (const NITFStdDataSegmentInfo* const info : m_infos.InFileOrder()) {
        const NITFFieldSegment* const segment =
            Segment(info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()));
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
}

}  // namespace ORMO::SensorModel::CSM
