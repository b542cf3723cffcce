#pragma once

#include "ImageSupportDataNITF.h"

namespace ORMO::SensorModel::CSM {

class ImageSupportDataNITFFactory;

/// The image support data of a NITF 2.1 file; NSIF 1.0 files are read as NITF 2.1.
class ORMO_CSM_API ImageSupportDataNITF21 : public ImageSupportDataNITF
{
public:
    static constexpr int c_NITFVersionNumber = NITFCnst::NITF_VERSION_NUMBER_21;

    ~ImageSupportDataNITF21() override;

    /// Whether files of a version are read by this class.
    static constexpr bool IsCorrectNITFFileVersion(int aVersion) noexcept
    {
        return aVersion == c_NITFVersionNumber || aVersion == NITFCnst::NSIF_VERSION_NUMBER_10;
    }

private:
    friend class ImageSupportDataNITFFactory;

    explicit ImageSupportDataNITF21(Request& aRequest);
    ImageSupportDataNITF21(const ImageSupportDataNITF21& aOther);
};

}  // namespace ORMO::SensorModel::CSM
