#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"

#include <string>

namespace ORMO::SensorModel::CSM {

/// The library's plug-in in the list of the CSM API: it tells a host who is there and which image support data the
/// library reads, and builds no sensor model. One instance registers when the library is loaded.
///
/// Its one model name is "ORMO_CSM", in any letter case. Every query answers a null warning; errors are thrown as
/// TSMError, never as an exception of the library.
class ORMO_CSM_API OrmoCSMPlugin : public TSMPlugin
{
public:
    /// The registered instance.
    static const OrmoCSMPlugin& Instance();

    OrmoCSMPlugin(const OrmoCSMPlugin&) = delete;
    OrmoCSMPlugin& operator=(const OrmoCSMPlugin&) = delete;
    ~OrmoCSMPlugin() override;

    /// Whether the ISD is of a class that TSMISDFactory knows; false for any other model name. INVALID_USE for an empty
    /// name.
    TSMWarning* canISDBeConvertedToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                                    bool& aResult) const override;
    /// The same.
    TSMWarning* canSensorModelBeConstructedFromISD(const tsm_ISD& aIsd, const std::string& aName,
                                                   bool& aResult) const override;
    /// Always false. INVALID_USE for an empty name.
    TSMWarning* canSensorModelBeConstructedFromState(const std::string& aName, const std::string& aState,
                                                     bool& aResult) const override;
    /// A null model. SENSOR_MODEL_NOT_SUPPORTED for any other name, INVALID_USE for an empty one; both errors name
    /// canSensorModelBeConstructedFromState as their function.
    TSMWarning* constructSensorModelFromISD(const tsm_ISD& aIsd, const std::string& aName,
                                            TSMSensorModel*& aModel) const override;
    /// A null model.
    TSMWarning* constructSensorModelFromState(const std::string& aState, TSMSensorModel*& aModel) const override;
    /// An empty state. ISD_NOT_SUPPORTED for an ISD of an unknown class, SENSOR_MODEL_NOT_SUPPORTED for any other name,
    /// INVALID_USE for an empty one.
    TSMWarning* convertISDToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                             std::string& aState) const override;
    TSMWarning* getManufacturer(std::string& aManufacturer) const override;
    TSMWarning* getNSensorModels(int& aCount) const override;
    TSMWarning* getPluginName(std::string& aName) const override;
    TSMWarning* getReleaseDate(std::string& aDate) const override;
    /// INDEX_OUT_OF_RANGE, with the name empty, for every index but 0.
    TSMWarning* getSensorModelName(const int& aIndex, std::string& aName) const override;
    /// Always INVALID_SENSOR_MODEL_STATE.
    TSMWarning* getSensorModelNameFromSensorModelState(const std::string& aState, std::string& aName) const override;
    /// 1. SENSOR_MODEL_NOT_SUPPORTED for any other name, INVALID_USE for an empty one.
    TSMWarning* getSensorModelVersion(const std::string& aName, int& aVersion) const override;

private:
    OrmoCSMPlugin();
};

}  // namespace ORMO::SensorModel::CSM
