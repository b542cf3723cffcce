#pragma once

#include "CSMCnst.h"
#include "Export.h"

namespace ORMO::SensorModel::CSM {

/// The classification that the installation supports, as its companion libraries tell. No operation throws.
class ORMO_CSM_API CSMSysSecurity
{
public:
    virtual ~CSMSysSecurity();

    /// SCI when the SCI-level companion ISD library is loaded, else SECRET when the SECRET-level one is, else
    /// unclassified. Found out once per process.
    static Util::CSMCnst::ClassType GetHighestClassificationLevel() noexcept;

    /// The default marking of a level, "UNKNOWN" when there is none. The text belongs to the library.
    static const char* GetDefaultClassificationLevelString(Util::CSMCnst::ClassType aLevel) noexcept;

private:
    CSMSysSecurity();
};

}  // namespace ORMO::SensorModel::CSM
