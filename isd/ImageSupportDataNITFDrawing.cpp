// What a file draws over its images: where it stands and in which order it is drawn.

#include "isd/detail/IsdParts.h"
#include "segments/detail/Attachment.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace {

bool IsDrawn(const NITFFieldSegment* aSegment)
{
    return aSegment != nullptr && aSegment->Inside().layout->kind->drawing.displayLevel != nullptr;
}

/// Adds a finding about one of the fields with which a segment is drawn.
void Warn(const NITFFieldSegment& aSegment, const char* aRule, const char* aField, const std::string& aText,
          Detail::FindingList& aFindings)
{
    const Detail::FindingMark mark = aFindings.Now();
    const NITFStdDataSegmentInfo* const info = aSegment.GetNITFStdDataSegmentInfo();
    Finding finding = aSegment.Inside().About("WARN: " + aText, aField);
    finding.rule = aRule;
    aFindings.Add(std::move(finding));
    aFindings.PlaceAt(mark, aSegment.Inside().layout->Owner(), info->GetSegmentIndex());
}

bool TellPlace(const NITFFieldSegment& aSegment, ImageSupportDataNITF::CCSInformation& aInformation)
{
    ImageSupportDataNITF::CCSInformation found;
    found.displayLevel = aSegment.GetDataSegmentDisplayLevel();
    found.attachmentLevel = aSegment.GetDataSegmentAttachmentLevel();
    if (!aSegment.GetCommonCoordinateSys(found.row, found.column, found.ccsRow, found.ccsColumn)) {
        return false;
    }
    aInformation = found;
    return true;
}

}  // namespace

void Detail::PlaceDrawnSegments(ImageSupportDataNITF::Parts& aParts, FindingList& aFindings)
{
    std::vector<NITFFieldSegment*> segments;
    std::vector<DrawnPlace> places;
    std::map<std::uint64_t, std::size_t> levels;
    for (const std::unique_ptr<NITFFieldSegment>& segment : aParts.segments) {
        if (!IsDrawn(segment.get())) {
            continue;
        }
        const std::uint64_t level = segment->GetDataSegmentDisplayLevel();
        if (level != 0 && !levels.try_emplace(level, segments.size()).second) {
            Warn(*segment, "DL-01", segment->Inside().layout->kind->drawing.displayLevel,
                 "An earlier segment has the same display level; the order in the file decides which one is drawn "
                 "first.",
                 aFindings);
        }
        segments.push_back(segment.get());
        places.push_back(
            {level, segment->GetDataSegmentAttachmentLevel(), segment->GetLOCRowValue(), segment->GetLOCColumnValue()});
    }
    const std::vector<AttachmentOffset> offsets = FollowAttachments(places);
    for (std::size_t i = 0; i != segments.size(); ++i) {
        const char* const field = segments[i]->Inside().layout->kind->drawing.attachmentLevel;
        segments[i]->SetAttachedTo(offsets[i].column, offsets[i].row);
        if (offsets[i].fault == AttachmentFault::NoParent) {
            Warn(*segments[i], "DL-02", field,
                 "No segment has the display level " + std::to_string(places[i].attachmentLevel) +
                     " to which this one is attached; its location counts from the origin.",
                 aFindings);
        } else if (offsets[i].fault == AttachmentFault::Cycle) {
            Warn(*segments[i], "DL-02", field,
                 "The segment of display level " + std::to_string(places[i].displayLevel) +
                     " is attached to itself by way of level " + std::to_string(places[i].attachmentLevel) +
                     "; its location counts from the origin.",
                 aFindings);
        }
    }
}

bool ImageSupportDataNITF::HasGraphicalData() const noexcept
{
    return m_parts->Count(NITFCnst::DATA_SEGMENT_TYPE_GRAPHIC) + m_parts->Count(NITFCnst::DATA_SEGMENT_TYPE_SYMBOL) +
               m_parts->Count(NITFCnst::DATA_SEGMENT_TYPE_LABEL) !=
           0;
}

bool ImageSupportDataNITF::GetImageSegmentCCSInformation(CCSInformation& aInformation, std::size_t aIndex) const
{
    const NITFFieldSegment* const segment = GetImageSubheader(aIndex);
    return segment != nullptr && TellPlace(*segment, aInformation);
}

bool ImageSupportDataNITF::GetVersionSpecificDataSegmentCCSInformation(NITFCnst::DataSegmentType aKind,
                                                                       CCSInformation& aInformation,
                                                                       std::size_t aIndex) const
{
    const NITFFieldSegment* const segment = GetVersionSpecificDataSegment(aKind, aIndex);
    return segment != nullptr && TellPlace(*segment, aInformation);
}

std::vector<const NITFDrawnSegment*> ImageSupportDataNITF::GetDrawnSegments() const
{
    std::vector<const NITFDrawnSegment*> drawn;
    for (const std::unique_ptr<NITFFieldSegment>& segment : m_parts->segments) {
        if (const auto* const one = dynamic_cast<const NITFDrawnSegment*>(segment.get()); one != nullptr) {
            drawn.push_back(one);
        }
    }
    return drawn;
}

std::vector<const NITFCGMMetaFile*> ImageSupportDataNITF::GetAllCGMMetaFiles() const
{
    std::vector<const NITFCGMMetaFile*> metafiles;
    for (const NITFDrawnSegment* const segment : GetDrawnSegments()) {
        if (segment->GetCGMMetaFile() != nullptr) {
            metafiles.push_back(segment->GetCGMMetaFile());
        }
    }
    return metafiles;
}

std::vector<const NITFFieldSegment*> ImageSupportDataNITF::GetDisplayableDataSegmentOrderedByDisplayLevels() const
{
    std::vector<const NITFFieldSegment*> ordered;
    for (const std::unique_ptr<NITFFieldSegment>& segment : m_parts->segments) {
        if (IsDrawn(segment.get()) && segment->IsDisplayableDataSegment()) {
            ordered.push_back(segment.get());
        }
    }
    std::ranges::stable_sort(ordered, NITFStdDataSegment::DisplayLevelSortPredicate);
    return ordered;
}

}  // namespace ORMO::SensorModel::CSM
