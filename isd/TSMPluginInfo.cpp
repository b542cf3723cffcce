#include "isd/TSMPluginInfo.h"

#include "foundation/CSMCnst.h"
#include "foundation/CSMUtilString.h"
#include "isd/detail/CsmCall.h"
#include "isd/detail/RegisteredPlugins.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

constexpr const char* UNKNOWN = Util::CSMCnst::STR_UPPER_UNKNOWN;

std::string Trimmed(const char* aText)
{
    return Util::CSMUtilString::Trim(aText == nullptr ? "" : aText);
}

bool SetRequired(std::string& aField, const char* aText)
{
    std::string text = Trimmed(aText);
    if (text.empty()) {
        return false;
    }
    aField = std::move(text);
    return true;
}

bool SetOrUnknown(std::string& aField, const char* aText)
{
    std::string text = Trimmed(aText);
    aField = text.empty() ? UNKNOWN : std::move(text);
    return true;
}

/// What a plug-in answers, "UNKNOWN" when it fails or answers nothing.
template<typename Query>
std::string Answer(const TSMPlugin& aPlugin, Query aQuery)
{
    std::string text;
    if (!Detail::AskCsm([&] { return (aPlugin.*aQuery)(text); }) || Trimmed(text.c_str()).empty()) {
        return UNKNOWN;
    }
    return text;
}

}  // namespace

TSMPluginInfo::TSMPluginInfo(const char* aLibraryName, const char* aManufacturer, const char* aPluginName,
                             const char* aPluginReleaseDate, const char* aDescription,
                             const char* const* aSensorModelNames, int aTotNumOfSensorModels,
                             int aTotNumOfActiveSensorModels, const char* aSensorType, const char* aSensorCategory)
{
    if (!SetLibraryName(aLibraryName) || !SetManufacturer(aManufacturer) || !SetPluginName(aPluginName) ||
        !SetPluginReleaseDate(aPluginReleaseDate)) {
        throw std::invalid_argument(
            "ERROR: Library name, manufacturer name, plug-in name, and release date cannot be NULL or an empty "
            "string.");
    }
    if (aSensorModelNames == nullptr || aTotNumOfSensorModels <= 0) {
        throw std::invalid_argument(
            "ERROR: TSMSensorModel array list cannot be NULL and must contain at least one TSMSensorModel name.");
    }
    if (aTotNumOfActiveSensorModels < 0) {
        throw std::invalid_argument("ERROR: Value of \"aTotNumOfActiveSensorModels\" is invalid.");
    }
    if (!SetDescription(aDescription) || !SetSensorType(aSensorType) || !SetSensorCategory(aSensorCategory) ||
        !SetSensorModelNames(aSensorModelNames, aTotNumOfSensorModels, aTotNumOfActiveSensorModels)) {
        throw std::invalid_argument(
            "ERROR: System failed to initialize all required member variables using the input parameters.");
    }
}

std::vector<TSMPluginInfo> TSMPluginInfo::OfRegisteredPlugins()
{
    std::vector<TSMPluginInfo> infos;
    for (const TSMPlugin* const plugin : Detail::RegisteredPlugins()) {
        const std::vector<Detail::OfferedModel> models = Detail::ModelsOf(*plugin);
        std::vector<const char*> names;
        int active = 0;
        for (const Detail::OfferedModel& model : models) {
            names.push_back(model.name.c_str());
            active += model.version.empty() ? 0 : 1;
        }
        if (names.empty()) {
            names.push_back(UNKNOWN);
        }
        const std::string library = Detail::LibraryOf(*plugin);
        infos.emplace_back(
            library.empty() ? UNKNOWN : library.c_str(), Answer(*plugin, &TSMPlugin::getManufacturer).c_str(),
            Answer(*plugin, &TSMPlugin::getPluginName).c_str(), Answer(*plugin, &TSMPlugin::getReleaseDate).c_str(),
            nullptr, names.data(), static_cast<int>(names.size()), active, nullptr, nullptr);
    }
    return infos;
}

const char* TSMPluginInfo::GetSensorModelName(int aIndex) const noexcept
{
    return aIndex < 0 || aIndex >= GetTotalNumberOfSensorModelsInPlugin()
               ? nullptr
               : m_sensorModelNames[static_cast<std::size_t>(aIndex)].c_str();
}

int TSMPluginInfo::GetTotalNumberOfSensorModelsInPlugin() const noexcept
{
    return static_cast<int>(m_sensorModelNames.size());
}

bool TSMPluginInfo::SetLibraryName(const char* aName)
{
    return SetRequired(m_libraryName, aName);
}

bool TSMPluginInfo::SetManufacturer(const char* aManufacturer)
{
    return SetRequired(m_manufacturer, aManufacturer);
}

bool TSMPluginInfo::SetPluginName(const char* aName)
{
    return SetRequired(m_pluginName, aName);
}

bool TSMPluginInfo::SetPluginReleaseDate(const char* aDate)
{
    return SetRequired(m_pluginReleaseDate, aDate);
}

bool TSMPluginInfo::SetDescription(const char* aDescription)
{
    m_description = Trimmed(aDescription);
    return true;
}

bool TSMPluginInfo::SetSensorModelNames(const char* const* aNames, int aTotal, int aActive)
{
    if (aNames == nullptr || aTotal <= 0 || aActive < 0) {
        return false;
    }
    std::vector<std::string> names;
    for (int i = 0; i != aTotal; ++i) {
        if (aNames[i] == nullptr) {
            return false;
        }
        names.push_back(Trimmed(aNames[i]));
    }
    m_sensorModelNames = std::move(names);
    m_activeSensorModels = aActive;
    return true;
}

bool TSMPluginInfo::SetSensorType(const char* aType)
{
    return SetOrUnknown(m_sensorType, aType);
}

bool TSMPluginInfo::SetSensorCategory(const char* aCategory)
{
    return SetOrUnknown(m_sensorCategory, aCategory);
}

}  // namespace ORMO::SensorModel::CSM
