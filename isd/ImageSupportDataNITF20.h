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

    /// Whether files of a version are read by this class.
    static constexpr bool IsCorrectNITFFileVersion(int aVersion) noexcept { return aVersion == c_NITFVersionNumber; }

private:
    friend class ImageSupportDataNITFFactory;

    explicit ImageSupportDataNITF20(Request& aRequest);
    ImageSupportDataNITF20(const ImageSupportDataNITF20& aOther);
};

}  // namespace ORMO::SensorModel::CSM
