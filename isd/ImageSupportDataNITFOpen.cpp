// How a file becomes an ISD: opened once, its header and every segment read in file order.

#include "fields/MessageText.h"
#include "foundation/CSMExceptions.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "isd/detail/HeaderRepair.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/WrappedIsd.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Request = ImageSupportDataNITF::Request;
using Parts = ImageSupportDataNITF::Parts;

namespace {

/// The error text of all that was found; refuses the file with it. Warnings stand behind the errors: one of them may be
/// the true cause.
[[noreturn]] void Refuse(const Detail::FindingList& aFindings)
{
    std::string text = aFindings.Blocks(true);
    Detail::AppendBlock(text, aFindings.Blocks(false));
    throw ImageSupportDataConstructionException(text.c_str(), "ImageSupportDataNITF::InitImageSupportDataNITF");
}

/// Reads the segments of one file into its parts.
class FileReader
{
public:
    FileReader(Request& aRequest, Parts& aParts) : m_request(aRequest), m_parts(aParts), m_findings(aRequest.findings)
    {
    }

    void Read()
    {
        ReadHeader();
        BuildInfos();
        if (m_request.wrapped != nullptr) {
            TakeWrapped(*m_request.wrapped);
        }
        CheckLengths();
        ReadSegments();
        Detail::PlaceOverflow(m_parts, m_findings);
        if (m_request.wrapped != nullptr) {
            Detail::AddTresOfRecords(*m_request.wrapped, m_parts, m_findings);
        }
        Detail::PlaceDrawnSegments(m_parts, m_findings);
        if (m_request.imageSegmentsOnly) {
            DropOthers();
        }
    }

private:
    using Info = NITFStdDataSegmentInfo;

    void ReadHeader();
    void BuildInfos();
    void TakeWrapped(const WrapperCSMIsdNITF& aIsd);
    std::uint64_t SumOfLengths() const;
    void CheckLengths();
    void ReadSegments();
    void ReadSegment(const Info& aInfo, std::unique_ptr<NITFFieldSegment>& aSegment);
    void NoteOverflow(const NITFFieldSegment& aSegment);
    bool IsWanted(const Info& aInfo) const;
    bool IsDrawn(NITFCnst::DataSegmentType aKind) const;
    void DropOthers();
    std::string_view Subheader(const Info& aInfo);
    void AddError(const Info& aInfo, const std::string& aText);

    Request& m_request;
    Parts& m_parts;
    Detail::FindingList& m_findings;
    // The part of the file that was read last: small segments stand close together.
    std::string m_window;
    std::uint64_t m_windowStart = 0;
    std::set<std::uint64_t> m_overflow;  ///< the numbers, from 1, of the DESs that what was read names
};

void FileReader::ReadHeader()
{
    Detail::RawFileHeader raw =
        Detail::ReadRawFileHeader(*m_parts.source, m_request.first, m_request.version, m_findings);
    // A header that is read again with another number in it is judged by what is found then.
    const bool isRepaired = m_request.salvage && !raw.streaming &&
                            Detail::RepairFileHeader(*m_parts.source, m_request.version, raw.bytes, m_findings);
    NITFFieldSegment::Input input;
    input.versionText = NITFCnst::GetNITFVersionString(m_request.version);
    input.raw = std::move(raw.bytes);
    input.streaming = raw.streaming;
    input.specificOnly = m_request.specificOnly;
    input.fileName = m_request.path.c_str();
    input.shared = &m_findings;
    input.salvage = m_request.salvage;
    const std::size_t errors = m_findings.Errors();
    try {
        std::unique_ptr<NITFFieldSegment> header =
            Detail::MakeSegment(NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, m_request.version, input);
        m_parts.header.reset(dynamic_cast<NITFFileHeader*>(header.release()));
    } catch (const ImageSupportDataConstructionException&) {
        Refuse(m_findings);
    }
    if (errors != 0 && !isRepaired) {
        Refuse(m_findings);  // HL cannot be, whatever the fields say
    }
    m_parts.versionText = m_parts.header->GetNITFVersion();
    m_window = std::move(m_request.first);
}

std::uint64_t FileReader::SumOfLengths() const
{
    std::uint64_t sum = m_parts.header->GetFileHeaderLength();
    for (const NITFSegmentLengths& kind : m_parts.header->GetSegmentLengths()) {
        for (std::size_t i = 0; i != kind.headers.size(); ++i) {
            sum += kind.headers[i] + kind.data[i];
        }
    }
    return sum;
}

void FileReader::BuildInfos()
{
    const NITFFileHeader& header = *m_parts.header;
    const std::uint64_t headerLength = header.GetFileHeaderLength();
    const std::uint64_t fileLength = header.GetFileLength();
    // The tables decide where the segments are, so an FL that only fails to cover them is no reason to refuse the file.
    const bool isUsable = fileLength >= headerLength || m_request.salvage;
    const std::uint64_t covered = isUsable ? std::max(fileLength, SumOfLengths()) : fileLength;
    std::string errors;
    if (!m_parts.infos.Build(header.GetVersion(), headerLength, covered, header.GetSegmentLengths(), errors)) {
        // The length of the file is what a header with readable numbers can still have wrong.
        m_findings.Add(covered < headerLength ? header.Inside().About(errors, "FL") : Detail::MakeFinding(errors),
                       errors);
        Refuse(m_findings);
    }
}

/// Only the places of the segments tell where the parts of the ISD belong.
void FileReader::TakeWrapped(const WrapperCSMIsdNITF& aIsd)
{
    m_parts.isOfWrapped = true;
    m_parts.source = Detail::SourceOfWrapped(aIsd, m_parts.infos, m_findings);
    if (m_parts.source == nullptr) {
        Refuse(m_findings);
    }
}

void FileReader::CheckLengths()
{
    const NITFFileHeader& header = *m_parts.header;
    const std::uint64_t fileLength = header.GetFileLength();
    const std::uint64_t size = m_parts.source->Size();
    const std::uint64_t sum = SumOfLengths();
    const bool unknown = header.FieldText("FL") == NITFCnst::STR_VAL_999999999999;
    if ((fileLength != sum || fileLength != size) && !unknown) {
        Finding finding = header.Inside().About("WARN: FL says " + std::to_string(fileLength) +
                                                    " byte(s), the segment tables add up to " + std::to_string(sum) +
                                                    ", the file has " + std::to_string(size) +
                                                    "; the segment tables decide where things are.",
                                                "FL");
        finding.rule = fileLength != sum ? "FH-03" : "FH-04";
        m_findings.Add(std::move(finding));
    }
    for (const Info* const info : m_parts.infos.InFileOrder()) {
        const std::uint64_t end = info->GetSegmentDataStart() + info->GetSegmentDataSize();
        if (info->GetSegmentDataStart() <= size && end > size) {
            Finding finding = Detail::MakeFinding("WARN: The data end at byte " + std::to_string(end) +
                                                      ", beyond the end of the file at " + std::to_string(size) +
                                                      "; they are not available.",
                                                  "RD-01");
            finding.segment = NITFStdDataSegment::GetDataSegmentName(info->GetDataSegmentType());
            finding.index = info->GetSegmentIndex();
            finding.offset = info->GetSegmentDataStart();
            m_findings.Add(std::move(finding));
        }
    }
}

bool FileReader::IsWanted(const Info& aInfo) const
{
    if (m_request.wrapped != nullptr && aInfo.GetDataSegmentType() != NITFCnst::DATA_SEGMENT_TYPE_IMAGE &&
        aInfo.GetDataSegmentType() != NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION) {
        return false;  // no CSM API ISD carries it
    }
    if (!m_request.imageSegmentsOnly || IsDrawn(aInfo.GetDataSegmentType())) {
        return true;
    }
    // What did not fit into the file header, an image or a graphic is its own all the same.
    return aInfo.GetDataSegmentType() == NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION &&
           m_overflow.count(static_cast<std::uint64_t>(aInfo.GetSegmentIndex()) + 1) != 0;
}

/// What lies over images belongs to them, whoever asks for images only.
bool FileReader::IsDrawn(NITFCnst::DataSegmentType aKind) const
{
    const Detail::SegmentKind* const kind = Detail::FindKind(aKind, m_parts.Version());
    return kind != nullptr && kind->drawing.displayLevel != nullptr;
}

void FileReader::ReadSegments()
{
    const auto& infos = m_parts.infos.InFileOrder();
    m_parts.segments.resize(infos.size());
    NoteOverflow(*m_parts.header);
    for (std::size_t i = 0; i != infos.size(); ++i) {
        if (!IsWanted(*infos[i])) {
            continue;
        }
        const std::size_t errors = m_findings.Errors();
        ReadSegment(*infos[i], m_parts.segments[i]);
        if (m_findings.Errors() != errors && !m_request.salvage) {
            Refuse(m_findings);
        }
        if (m_parts.segments[i] != nullptr) {
            NoteOverflow(*m_parts.segments[i]);
        }
    }
}

void FileReader::NoteOverflow(const NITFFieldSegment& aSegment)
{
    for (const Detail::ExtensionArea& area : aSegment.Inside().layout->kind->areas) {
        m_overflow.insert(aSegment.Inside().Number(area.overflow));
    }
}

void FileReader::AddError(const Info& aInfo, const std::string& aText)
{
    Finding finding = Detail::MakeFinding(aText);
    finding.segment = NITFStdDataSegment::GetDataSegmentName(aInfo.GetDataSegmentType());
    finding.index = aInfo.GetSegmentIndex();
    finding.offset = aInfo.GetSegmentHeaderStart();
    m_findings.Add(std::move(finding));
}

std::string_view FileReader::Subheader(const Info& aInfo)
{
    const std::uint64_t start = aInfo.GetSegmentHeaderStart();
    const std::uint64_t size = aInfo.GetSegmentHeaderSize();
    const auto inWindow = [&] {
        return start >= m_windowStart && start - m_windowStart <= m_window.size() &&
               size <= m_window.size() - static_cast<std::size_t>(start - m_windowStart);
    };
    if (!inWindow()) {
        if (!m_parts.source->ReadUpTo(start, std::max<std::uint64_t>(size, Detail::FIRST_READ), m_window)) {
            m_window.clear();
        }
        m_windowStart = start;
    }
    return std::string_view(m_window).substr(static_cast<std::size_t>(start - m_windowStart),
                                             static_cast<std::size_t>(size));
}

void FileReader::ReadSegment(const Info& aInfo, std::unique_ptr<NITFFieldSegment>& aSegment)
{
    const std::string_view raw = Subheader(aInfo);
    const std::uint64_t size = m_parts.source->Size();
    if (raw.empty() && m_parts.source->Holds(aInfo.GetSegmentHeaderStart(), aInfo.GetSegmentHeaderSize())) {
        AddError(aInfo, "ERROR: The subheader cannot be read.");
        return;
    }
    const std::string_view mark = raw.substr(0, 2);
    if (mark.size() == 2 && mark != aInfo.GetSegmentType()) {
        AddError(aInfo, "ERROR: The subheader begins with " + Detail::Shown(mark) + " in place of its mark " +
                            Detail::Quoted(aInfo.GetSegmentType()) + ".");
        return;
    }
    const bool cut = raw.size() < aInfo.GetSegmentHeaderSize();
    if (cut) {
        AddError(aInfo, "ERROR: The subheader ends at byte " + std::to_string(aInfo.GetSegmentDataStart()) +
                            ", beyond the end of the file at " + std::to_string(size) + ".");
    }
    NITFFieldSegment::Input input;
    input.raw = raw;
    input.info = aInfo;
    input.versionText = m_parts.versionText.c_str();
    input.source = m_parts.source;
    input.byteOrder =
        m_parts.header->IsRPFFile() ? m_parts.header->GetRPFFileByteOrder() : Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN;
    input.specificOnly = m_request.specificOnly;
    input.shared = &m_findings;
    try {
        aSegment = Detail::MakeSegment(aInfo.GetDataSegmentType(), m_parts.Version(), input);
    } catch (const ImageSupportDataConstructionException&) {
        return;  // what was wrong stands among the findings
    }
    if (cut) {
        aSegment.reset();  // its fields may end before the cut, but the length of the subheader says otherwise
    }
}

void FileReader::DropOthers()
{
    for (std::unique_ptr<NITFFieldSegment>& segment : m_parts.segments) {
        if (segment != nullptr && !IsDrawn(segment->GetDataSegmentType())) {
            segment.reset();
        }
    }
}

std::unique_ptr<Parts> ReadParts(Request& aRequest)
{
    if (aRequest.source == nullptr) {
        aRequest.findings.Add(Detail::MakeFinding("ERROR: Failed to open the NITF file: " + aRequest.reason + "."));
        Refuse(aRequest.findings);
    }
    auto parts = std::make_unique<Parts>();
    parts->source = aRequest.source;
    parts->specificOnly = aRequest.specificOnly;
    parts->salvage = aRequest.salvage;
    FileReader(aRequest, *parts).Read();
    return parts;
}

}  // namespace

ImageSupportDataNITF::ImageSupportDataNITF(Request& aRequest)
    : ImageSupportData(aRequest.path.c_str(), SupportedISD::RasterFormat::NITF,
                       aRequest.version == NITFCnst::NITF_VERSION_NUMBER_20 ? NITFCnst::NITF_VERSION_200
                                                                            : NITFCnst::NITF_VERSION_210,
                       aRequest.source != nullptr),
      m_parts(ReadParts(aRequest))
{
    TakeFindings(aRequest);
    if (aRequest.imageSegment >= 0 && aRequest.imageSegment < GetNumOfImageSegments()) {
        m_currentImageSegment = aRequest.imageSegment;
    }
}

void ImageSupportDataNITF::TakeFindings(Request& aRequest)
{
    m_parts->findings = std::move(aRequest.findings);
    m_errorMessage = m_parts->findings.Blocks(true);
    m_warningMessage = m_parts->findings.Blocks(false);
    SetHighestSecurityClassificationMarking();
}

bool ImageSupportDataNITF::Open(bool aImageSegmentsOnly, char** aErrors, char** aWarnings)
{
    Request request = m_parts->source->IsMemory() ? Request::OfSource(m_parts->source, m_fileName)
                                                  : Request::Open(m_fileName.c_str());
    request.imageSegmentsOnly = aImageSegmentsOnly;
    request.specificOnly = m_parts->specificOnly;
    request.salvage = m_parts->salvage;
    bool isOpen = false;
    if (m_parts->isOfWrapped) {
        request.findings.Add(Detail::MakeFinding("ERROR: There is no file to open: the object was made without one."));
    } else if (request.source != nullptr && Detail::LayoutVersion(request.version) != m_parts->Version()) {
        request.findings.Add(request.NotIdentified("ERROR: The file is no longer of the version of this object."));
    } else {
        try {
            m_parts = ReadParts(request);
            isOpen = true;
        } catch (const CSMException&) {
            isOpen = false;  // what was wrong stands among the findings
        }
    }
    const std::string errors = request.findings.Blocks(true);
    const std::string warnings = request.findings.Blocks(false);
    if (isOpen) {
        m_keptText.clear();
        m_validationSummaryReport.clear();
        m_rigorouslyValidated = false;
        m_markingsBuilt = false;
        m_currentImageSegment =
            m_currentImageSegment < GetNumOfImageSegments() ? m_currentImageSegment : NO_IMAGE_SEGMENT;
        TakeFindings(request);
    }
    SetMessages(errors.c_str(), warnings.c_str());
    Detail::HandOutOrThrow(errors, aErrors);
    Detail::HandOutOrThrow(warnings, aWarnings);
    return isOpen;
}

ImageSupportDataNITF::~ImageSupportDataNITF() = default;

}  // namespace ORMO::SensorModel::CSM
