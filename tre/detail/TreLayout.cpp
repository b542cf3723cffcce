#include "tre/detail/TreLayout.h"

namespace ORMO::SensorModel::CSM::Detail {

const TreLayout& LayoutForLength(const TreLayout& aFirst, std::size_t aLength) noexcept
{
    for (const TreLayout* layout = &aFirst; layout != nullptr; layout = layout->other) {
        if (layout->length == aLength) {
            return *layout;
        }
    }
    return aFirst;
}

}  // namespace ORMO::SensorModel::CSM::Detail
