#include "isd/SupportedTSMISD.h"

namespace ORMO::SensorModel::CSM {

bool SupportedTSMISD::IsSupportedTSMISDType(ISDType aType) noexcept
{
    return aType >= ISD_TYPE_BYTE_STREAM && aType <= ISD_TYPE_ORMO;
}

}  // namespace ORMO::SensorModel::CSM
