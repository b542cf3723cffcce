// The TREs of a file's segments, and its headers as raw metadata.

#include "fields/MessageText.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "segments/RawNITFMetadataStdDataSegment.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM {

namespace {

using Kind = NITFCnst::DataSegmentType;

constexpr Kind FILE_HEADER = NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER;

bool HandOutList(const ImageSupportDataNITF::MetadataList& aFrom, ImageSupportDataNITF::MetadataArray& aArray,
                 std::size_t& aCount) noexcept
{
    aArray = aFrom.empty() ? nullptr : aFrom.data();
    aCount = aFrom.size();
    return !aFrom.empty();
}

bool HandOutList(const ImageSupportDataNITF::MetadataList& aFrom, ImageSupportDataNITF::MetadataList& aList)
{
    aList = aFrom;
    return !aFrom.empty();
}

}  // namespace

bool ImageSupportDataNITF::GetDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag,
                                             const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFFieldSegment* const segment = GetSegment(aKind, aIndex);
    return segment != nullptr && segment->GetTRE(aTag, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetAllDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                                                 const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFFieldSegment* const segment = GetSegment(aKind, aIndex);
    return segment != nullptr && segment->GetAllTREs(aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetVersionSpecificDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                                                            const char* aTag, const TRE**& aArray, std::size_t& aCount,
                                                            bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFDrawnSegment* const segment = GetVersionSpecificDataSegment(aKind, aIndex);
    return segment != nullptr && segment->GetTRE(aTag, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetAllVersionSpecificDataSegmentTREs(NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                                                                const TRE**& aArray, std::size_t& aCount,
                                                                bool aIncludeOverflow) const
{
    aArray = nullptr;
    aCount = 0;
    const NITFDrawnSegment* const segment = GetVersionSpecificDataSegment(aKind, aIndex);
    return segment != nullptr && segment->GetAllTREs(aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetNITFFileHeaderTRE(const char* aTag, const TRE**& aArray, std::size_t& aCount,
                                                bool aIncludeOverflow) const
{
    return GetDataSegmentTRE(FILE_HEADER, 0, aTag, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetAllFileHeaderTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow) const
{
    return GetAllDataSegmentTREs(FILE_HEADER, 0, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::GetAllNITFFileHeaderTREs(const TRE**& aArray, std::size_t& aCount) const
{
    return GetAllFileHeaderTREs(aArray, aCount, true);
}

bool ImageSupportDataNITF::GetAllImageSegmentTREs(const TRE**& aArray, std::size_t& aCount, bool aIncludeOverflow,
                                                  std::size_t aIndex) const
{
    return GetAllDataSegmentTREs(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex, aArray, aCount, aIncludeOverflow);
}

bool ImageSupportDataNITF::IsDataSegmentField(NITFCnst::DataSegmentType aKind, std::size_t aIndex,
                                              const char* aField) const
{
    const NITFFieldSegment* const segment = GetSegment(aKind, aIndex);
    const char* value = nullptr;
    std::size_t length = 0;
    return segment != nullptr && Told(segment->GetFieldAsString(aField, value, length), *segment);
}

bool ImageSupportDataNITF::IsDataSegmentTRE(NITFCnst::DataSegmentType aKind, std::size_t aIndex, const char* aTag) const
{
    const NITFFieldSegment* const segment = GetSegment(aKind, aIndex);
    if (segment == nullptr || segment->IsTREOfThisDataSegment(aTag)) {
        return segment != nullptr;
    }
    return RefuseQuery("ERROR: There is no TRE " + Detail::Quoted(Detail::ViewOf(aTag)) + " in " +
                       Detail::SegmentName(aKind, aIndex) + '.');
}

bool ImageSupportDataNITF::GetNITFFileHeaderTREFieldAsDouble(const char* aTag, const char* aField, double& aValue) const
{
    return IsDataSegmentTRE(FILE_HEADER, 0, aTag) &&
           Told(m_parts->header->GetFieldAsDouble(aField, aValue, aTag), *m_parts->header);
}

bool ImageSupportDataNITF::GetImageSegmentTREFieldAsDouble(const char* aTag, const char* aField, double& aValue,
                                                           std::size_t aIndex) const
{
    if (!IsDataSegmentTRE(NITFCnst::DATA_SEGMENT_TYPE_IMAGE, aIndex, aTag)) {
        return false;
    }
    const NITFImageSubheader& image = *m_parts->Image(aIndex);
    return Told(image.GetFieldAsDouble(aField, aValue, aTag), image);
}

const ImageSupportDataNITF::MetadataList& ImageSupportDataNITF::MetadataOf(NITFCnst::DataSegmentType aKind) const
{
    ClearMessages();
    return m_parts->metadata.at(static_cast<std::size_t>(aKind)).Get([&] {
        const bool isHeader = aKind == FILE_HEADER;
        MetadataList list;
        for (std::size_t i = 0; i != (isHeader ? 1 : m_parts->Count(aKind)); ++i) {
            const NITFFieldSegment* const segment = m_parts->Segment(aKind, i);
            if (segment != nullptr) {
                list.push_back(segment->GetAllMetadata());
            }
        }
        return list;
    });
}

const RawNITFMetadataStdDataSegment* ImageSupportDataNITF::GetAllMetadataNITFFileHeader() const
{
    return MetadataOf(FILE_HEADER).front();
}

bool ImageSupportDataNITF::GetAllMetadataNITFFileHeader(MetadataArray& aArray, std::size_t& aCount) const
{
    return HandOutList(MetadataOf(FILE_HEADER), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataNITFFileHeader(MetadataList& aList) const
{
    return HandOutList(MetadataOf(FILE_HEADER), aList);
}

bool ImageSupportDataNITF::GetAllMetadataImageSegments(MetadataArray& aArray, std::size_t& aCount) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_IMAGE), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataImageSegments(MetadataList& aList) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_IMAGE), aList);
}

bool ImageSupportDataNITF::GetAllMetadataTextSegments(MetadataArray& aArray, std::size_t& aCount) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_TEXT), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataTextSegments(MetadataList& aList) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_TEXT), aList);
}

bool ImageSupportDataNITF::GetAllMetadataDESs(MetadataArray& aArray, std::size_t& aCount) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataDESs(MetadataList& aList) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION), aList);
}

bool ImageSupportDataNITF::GetAllMetadataRESs(MetadataArray& aArray, std::size_t& aCount) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataRESs(MetadataList& aList) const
{
    return HandOutList(MetadataOf(NITFCnst::DATA_SEGMENT_TYPE_RESERVED_EXTENSION), aList);
}

bool ImageSupportDataNITF::GetAllMetadataReservedSegments(MetadataArray& aArray, std::size_t& aCount) const
{
    return GetAllMetadataRESs(aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataReservedSegments(MetadataList& aList) const
{
    return GetAllMetadataRESs(aList);
}

const ImageSupportDataNITF::MetadataList& ImageSupportDataNITF::VersionSpecificMetadata(const char* aSegment) const
{
    static const MetadataList none;
    const NITFCnst::DataSegmentType kind = NITFStdDataSegment::GetDataSegmentCode(aSegment);
    return CheckVersionSpecific(kind, Detail::ViewOf(aSegment)) ? MetadataOf(kind) : none;
}

bool ImageSupportDataNITF::GetAllMetadataVersionSpecificDataSegments(const char* aSegment, MetadataArray& aArray,
                                                                     std::size_t& aCount) const
{
    return HandOutList(VersionSpecificMetadata(aSegment), aArray, aCount);
}

bool ImageSupportDataNITF::GetAllMetadataVersionSpecificDataSegments(const char* aSegment, MetadataList& aList) const
{
    return HandOutList(VersionSpecificMetadata(aSegment), aList);
}

}  // namespace ORMO::SensorModel::CSM
