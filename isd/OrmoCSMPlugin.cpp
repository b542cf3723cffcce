#include "isd/OrmoCSMPlugin.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMMsg.h"
#include "foundation/CSMUtilGeneric.h"
#include "foundation/CSMUtilString.h"
#include "isd/TSMISDFactory.h"

namespace ORMO::SensorModel::CSM {

using Util::CSMUtilGeneric;

namespace {

constexpr const char* SENSOR_MODEL_NAME = "ORMO_CSM";

// Makes the instance when the library is loaded, so that a host need not call anything.
[[maybe_unused]] const OrmoCSMPlugin& REGISTERED = OrmoCSMPlugin::Instance();

/// Whether the name is that of the model; throws for an empty one.
bool IsAccepted(const std::string& aName, const char* aSource)
{
    if (aName.empty()) {
        CSMUtilGeneric::ThrowTSMError(CSMMsg::Error::INVALID_SENSOR_MODEL_NAME, aSource, TSMError::INVALID_USE);
    }
    return Util::CSMUtilString::Compare(true, aName, SENSOR_MODEL_NAME) == 0;
}

void RequireAccepted(const std::string& aName, const char* aSource)
{
    if (!IsAccepted(aName, aSource)) {
        CSMUtilGeneric::ThrowTSMError(CSMMsg::Error::UNSUPPORTED_SENSOR_MODEL, aSource,
                                      TSMError::SENSOR_MODEL_NOT_SUPPORTED);
    }
}

}  // namespace

const OrmoCSMPlugin& OrmoCSMPlugin::Instance()
{
    static const OrmoCSMPlugin plugin;
    return plugin;
}

OrmoCSMPlugin::OrmoCSMPlugin() = default;

OrmoCSMPlugin::~OrmoCSMPlugin() = default;

TSMWarning* OrmoCSMPlugin::canISDBeConvertedToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                                               bool& aResult) const
{
    aResult =
        IsAccepted(aName, "OrmoCSMPlugin::canISDBeConvertedToSensorModelState") && TSMISDFactory::IsSupportedISD(aIsd);
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::canSensorModelBeConstructedFromISD(const tsm_ISD& aIsd, const std::string& aName,
                                                              bool& aResult) const
{
    aResult =
        IsAccepted(aName, "OrmoCSMPlugin::canSensorModelBeConstructedFromISD") && TSMISDFactory::IsSupportedISD(aIsd);
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::canSensorModelBeConstructedFromState(const std::string& aName, const std::string& /*aState*/,
                                                                bool& aResult) const
{
    static_cast<void>(IsAccepted(aName, "OrmoCSMPlugin::canSensorModelBeConstructedFromState"));
    aResult = false;
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::constructSensorModelFromISD(const tsm_ISD& /*aIsd*/, const std::string& aName,
                                                       TSMSensorModel*& aModel) const
{
    aModel = nullptr;
    // Hosts know the errors of this operation under this name.
    RequireAccepted(aName, "OrmoCSMPlugin::canSensorModelBeConstructedFromState");
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::constructSensorModelFromState(const std::string& /*aState*/, TSMSensorModel*& aModel) const
{
    aModel = nullptr;
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::convertISDToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                                        std::string& aState) const
{
    aState.clear();
    RequireAccepted(aName, "OrmoCSMPlugin::convertISDToSensorModelState");
    try {
        if (!TSMISDFactory::IsSupportedISD(aIsd)) {
            throw InvalidImageSupportDataException("OrmoCommunitySensorModel::ConvertISDToSensorModelState");
        }
    } catch (const CSMException& exception) {
        CSMUtilGeneric::ThrowTSMError(exception.GetErrorMessage(), exception.GetSource(), TSMError::ISD_NOT_SUPPORTED);
    }
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getManufacturer(std::string& aManufacturer) const
{
    aManufacturer = "Ormo";
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getNSensorModels(int& aCount) const
{
    aCount = 1;
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getPluginName(std::string& aName) const
{
    aName = "ORMO_CSM_PLUGIN";
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getReleaseDate(std::string& aDate) const
{
    aDate = "10/10/2011";
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getSensorModelName(const int& aIndex, std::string& aName) const
{
    aName.clear();
    if (aIndex != 0) {
        CSMUtilGeneric::ThrowTSMError(CSMMsg::Error::INDEX_OUT_OF_BOUND, "OrmoCSMPlugin::getSensorModelName",
                                      TSMError::INDEX_OUT_OF_RANGE);
    }
    aName = SENSOR_MODEL_NAME;
    return nullptr;
}

TSMWarning* OrmoCSMPlugin::getSensorModelNameFromSensorModelState(const std::string& /*aState*/,
                                                                  std::string& /*aName*/) const
{
    CSMUtilGeneric::ThrowTSMError(CSMMsg::Error::INVALID_SENSOR_MODEL_STATE,
                                  "OrmoCSMPlugin::getSensorModelNameFromSensorModelState",
                                  TSMError::INVALID_SENSOR_MODEL_STATE);
}

TSMWarning* OrmoCSMPlugin::getSensorModelVersion(const std::string& aName, int& aVersion) const
{
    RequireAccepted(aName, "OrmoCSMPlugin::getSensorModelVersion");
    aVersion = 1;
    return nullptr;
}

}  // namespace ORMO::SensorModel::CSM
