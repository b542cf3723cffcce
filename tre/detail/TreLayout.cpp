#include "tre/detail/TreLayout.h"

#include "fields/FieldWalk.h"

namespace ORMO::SensorModel::CSM::Detail {

namespace {

bool Fits(const TreLayout& aLayout, std::string_view aData, Util::CSMCnst::ByteOrder aOrder)
{
    if (aLayout.length != 0) {
        return aLayout.length == aData.size();
    }
    FieldStore store(aLayout.table, aOrder);
    const WalkResult result = FieldWalk::Read(aData, store);
    return result.IsGood() && result.consumed == aData.size();
}

}  // namespace

const TreLayout& LayoutOfRecord(const TreLayout& aFirst, std::string_view aData, Util::CSMCnst::ByteOrder aOrder)
{
    if (aFirst.other == nullptr) {
        return aFirst;
    }
    const TreLayout* layout = &aFirst;
    while (layout != nullptr && !Fits(*layout, aData, aOrder)) {
        layout = layout->other;
    }
    return layout == nullptr ? aFirst : *layout;
}

}  // namespace ORMO::SensorModel::CSM::Detail
