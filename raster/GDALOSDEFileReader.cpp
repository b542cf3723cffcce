#include "raster/GDALOSDEFileReader.h"

namespace ORMO::SensorModel::CSM {

bool GDALOSDEFileReader::IsOSDEFile(const char* /*aPath*/, int& aVersion) noexcept
{
    aVersion = -1;
    return false;
}

}  // namespace ORMO::SensorModel::CSM
