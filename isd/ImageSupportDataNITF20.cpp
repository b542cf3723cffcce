#include "isd/ImageSupportDataNITF20.h"

#include "segments/des/NITF20DESSubheader.h"
#include "segments/fileheader/NITF20FileHeader.h"
#include "segments/image/NITF20ImageSubheader.h"
#include "segments/res/NITF20RESSubheader.h"
#include "segments/text/NITF20TextSubheader.h"

namespace ORMO::SensorModel::CSM {

ImageSupportDataNITF20::ImageSupportDataNITF20(const char* aPath, char** aErrors, char** aWarnings,
                                               bool aImageSegmentsOnly, bool aSpecificOnly, int aImageSegment)
    : ImageSupportDataNITF(aPath, NITFCnst::NITF_VERSION_NUMBER_20)
{
    InitImageSupportDataNITF(aImageSegmentsOnly, aSpecificOnly || NITFCnst::CREATE_SPECIFIC_TRE_ONLY, aErrors,
                             aWarnings, aImageSegment);
}

ImageSupportDataNITF20::~ImageSupportDataNITF20() = default;

std::unique_ptr<NITFFileHeader> ImageSupportDataNITF20::CreateNITFFileHeader(const std::string& aRaw, bool aStreaming,
                                                                             bool aSpecificOnly) const
{
    return std::make_unique<NITF20FileHeader>(GetFileName(), aRaw.data(), aRaw.size(), aStreaming, aSpecificOnly);
}

std::unique_ptr<NITFImageSubheader> ImageSupportDataNITF20::CreateNITFImageSubheader(
    const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo, bool aSpecificOnly) const
{
    return std::make_unique<NITF20ImageSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                  TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFTextSubheader> ImageSupportDataNITF20::CreateNITFTextSubheader(const std::string& aRaw,
                                                                                   const NITFStdDataSegmentInfo& aInfo,
                                                                                   bool aSpecificOnly) const
{
    return std::make_unique<NITF20TextSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                 Source(), TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFDESSubheader> ImageSupportDataNITF20::CreateNITFDESSubheader(const std::string& aRaw,
                                                                                 const NITFStdDataSegmentInfo& aInfo,
                                                                                 bool aSpecificOnly) const
{
    return std::make_unique<NITF20DESSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                Source(), TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFRESSubheader> ImageSupportDataNITF20::CreateNITFRESSubheader(const std::string& aRaw,
                                                                                 const NITFStdDataSegmentInfo& aInfo,
                                                                                 bool aSpecificOnly) const
{
    return std::make_unique<NITF20RESSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                Source(), TreByteOrder(), aSpecificOnly);
}

}  // namespace ORMO::SensorModel::CSM
