#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/CSMUtilWindows.h"
#include "../foundation/Export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// One companion library as this process finds it.
struct ORMO_CSM_API SpecialOrmoDLLStatus
{
    const char* library = "";      ///< What it is, such as "SCI ISD library".
    const char* propertyKey = "";  ///< The property that names its file.
    std::string fileName;          ///< The file looked for.
    bool isConfigured = false;     ///< Whether the property names it; else it is the default name.
    bool isInUse = false;
    std::string reason;  ///< Why it is not in use; empty when it is.
};

/// Finds and loads the optional companion libraries for classified systems: one of SCI level ("red") and three of
/// SECRET level ("gold"). The properties name their files (Util::CSMCnst::PropertyKey), else the default names count.
/// Each library is looked for once per process, by whichever thread asks first, and stays loaded to its end. A library
/// that is absent or lacks a required export is none: its handle is null, and nothing is reported.
class ORMO_CSM_API SpecialOrmoDLLsLoader
{
public:
    using ModuleHandle = Util::CSMUtilWindows::ModuleHandle;

    static ModuleHandle GetGoldOrmoISDsDLL() noexcept;
    static ModuleHandle GetGoldOrmoMSPTkDLL() noexcept;
    /// The library counts only if it exports every one of aCount names; the list of the first call decides for the
    /// whole process.
    static ModuleHandle GetGoldOrmoSSsDLL(const char**& aRequiredExports, std::size_t aCount) noexcept;
    static ModuleHandle GetRedOrmoISDsDLL() noexcept;

    /// The four libraries, for a person to see why one is absent. Asks for those that were not looked for yet, except
    /// for the sensor-models library, whose list of required exports only its user knows.
    static std::vector<SpecialOrmoDLLStatus> GetStatusOfLibraries();

    /// SCI when the red ISD library is loaded, else SECRET when the gold one is, else unclassified.
    static Util::CSMCnst::ClassType GetHighestClassificationLevel() noexcept;

    /// The default marking of a level as the red ISD library tells it, else the gold one. With neither it is
    /// "UNCLASSIFIED" for the unclassified level and null for the others. The text belongs to the library that gave it.
    static const char* GetDefaultClassificationLevelString(Util::CSMCnst::ClassType aLevel) noexcept;

private:
    SpecialOrmoDLLsLoader();
};

}  // namespace ORMO::SensorModel::CSM
