#pragma once

#include "Export.h"

namespace ORMO::SensorModel::CSM {

/// The properties of the installation, read once per process from the file "classified.talvik.properties" in the
/// directory that the environment variable TALVIK_CLASSIFIED_SYS_CONFIG_DIR names. What changes there later has no
/// effect. The keys are Util::CSMCnst::PropertyKey. Safe to ask from several threads.
class ORMO_CSM_API CSMSysProperties
{
public:
    /// Looks up the trimmed name. The value is kept as it stands in the file and belongs to the library; it is null,
    /// and the answer false, when there is no such property.
    static bool GetProperty(const char* aName, const char*& aValue) noexcept;

private:
    CSMSysProperties();
};

}  // namespace ORMO::SensorModel::CSM
