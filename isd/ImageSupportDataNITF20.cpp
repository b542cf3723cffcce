#include "isd/ImageSupportDataNITF20.h"

namespace ORMO::SensorModel::CSM {

ImageSupportDataNITF20::ImageSupportDataNITF20(Request& aRequest) : ImageSupportDataNITF(aRequest) {}

ImageSupportDataNITF20::ImageSupportDataNITF20(const ImageSupportDataNITF20& aOther) = default;

ImageSupportDataNITF20::~ImageSupportDataNITF20() = default;

}  // namespace ORMO::SensorModel::CSM
