#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreIMCBDA, TRE);

const Detail::TreLayout& TreIMCBDA::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "IMCBDA", "Image Compressed Blocks Directory", "segment level",
        "Directory of the compressed blocks of a DPPDB stereo image. Its layout is not public, so its data "
        "are kept whole as one field.",
        "STDI-0002 Volume 1 Appendix V (list of DPPDB tags)");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
