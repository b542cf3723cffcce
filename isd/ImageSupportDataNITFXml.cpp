// The whole file, or parts of it, as XML.

#include "fields/Xml.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/XmlFrame.h"
#include "segments/detail/SegmentLayout.h"

#include <ostream>
#include <string_view>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* HEADER_INDENT = "  ";
constexpr const char* SEGMENT_INDENT = "    ";

/// The group of all segments of a kind that were read; nothing when there are none.
void AppendGroup(NITFFieldSegment::Document& aOut, const Detail::SegmentKind& aKind,
                 const ImageSupportDataNITF::Parts& aParts)
{
    std::size_t total = 0;
    const std::size_t count = aParts.Count(aKind.kind);
    for (std::size_t i = 0; i != count; ++i) {
        total += aParts.Segment(aKind.kind, i) == nullptr ? 0U : 1U;
    }
    if (total == 0) {
        return;
    }
    std::string& xml = aOut.Text();
    xml.append("  <").append(aKind.group);
    Detail::AppendXmlAttribute(NITFCnst::XML_ATTR_TOTAL, total, xml);
    xml += ">\n";
    for (std::size_t i = 0; i != count; ++i) {
        const NITFFieldSegment* const segment = aParts.Segment(aKind.kind, i);
        if (segment != nullptr) {
            segment->AppendElement(aOut, SEGMENT_INDENT, static_cast<int>(i));
        }
    }
    xml.append("  </").append(aKind.group).append(">\n");
}

template<typename Wanted>
void AppendGroups(NITFFieldSegment::Document& aOut, const ImageSupportDataNITF::Parts& aParts, Wanted aWanted)
{
    for (const Detail::SegmentKind& kind : Detail::SEGMENT_KINDS) {
        if (kind.version == aParts.Version() && kind.mark[0] != '\0' && aWanted(kind.kind)) {
            AppendGroup(aOut, kind, aParts);
        }
    }
}

bool IsImage(NITFCnst::DataSegmentType aKind) noexcept
{
    return aKind == NITFCnst::DATA_SEGMENT_TYPE_IMAGE;
}

bool IsAny(NITFCnst::DataSegmentType) noexcept
{
    return true;
}

void AppendDocument(NITFFieldSegment::Document& aOut, const ImageSupportDataNITF::Parts& aParts, const char* aVersion)
{
    Detail::OpenDocument(aOut.Text(), NITFCnst::XML_ELEMENT_NITF, NITFCnst::XML_SCHEMA_FILE_ISD, aVersion);
    aParts.header->AppendElement(aOut, HEADER_INDENT, 0);
    AppendGroups(aOut, aParts, IsAny);
    Detail::CloseDocument(aOut.Text(), NITFCnst::XML_ELEMENT_NITF);
}

template<typename Wanted>
void WriteGroups(std::ostream& aOut, const ImageSupportDataNITF::Parts& aParts, Wanted aWanted)
{
    NITFFieldSegment::Document out([&](std::string_view aPiece) {
        return aOut.write(aPiece.data(), static_cast<std::streamsize>(aPiece.size())).good();
    });
    AppendGroups(out, aParts, aWanted);
    if (!out.Finish()) {
        aOut.setstate(std::ios::failbit);
    }
}

}  // namespace

const char* ImageSupportDataNITF::Serialize()
{
    if (m_parts->header == nullptr) {
        return nullptr;
    }
    return SerializeImageSupportDataNITF(GetNITFFileVersionCode() == NITFCnst::NITF_VERSION_NUMBER_20
                                             ? NITFCnst::NITF_VERSION_NUMBER_20
                                             : NITFCnst::NITF_VERSION_NUMBER_21);
}

const char* ImageSupportDataNITF::SerializeImageSupportDataNITF(int aVersion)
{
    const bool is20 = aVersion == NITFCnst::NITF_VERSION_NUMBER_20;
    if (!is20 && aVersion != NITFCnst::NITF_VERSION_NUMBER_21) {
        return nullptr;
    }
    if (!m_keptText.empty()) {
        return m_keptText.c_str();
    }
    if (m_parts->header == nullptr || is20 != (m_parts->Version() == NITFCnst::NITF_VERSION_NUMBER_20)) {
        return nullptr;
    }
    NITFFieldSegment::Document out;
    AppendDocument(out, *m_parts, GetFormatVersion());
    m_keptText = std::move(out.Text());
    return m_keptText.c_str();
}

bool ImageSupportDataNITF::WriteXml(std::FILE* aOut) const
{
    ClearMessages();
    if (aOut == nullptr || m_parts->header == nullptr) {
        return RefuseQuery("ERROR: There is nothing to write, or nothing to write to.");
    }
    NITFFieldSegment::Document out([aOut](std::string_view aPiece) {
        return std::fwrite(aPiece.data(), 1, aPiece.size(), aOut) == aPiece.size();
    });
    AppendDocument(out, *m_parts, GetFormatVersion());
    if (!out.Finish()) {
        return RefuseQuery("ERROR: The document cannot be written, or the file changed while it was read.");
    }
    return true;
}

void ImageSupportDataNITF::SerializeImageSegments(std::ostream& aOut) const
{
    WriteGroups(aOut, *m_parts, IsImage);
}

void ImageSupportDataNITF::SerializeVersionSpecificDataSegments(std::ostream& aOut) const
{
    WriteGroups(aOut, *m_parts, [this](NITFCnst::DataSegmentType aKind) {
        return Detail::IsVersionSpecific(aKind, m_parts->Version());
    });
}

const char* ImageSupportDataNITF::GetSerializedXMLMetadata(const char* aSegment, int aIndex)
{
    const NITFCnst::DataSegmentType kind = NITFStdDataSegment::GetDataSegmentCode(aSegment);
    // A negative number becomes one that no segment has.
    const auto index = static_cast<std::size_t>(aIndex);
    NITFFieldSegment* const segment = GetSegment(kind, index) == nullptr ? nullptr : m_parts->Segment(kind, index);
    const bool isHeader = kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;
    return segment == nullptr ? nullptr : segment->SerializeDataSegment(isHeader ? HEADER_INDENT : SEGMENT_INDENT);
}

const char* ImageSupportDataNITF::GetVersionSpecificSerializedXMLMetadata(const char* aSegment, int aIndex)
{
    const bool isSpecific =
        Detail::IsVersionSpecific(NITFStdDataSegment::GetDataSegmentCode(aSegment), m_parts->Version());
    return GetSerializedXMLMetadata(isSpecific ? aSegment : "", aIndex);
}

}  // namespace ORMO::SensorModel::CSM
