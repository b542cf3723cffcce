// What a sensor model of an image can measure in it, found out by asking the model at the centre of the image.

#include "isd/detail/CsmCall.h"
#include "isd/detail/IsdParts.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

namespace {

/// The model and the place where it is asked: line and sample, and a height at which the model holds.
struct Question
{
    TSMSensorModel& model;
    double line;
    double sample;
    double height;
};

struct GroundPoint
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

double HeightOf(TSMSensorModel& aModel)
{
    double low = 0.0;
    double high = 0.0;
    const bool told = Detail::AskCsm([&] { return aModel.getValidAltitudeRange(low, high); });
    return told ? low / 2.0 + high / 2.0 : 0.0;
}

bool FindGround(const Question& aQuestion, GroundPoint& aGround)
{
    double precision = 0.0;
    return Detail::AskCsm([&] {
        return aQuestion.model.imageToGround(aQuestion.line, aQuestion.sample, aQuestion.height, aGround.x, aGround.y,
                                             aGround.z, precision);
    });
}

/// Whether the model gives the ray through the point, along which heights are measured.
bool HasLocus(const Question& aQuestion, const GroundPoint& aGround)
{
    double locus[6] = {};
    double precision = 0.0;
    return Detail::AskCsm([&] {
        return aQuestion.model.imageToProximateImagingLocus(aQuestion.line, aQuestion.sample, aGround.x, aGround.y,
                                                            aGround.z, locus, precision);
    });
}

/// Whether the model tells how far what it gives can be relied on.
bool HasCovariance(const Question& aQuestion)
{
    const double ofImage[4] = {1.0, 0.0, 0.0, 1.0};
    double ofGround[9] = {};
    double precision = 0.0;
    GroundPoint ground;
    return Detail::AskCsm([&] {
        return aQuestion.model.imageToGround(aQuestion.line, aQuestion.sample, ofImage, aQuestion.height, 1.0, ground.x,
                                             ground.y, ground.z, ofGround, precision);
    });
}

}  // namespace

bool ImageSupportDataNITF::GetMensurationCapabilities(bool& aPosition, bool& aDistance, bool& aArea, bool& aHeight,
                                                      bool& aUncertainty, const char* aSensorModelName, int aSegment)
{
    aPosition = aDistance = aArea = aHeight = aUncertainty = false;
    const auto index = static_cast<std::size_t>(aSegment);
    const std::unique_ptr<TSMSensorModel> model(GetTSMSensorModel(aSensorModelName, index));
    unsigned long columns = 0;
    unsigned long rows = 0;
    if (model == nullptr || !GetImageSegmentColumnsAndRows(columns, rows, index)) {
        return false;
    }
    const Question question{*model, static_cast<double>(rows) / 2.0, static_cast<double>(columns) / 2.0,
                            HeightOf(*model)};
    GroundPoint ground;
    // What lies between points follows from where the points lie.
    aPosition = aDistance = aArea = FindGround(question, ground);
    aHeight = aPosition && HasLocus(question, ground);
    aUncertainty = aPosition && HasCovariance(question);
    return true;
}

bool ImageSupportDataNITF::GetMensurationCapabilities(bool& aPosition, bool& aDistance, bool& aArea, bool& aHeight,
                                                      bool& aUncertainty, const char* aSensorModelName,
                                                      const char* aSegmentIdentifier)
{
    aPosition = aDistance = aArea = aHeight = aUncertainty = false;
    const long index = GetImageSegmentIndex(aSegmentIdentifier);
    return index != NO_IMAGE_SEGMENT && GetMensurationCapabilities(aPosition, aDistance, aArea, aHeight, aUncertainty,
                                                                   aSensorModelName, static_cast<int>(index));
}

}  // namespace ORMO::SensorModel::CSM
