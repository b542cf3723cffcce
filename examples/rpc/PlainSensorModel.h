#pragma once

#include "TSMSensorModel.h"

#include <string>

/// A sensor model that can do nothing: every operation throws UNSUPPORTED_FUNCTION with its own name. Real models
/// derive from it and override what they can do. Overrides of an operation that has several forms hide the forms that
/// they leave out.
class PlainSensorModel : public TSMSensorModel
{
public:
    TSMWarning* groundToImage(const double&, const double&, const double&, double&, double&, double&,
                              const double&) override
    {
        return Refuse("groundToImage");
    }
    TSMWarning* groundToImage(const double&, const double&, const double&, const double[9], double&, double&, double[4],
                              double&, const double&) override
    {
        return Refuse("groundToImage");
    }
    TSMWarning* imageToGround(const double&, const double&, const double&, double&, double&, double&, double&,
                              const double&) override
    {
        return Refuse("imageToGround");
    }
    TSMWarning* imageToGround(const double&, const double&, const double[4], const double&, const double&, double&,
                              double&, double&, double[9], double&, const double&) override
    {
        return Refuse("imageToGround");
    }
    TSMWarning* imageToProximateImagingLocus(const double&, const double&, const double&, const double&, const double&,
                                             double[6], double&, const double&) override
    {
        return Refuse("imageToProximateImagingLocus");
    }
    TSMWarning* imageToRemoteImagingLocus(const double&, const double&, double[6], double&, const double&) override
    {
        return Refuse("imageToRemoteImagingLocus");
    }
    TSMWarning* computeGroundPartials(const double&, const double&, const double&, double[6]) override
    {
        return Refuse("computeGroundPartials");
    }
    TSMWarning* computeSensorPartials(const int&, const double&, const double&, const double&, double&, double&,
                                      double&, const double&) override
    {
        return Refuse("computeSensorPartials");
    }
    TSMWarning* computeSensorPartials(const int&, const double&, const double&, const double&, const double&,
                                      const double&, double&, double&, double&, const double&) override
    {
        return Refuse("computeSensorPartials");
    }
    TSMWarning* getCurrentParameterCovariance(const int&, const int&, double&) override
    {
        return Refuse("getCurrentParameterCovariance");
    }
    TSMWarning* setCurrentParameterCovariance(const int&, const int&, const double&) override
    {
        return Refuse("setCurrentParameterCovariance");
    }
    TSMWarning* setOriginalParameterCovariance(const int&, const int&, const double&) override
    {
        return Refuse("setOriginalParameterCovariance");
    }
    TSMWarning* getOriginalParameterCovariance(const int&, const int&, double&) override
    {
        return Refuse("getOriginalParameterCovariance");
    }
    TSMWarning* getTrajectoryIdentifier(std::string&) override { return Refuse("getTrajectoryIdentifier"); }
    TSMWarning* getReferenceDateAndTime(std::string&) override { return Refuse("getReferenceDateAndTime"); }
    TSMWarning* getImageTime(const double&, const double&, double&) override { return Refuse("getImageTime"); }
    TSMWarning* getSensorPosition(const double&, const double&, double&, double&, double&) override
    {
        return Refuse("getSensorPosition");
    }
    TSMWarning* getSensorPosition(const double&, double&, double&, double&) override
    {
        return Refuse("getSensorPosition");
    }
    TSMWarning* getSensorVelocity(const double&, const double&, double&, double&, double&) override
    {
        return Refuse("getSensorVelocity");
    }
    TSMWarning* getSensorVelocity(const double&, double&, double&, double&) override
    {
        return Refuse("getSensorVelocity");
    }
    TSMWarning* setCurrentParameterValue(const int&, const double&) override
    {
        return Refuse("setCurrentParameterValue");
    }
    TSMWarning* getCurrentParameterValue(const int&, double&) override { return Refuse("getCurrentParameterValue"); }
    TSMWarning* getParameterName(const int&, std::string&) override { return Refuse("getParameterName"); }
    TSMWarning* getNumParameters(int&) override { return Refuse("getNumParameters"); }
    TSMWarning* setOriginalParameterValue(const int&, const double&) override
    {
        return Refuse("setOriginalParameterValue");
    }
    TSMWarning* getOriginalParameterValue(const int&, double&) override { return Refuse("getOriginalParameterValue"); }
    TSMWarning* getParameterType(const int&, TSMMisc::Param_CharType&) override { return Refuse("getParameterType"); }
    TSMWarning* setParameterType(const int&, const TSMMisc::Param_CharType&) override
    {
        return Refuse("setParameterType");
    }
    TSMWarning* getPedigree(std::string&) override { return Refuse("getPedigree"); }
    TSMWarning* getImageIdentifier(std::string&) override { return Refuse("getImageIdentifier"); }
    TSMWarning* setImageIdentifier(const std::string&) override { return Refuse("setImageIdentifier"); }
    TSMWarning* getSensorIdentifier(std::string&) override { return Refuse("getSensorIdentifier"); }
    TSMWarning* getPlatformIdentifier(std::string&) override { return Refuse("getPlatformIdentifier"); }
    TSMWarning* setReferencePoint(const double&, const double&, const double&) override
    {
        return Refuse("setReferencePoint");
    }
    TSMWarning* getReferencePoint(double&, double&, double&) override { return Refuse("getReferencePoint"); }
    TSMWarning* getSensorModelName(std::string&) override { return Refuse("getSensorModelName"); }
    TSMWarning* getImageSize(int&, int&) override { return Refuse("getImageSize"); }
    TSMWarning* getSensorModelState(std::string&) override { return Refuse("getSensorModelState"); }
    TSMWarning* getValidAltitudeRange(double&, double&) override { return Refuse("getValidAltitudeRange"); }
    TSMWarning* getIlluminationDirection(const double&, const double&, const double&, double&, double&,
                                         double&) override
    {
        return Refuse("getIlluminationDirection");
    }
    TSMWarning* getNumSystematicErrorCorrections(int&) override { return Refuse("getNumSystematicErrorCorrections"); }
    TSMWarning* getSystematicErrorCorrectionName(const int&, std::string&) override
    {
        return Refuse("getSystematicErrorCorrectionName");
    }
    TSMWarning* setCurrentSystematicErrorCorrectionSwitch(const int&, const bool&,
                                                          const TSMMisc::Param_CharType&) override
    {
        return Refuse("setCurrentSystematicErrorCorrectionSwitch");
    }
    TSMWarning* getCurrentSystematicErrorCorrectionSwitch(const int&, bool&) override
    {
        return Refuse("getCurrentSystematicErrorCorrectionSwitch");
    }
    TSMWarning* getCovarianceModel(tsm_CovarianceModel*&) override { return Refuse("getCovarianceModel"); }
    TSMWarning* getUnmodeledError(const double, const double, double[4]) override
    {
        return Refuse("getUnmodeledError");
    }
    TSMWarning* getUnmodeledCrossCovariance(const double, const double, const double, const double, double[4]) override
    {
        return Refuse("getUnmodeledCrossCovariance");
    }
    TSMWarning* getCollectionIdentifier(std::string&) override { return Refuse("getCollectionIdentifier"); }
    TSMWarning* isParameterShareable(const int&, bool&) override { return Refuse("isParameterShareable"); }
    TSMWarning* getParameterSharingCriteria(const int&, bool&, bool&, bool&, bool&, bool&, bool&, double&) override
    {
        return Refuse("getParameterSharingCriteria");
    }

private:
    static TSMWarning* Refuse(const char* aFunction)
    {
        throw TSMError(TSMError::UNSUPPORTED_FUNCTION, "The model does not answer this", aFunction);
    }
};
