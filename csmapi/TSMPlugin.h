#pragma once

#include "TSMError.h"
#include "TSMImageSupportData.h"
#include "TSMMisc.h"

#include <list>
#include <string>

class TSMWarning;
class TSMSensorModel;

/// Root of all plug-ins. A plug-in registers by one static object of its class; hosts load its library and then look
/// into the list, which lives in this base library and so must be shared by hosts and plug-ins.
/// Warnings returned belong to the caller, as do sensor models constructed. The order of the virtual operations is
/// part of the binary interface.
class TSM_EXPORT_API TSMPlugin
{
public:
    typedef std::list<const TSMPlugin*> TSMPluginList;
    class Impl;

    /// Takes the plug-in off the list.
    virtual ~TSMPlugin();

    /// The live list in order of registration, never null. It is not locked while the caller walks it.
    static TSMWarning* getList(TSMPluginList*& aTSMPluginList);

    /// The first plug-in of exactly this name. When there is none the argument keeps its value and a warning
    /// DATA_NOT_AVAILABLE comes back.
    static TSMWarning* findPlugin(const std::string& pluginName, TSMPlugin*& aTSMPlugin);

    /// Takes the first plug-in of this name off the list and does not delete it. Throws TSMError UNKNOWN_ERROR when
    /// there is none.
    static TSMWarning* removePlugin(const std::string& pluginName);

    // What the plug-in is and offers.
    virtual TSMWarning* getPluginName(std::string& pluginName) const = 0;
    virtual TSMWarning* getManufacturer(std::string& manufacturer_name) const = 0;
    virtual TSMWarning* getReleaseDate(std::string& release_date) const = 0;
    virtual TSMWarning* getNSensorModels(int& n_sensor_models) const = 0;
    virtual TSMWarning* getSensorModelName(const int& sensor_model_index, std::string& sensor_model_name) const = 0;
    virtual TSMWarning* getSensorModelVersion(const std::string& sensor_model_name, int& version) const = 0;

    // Construction of sensor models from a state or from image support data.
    virtual TSMWarning* canSensorModelBeConstructedFromState(const std::string& sensor_model_name,
                                                             const std::string& sensor_model_state,
                                                             bool& constructible) const = 0;
    virtual TSMWarning* canSensorModelBeConstructedFromISD(const tsm_ISD& image_support_data,
                                                           const std::string& sensor_model_name,
                                                           bool& constructible) const = 0;
    virtual TSMWarning* constructSensorModelFromState(const std::string& sensor_model_state,
                                                      TSMSensorModel*& sensor_model) const = 0;
    virtual TSMWarning* constructSensorModelFromISD(const tsm_ISD& image_support_data,
                                                    const std::string& sensor_model_name,
                                                    TSMSensorModel*& sensor_model) const = 0;
    virtual TSMWarning* getSensorModelNameFromSensorModelState(const std::string& sensor_model_state,
                                                               std::string& sensor_model_name) const = 0;
    virtual TSMWarning* canISDBeConvertedToSensorModelState(const tsm_ISD& image_support_data,
                                                            const std::string& sensor_model_name,
                                                            bool& convertible) const = 0;
    virtual TSMWarning* convertISDToSensorModelState(const tsm_ISD& image_support_data,
                                                     const std::string& sensor_model_name,
                                                     std::string& sensor_model_state) const = 0;

protected:
    /// Appends the plug-in to the list.
    TSMPlugin();

private:
    static TSMPluginList* theList;
    static Impl* theImpl;
};
