#pragma once

#include "../foundation/Export.h"

#include <cstdint>

namespace ORMO::SensorModel::CSM {

/// Codes of the TRE groups: which group can make a tag.
class ORMO_CSM_API SupportedTreFactory
{
public:
    enum Enum : std::int32_t
    {
        UNKNOWN = -1,
        ASDE = 0,
        CommercialSDE = 1,
        DPPDB = 2,
        ESD = 3,
        NSDE = 4,
        GeoSDE = 5,
        MISC = 6,
        NSDESecond = 7,
        PIAE = 8,
        ResearchSDE = 9,
        RPF = 10,
        RSM = 11,
        Public = 12  ///< publicly documented extensions besides those of the other groups
    };

    SupportedTreFactory() = delete;
};

}  // namespace ORMO::SensorModel::CSM
