#include "isd/ImageSupportDataNITFFactory.h"

#include "foundation/CSMException.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/LastMessages.h"
#include "isd/ImageSupportDataNITF20.h"
#include "isd/ImageSupportDataNITF21.h"
#include "isd/SupportedISD.h"
#include "isd/WrapperCSMISD.h"
#include "isd/detail/IsdCompanion.h"
#include "raster/GDALNITFFileReader.h"

#include <string>

namespace ORMO::SensorModel::CSM {

using Detail::IsdCompanion;
using Util::CSMUtilString;

namespace {

constexpr const char* INVALID_ARGUMENT = "ERROR: Invalid/NULL required input argument(s).";

Detail::LastMessages& Messages() noexcept
{
    thread_local Detail::LastMessages messages;
    return messages;
}

/// The texts that a constructor hands out.
struct ConstructorTexts
{
    ConstructorTexts() = default;
    ConstructorTexts(const ConstructorTexts&) = delete;
    ConstructorTexts& operator=(const ConstructorTexts&) = delete;
    ~ConstructorTexts()
    {
        CSMUtilString::DeleteCString(errors);
        CSMUtilString::DeleteCString(warnings);
    }

    char* errors = nullptr;
    char* warnings = nullptr;
};

bool IsKnown(NITFCnst::Version aVersion)
{
    switch (aVersion) {
        case NITFCnst::NSIF_VERSION_NUMBER_10:
        case NITFCnst::NITF_VERSION_NUMBER_11:
        case NITFCnst::NITF_VERSION_NUMBER_20:
        case NITFCnst::NITF_VERSION_NUMBER_21:
            return true;
        default:
            return false;
    }
}

/// The companion's ISD; null, with nothing left behind, when it fails.
ImageSupportDataNITF* CreateByCompanion(const IsdCompanion& aCompanion, const char* aPath, bool aImageSegmentsOnly,
                                        bool aFlag2, int aImageSegment, NITFCnst::Version aVersion)
{
    ImageSupportDataNITF* isd = nullptr;
    try {
        aCompanion.createIsdNITF(aPath, &isd, aImageSegmentsOnly, aFlag2, aImageSegment, aVersion);
        return isd;
    } catch (...) {
        ImageSupportData* rest = isd;
        aCompanion.Offer(rest);
        return nullptr;
    }
}

}  // namespace

bool ImageSupportDataNITFFactory::Create(const char* aPath, ImageSupportDataNITF** aOut, bool aImageSegmentsOnly,
                                         bool aFlag2, int aImageSegment, NITFCnst::Version aVersion)
{
    Messages().Clear();
    if (aOut == nullptr) {
        Messages().SetError(INVALID_ARGUMENT);
        return false;
    }
    *aOut = nullptr;
    if (const IsdCompanion* const companion = IsdCompanion::NitfMaker(); companion != nullptr) {
        *aOut = CreateByCompanion(*companion, aPath, aImageSegmentsOnly, aFlag2, aImageSegment, aVersion);
        return *aOut != nullptr;
    }
    const std::string path = CSMUtilString::Trim(aPath == nullptr ? "" : aPath);
    if (!IsKnown(aVersion)) {
        int found = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
        GDALNITFFileReader::IsNITFFile(path.c_str(), found);
        aVersion = static_cast<NITFCnst::Version>(found);
    }
    try {
        *aOut = Construct(path.c_str(), aImageSegmentsOnly, aFlag2, aImageSegment, aVersion).release();
    } catch (const CSMException& exception) {
        Messages().SetError(exception.GetAdditionalMessage());
        throw;
    }
    return *aOut != nullptr;
}

std::unique_ptr<ImageSupportDataNITF> ImageSupportDataNITFFactory::Construct(const char* aPath, bool aImageSegmentsOnly,
                                                                             bool aFlag2, int aImageSegment,
                                                                             NITFCnst::Version aVersion)
{
    std::unique_ptr<ImageSupportDataNITF> isd;
    ConstructorTexts texts;
    switch (aVersion) {
        case NITFCnst::NITF_VERSION_NUMBER_20:
            isd.reset(new ImageSupportDataNITF20(aPath, &texts.errors, &texts.warnings, aImageSegmentsOnly, aFlag2,
                                                 aImageSegment));
            break;
        case NITFCnst::NITF_VERSION_NUMBER_21:
        case NITFCnst::NSIF_VERSION_NUMBER_10:
            // NSIF 1.0 is NITF 2.1 under another name.
            isd.reset(new ImageSupportDataNITF21(aPath, &texts.errors, &texts.warnings, aImageSegmentsOnly, aFlag2,
                                                 aImageSegment));
            break;
        case NITFCnst::NITF_VERSION_NUMBER_11:
            Messages().SetError("ERROR: NITF Version 1.1 is not supported.");
            return isd;
        default:
            Messages().SetError(
                "ERROR: Unknown/invalid NITF file version or the input file is not a NITF-formatted image file.");
            return isd;
    }
    Messages().SetError(texts.errors);
    Messages().SetWarning(texts.warnings);
    return isd;
}

bool ImageSupportDataNITFFactory::Create(const WrapperCSMISD* aIsd, ImageSupportDataNITF** aOut, bool /*aFlag*/,
                                         int /*aImageSegment*/)
{
    Messages().Clear();
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    Messages().SetError(aIsd == nullptr || aOut == nullptr
                            ? INVALID_ARGUMENT
                            : "ERROR: Input WrapperCSMISD type is currently not supported by the NITF image support "
                              "data factory.");
    return false;
}

void ImageSupportDataNITFFactory::Destroy(ImageSupportDataNITF** aIsd)
{
    Messages().Clear();
    if (aIsd == nullptr) {
        return;
    }
    ImageSupportData* isd = *aIsd;
    *aIsd = nullptr;
    if (const IsdCompanion* const companion = IsdCompanion::NitfMaker(); companion != nullptr) {
        companion->Offer(isd);
    }
    delete isd;
}

bool ImageSupportDataNITFFactory::IsSupportedISDFile(const char* aPath, const char*& aFormatName) noexcept
{
    aFormatName = nullptr;
    try {
        int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
        if (GDALNITFFileReader::IsNITFFile(aPath, version) && version != NITFCnst::NITF_VERSION_NUMBER_11) {
            aFormatName = SupportedISD::RasterFormat::NITF;
        }
    } catch (...) {
        // Without memory to look into the file no ISD can be made of it either.
        return false;
    }
    return aFormatName != nullptr;
}

const char* ImageSupportDataNITFFactory::GetErrorMessage() noexcept
{
    return Detail::TextOrNull(Messages().error);
}

const char* ImageSupportDataNITFFactory::GetWarningMessage() noexcept
{
    return Detail::TextOrNull(Messages().warning);
}

}  // namespace ORMO::SensorModel::CSM
