// The rigorous validation of a header: its rows, its TREs, and the rules across fields for which one header is enough.

#include "segments/des/NITFDESSubheader.h"
#include "segments/detail/SegmentLayout.h"
#include "segments/detail/rules/FieldChecks.h"
#include "tre/detail/TreMaker.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

namespace Detail {

void CheckTREs(const TREStore& aStore, FindingList& aFindings)
{
    const std::vector<TRE*>& tres = aStore.InOrder();
    for (auto tre = tres.begin(); tre != tres.end(); ++tre) {
        // Few TREs have findings, so their turns are not counted beforehand.
        const auto turn = [&] {
            const std::string_view tag = (*tre)->GetTag();
            return static_cast<int>(
                std::count_if(tres.begin(), tre + 1, [tag](const TRE* aOther) { return tag == aOther->GetTag(); }));
        };
        const FindingMark before = aFindings.Now();
        TreMaker::Check(**tre, Finding(), aFindings);
        aFindings.TurnAt(before, turn);
    }
}

void CheckSegment(const NITFFieldSegment& aSegment, FindingList& aFindings)
{
    const NITFFieldSegment::Parts& parts = aSegment.Inside();
    const FindingMark mark = aFindings.Now();
    const HeaderView header(aSegment);
    Finding place;
    place.owner = parts.layout->Owner();
    place.offset = parts.fileOffset;
    parts.record.Check(place, aFindings);
    CheckTREs(parts.tres, aFindings);
    CheckTREs(aSegment.GetOverflowTREStore(), aFindings);
    if (const auto* const des = dynamic_cast<const NITFDESSubheader*>(&aSegment);
        des != nullptr && !des->IsOverflowPlaced()) {
        CheckTREs(des->GetOverflowTREs(), aFindings);
    }
    CheckMaskFields(header, aFindings);
    CheckDesFields(header, aFindings);
    CheckHeaderRules(header, aFindings);
    aFindings.PlaceAt(mark, parts.layout->Owner(), header.Index());
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
