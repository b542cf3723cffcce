#include "tre/detail/TreLayout.h"
#include "tre/tags/TypedTre.h"

namespace ORMO::SensorModel::CSM {

ORMO_TYPED_TRE(TreICHIPA, TRE);
ORMO_TYPED_TRE(TreICHIPB, TRE);

// No table of this first version is public; programs read it as its successor, and so do we.
const Detail::TreLayout& TreICHIPA::Layout()
{
    static const Detail::TreLayout LAYOUT{
        .tag = "ICHIPA",
        .name = "Image Chip (superseded by ICHIPB)",
        .length = TreICHIPB::Layout().length,
        .lengthRule = "",
        .placement = "image subheader",
        .purpose =
            "Ties the four corner grid points of an image chip to their places in the full image, so that "
            "support data of the full image can be used with the chip. First version, superseded by ICHIPB.",
        .sources = "GDAL NITF reader, which reads it by the layout of ICHIPB; the sources of ICHIPB",
        .certainty = Detail::LayoutCertainty::OneSource,
        .table = TreICHIPB::Layout().table};
    return LAYOUT;
}

}  // namespace ORMO::SensorModel::CSM
