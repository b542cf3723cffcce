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

protected:
    std::unique_ptr<NITFFileHeader> CreateNITFFileHeader(const std::string& aRaw, bool aStreaming,
                                                         bool aSpecificOnly) const override;
    std::unique_ptr<NITFImageSubheader> CreateNITFImageSubheader(const std::string& aRaw,
                                                                 const NITFStdDataSegmentInfo& aInfo,
                                                                 bool aSpecificOnly) const override;
    std::unique_ptr<NITFTextSubheader> CreateNITFTextSubheader(const std::string& aRaw,
                                                               const NITFStdDataSegmentInfo& aInfo,
                                                               bool aSpecificOnly) const override;
    std::unique_ptr<NITFDESSubheader> CreateNITFDESSubheader(const std::string& aRaw,
                                                             const NITFStdDataSegmentInfo& aInfo,
                                                             bool aSpecificOnly) const override;
    std::unique_ptr<NITFRESSubheader> CreateNITFRESSubheader(const std::string& aRaw,
                                                             const NITFStdDataSegmentInfo& aInfo,
                                                             bool aSpecificOnly) const override;

private:
    friend class ImageSupportDataNITFFactory;

    /// Reads the file. With `aImageSegmentsOnly`, segments behind the images are left out; with `aSpecificOnly`, so are
    /// TREs without a typed form. `aImageSegment` becomes the current image segment when it is not negative. Raises
    /// InitializationException and ImageSupportDataConstructionException; warnings are handed out as a new text.
    ImageSupportDataNITF20(const char* aPath, char** aErrors, char** aWarnings, bool aImageSegmentsOnly,
                           bool aSpecificOnly, int aImageSegment);
};

}  // namespace ORMO::SensorModel::CSM
