#pragma once

#include "ImageSupportDataNITF.h"

namespace ORMO::SensorModel::CSM {

class ImageSupportDataNITFFactory;

/// The image support data of a NITF 2.0 file.
class ORMO_CSM_API ImageSupportDataNITF20 : public ImageSupportDataNITF
{
public:
    static constexpr int c_NITFVersionNumber = NITFCnst::NITF_VERSION_NUMBER_20;

    ~ImageSupportDataNITF20() override;

private:
    friend class ImageSupportDataNITFFactory;

    explicit ImageSupportDataNITF20(Request& aRequest);
};

}  // namespace ORMO::SensorModel::CSM
