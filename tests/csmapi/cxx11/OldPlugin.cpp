// A plug-in as they are written for this generation of the CSM API, built as C++11: its overrides carry exception
// specifications that later languages refuse. It includes every header, so that each stays readable to that language.

#include "TSMISDByteStream.h"
#include "TSMISDFilename.h"
#include "TSMISDNITF21.h"
#include "TSMPlugin.h"
#include "TSMSensorModel.h"
#include "TSMWarning.h"

#include <string>

namespace {

class OldPlugin : public TSMPlugin
{
public:
    explicit OldPlugin(const std::string& aName) : m_name(aName) {}

    TSMWarning* getPluginName(std::string& pluginName) const throw(TSMError)
    {
        pluginName = m_name;
        return new TSMWarning(TSMWarning::UNKNOWN_WARNING, "A warning that the asker owns", "getPluginName");
    }
    TSMWarning* getManufacturer(std::string&) const throw(TSMError) { return nullptr; }
    TSMWarning* getReleaseDate(std::string&) const throw(TSMError) { return nullptr; }
    TSMWarning* getNSensorModels(int& n_sensor_models) const throw(TSMError)
    {
        n_sensor_models = 0;
        return nullptr;
    }
    TSMWarning* getSensorModelName(const int&, std::string&) const throw(TSMError)
    {
        throw TSMError(TSMError::INDEX_OUT_OF_RANGE, "No such model", "OldPlugin::getSensorModelName");
    }
    TSMWarning* getSensorModelVersion(const std::string&, int&) const throw(TSMError) { return nullptr; }
    TSMWarning* canSensorModelBeConstructedFromState(const std::string&, const std::string&, bool&) const
        throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* canSensorModelBeConstructedFromISD(const tsm_ISD&, const std::string&, bool&) const throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* constructSensorModelFromState(const std::string&, TSMSensorModel*&) const throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* constructSensorModelFromISD(const tsm_ISD&, const std::string&, TSMSensorModel*&) const throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* getSensorModelNameFromSensorModelState(const std::string&, std::string&) const throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* canISDBeConvertedToSensorModelState(const tsm_ISD&, const std::string&, bool&) const throw(TSMError)
    {
        return nullptr;
    }
    TSMWarning* convertISDToSensorModelState(const tsm_ISD&, const std::string&, std::string&) const throw(TSMError)
    {
        return nullptr;
    }

private:
    std::string m_name;
};

}  // namespace

TSMPlugin* MakeOldPlugin(const std::string& aName)
{
    return new OldPlugin(aName);
}
