#include "isd/SupportedISD.h"

#include "foundation/CSMUtilString.h"

#include <string>

namespace ORMO::SensorModel::CSM {

SupportedISD::Type SupportedISD::GetSupportedISDType(const char* aName)
{
    const std::string name = Util::CSMUtilString::ToUpper(Util::CSMUtilString::Trim(aName == nullptr ? "" : aName));
    if (name == RasterFormat::NITF) {
        return ISD_TYPE_NITF;
    }
    return name == RasterFormat::TFRD ? ISD_TYPE_TFRD : ISD_TYPE_UNKNOWN;
}

bool SupportedISD::IsSupportedISDType(Type aType) noexcept
{
    return aType == ISD_TYPE_NITF;
}

}  // namespace ORMO::SensorModel::CSM
