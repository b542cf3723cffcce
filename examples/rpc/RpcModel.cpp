#include "RpcModel.h"

#include <cmath>
#include <memory>
#include <sstream>

const char* const RpcModel::NAME = "EXAMPLE_RPC00B";

namespace {

const char* const PARAMETER_NAMES[] = {"line offset", "sample offset"};
const int PARAMETERS = 2;
/// Half the distance over which derivatives are taken: long enough for digits, short enough for curvature.
const double GROUND_STEP = 0.5;    // metres
const double IMAGE_STEP = 0.5;     // pixels
const double ANGLE_STEP = 5.0e-6;  // degrees, about half a metre
const double METRES_PER_DEGREE = 111000.0;

int Index(int aIndex, const char* aFunction)
{
    if (aIndex < 0 || aIndex >= PARAMETERS) {
        throw TSMError(TSMError::INDEX_OUT_OF_RANGE, "The model has two parameters", aFunction);
    }
    return aIndex;
}

/// aResult = aLeft * aInner * transpose(aLeft), where aLeft has aRows rows of aColumns.
void Propagate(const double* aLeft, int aRows, int aColumns, const double* aInner, double* aResult)
{
    for (int row = 0; row != aRows; ++row) {
        for (int column = 0; column != aRows; ++column) {
            double sum = 0.0;
            for (int i = 0; i != aColumns; ++i) {
                for (int j = 0; j != aColumns; ++j) {
                    sum += aLeft[row * aColumns + i] * aInner[i * aColumns + j] * aLeft[column * aColumns + j];
                }
            }
            aResult[row * aRows + column] = sum;
        }
    }
}

}  // namespace

RpcModel::RpcModel(const RpcImage& aImage, const std::string& aRecord, const RpcCoefficients& aCoefficients)
    : m_image(aImage), m_record(aRecord), m_coefficients(aCoefficients)
{
}

RpcModel* RpcModel::Make(const RpcImage& aImage, const std::string& aRecord)
{
    RpcCoefficients coefficients;
    return coefficients.Read(aRecord) ? new RpcModel(aImage, aRecord, coefficients) : nullptr;
}

RpcModel* RpcModel::FromState(const std::string& aState)
{
    std::istringstream state(aState);
    std::string name;
    std::string record;
    RpcImage image;
    double parameters[PARAMETERS];
    if (!std::getline(state, name) || name != NAME || !(state >> image.lines >> image.samples) ||
        !(state >> parameters[0] >> parameters[1]) || !state.ignore() || !std::getline(state, image.identifier) ||
        !std::getline(state, image.dateAndTime) || !std::getline(state, record)) {
        return nullptr;
    }
    std::unique_ptr<RpcModel> model(Make(image, record));
    if (model) {
        model->m_parameters[0] = parameters[0];
        model->m_parameters[1] = parameters[1];
    }
    return model.release();
}

void RpcModel::ToImage(const Ecef& aGround, double& aLine, double& aSample) const
{
    m_coefficients.ToImage(ToGeodetic(aGround), aLine, aSample);
    // The record counts from the middle of the first pixel, the CSM API from its corner.
    aLine += 0.5 + m_parameters[0];
    aSample += 0.5 + m_parameters[1];
}

/// Newton's method in latitude and longitude on the ellipsoid of this height.
Geodetic RpcModel::ToGround(double aLine, double aSample, double aHeight, double& aLastStep) const
{
    Geodetic ground = m_coefficients.Centre();
    ground.height = aHeight;
    const double wantedLine = aLine - 0.5 - m_parameters[0];
    const double wantedSample = aSample - 0.5 - m_parameters[1];
    for (int round = 0; round != 30; ++round) {
        double line = 0.0;
        double sample = 0.0;
        m_coefficients.ToImage(ground, line, sample);
        double lines[4];
        double samples[4];
        const Geodetic around[4] = {{ground.latitude + ANGLE_STEP, ground.longitude, aHeight},
                                    {ground.latitude - ANGLE_STEP, ground.longitude, aHeight},
                                    {ground.latitude, ground.longitude + ANGLE_STEP, aHeight},
                                    {ground.latitude, ground.longitude - ANGLE_STEP, aHeight}};
        for (int i = 0; i != 4; ++i) {
            m_coefficients.ToImage(around[i], lines[i], samples[i]);
        }
        const double linePerLatitude = (lines[0] - lines[1]) / (2.0 * ANGLE_STEP);
        const double linePerLongitude = (lines[2] - lines[3]) / (2.0 * ANGLE_STEP);
        const double samplePerLatitude = (samples[0] - samples[1]) / (2.0 * ANGLE_STEP);
        const double samplePerLongitude = (samples[2] - samples[3]) / (2.0 * ANGLE_STEP);
        const double determinant = linePerLatitude * samplePerLongitude - linePerLongitude * samplePerLatitude;
        const double missingLine = wantedLine - line;
        const double missingSample = wantedSample - sample;
        const double latitude = (missingLine * samplePerLongitude - missingSample * linePerLongitude) / determinant;
        const double longitude = (missingSample * linePerLatitude - missingLine * samplePerLatitude) / determinant;
        ground.latitude += latitude;
        ground.longitude += longitude;
        aLastStep = std::hypot(latitude, longitude) * METRES_PER_DEGREE;
        if (aLastStep < 1.0e-7) {
            return ground;
        }
    }
    throw TSMError(TSMError::ALGORITHM, "The polynomials lead to no ground point", "RpcModel::imageToGround");
}

/// A warning, the caller's, for a position outside the image; else null.
TSMWarning* RpcModel::Checked(double aLine, double aSample, const char* aFunction) const
{
    if (aLine >= 0.0 && aLine <= m_image.lines && aSample >= 0.0 && aSample <= m_image.samples) {
        return nullptr;
    }
    return new TSMWarning(TSMWarning::IMAGE_COORD_OUT_OF_BOUNDS, "The position lies outside the image", aFunction);
}

/// The covariance of line and sample of an error on the ground, alike in every direction, at the middle of the model.
void RpcModel::ErrorInPixels(double aMetres, double aCovariance[4]) const
{
    const Ecef centre = ToEcef(m_coefficients.Centre());
    double partials[6];
    const_cast<RpcModel*>(this)->computeGroundPartials(centre.x, centre.y, centre.z, partials);
    const double variance = aMetres * aMetres;
    const double ground[9] = {variance, 0.0, 0.0, 0.0, variance, 0.0, 0.0, 0.0, variance};
    Propagate(partials, 2, 3, ground, aCovariance);
}

TSMWarning* RpcModel::groundToImage(const double& aX, const double& aY, const double& aZ, double& aLine,
                                    double& aSample, double& aAchieved, const double&)
{
    ToImage({aX, aY, aZ}, aLine, aSample);
    aAchieved = 0.0;  // nothing is iterated
    return Checked(aLine, aSample, "RpcModel::groundToImage");
}

TSMWarning* RpcModel::groundToImage(const double& aX, const double& aY, const double& aZ,
                                    const double aGroundCovariance[9], double& aLine, double& aSample,
                                    double aImageCovariance[4], double& aAchieved, const double& aDesired)
{
    double partials[6];
    computeGroundPartials(aX, aY, aZ, partials);
    Propagate(partials, 2, 3, aGroundCovariance, aImageCovariance);
    return groundToImage(aX, aY, aZ, aLine, aSample, aAchieved, aDesired);
}

TSMWarning* RpcModel::imageToGround(const double& aLine, const double& aSample, const double& aHeight, double& aX,
                                    double& aY, double& aZ, double& aAchieved, const double&)
{
    const Ecef ground = ToEcef(ToGround(aLine, aSample, aHeight, aAchieved));
    aX = ground.x;
    aY = ground.y;
    aZ = ground.z;
    return Checked(aLine, aSample, "RpcModel::imageToGround");
}

TSMWarning* RpcModel::imageToGround(const double& aLine, const double& aSample, const double aImageCovariance[4],
                                    const double& aHeight, const double& aHeightVariance, double& aX, double& aY,
                                    double& aZ, double aGroundCovariance[9], double& aAchieved, const double& aDesired)
{
    // Columns: how the ground point moves with line, sample and height.
    double partials[9];
    const double steps[3] = {IMAGE_STEP, IMAGE_STEP, GROUND_STEP};
    for (int i = 0; i != 3; ++i) {
        Ecef ends[2];
        for (int end = 0; end != 2; ++end) {
            const double away = end == 0 ? -steps[i] : steps[i];
            double precision = 0.0;
            ends[end] = ToEcef(ToGround(aLine + (i == 0 ? away : 0.0), aSample + (i == 1 ? away : 0.0),
                                        aHeight + (i == 2 ? away : 0.0), precision));
        }
        partials[i] = (ends[1].x - ends[0].x) / (2.0 * steps[i]);
        partials[3 + i] = (ends[1].y - ends[0].y) / (2.0 * steps[i]);
        partials[6 + i] = (ends[1].z - ends[0].z) / (2.0 * steps[i]);
    }
    const double covariance[9] = {
        aImageCovariance[0], aImageCovariance[1], 0.0, aImageCovariance[2], aImageCovariance[3], 0.0, 0.0, 0.0,
        aHeightVariance};
    Propagate(partials, 3, 3, covariance, aGroundCovariance);
    return imageToGround(aLine, aSample, aHeight, aX, aY, aZ, aAchieved, aDesired);
}

/// The line of sight through the pixel as a point and a direction downwards; polynomials know no position of the
/// sensor, so that two heights give it.
TSMWarning* RpcModel::imageToProximateImagingLocus(const double& aLine, const double& aSample, const double& aX,
                                                   const double& aY, const double& aZ, double aLocus[6],
                                                   double& aAchieved, const double&)
{
    const double height = ToGeodetic({aX, aY, aZ}).height;
    const Ecef upper = ToEcef(ToGround(aLine, aSample, height + GROUND_STEP, aAchieved));
    const Ecef lower = ToEcef(ToGround(aLine, aSample, height - GROUND_STEP, aAchieved));
    const double down[3] = {lower.x - upper.x, lower.y - upper.y, lower.z - upper.z};
    const double length = std::sqrt(down[0] * down[0] + down[1] * down[1] + down[2] * down[2]);
    const double towards =
        ((aX - upper.x) * down[0] + (aY - upper.y) * down[1] + (aZ - upper.z) * down[2]) / (length * length);
    aLocus[0] = upper.x + towards * down[0];
    aLocus[1] = upper.y + towards * down[1];
    aLocus[2] = upper.z + towards * down[2];
    for (int i = 0; i != 3; ++i) {
        aLocus[3 + i] = down[i] / length;
    }
    return Checked(aLine, aSample, "RpcModel::imageToProximateImagingLocus");
}

TSMWarning* RpcModel::imageToRemoteImagingLocus(const double& aLine, const double& aSample, double aLocus[6],
                                                double& aAchieved, const double& aDesired)
{
    // As far up as the polynomials hold.
    const double top = m_coefficients.Centre().height + m_coefficients.Scale().height;
    const Ecef point = ToEcef(ToGround(aLine, aSample, top, aAchieved));
    return imageToProximateImagingLocus(aLine, aSample, point.x, point.y, point.z, aLocus, aAchieved, aDesired);
}

TSMWarning* RpcModel::computeGroundPartials(const double& aX, const double& aY, const double& aZ, double aPartials[6])
{
    for (int axis = 0; axis != 3; ++axis) {
        double lines[2];
        double samples[2];
        for (int end = 0; end != 2; ++end) {
            const double away = end == 0 ? -GROUND_STEP : GROUND_STEP;
            ToImage({aX + (axis == 0 ? away : 0.0), aY + (axis == 1 ? away : 0.0), aZ + (axis == 2 ? away : 0.0)},
                    lines[end], samples[end]);
        }
        aPartials[axis] = (lines[1] - lines[0]) / (2.0 * GROUND_STEP);
        aPartials[3 + axis] = (samples[1] - samples[0]) / (2.0 * GROUND_STEP);
    }
    return nullptr;
}

TSMWarning* RpcModel::computeSensorPartials(const int& aIndex, const double&, const double&, const double&,
                                            double& aLinePartial, double& aSamplePartial, double& aAchieved,
                                            const double&)
{
    // The parameters are offsets of line and sample.
    aLinePartial = Index(aIndex, "RpcModel::computeSensorPartials") == 0 ? 1.0 : 0.0;
    aSamplePartial = 1.0 - aLinePartial;
    aAchieved = 0.0;
    return nullptr;
}

TSMWarning* RpcModel::computeSensorPartials(const int& aIndex, const double&, const double&, const double& aX,
                                            const double& aY, const double& aZ, double& aLinePartial,
                                            double& aSamplePartial, double& aAchieved, const double& aDesired)
{
    return computeSensorPartials(aIndex, aX, aY, aZ, aLinePartial, aSamplePartial, aAchieved, aDesired);
}

TSMWarning* RpcModel::getCurrentParameterCovariance(const int& aFirst, const int& aSecond, double& aCovariance)
{
    const int first = Index(aFirst, "RpcModel::getCurrentParameterCovariance");
    const int second = Index(aSecond, "RpcModel::getCurrentParameterCovariance");
    double covariance[4];
    ErrorInPixels(m_coefficients.BiasError(), covariance);
    aCovariance = covariance[first * PARAMETERS + second];
    return nullptr;
}

TSMWarning* RpcModel::setCurrentParameterValue(const int& aIndex, const double& aValue)
{
    m_parameters[Index(aIndex, "RpcModel::setCurrentParameterValue")] = aValue;
    return nullptr;
}

TSMWarning* RpcModel::getCurrentParameterValue(const int& aIndex, double& aValue)
{
    aValue = m_parameters[Index(aIndex, "RpcModel::getCurrentParameterValue")];
    return nullptr;
}

TSMWarning* RpcModel::getParameterName(const int& aIndex, std::string& aName)
{
    aName = PARAMETER_NAMES[Index(aIndex, "RpcModel::getParameterName")];
    return nullptr;
}

TSMWarning* RpcModel::getNumParameters(int& aCount)
{
    aCount = PARAMETERS;
    return nullptr;
}

TSMWarning* RpcModel::getParameterType(const int& aIndex, TSMMisc::Param_CharType& aType)
{
    Index(aIndex, "RpcModel::getParameterType");
    aType = TSMMisc::REAL;
    return nullptr;
}

TSMWarning* RpcModel::getTrajectoryIdentifier(std::string& aTrajectory)
{
    aTrajectory = "UNKNOWN";
    return nullptr;
}

TSMWarning* RpcModel::getReferenceDateAndTime(std::string& aDateAndTime)
{
    aDateAndTime = m_image.dateAndTime;
    return nullptr;
}

TSMWarning* RpcModel::getPedigree(std::string& aPedigree)
{
    aPedigree = "RPC00B";
    return nullptr;
}

TSMWarning* RpcModel::getImageIdentifier(std::string& aImage)
{
    aImage = m_image.identifier;
    return nullptr;
}

TSMWarning* RpcModel::setImageIdentifier(const std::string& aImage)
{
    m_image.identifier = aImage;
    return nullptr;
}

TSMWarning* RpcModel::getReferencePoint(double& aX, double& aY, double& aZ)
{
    const Ecef centre = ToEcef(m_coefficients.Centre());
    aX = centre.x;
    aY = centre.y;
    aZ = centre.z;
    return nullptr;
}

TSMWarning* RpcModel::getSensorModelName(std::string& aName)
{
    aName = NAME;
    return nullptr;
}

TSMWarning* RpcModel::getImageSize(int& aLines, int& aSamples)
{
    aLines = m_image.lines;
    aSamples = m_image.samples;
    return nullptr;
}

TSMWarning* RpcModel::getSensorModelState(std::string& aState)
{
    std::ostringstream state;
    state.precision(17);
    state << NAME << '\n'
          << m_image.lines << ' ' << m_image.samples << ' ' << m_parameters[0] << ' ' << m_parameters[1] << '\n'
          << m_image.identifier << '\n'
          << m_image.dateAndTime << '\n'
          << m_record << '\n';
    aState = state.str();
    return nullptr;
}

TSMWarning* RpcModel::getValidAltitudeRange(double& aMinimum, double& aMaximum)
{
    aMinimum = m_coefficients.Centre().height - m_coefficients.Scale().height;
    aMaximum = m_coefficients.Centre().height + m_coefficients.Scale().height;
    return nullptr;
}

TSMWarning* RpcModel::getNumSystematicErrorCorrections(int& aCount)
{
    aCount = 0;
    return nullptr;
}

TSMWarning* RpcModel::getUnmodeledError(const double, const double, double aCovariance[4])
{
    ErrorInPixels(m_coefficients.RandomError(), aCovariance);
    return nullptr;
}
