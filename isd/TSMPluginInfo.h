#pragma once

#include "../foundation/Export.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Describes a plug-in of the CSM API. Texts are kept without the white space around them; what a getter hands out
/// belongs to the object and lives until it is changed.
class ORMO_CSM_API TSMPluginInfo
{
public:
    /// Throws std::invalid_argument, with a sentence that begins "ERROR: ", when library name, manufacturer, plug-in
    /// name or release date is null or blank, when there are no model names, when the number of active models is
    /// negative, and when a model name is null. A null description counts as empty, a null or blank sensor type or
    /// category as "UNKNOWN".
    TSMPluginInfo(const char* aLibraryName, const char* aManufacturer, const char* aPluginName,
                  const char* aPluginReleaseDate, const char* aDescription, const char* const* aSensorModelNames,
                  int aTotNumOfSensorModels, int aTotNumOfActiveSensorModels, const char* aSensorType,
                  const char* aSensorCategory);

    /// The plug-ins registered with the CSM API at this moment, in order of registration; "UNKNOWN" stands for what a
    /// plug-in does not tell, also as its one model when it names none. The library name is the file that the plug-in
    /// was loaded from; a model counts as active when the plug-in tells its version.
    static std::vector<TSMPluginInfo> OfRegisteredPlugins();

    const char* GetLibraryName() const noexcept { return m_libraryName.c_str(); }
    const char* GetManufacturer() const noexcept { return m_manufacturer.c_str(); }
    const char* GetPluginName() const noexcept { return m_pluginName.c_str(); }
    const char* GetPluginReleaseDate() const noexcept { return m_pluginReleaseDate.c_str(); }
    const char* GetDescription() const noexcept { return m_description.c_str(); }
    /// Null for an index outside.
    const char* GetSensorModelName(int aIndex) const noexcept;
    int GetTotalNumberOfSensorModelsInPlugin() const noexcept;
    int GetTotalNumberOfActiveSensorModels() const noexcept { return m_activeSensorModels; }
    const char* GetSensorType() const noexcept { return m_sensorType.c_str(); }
    const char* GetSensorCategory() const noexcept { return m_sensorCategory.c_str(); }

    // False, with nothing changed, for what the constructor refuses.
    bool SetLibraryName(const char* aName);
    bool SetManufacturer(const char* aManufacturer);
    bool SetPluginName(const char* aName);
    bool SetPluginReleaseDate(const char* aDate);
    bool SetDescription(const char* aDescription);
    bool SetSensorModelNames(const char* const* aNames, int aTotal, int aActive);
    bool SetSensorType(const char* aType);
    bool SetSensorCategory(const char* aCategory);

private:
    std::string m_libraryName;
    std::string m_manufacturer;
    std::string m_pluginName;
    std::string m_pluginReleaseDate;
    std::string m_description;
    std::vector<std::string> m_sensorModelNames;
    int m_activeSensorModels = 0;
    std::string m_sensorType;
    std::string m_sensorCategory;
};

}  // namespace ORMO::SensorModel::CSM
