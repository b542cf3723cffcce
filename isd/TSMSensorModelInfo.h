#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Describes a sensor model that a plug-in of the CSM API has made. All is read when the object is made, so that it
/// outlives the model; what a getter hands out belongs to the object.
class ORMO_CSM_API TSMSensorModelInfo
{
public:
    /// Reads every field from the model, which stays the caller's. A field that the model fails to tell keeps its
    /// default: empty text, 0, no reference point. Throws std::invalid_argument for a null model.
    explicit TSMSensorModelInfo(const TSMSensorModel* aModel);
    virtual ~TSMSensorModelInfo();
    TSMSensorModelInfo(const TSMSensorModelInfo&) = default;
    TSMSensorModelInfo& operator=(const TSMSensorModelInfo&) = default;

    const char* GetSensorModelName() const noexcept { return m_name.c_str(); }
    const char* GetSensorModelPedigree() const noexcept { return m_pedigree.c_str(); }
    const char* GetImageIdentifier() const noexcept { return m_imageIdentifier.c_str(); }
    const char* GetImageReferenceDateAndTime() const noexcept { return m_referenceDateAndTime.c_str(); }
    const char* GetSensorPlatformTrajectoryIdentifier() const noexcept { return m_trajectoryIdentifier.c_str(); }
    /// Hosts know the operation by this spelling.
    const char* GetCurrentSensroModelState() const noexcept { return m_state.c_str(); }
    int GetNumSensorModelParameters() const noexcept { return static_cast<int>(m_parameterNames.size()); }
    /// The name of a parameter; null for an index outside.
    const char* GetSensorModelParameter(int aIndex) const noexcept;
    void GetImageSegmentSize(int& aLines, int& aSamples) const noexcept;
    /// In metres above the ellipsoid.
    void GetSensorModelValidAltitudeRange(double& aMinimum, double& aMaximum) const noexcept;
    /// ECEF in metres. False, with the outputs as they were, when the model has no reference point.
    bool GetGeocentricGroundReferencePoint(double& aX, double& aY, double& aZ) const noexcept;
    bool HasGeocentricGroundRefPts() const noexcept { return m_hasReferencePoint; }

    /// The field of a key: PropertyKey::SENSOR_MODEL_NAME, SENSOR_MODEL_PEDIGREE, IMAGE_IDENTIFIER,
    /// IMAGE_REFERENCE_DATETIME, SENSOR_PLATFORM_TRAJECTORY_ID or SENSOR_MODEL_STATE. Null for any other text.
    const char* GetProperty(const char* aKey) const noexcept;

protected:
    void SetGeocentricGroundReferencePoint(double aX, double aY, double aZ) noexcept;
    void SetImageSegmentLineSample(int aLines, int aSamples) noexcept;
    void SetSensorModelValidAltitudeRange(double aMinimum, double aMaximum) noexcept;

private:
    std::string m_name;
    std::string m_pedigree;
    std::string m_imageIdentifier;
    std::string m_referenceDateAndTime;
    std::string m_trajectoryIdentifier;
    std::string m_state;
    std::vector<std::string> m_parameterNames;
    int m_lines = 0;
    int m_samples = 0;
    double m_minimumAltitude = 0.0;
    double m_maximumAltitude = 0.0;
    bool m_hasReferencePoint = false;
    double m_referencePoint[3] = {0.0, 0.0, 0.0};
};

}  // namespace ORMO::SensorModel::CSM
