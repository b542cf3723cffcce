#include "isd/ImageSupportDataNITF21.h"

#include "segments/des/NITF21DESSubheader.h"
#include "segments/fileheader/NITF21FileHeader.h"
#include "segments/image/NITF21ImageSubheader.h"
#include "segments/res/NITF21RESSubheader.h"
#include "segments/text/NITF21TextSubheader.h"

namespace ORMO::SensorModel::CSM {

ImageSupportDataNITF21::ImageSupportDataNITF21(const char* aPath, char** aErrors, char** aWarnings,
                                               bool aImageSegmentsOnly, bool aSpecificOnly, int aImageSegment)
    : ImageSupportDataNITF(aPath, NITFCnst::NITF_VERSION_NUMBER_21)
{
    InitImageSupportDataNITF(aImageSegmentsOnly, aSpecificOnly || NITFCnst::CREATE_SPECIFIC_TRE_ONLY, aErrors,
                             aWarnings, aImageSegment);
}

ImageSupportDataNITF21::~ImageSupportDataNITF21() = default;

std::unique_ptr<NITFFileHeader> ImageSupportDataNITF21::CreateNITFFileHeader(const std::string& aRaw, bool aStreaming,
                                                                             bool aSpecificOnly) const
{
    return std::make_unique<NITF21FileHeader>(GetFileName(), aRaw.data(), aRaw.size(), aStreaming, aSpecificOnly);
}

std::unique_ptr<NITFImageSubheader> ImageSupportDataNITF21::CreateNITFImageSubheader(
    const std::string& aRaw, const NITFStdDataSegmentInfo& aInfo, bool aSpecificOnly) const
{
    return std::make_unique<NITF21ImageSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                  TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFTextSubheader> ImageSupportDataNITF21::CreateNITFTextSubheader(const std::string& aRaw,
                                                                                   const NITFStdDataSegmentInfo& aInfo,
                                                                                   bool aSpecificOnly) const
{
    return std::make_unique<NITF21TextSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                 Source(), TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFDESSubheader> ImageSupportDataNITF21::CreateNITFDESSubheader(const std::string& aRaw,
                                                                                 const NITFStdDataSegmentInfo& aInfo,
                                                                                 bool aSpecificOnly) const
{
    return std::make_unique<NITF21DESSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                Source(), TreByteOrder(), aSpecificOnly);
}

std::unique_ptr<NITFRESSubheader> ImageSupportDataNITF21::CreateNITFRESSubheader(const std::string& aRaw,
                                                                                 const NITFStdDataSegmentInfo& aInfo,
                                                                                 bool aSpecificOnly) const
{
    return std::make_unique<NITF21RESSubheader>(aRaw.data(), static_cast<long>(aRaw.size()), aInfo, VersionText(),
                                                Source(), TreByteOrder(), aSpecificOnly);
}

}  // namespace ORMO::SensorModel::CSM
