// A plug-in of the CSM API with one sensor model, RPC00B. Load the library and the plug-in stands in the list of the
// CSM API; it takes NITF ISDs with exactly one image that carries the record.

#include "RpcModel.h"
#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"
#include "TSMPlugin.h"

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

// Places in an image subheader, the same in NITF 2.0 and 2.1 but for the event field of 2.0.
const std::size_t IDENTIFIER = 2;
const std::size_t DATE = 12;
const std::size_t DOWNGRADE = 284;
const std::size_t ROWS = 333;
const std::size_t DIGITS = 8;
const std::size_t EVENT_LENGTH = 40;

/// The record of this tag; null when the image has none.
const tre* Find(const image& aImage, const char* aTag)
{
    for (int i = 0; i < aImage.numTREs; ++i) {
        if (std::strcmp(aImage.imageTREs[i].name, aTag) == 0) {
            return &aImage.imageTREs[i];
        }
    }
    return nullptr;
}

std::string Field(const std::string& aHeader, std::size_t aOffset, std::size_t aLength)
{
    std::string field = aOffset < aHeader.size() ? aHeader.substr(aOffset, aLength) : std::string();
    field.erase(field.find_last_not_of(' ') + 1);
    return field;
}

/// The model of the one image of an ISD; null when it has no usable record. A chip is not taken: its record counts in
/// the pixels of the image that it was cut from.
RpcModel* ModelOf(const image* aImages, int aCount, bool aIs20)
{
    const tre* const record = aCount == 1 ? Find(aImages[0], "RPC00B") : nullptr;
    if (record == nullptr || Find(aImages[0], "ICHIPB") != nullptr) {
        return nullptr;
    }
    const std::string& header = aImages[0].imageSubHeader;
    const bool hasEvent = aIs20 && Field(header, DOWNGRADE, 6) == "999998";
    const std::size_t rows = ROWS + (hasEvent ? EVENT_LENGTH : 0);
    RpcImage description;
    description.identifier = Field(header, IDENTIFIER, 10);
    description.dateAndTime = Field(header, DATE, 14);
    description.lines = std::atoi(Field(header, rows, DIGITS).c_str());
    description.samples = std::atoi(Field(header, rows + DIGITS, DIGITS).c_str());
    return RpcModel::Make(description, std::string(record->record, static_cast<std::size_t>(record->length)));
}

RpcModel* ModelOf(const tsm_ISD& aIsd)
{
    if (const NITF_2_1_ISD* const isd = dynamic_cast<const NITF_2_1_ISD*>(&aIsd)) {
        return ModelOf(isd->images, isd->numImages, false);
    }
    if (const NITF_2_0_ISD* const isd = dynamic_cast<const NITF_2_0_ISD*>(&aIsd)) {
        return ModelOf(isd->images, isd->numImages, true);
    }
    return nullptr;
}

void RequireName(const std::string& aName, const char* aFunction)
{
    if (aName != RpcModel::NAME) {
        throw TSMError(TSMError::SENSOR_MODEL_NOT_SUPPORTED, "The plug-in has no model of this name", aFunction);
    }
}

class RpcPlugin : public TSMPlugin
{
public:
    TSMWarning* getPluginName(std::string& aName) const override
    {
        aName = "EXAMPLE_RPC_PLUGIN";
        return nullptr;
    }
    TSMWarning* getManufacturer(std::string& aManufacturer) const override
    {
        aManufacturer = "Ormo examples";
        return nullptr;
    }
    TSMWarning* getReleaseDate(std::string& aDate) const override
    {
        aDate = "20261121";
        return nullptr;
    }
    TSMWarning* getNSensorModels(int& aCount) const override
    {
        aCount = 1;
        return nullptr;
    }
    TSMWarning* getSensorModelName(const int& aIndex, std::string& aName) const override
    {
        if (aIndex != 0) {
            throw TSMError(TSMError::INDEX_OUT_OF_RANGE, "The plug-in has one model", "RpcPlugin::getSensorModelName");
        }
        aName = RpcModel::NAME;
        return nullptr;
    }
    TSMWarning* getSensorModelVersion(const std::string& aName, int& aVersion) const override
    {
        RequireName(aName, "RpcPlugin::getSensorModelVersion");
        aVersion = RpcModel::VERSION;
        return nullptr;
    }
    TSMWarning* canSensorModelBeConstructedFromState(const std::string& aName, const std::string& aState,
                                                     bool& aConstructible) const override
    {
        aConstructible = aName == RpcModel::NAME && std::unique_ptr<RpcModel>(RpcModel::FromState(aState)) != nullptr;
        return nullptr;
    }
    TSMWarning* canSensorModelBeConstructedFromISD(const tsm_ISD& aIsd, const std::string& aName,
                                                   bool& aConstructible) const override
    {
        aConstructible = aName == RpcModel::NAME && std::unique_ptr<RpcModel>(ModelOf(aIsd)) != nullptr;
        return nullptr;
    }
    TSMWarning* constructSensorModelFromState(const std::string& aState, TSMSensorModel*& aModel) const override
    {
        aModel = RpcModel::FromState(aState);
        if (aModel == nullptr) {
            throw TSMError(TSMError::INVALID_SENSOR_MODEL_STATE, "The state is not one of this model",
                           "RpcPlugin::constructSensorModelFromState");
        }
        return nullptr;
    }
    TSMWarning* constructSensorModelFromISD(const tsm_ISD& aIsd, const std::string& aName,
                                            TSMSensorModel*& aModel) const override
    {
        RequireName(aName, "RpcPlugin::constructSensorModelFromISD");
        aModel = ModelOf(aIsd);
        if (aModel == nullptr) {
            throw TSMError(TSMError::SENSOR_MODEL_NOT_CONSTRUCTIBLE, "The ISD holds no image with a usable RPC00B",
                           "RpcPlugin::constructSensorModelFromISD");
        }
        return nullptr;
    }
    TSMWarning* getSensorModelNameFromSensorModelState(const std::string& aState, std::string& aName) const override
    {
        if (std::unique_ptr<RpcModel>(RpcModel::FromState(aState)) == nullptr) {
            throw TSMError(TSMError::INVALID_SENSOR_MODEL_STATE, "The state is not one of this model",
                           "RpcPlugin::getSensorModelNameFromSensorModelState");
        }
        aName = RpcModel::NAME;
        return nullptr;
    }
    TSMWarning* canISDBeConvertedToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                                    bool& aConvertible) const override
    {
        return canSensorModelBeConstructedFromISD(aIsd, aName, aConvertible);
    }
    TSMWarning* convertISDToSensorModelState(const tsm_ISD& aIsd, const std::string& aName,
                                             std::string& aState) const override
    {
        TSMSensorModel* built = nullptr;
        constructSensorModelFromISD(aIsd, aName, built);
        const std::unique_ptr<TSMSensorModel> model(built);
        return model->getSensorModelState(aState);
    }
};

/// Made when the library is loaded, and with that registered.
const RpcPlugin REGISTERED;

}  // namespace
