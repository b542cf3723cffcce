// The rigorous validation of a header: its rows, its security block, its TREs and the rules of its kind.

#include "segments/detail/SecurityCheck.h"
#include "segments/detail/SegmentLayout.h"
#include "tre/detail/TreMaker.h"

#include <map>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace Detail {

void CheckTREs(const TREStore& aStore, FindingList& aFindings)
{
    std::map<std::string_view, int> turns;
    for (const TRE* const tre : aStore.InOrder()) {
        Finding place;
        place.turn = ++turns[tre->GetTag()];
        TreMaker::Check(*tre, std::move(place), aFindings);
    }
}

void CheckSegment(const NITFFieldSegment& aSegment, FindingList& aFindings)
{
    const NITFFieldSegment::Parts& parts = aSegment.Inside();
    const FindingMark mark = aFindings.Now();
    Finding place;
    place.owner = parts.layout->Owner();
    place.offset = parts.fileOffset;
    parts.record.Check(place, aFindings);
    CheckSecurity(parts, aFindings);
    for (const ExtensionArea& area : parts.layout->kind->areas) {
        const FieldEntry* const entry = parts.record.Find(area.area);
        if (entry != nullptr) {
            CheckArea(parts.record.Store().Value(*entry), parts.PlaceOf(area, *entry), aFindings);
        }
    }
    CheckTREs(parts.tres, aFindings);
    CheckTREs(aSegment.GetOverflowTREStore(), aFindings);
    if (parts.layout->check != nullptr) {
        parts.layout->check(aSegment, aFindings);
    }
    const NITFStdDataSegmentInfo* const info = aSegment.GetNITFStdDataSegmentInfo();
    const bool numbered = info != nullptr && info->GetDataSegmentType() != NITFCnst::DATA_SEGMENT_TYPE_UNKNOWN;
    aFindings.PlaceAt(mark, parts.layout->Owner(), numbered ? info->GetSegmentIndex() : Finding::NO_INDEX);
}

}  // namespace Detail

bool NITFFieldSegment::RigorousValidation(unsigned long& aErrors, unsigned long& aWarnings)
{
    Detail::FindingList findings;
    Detail::CheckSegment(*this, findings);
    aErrors = findings.Errors();
    aWarnings = findings.Warnings();
    SetMessages(findings.Lines(true), findings.Lines(false));
    return aErrors == 0;
}

}  // namespace ORMO::SensorModel::CSM
