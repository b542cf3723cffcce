// How the TREs of overflow DESs find their owners.

#include "fields/MessageText.h"
#include "fields/Number.h"
#include "isd/detail/IsdParts.h"
#include "segments/detail/SegmentLayout.h"

#include <algorithm>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Parts = ImageSupportDataNITF::Parts;

std::string Target(NITFCnst::DataSegmentType aKind, std::size_t aIndex, std::string_view aArea)
{
    return SegmentName(aKind, aIndex) + " area " + std::string(aArea);
}

void Warn(FindingList& aFindings, const char* aRule, NITFCnst::DataSegmentType aKind, std::size_t aIndex,
          std::string_view aArea, const std::string& aText)
{
    Finding finding = MakeFinding("WARN: " + aText, aRule);
    finding.segment = NITFStdDataSegment::GetDataSegmentName(aKind);
    if (aKind != NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER) {
        finding.index = static_cast<int>(aIndex);
    }
    finding.area = aArea;
    aFindings.Add(std::move(finding));
}

void PlaceTREs(Parts& aParts, std::size_t aDes, std::vector<std::string>& aTargets, FindingList& aFindings)
{
    NITFDESSubheader* const des = aParts.Des(aDes);
    NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    long index = 0;
    std::string area;
    if (des == nullptr || !des->IsTREOverflow() || !des->GetOverflowTarget(kind, index, area)) {
        return;
    }
    const auto place = static_cast<std::size_t>(index);
    const std::string target = Target(kind, place, area);
    const std::string name = "DES " + std::to_string(aDes + 1);
    const auto warn = [&](const char* aRule, const std::string& aText) {
        Warn(aFindings, aRule, NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION, aDes, area, aText);
    };
    const bool exists = kind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? place == 0 : place < aParts.Count(kind);
    if (!exists) {
        warn("DE-02",
             "Overflow " + name + " names " + target + ", which is not in the file; its TREs stay on the DES.");
        return;
    }
    NITFFieldSegment* const owner = aParts.Segment(kind, place);
    if (owner == nullptr) {
        return;  // left out or not to be read: the TREs stay on the DES
    }
    if (std::find(aTargets.begin(), aTargets.end(), target) != aTargets.end()) {
        warn("DE-04", "Overflow " + name + " is a further one for " + target + "; both are placed in file order.");
    }
    aTargets.push_back(target);
    des->PlaceOverflowTREs(*owner);
    for (const ExtensionArea& one : owner->Inside().layout->kind->areas) {
        const std::string_view text = owner->FieldText(one.overflow);
        std::uint64_t number = 0;
        if (area == one.area && (!ToCount(text, number) || number != aDes + 1)) {
            warn("DE-03", "Overflow " + name + " names " + target + ", whose " + one.overflow +
                              (text.data() == nullptr ? " does not stand" : " is " + Shown(text)) +
                              "; the DES decides.");
        }
    }
}

/// What the overflow numbers of a segment say of DESs that say something else.
void CheckNumbers(const Parts& aParts, NITFCnst::DataSegmentType aKind, std::size_t aIndex, FindingList& aFindings)
{
    const NITFFieldSegment* const segment = aParts.Segment(aKind, aIndex);
    if (segment == nullptr) {
        return;
    }
    for (const ExtensionArea& area : segment->Inside().layout->kind->areas) {
        const std::string_view text = segment->FieldText(area.overflow);
        std::uint64_t number = 0;
        if (text.data() == nullptr || (ToCount(text, number) && number == 0)) {
            continue;
        }
        const auto warn = [&](const std::string& aText) {
            Warn(aFindings, "DE-03", aKind, aIndex, area.area,
                 Target(aKind, aIndex, area.area) + ": " + area.overflow + ' ' + Shown(text) + aText);
        };
        const std::size_t count = aParts.Count(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION);
        if (number == 0 || number > count) {
            warn(" names no DES of the file, which has " + std::to_string(count) + ".");
            continue;
        }
        const NITFDESSubheader* const des = aParts.Des(static_cast<std::size_t>(number) - 1);
        NITFCnst::DataSegmentType kind = NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
        long index = 0;
        std::string other;
        if (des != nullptr && !des->IsTREOverflow()) {
            warn(" names a DES that is no overflow DES.");
        } else if (des != nullptr && des->GetOverflowTarget(kind, index, other) &&
                   (kind != aKind || static_cast<std::size_t>(index) != aIndex || other != area.area)) {
            warn(" names an overflow DES that belongs to " + Target(kind, static_cast<std::size_t>(index), other) +
                 "; the DES decides.");
        }
    }
}

}  // namespace

std::string SegmentName(NITFCnst::DataSegmentType aKind, std::size_t aIndex)
{
    const std::string name = NITFStdDataSegment::GetDataSegmentName(aKind);
    // A negative number that became an index is shown as what it was.
    const auto index = static_cast<std::int64_t>(aIndex);
    return aKind == NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER ? name : name + ' ' + std::to_string(index);
}

void PlaceOverflow(Parts& aParts, FindingList& aFindings)
{
    std::vector<std::string> targets;  // by DES, to tell two DESs for one target
    for (std::size_t des = 0; des != aParts.Count(NITFCnst::DATA_SEGMENT_TYPE_DATA_EXTENSION); ++des) {
        PlaceTREs(aParts, des, targets, aFindings);
    }
    CheckNumbers(aParts, NITFCnst::DATA_SEGMENT_TYPE_FILE_HEADER, 0, aFindings);
    for (const NITFStdDataSegmentInfo* const info : aParts.infos.InFileOrder()) {
        CheckNumbers(aParts, info->GetDataSegmentType(), static_cast<std::size_t>(info->GetSegmentIndex()), aFindings);
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
