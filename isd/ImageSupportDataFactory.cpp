#include "isd/ImageSupportDataFactory.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/LastMessages.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "isd/ImageSupportDataOSDEFactory.h"
#include "isd/WrapperCSMIsdNITF.h"
#include "isd/detail/IsdCompanion.h"
#include "isd/detail/IsdParts.h"
#include "nitf/NITFCnst.h"
#include "raster/GDALNITFFileReader.h"
#include "raster/GDALOSDEFileReader.h"

#include <memory>
#include <new>
#include <stdexcept>
#include <typeinfo>

namespace ORMO::SensorModel::CSM {

using Detail::IsdCompanion;

namespace {

Detail::LastMessages& Messages() noexcept
{
    thread_local Detail::LastMessages messages;
    return messages;
}

constexpr const char* UNSUPPORTED_FORMAT = "ERROR: Image format not supported by the Ormo CSM System.";

[[noreturn]] void RefuseArguments()
{
    constexpr const char* TEXT = "ERROR: Invalid input argument(s).";
    Messages().SetError(TEXT);
    throw std::invalid_argument(TEXT);
}

[[noreturn]] void FailConstruction(const char* aError)
{
    Messages().SetError(aError == nullptr || *aError == '\0'
                            ? "ERROR: Failed to create an ImageSupportData object given the input image file."
                            : aError);
    throw ImageSupportDataConstructionException(Messages().error.c_str(), "ImageSupportDataFactory::CreateISD");
}

/// What a file is.
struct Identity
{
    SupportedISD::Type type = SupportedISD::ISD_TYPE_UNKNOWN;
    int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
};

bool IsReadableNitf(int aVersion) noexcept
{
    return aVersion == NITFCnst::NITF_VERSION_NUMBER_21 || aVersion == NITFCnst::NSIF_VERSION_NUMBER_10 ||
           aVersion == NITFCnst::NITF_VERSION_NUMBER_20;
}

/// NITF 1.1 is told apart although it cannot be read: its caller learns that from a text of its own.
Identity IdentifyBuiltIn(const char* aPath)
{
    int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    if (GDALNITFFileReader::IsNITFFile(aPath, version)) {
        return {SupportedISD::ISD_TYPE_NITF, version};
    }
    if (GDALOSDEFileReader::IsOSDEFile(aPath, version) && (version == 11 || version == 12)) {
        return {SupportedISD::ISD_TYPE_OSDE, version};
    }
    return {};
}

Identity Identify(const char* aPath)
{
    const auto ask = IsdCompanion::Secret().isdType;
    if (ask == nullptr) {
        return IdentifyBuiltIn(aPath);
    }
    Identity identity;
    try {
        ask(aPath, &identity.type, &identity.version);
        return identity;
    } catch (...) {
        // What a companion fails to tell counts as not known.
        return {};
    }
}

/// The companion's ISD; null, with nothing left behind, when it fails.
ImageSupportData* CreateByCompanion(const IsdCompanion& aCompanion, const char* aPath, bool aAllSegments, bool aFlag2,
                                    const Identity& aIdentity)
{
    ImageSupportData* isd = nullptr;
    try {
        aCompanion.createISD(aAllSegments, aFlag2, aPath, &isd, aIdentity.version, aIdentity.type);
        return isd;
    } catch (...) {
        aCompanion.Offer(isd);
        return nullptr;
    }
}

}  // namespace

void ImageSupportDataFactory::Create(const char* aPath, ImageSupportData** aOut, bool aAllSegments, bool aFlag2)
{
    Messages().Clear();
    if (aOut == nullptr) {
        RefuseArguments();
    }
    *aOut = nullptr;
    if (IsdCompanion::Secret().isdType == nullptr && IsdCompanion::Maker() == nullptr) {
        // Nobody else is asked, so the file that is identified is the one that is read.
        ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::Open(aPath);
        request.imageSegmentsOnly = !aAllSegments;
        request.specificOnly = aFlag2 || NITFCnst::CREATE_SPECIFIC_TRE_ONLY;
        if (request.version != NITFCnst::NITF_VERSION_NUMBER_UNKNOWN) {
            CreateNitf(request, aOut);
            return;
        }
        int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
        if (!GDALOSDEFileReader::IsOSDEFile(aPath, version)) {
            Messages().findings = {request.NotIdentified(
                "ERROR: Unknown/invalid NITF file version or the input file is not a NITF-formatted image file.")};
            RefuseArguments();
        }
    }
    const Identity identity = Identify(aPath);
    const bool isNitf = identity.type == SupportedISD::ISD_TYPE_NITF;
    const bool isOsde = identity.type == SupportedISD::ISD_TYPE_OSDE;
    if (!isNitf && !isOsde && identity.type != SupportedISD::ISD_TYPE_TFRD) {
        RefuseArguments();
    }
    const IsdCompanion* const companion = isOsde ? nullptr : IsdCompanion::Maker();
    if (companion != nullptr) {
        *aOut = CreateByCompanion(*companion, aPath, aAllSegments, aFlag2, identity);
    } else if (isNitf || isOsde) {
        CreateISD(aPath, aOut, aAllSegments, aFlag2, identity.version, identity.type);
    }
}

void ImageSupportDataFactory::CreateFromMemory(const void* aBytes, std::size_t aLength, bool aCopy, const char* aName,
                                               ImageSupportData** aOut, bool aAllSegments, bool aFlag2)
{
    Messages().Clear();
    if (aOut == nullptr || aBytes == nullptr) {
        RefuseArguments();
    }
    *aOut = nullptr;
    ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::OfMemory(aBytes, aLength, aCopy, aName);
    request.imageSegmentsOnly = !aAllSegments;
    request.specificOnly = aFlag2;
    CreateNitf(request, aOut);
}

void ImageSupportDataFactory::Salvage(const char* aPath, ImageSupportData** aOut)
{
    Messages().Clear();
    if (aOut == nullptr) {
        RefuseArguments();
    }
    *aOut = nullptr;
    ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::Open(aPath);
    request.salvage = true;
    CreateNitf(request, aOut);
}

void ImageSupportDataFactory::CreateNitf(ImageSupportDataNITF::Request& aRequest, ImageSupportData** aOut)
{
    std::unique_ptr<ImageSupportDataNITF> isd;
    try {
        ImageSupportDataNITF* made = nullptr;
        ImageSupportDataNITFFactory::Create(aRequest, &made);
        isd.reset(made);
    } catch (const std::bad_alloc&) {
        Messages().SetError("ERROR: System out of memory.");
        throw;
    } catch (const CSMException& exception) {
        Messages().findings = ImageSupportDataNITFFactory::GetFindings();
        const char* const text = exception.GetAdditionalMessage();
        FailConstruction(text == nullptr || *text == '\0' ? exception.GetErrorMessage() : text);
    }
    Messages().SetWarning(ImageSupportDataNITFFactory::GetWarningMessage());
    Messages().findings = ImageSupportDataNITFFactory::GetFindings();
    if (isd == nullptr) {
        FailConstruction(ImageSupportDataNITFFactory::GetErrorMessage());
    }
    *aOut = isd.release();
}

void ImageSupportDataFactory::Create(const WrapperCSMISD* aIsd, ImageSupportData** aOut, bool aFlag)
{
    Messages().Clear();
    if (aOut != nullptr) {
        *aOut = nullptr;
    }
    if (aOut == nullptr || dynamic_cast<const WrapperCSMIsdNITF*>(aIsd) == nullptr) {
        Messages().SetError(
            "ERROR: Input WrapperCSMISD object or the input WrapperCSMISD type is currently not supported by the "
            "ImageSupportData factory.");
        throw UnsupportedImageSupportDataException(Messages().error.c_str(), "ImageSupportDataFactory::Create");
    }
    std::unique_ptr<ImageSupportDataNITF> isd;
    try {
        ImageSupportDataNITF* made = nullptr;
        ImageSupportDataNITFFactory::Create(aIsd, &made, aFlag, -1);
        isd.reset(made);
    } catch (const CSMException& exception) {
        Messages().findings = ImageSupportDataNITFFactory::GetFindings();
        Messages().SetError(exception.GetAdditionalMessage());
        throw;
    }
    Messages().findings = ImageSupportDataNITFFactory::GetFindings();
    Messages().SetError(ImageSupportDataNITFFactory::GetErrorMessage());
    Messages().SetWarning(ImageSupportDataNITFFactory::GetWarningMessage());
    *aOut = isd.release();
}

void ImageSupportDataFactory::CreateISD(const char* aPath, ImageSupportData** aOut, bool aAllSegments, bool aFlag2,
                                        int aVersion, SupportedISD::Type aType)
{
    Messages().Clear();
    if (aOut == nullptr || aPath == nullptr || Util::CSMUtilString::Trim(aPath).empty()) {
        RefuseArguments();
    }
    *aOut = nullptr;
    if (aType == SupportedISD::ISD_TYPE_NITF) {
        ImageSupportDataNITF::Request request = ImageSupportDataNITF::Request::Open(aPath);
        request.imageSegmentsOnly = !aAllSegments;
        request.specificOnly = aFlag2 || NITFCnst::CREATE_SPECIFIC_TRE_ONLY;
        if (IsReadableNitf(aVersion)) {
            request.version = static_cast<NITFCnst::Version>(aVersion);
        }
        if (request.version == NITFCnst::NITF_VERSION_NUMBER_UNKNOWN) {
            Messages().findings = {request.NotIdentified(UNSUPPORTED_FORMAT)};
            FailConstruction(UNSUPPORTED_FORMAT);
        }
        CreateNitf(request, aOut);
        return;
    }
    if (aType != SupportedISD::ISD_TYPE_OSDE) {
        FailConstruction(UNSUPPORTED_FORMAT);
    }
    ImageSupportDataOSDEFactory::Create(aPath, aOut, aFlag2, aVersion);
    Messages().SetWarning(ImageSupportDataOSDEFactory::GetWarningMessage());
    if (*aOut == nullptr) {
        FailConstruction(ImageSupportDataOSDEFactory::GetErrorMessage());
    }
}

bool ImageSupportDataFactory::Clone(const ImageSupportData* aIsd, ImageSupportData** aOut)
{
    Messages().Clear();
    ImageSupportDataNITF* copy = nullptr;
    const auto* const nitf = dynamic_cast<const ImageSupportDataNITF*>(aIsd);
    const bool done = ImageSupportDataNITFFactory::Clone(nitf, aOut == nullptr ? nullptr : &copy);
    Messages().SetError(ImageSupportDataNITFFactory::GetErrorMessage());
    if (aOut != nullptr) {
        *aOut = copy;
    }
    return done;
}

bool ImageSupportDataFactory::Assign(ImageSupportData& aTarget, const ImageSupportData& aSource)
{
    Messages().Clear();
    try {
        aTarget.Assign(aSource);
        return true;
    } catch (const RequestedOperationFailedException& exception) {
        Messages().SetError(exception.GetAdditionalMessage());
        return false;
    }
}

bool ImageSupportDataFactory::AreEqual(const ImageSupportData& aLeft, const ImageSupportData& aRight)
{
    return typeid(aLeft) == typeid(aRight) && aLeft == aRight;
}

bool ImageSupportDataFactory::Swap(ImageSupportData& aLeft, ImageSupportData& aRight)
{
    const bool isOneClass = typeid(aLeft) == typeid(aRight);
    if (isOneClass) {
        aLeft.Swap(aLeft, aRight);
    }
    return isOneClass;
}

void ImageSupportDataFactory::Destroy(ImageSupportData** aIsd)
{
    Messages().Clear();
    if (aIsd == nullptr) {
        return;
    }
    ImageSupportData* isd = *aIsd;
    *aIsd = nullptr;
    if (const IsdCompanion* const companion = IsdCompanion::Maker(); companion != nullptr) {
        companion->Offer(isd);
    }
    if (auto* nitf = dynamic_cast<ImageSupportDataNITF*>(isd); nitf != nullptr) {
        ImageSupportDataNITFFactory::Destroy(&nitf);
    } else {
        delete isd;
    }
}

SupportedISD::Type ImageSupportDataFactory::ISDType(const char* aPath, int& aVersion, bool aBuiltInOnly)
{
    Identity identity = aBuiltInOnly ? IdentifyBuiltIn(aPath) : Identify(aPath);
    if (identity.type == SupportedISD::ISD_TYPE_NITF && identity.version == NITFCnst::NITF_VERSION_NUMBER_11) {
        identity = {};
    }
    aVersion = identity.version;
    return identity.type;
}

bool ImageSupportDataFactory::IsSupportedISDFile(const char* aPath, const char*& aFormatName) noexcept
{
    aFormatName = nullptr;
    try {
        for (const IsdCompanion* const companion : {&IsdCompanion::Sci(), &IsdCompanion::Secret()}) {
            if (companion->isSupportedISDFile != nullptr) {
                const char* name = nullptr;
                const bool isSupported = companion->isSupportedISDFile(aPath, &name);
                aFormatName = isSupported ? name : nullptr;
                return isSupported;
            }
        }
    } catch (...) {
        // A companion that fails has told nothing.
        return false;
    }
    return ImageSupportDataNITFFactory::IsSupportedISDFile(aPath, aFormatName);
}

const std::vector<Finding>& ImageSupportDataFactory::GetFindings() noexcept
{
    return Messages().findings;
}

const char* ImageSupportDataFactory::GetErrorMessage() noexcept
{
    return Detail::TextOrNull(Messages().error);
}

const char* ImageSupportDataFactory::GetWarningMessage() noexcept
{
    return Detail::TextOrNull(Messages().warning);
}

}  // namespace ORMO::SensorModel::CSM
