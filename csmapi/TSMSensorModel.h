#pragma once

#include "TSMCovarianceModel.h"
#include "TSMError.h"
#include "TSMMisc.h"
#include "TSMWarning.h"

#include <string>

/// A sensor model, constructed by a plug-in and deleted by the caller. Ground points are ECEF in metres, image
/// positions in pixels, matrices row by row, times in seconds from the reference date and time. A warning returned
/// belongs to the caller; errors are thrown as TSMError. The order of the operations is part of the binary interface.
class TSM_EXPORT_API TSMSensorModel
{
public:
    TSMSensorModel() {}
    virtual ~TSMSensorModel() {}

    // Ground to image and back; imaging loci.
    virtual TSMWarning* groundToImage(const double& x, const double& y, const double& z, double& line, double& sample,
                                      double& achieved_precision, const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* groundToImage(const double& x, const double& y, const double& z,
                                      const double groundCovariance[9], double& line, double& sample,
                                      double imageCovariance[4], double& achieved_precision,
                                      const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* imageToGround(const double& line, const double& sample, const double& height, double& x,
                                      double& y, double& z, double& achieved_precision,
                                      const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* imageToGround(const double& line, const double& sample, const double imageCovariance[4],
                                      const double& height, const double& heightVariance, double& x, double& y,
                                      double& z, double groundCovariance[9], double& achieved_precision,
                                      const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* imageToProximateImagingLocus(const double& line, const double& sample, const double& x,
                                                     const double& y, const double& z, double locus[6],
                                                     double& achieved_precision,
                                                     const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* imageToRemoteImagingLocus(const double& line, const double& sample, double locus[6],
                                                  double& achieved_precision,
                                                  const double& desired_precision = 0.001) = 0;

    // Partial derivatives: line and sample by x, y, z, and by one parameter.
    virtual TSMWarning* computeGroundPartials(const double& x, const double& y, const double& z,
                                              double partials[6]) = 0;
    virtual TSMWarning* computeSensorPartials(const int& index, const double& x, const double& y, const double& z,
                                              double& line_partial, double& sample_partial, double& achieved_precision,
                                              const double& desired_precision = 0.001) = 0;
    virtual TSMWarning* computeSensorPartials(const int& index, const double& line, const double& sample,
                                              const double& x, const double& y, const double& z, double& line_partial,
                                              double& sample_partial, double& achieved_precision,
                                              const double& desired_precision = 0.001) = 0;

    // Covariance of the parameters.
    virtual TSMWarning* getCurrentParameterCovariance(const int& index1, const int& index2, double& covariance) = 0;
    virtual TSMWarning* setCurrentParameterCovariance(const int& index1, const int& index2,
                                                      const double& covariance) = 0;
    virtual TSMWarning* setOriginalParameterCovariance(const int& index1, const int& index2,
                                                       const double& covariance) = 0;
    virtual TSMWarning* getOriginalParameterCovariance(const int& index1, const int& index2, double& covariance) = 0;

    // Trajectory, time and the sensor's place on its way.
    virtual TSMWarning* getTrajectoryIdentifier(std::string& trajectoryId) = 0;
    virtual TSMWarning* getReferenceDateAndTime(std::string& date_and_time) = 0;
    virtual TSMWarning* getImageTime(const double& line, const double& sample, double& time) = 0;
    virtual TSMWarning* getSensorPosition(const double& line, const double& sample, double& x, double& y,
                                          double& z) = 0;
    virtual TSMWarning* getSensorPosition(const double& time, double& x, double& y, double& z) = 0;
    virtual TSMWarning* getSensorVelocity(const double& line, const double& sample, double& vx, double& vy,
                                          double& vz) = 0;
    virtual TSMWarning* getSensorVelocity(const double& time, double& vx, double& vy, double& vz) = 0;

    // Parameters.
    virtual TSMWarning* setCurrentParameterValue(const int& index, const double& value) = 0;
    virtual TSMWarning* getCurrentParameterValue(const int& index, double& value) = 0;
    virtual TSMWarning* getParameterName(const int& index, std::string& name) = 0;
    virtual TSMWarning* getNumParameters(int& numParams) = 0;
    virtual TSMWarning* setOriginalParameterValue(const int& index, const double& value) = 0;
    virtual TSMWarning* getOriginalParameterValue(const int& index, double& value) = 0;
    virtual TSMWarning* getParameterType(const int& index, TSMMisc::Param_CharType& pType) = 0;
    virtual TSMWarning* setParameterType(const int& index, const TSMMisc::Param_CharType& pType) = 0;

    // Identity.
    virtual TSMWarning* getPedigree(std::string& pedigree) = 0;
    virtual TSMWarning* getImageIdentifier(std::string& imageId) = 0;
    virtual TSMWarning* setImageIdentifier(const std::string& imageId) = 0;
    virtual TSMWarning* getSensorIdentifier(std::string& sensorId) = 0;
    virtual TSMWarning* getPlatformIdentifier(std::string& platformId) = 0;

    // The reference point, the state and the model's extent.
    virtual TSMWarning* setReferencePoint(const double& x, const double& y, const double& z) = 0;
    virtual TSMWarning* getReferencePoint(double& x, double& y, double& z) = 0;
    virtual TSMWarning* getSensorModelName(std::string& name) = 0;
    virtual TSMWarning* getImageSize(int& num_lines, int& num_samples) = 0;
    virtual TSMWarning* getSensorModelState(std::string& state) = 0;
    virtual TSMWarning* getValidAltitudeRange(double& minAltitude, double& maxAltitude) = 0;
    virtual TSMWarning* getIlluminationDirection(const double& x, const double& y, const double& z, double& direction_x,
                                                 double& direction_y, double& direction_z) = 0;

    // Systematic error corrections.
    virtual TSMWarning* getNumSystematicErrorCorrections(int& numSec) = 0;
    virtual TSMWarning* getSystematicErrorCorrectionName(const int& index, std::string& name) = 0;
    virtual TSMWarning* setCurrentSystematicErrorCorrectionSwitch(const int& index, const bool& value,
                                                                  const TSMMisc::Param_CharType& parameterType) = 0;
    virtual TSMWarning* getCurrentSystematicErrorCorrectionSwitch(const int& index, bool& value) = 0;

    // Error models.
    virtual TSMWarning* getCovarianceModel(tsm_CovarianceModel*& covModel) = 0;
    virtual TSMWarning* getUnmodeledError(const double line, const double sample, double covariance[4]) = 0;
    virtual TSMWarning* getUnmodeledCrossCovariance(const double pt1Line, const double pt1Sample, const double pt2Line,
                                                    const double pt2Sample, double crossCovariance[4]) = 0;

    // Sharing of parameters between images.
    virtual TSMWarning* getCollectionIdentifier(std::string& collectionId) = 0;
    virtual TSMWarning* isParameterShareable(const int& index, bool& shareable) = 0;
    virtual TSMWarning* getParameterSharingCriteria(const int& index, bool& requireModelNameMatch,
                                                    bool& requireSensorIDMatch, bool& requirePlatformIDMatch,
                                                    bool& requireCollectionIDMatch, bool& requireTrajectoryIDMatch,
                                                    bool& requireDateTimeMatch, double& allowableTimeDelta) = 0;
};
