#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePPRSDA, TRE);

const Detail::TreLayout& TrePPRSDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "PPRSDA", "Product Accuracy (Shear) Data", "product level",
        "States how well the segments of a DPPDB product fit together where they meet. Its layout is not "
        "public, so its data are kept whole as one field.",
        "STDI-0002 Volume 1 Appendix V (list of DPPDB tags)");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
