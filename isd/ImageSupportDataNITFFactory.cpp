#include "isd/ImageSupportDataNITFFactory.h"

#include "foundation/CSMExceptions.h"
#include "foundation/detail/LastMessages.h"
#include "isd/ImageSupportDataNITF20.h"
#include "isd/ImageSupportDataNITF21.h"
#include "isd/SupportedISD.h"
#include "isd/WrapperCSMIsdNITF.h"
#include "isd/detail/IsdCompanion.h"
#include "isd/detail/IsdParts.h"
#include "raster/GDALNITFFileReader.h"

#include <memory>
#include <new>
#include <string>
#include <typeinfo>

namespace ORMO::SensorModel::CSM {

using Detail::IsdCompanion;

namespace {

constexpr const char* INVALID_ARGUMENT = "ERROR: Invalid/NULL required input argument(s).";

Detail::LastMessages& Messages() noexcept
{
    thread_local Detail::LastMessages messages;
    return messages;
}

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
    ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::Open(aPath);
    if (IsKnown(aVersion)) {
        request.version = aVersion;
    }
    request.imageSegmentsOnly = aImageSegmentsOnly;
    request.specificOnly = aFlag2 || NITFCnst::CREATE_SPECIFIC_TRE_ONLY;
    request.imageSegment = aImageSegment;
    return Create(request, aOut);
}

bool ImageSupportDataNITFFactory::Create(ImageSupportDataNITF::Request& aRequest, ImageSupportDataNITF** aOut)
{
    Messages().Clear();
    *aOut = nullptr;
    try {
        std::unique_ptr<ImageSupportDataNITF> isd = Construct(aRequest);
        if (isd != nullptr) {
            Messages().SetError(isd->GetErrorMessage());
            Messages().SetWarning(isd->GetWarningMessage());
            *aOut = isd.release();
            return true;
        }
        Messages().findings = aRequest.findings.Findings();
        return false;
    } catch (const CSMException& exception) {
        Messages().SetError(exception.GetAdditionalMessage());
        Messages().findings = aRequest.findings.Findings();
        throw;
    }
}

std::unique_ptr<ImageSupportDataNITF> ImageSupportDataNITFFactory::Construct(ImageSupportDataNITF::Request& aRequest)
{
    const auto refuse = [&aRequest](const char* aText) {
        Messages().SetError(aText);
        aRequest.findings.Add(aRequest.NotIdentified(aText));
        return nullptr;
    };
    if (ImageSupportDataNITF20::IsCorrectNITFFileVersion(aRequest.version)) {
        return std::unique_ptr<ImageSupportDataNITF>(new ImageSupportDataNITF20(aRequest));
    }
    if (ImageSupportDataNITF21::IsCorrectNITFFileVersion(aRequest.version)) {
        return std::unique_ptr<ImageSupportDataNITF>(new ImageSupportDataNITF21(aRequest));
    }
    return refuse(
        aRequest.version == NITFCnst::NITF_VERSION_NUMBER_11
            ? "ERROR: NITF Version 1.1 is not supported."
            : "ERROR: Unknown/invalid NITF file version or the input file is not a NITF-formatted image file.");
}

bool ImageSupportDataNITFFactory::Create(const WrapperCSMISD* aIsd, ImageSupportDataNITF** aOut, bool aFlag,
                                         int aImageSegment)
{
    Messages().Clear();
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    const auto* const nitf = dynamic_cast<const WrapperCSMIsdNITF*>(aIsd);
    if (nitf == nullptr || aOut == nullptr) {
        Messages().SetError(aIsd == nullptr || aOut == nullptr
                                ? INVALID_ARGUMENT
                                : "ERROR: Input WrapperCSMISD type is currently not supported by the NITF image "
                                  "support data factory.");
        return false;
    }
    ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::OfWrapped(*nitf);
    const bool is20 = request.version == NITFCnst::NITF_VERSION_NUMBER_20;
    if (is20 != (dynamic_cast<const WrapperCSMIsdNITF20*>(nitf) != nullptr) && IsKnown(request.version)) {
        const std::string text = std::string("ERROR: The file header in an ISD of format ") + nitf->GetISDFormat() +
                                 " is one of " + NITFCnst::GetNITFVersionString(request.version) + ".";
        Messages().SetError(text.c_str());
        return false;
    }
    request.specificOnly = aFlag || NITFCnst::CREATE_SPECIFIC_TRE_ONLY;
    request.imageSegment = aImageSegment;
    return Create(request, aOut);
}

bool ImageSupportDataNITFFactory::Clone(const ImageSupportDataNITF* aIsd, ImageSupportDataNITF** aOut)
{
    Messages().Clear();
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    if (aIsd == nullptr || aOut == nullptr) {
        Messages().SetError(INVALID_ARGUMENT);
        return false;
    }
    try {
        if (typeid(*aIsd) == typeid(ImageSupportDataNITF20)) {
            *aOut = new ImageSupportDataNITF20(static_cast<const ImageSupportDataNITF20&>(*aIsd));
        } else if (typeid(*aIsd) == typeid(ImageSupportDataNITF21)) {
            *aOut = new ImageSupportDataNITF21(static_cast<const ImageSupportDataNITF21&>(*aIsd));
        } else {
            Messages().SetError("ERROR: Only the library that made the image support data can copy them.");
        }
    } catch (const std::bad_alloc&) {
        Messages().SetError("ERROR: System out of memory.");
    } catch (const RequestedOperationFailedException& exception) {
        Messages().SetError(exception.GetAdditionalMessage());
    }
    return *aOut != nullptr;
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

const std::vector<Finding>& ImageSupportDataNITFFactory::GetFindings() noexcept
{
    return Messages().findings;
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
