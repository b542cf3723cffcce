#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TrePSUPDA, TRE);

const Detail::TreLayout& TrePSUPDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "PSUPDA", "Product Support Data", "product level",
        "General support data of a DPPDB product. Its layout is not public, so its data are kept whole as "
        "one field.",
        "STDI-0002 Volume 1 Appendix V (list of DPPDB tags); NITF Metadata Register (2016 draft)");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
