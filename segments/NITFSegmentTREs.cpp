#include "segments/NITFSegmentTREs.h"

#include "segments/des/NITFDESSubheader.h"

namespace ORMO::SensorModel::CSM {

std::vector<const TREStore*> NITFSegmentTREs::GetStores(const NITFFieldSegment& aSegment)
{
    std::vector<const TREStore*> stores{&aSegment.GetTREStore(), &aSegment.GetOverflowTREStore()};
    const auto* const des = dynamic_cast<const NITFDESSubheader*>(&aSegment);
    if (des != nullptr && des->IsTREOverflow() && !des->IsOverflowPlaced()) {
        stores.push_back(&des->GetOverflowTREs());
    }
    return stores;
}

std::vector<const TRE*> NITFSegmentTREs::GetAll(const NITFFieldSegment& aSegment)
{
    std::vector<const TRE*> tres;
    for (const TREStore* const store : GetStores(aSegment)) {
        tres.insert(tres.end(), store->InOrder().begin(), store->InOrder().end());
    }
    return tres;
}

const TRE* NITFSegmentTREs::GetFirst(const NITFFieldSegment& aSegment, std::string_view aTag)
{
    for (const TREStore* const store : GetStores(aSegment)) {
        if (const TRE* const tre = store->First(aTag); tre != nullptr) {
            return tre;
        }
    }
    return nullptr;
}

}  // namespace ORMO::SensorModel::CSM
