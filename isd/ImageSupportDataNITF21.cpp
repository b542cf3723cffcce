#include "isd/ImageSupportDataNITF21.h"

namespace ORMO::SensorModel::CSM {

ImageSupportDataNITF21::ImageSupportDataNITF21(Request& aRequest) : ImageSupportDataNITF(aRequest) {}

ImageSupportDataNITF21::ImageSupportDataNITF21(const ImageSupportDataNITF21& aOther) = default;

ImageSupportDataNITF21::~ImageSupportDataNITF21() = default;

}  // namespace ORMO::SensorModel::CSM
