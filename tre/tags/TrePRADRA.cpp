#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePRADRA, TRE);

const Detail::TreLayout& TrePRADRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "PRADRA", "Product Accuracy Data (Relative) Definition", "product level",
        "States the relative (point-to-point) accuracy of a whole DPPDB product. Its layout is not public, "
        "so its data are kept whole as one field.",
        "STDI-0002 Volume 1 Appendix V (list of DPPDB tags)");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
