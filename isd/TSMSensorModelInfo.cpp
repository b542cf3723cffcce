#include "isd/TSMSensorModelInfo.h"

#include "foundation/PropertyKey.h"
#include "isd/detail/CsmCall.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

namespace {

/// A model that says to have more parameters than this is not asked for longer.
constexpr int MOST_PARAMETERS = 100000;

/// A text of the model; empty when it does not tell it.
std::string TextOf(TSMSensorModel& aModel, TSMWarning* (TSMSensorModel::*aQuery)(std::string&))
{
    std::string text;
    if (!Detail::AskCsm([&] { return (aModel.*aQuery)(text); })) {
        text.clear();
    }
    return text;
}

}  // namespace

TSMSensorModelInfo::TSMSensorModelInfo(const TSMSensorModel* aModel)
{
    if (aModel == nullptr) {
        throw std::invalid_argument("ERROR: TSMSensorModel input argument cannot be NULL.");
    }
    // The CSM API declares no operation of a model const, its queries neither.
    TSMSensorModel& model = const_cast<TSMSensorModel&>(*aModel);
    m_name = TextOf(model, &TSMSensorModel::getSensorModelName);
    m_pedigree = TextOf(model, &TSMSensorModel::getPedigree);
    m_imageIdentifier = TextOf(model, &TSMSensorModel::getImageIdentifier);
    m_referenceDateAndTime = TextOf(model, &TSMSensorModel::getReferenceDateAndTime);
    m_trajectoryIdentifier = TextOf(model, &TSMSensorModel::getTrajectoryIdentifier);
    m_state = TextOf(model, &TSMSensorModel::getSensorModelState);

    int count = 0;
    if (Detail::AskCsm([&] { return model.getNumParameters(count); })) {
        for (int i = 0; i < std::min(count, MOST_PARAMETERS); ++i) {
            std::string name;
            if (!Detail::AskCsm([&] { return model.getParameterName(i, name); })) {
                name.clear();  // the place is kept: the index of a parameter is how the model knows it
            }
            m_parameterNames.push_back(std::move(name));
        }
    }
    int lines = 0;
    int samples = 0;
    if (Detail::AskCsm([&] { return model.getImageSize(lines, samples); })) {
        SetImageSegmentLineSample(lines, samples);
    }
    double minimum = 0.0;
    double maximum = 0.0;
    if (Detail::AskCsm([&] { return model.getValidAltitudeRange(minimum, maximum); })) {
        SetSensorModelValidAltitudeRange(minimum, maximum);
    }
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    if (Detail::AskCsm([&] { return model.getReferencePoint(x, y, z); })) {
        SetGeocentricGroundReferencePoint(x, y, z);
    }
}

TSMSensorModelInfo::~TSMSensorModelInfo() = default;

const char* TSMSensorModelInfo::GetSensorModelParameter(int aIndex) const noexcept
{
    return aIndex < 0 || aIndex >= GetNumSensorModelParameters()
               ? nullptr
               : m_parameterNames[static_cast<std::size_t>(aIndex)].c_str();
}

void TSMSensorModelInfo::GetImageSegmentSize(int& aLines, int& aSamples) const noexcept
{
    aLines = m_lines;
    aSamples = m_samples;
}

void TSMSensorModelInfo::GetSensorModelValidAltitudeRange(double& aMinimum, double& aMaximum) const noexcept
{
    aMinimum = m_minimumAltitude;
    aMaximum = m_maximumAltitude;
}

bool TSMSensorModelInfo::GetGeocentricGroundReferencePoint(double& aX, double& aY, double& aZ) const noexcept
{
    if (m_hasReferencePoint) {
        aX = m_referencePoint[0];
        aY = m_referencePoint[1];
        aZ = m_referencePoint[2];
    }
    return m_hasReferencePoint;
}

const char* TSMSensorModelInfo::GetProperty(const char* aKey) const noexcept
{
    struct Property
    {
        std::string_view key;
        const std::string TSMSensorModelInfo::*field;
    };
    static constexpr Property PROPERTIES[] = {
        {PropertyKey::SENSOR_MODEL_NAME, &TSMSensorModelInfo::m_name},
        {PropertyKey::SENSOR_MODEL_PEDIGREE, &TSMSensorModelInfo::m_pedigree},
        {PropertyKey::IMAGE_IDENTIFIER, &TSMSensorModelInfo::m_imageIdentifier},
        {PropertyKey::IMAGE_REFERENCE_DATETIME, &TSMSensorModelInfo::m_referenceDateAndTime},
        {PropertyKey::SENSOR_PLATFORM_TRAJECTORY_ID, &TSMSensorModelInfo::m_trajectoryIdentifier},
        {PropertyKey::SENSOR_MODEL_STATE, &TSMSensorModelInfo::m_state},
    };
    for (const Property& property : PROPERTIES) {
        if (aKey != nullptr && property.key == aKey) {
            return (this->*property.field).c_str();
        }
    }
    return nullptr;
}

void TSMSensorModelInfo::SetGeocentricGroundReferencePoint(double aX, double aY, double aZ) noexcept
{
    m_referencePoint[0] = aX;
    m_referencePoint[1] = aY;
    m_referencePoint[2] = aZ;
    m_hasReferencePoint = true;
}

void TSMSensorModelInfo::SetImageSegmentLineSample(int aLines, int aSamples) noexcept
{
    m_lines = aLines;
    m_samples = aSamples;
}

void TSMSensorModelInfo::SetSensorModelValidAltitudeRange(double aMinimum, double aMaximum) noexcept
{
    m_minimumAltitude = aMinimum;
    m_maximumAltitude = aMaximum;
}

}  // namespace ORMO::SensorModel::CSM
