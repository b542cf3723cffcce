#include "tre/tags/TypedTre.h"
#include "tre/tags/detail/NotPublicLayout.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreESD001, TRE);

const Detail::TreLayout& TreESD001::Layout()
{
    static constexpr Detail::TreLayout LAYOUT = Detail::NotPublicLayout(
        "ESD001", "Exploitation Support Data", "not stated in public sources",
        "Carries exploitation support data, judging by its tag and group only. Its layout is not public, "
        "so its data are kept whole as one field.",
        "no public definition");
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
