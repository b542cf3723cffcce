#include "foundation/CSMSysSecurity.h"

#include "isd/SpecialOrmoDLLsLoader.h"

namespace ORMO::SensorModel::CSM {

CSMSysSecurity::~CSMSysSecurity() = default;

Util::CSMCnst::ClassType CSMSysSecurity::GetHighestClassificationLevel() noexcept
{
    static const Util::CSMCnst::ClassType level = SpecialOrmoDLLsLoader::GetHighestClassificationLevel();
    return level;
}

const char* CSMSysSecurity::GetDefaultClassificationLevelString(Util::CSMCnst::ClassType aLevel) noexcept
{
    const char* const text = SpecialOrmoDLLsLoader::GetDefaultClassificationLevelString(aLevel);
    return text == nullptr || *text == '\0' ? Util::CSMCnst::CLASS_UNKNOWN : text;
}

}  // namespace ORMO::SensorModel::CSM
