#pragma once

#include "PlainSensorModel.h"
#include "RpcCoefficients.h"

#include <string>

/// What the model needs to know of an image besides the polynomials.
struct RpcImage
{
    std::string identifier;
    std::string dateAndTime;
    int lines = 0;
    int samples = 0;
};

/// The sensor model of an image with RPC00B. Image positions count from the upper left corner of the first pixel, whose
/// middle is 0.5, 0.5. It has two parameters: what is added to line and sample, in pixels.
class RpcModel : public PlainSensorModel
{
public:
    static const char* const NAME;
    static const int VERSION = 1;

    /// Null when the record holds no solution.
    static RpcModel* Make(const RpcImage& aImage, const std::string& aRecord);
    /// A model from the text that getSensorModelState gave; null for any other text.
    static RpcModel* FromState(const std::string& aState);

    TSMWarning* groundToImage(const double& aX, const double& aY, const double& aZ, double& aLine, double& aSample,
                              double& aAchieved, const double& aDesired) override;
    TSMWarning* groundToImage(const double& aX, const double& aY, const double& aZ, const double aGroundCovariance[9],
                              double& aLine, double& aSample, double aImageCovariance[4], double& aAchieved,
                              const double& aDesired) override;
    TSMWarning* imageToGround(const double& aLine, const double& aSample, const double& aHeight, double& aX, double& aY,
                              double& aZ, double& aAchieved, const double& aDesired) override;
    TSMWarning* imageToGround(const double& aLine, const double& aSample, const double aImageCovariance[4],
                              const double& aHeight, const double& aHeightVariance, double& aX, double& aY, double& aZ,
                              double aGroundCovariance[9], double& aAchieved, const double& aDesired) override;
    TSMWarning* imageToProximateImagingLocus(const double& aLine, const double& aSample, const double& aX,
                                             const double& aY, const double& aZ, double aLocus[6], double& aAchieved,
                                             const double& aDesired) override;
    TSMWarning* imageToRemoteImagingLocus(const double& aLine, const double& aSample, double aLocus[6],
                                          double& aAchieved, const double& aDesired) override;
    TSMWarning* computeGroundPartials(const double& aX, const double& aY, const double& aZ,
                                      double aPartials[6]) override;
    TSMWarning* computeSensorPartials(const int& aIndex, const double& aX, const double& aY, const double& aZ,
                                      double& aLinePartial, double& aSamplePartial, double& aAchieved,
                                      const double& aDesired) override;
    TSMWarning* computeSensorPartials(const int& aIndex, const double& aLine, const double& aSample, const double& aX,
                                      const double& aY, const double& aZ, double& aLinePartial, double& aSamplePartial,
                                      double& aAchieved, const double& aDesired) override;
    TSMWarning* getCurrentParameterCovariance(const int& aFirst, const int& aSecond, double& aCovariance) override;
    TSMWarning* setCurrentParameterValue(const int& aIndex, const double& aValue) override;
    TSMWarning* getCurrentParameterValue(const int& aIndex, double& aValue) override;
    TSMWarning* getParameterName(const int& aIndex, std::string& aName) override;
    TSMWarning* getNumParameters(int& aCount) override;
    TSMWarning* getParameterType(const int& aIndex, TSMMisc::Param_CharType& aType) override;
    TSMWarning* getTrajectoryIdentifier(std::string& aTrajectory) override;
    TSMWarning* getReferenceDateAndTime(std::string& aDateAndTime) override;
    TSMWarning* getPedigree(std::string& aPedigree) override;
    TSMWarning* getImageIdentifier(std::string& aImage) override;
    TSMWarning* setImageIdentifier(const std::string& aImage) override;
    TSMWarning* getReferencePoint(double& aX, double& aY, double& aZ) override;
    TSMWarning* getSensorModelName(std::string& aName) override;
    TSMWarning* getImageSize(int& aLines, int& aSamples) override;
    TSMWarning* getSensorModelState(std::string& aState) override;
    TSMWarning* getValidAltitudeRange(double& aMinimum, double& aMaximum) override;
    TSMWarning* getNumSystematicErrorCorrections(int& aCount) override;
    TSMWarning* getUnmodeledError(const double aLine, const double aSample, double aCovariance[4]) override;

private:
    RpcModel(const RpcImage& aImage, const std::string& aRecord, const RpcCoefficients& aCoefficients);

    void ToImage(const Ecef& aGround, double& aLine, double& aSample) const;
    Geodetic ToGround(double aLine, double aSample, double aHeight, double& aLastStep) const;
    TSMWarning* Checked(double aLine, double aSample, const char* aFunction) const;
    void ErrorInPixels(double aMetres, double aCovariance[4]) const;

    RpcImage m_image;
    std::string m_record;
    RpcCoefficients m_coefficients;
    double m_parameters[2] = {0.0, 0.0};
};
