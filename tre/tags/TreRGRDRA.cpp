#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreRGRDRA, TRE);

const Detail::TreLayout& TreRGRDRA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "RGRDRA", "Reference Graphic Directory Definition", "product level",
        "Directory of the reference graphic files of a DPPDB product. Its layout is not public, so its "
        "data are kept whole as one field.",
        "STDI-0002 Volume 1 Appendix V (list of DPPDB tags)");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
