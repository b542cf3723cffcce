#include "raster/gdal/NITFFactory.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilFile.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/LastMessages.h"
#include "isd/ImageSupportDataNITF.h"
#include "isd/ImageSupportDataNITFFactory.h"
#include "nitf/NITFCnst.h"
#include "raster/GDALNITFFileReader.h"

#include <charconv>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <gdal_priv.h>

namespace ORMO::SensorModel::CSM {
namespace {

constexpr const char* INVALID_ARGUMENT = "ERROR: NULL/invalid required input argument(s).";
constexpr std::string_view SUBDATASET_PREFIX = "NITF_IM:";

Detail::LastMessages& Messages() noexcept
{
    thread_local Detail::LastMessages messages;
    return messages;
}

bool Fail(const char* aError)
{
    Messages().SetError(aError);
    return false;
}

/// A name taken apart; file is null when the name cannot be used.
struct OpenName
{
    const char* file = nullptr;
    int index = -1;
    bool isSubdataset = false;
};

OpenName Parse(const char* aName)
{
    OpenName name;
    if (aName == nullptr || *aName == '\0') {
        return name;
    }
    name.isSubdataset = Util::CSMUtilString::StartWith(true, aName, SUBDATASET_PREFIX.data());
    if (!name.isSubdataset) {
        name.file = aName;
        name.index = 0;
        return name;
    }
    const std::string_view rest = std::string_view(aName).substr(SUBDATASET_PREFIX.size());
    const std::size_t colon = rest.find(':');
    if (colon == std::string_view::npos || colon + 1 == rest.size()) {
        return name;
    }
    int index = -1;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + colon, index);
    if (error == std::errc{} && end == rest.data() + colon && index >= 0) {
        name.file = end + 1;
        name.index = index;
    }
    return name;
}

/// 20 or 21 for a file that can be read; NSIF counts as 21.
int ReadableVersion(int aVersion) noexcept
{
    switch (aVersion) {
        case NITFCnst::NITF_VERSION_NUMBER_20:
            return 20;
        case NITFCnst::NITF_VERSION_NUMBER_21:
        case NITFCnst::NSIF_VERSION_NUMBER_10:
            return 21;
        default:
            return -1;
    }
}

/// Raises what the construction of the object raises.
bool CreateAndSelect(const char* aFile, int aVersion, int aImageIndex, ImageSupportDataNITF** aIsd, bool& aHasImage)
{
    const NITFCnst::Version version =
        aVersion == 21 ? NITFCnst::NITF_VERSION_NUMBER_21 : NITFCnst::NITF_VERSION_NUMBER_20;
    const bool isMade = ImageSupportDataNITFFactory::Create(aFile, aIsd, false, false, -1, version);
    Messages().SetError(ImageSupportDataNITFFactory::GetErrorMessage());
    Messages().SetWarning(ImageSupportDataNITFFactory::GetWarningMessage());
    if (!isMade) {
        return false;
    }
    const long count = (*aIsd)->GetNumOfImageSegments();
    aHasImage = count != 0;
    if (aImageIndex < count) {
        (*aIsd)->SetCurrentImageSegment(aImageIndex);
    }
    return true;
}

void ClearOutputs(ImageSupportDataNITF** aIsd, int& aImageIndex, bool& aHasImage, bool* aIsSubdataset) noexcept
{
    Messages().Clear();
    aImageIndex = -1;
    aHasImage = false;
    if (aIsd != nullptr) {
        *aIsd = nullptr;
    }
    if (aIsSubdataset != nullptr) {
        *aIsSubdataset = false;
    }
}

}  // namespace

bool NITFFactory::Open(const char* aFileName, ImageSupportDataNITF** aIsd, int& aImageIndex, bool& aHasImage,
                       bool* aIsSubdataset)
{
    ClearOutputs(aIsd, aImageIndex, aHasImage, aIsSubdataset);
    try {
        const std::string name = Util::CSMUtilString::Trim(aFileName == nullptr ? "" : aFileName);
        // GDAL opens whatever it is given, and would wait for a pipe.
        if (!Util::CSMUtilFile::FileExists(Parse(name.c_str()).file)) {
            return Fail(
                "ERROR: Invalid, NULL, or empty input file name or the file doesn't exist/cannot be accessed by the "
                "NITF System.");
        }
        const GDALOpenInfo request(name.c_str(), GDAL_OF_READONLY);
        return Open(&request, aIsd, aImageIndex, aHasImage, aIsSubdataset);
    } catch (const std::bad_alloc&) {
        return Fail("ERROR: System out of memory.");
    }
}

bool NITFFactory::Open(const GDALOpenInfo* aRequest, ImageSupportDataNITF** aIsd, int& aImageIndex, bool& aHasImage,
                       bool* aIsSubdataset)
{
    ClearOutputs(aIsd, aImageIndex, aHasImage, aIsSubdataset);
    if (aRequest == nullptr || aIsd == nullptr) {
        return Fail(INVALID_ARGUMENT);
    }
    try {
        int version = -1;
        if (aRequest->pabyHeader != nullptr && aRequest->nHeaderBytes > 0) {
            version =
                ImageSupportDataNITF::Identify(aRequest->pabyHeader, static_cast<std::size_t>(aRequest->nHeaderBytes));
        }
        const char* file = nullptr;
        // GDAL reads no bytes for a sub-dataset name: the version is then that of the file named in it.
        if (!ExtractOpenFileInformation(file, aRequest, aImageIndex, aIsSubdataset, &version)) {
            return Fail(INVALID_ARGUMENT);
        }
        version = ReadableVersion(version);
        return version > 0 && CreateAndSelect(file, version, aImageIndex, aIsd, aHasImage);
    } catch (const ImageSupportDataConstructionException& exception) {
        const char* const text = exception.GetAdditionalMessage();
        Fail(text == nullptr || *text == '\0'
                 ? "ERROR: Unable to construct an Image Support Data object with the input file."
                 : text);
    } catch (const std::invalid_argument&) {
        Fail(INVALID_ARGUMENT);
    } catch (const std::bad_alloc&) {
        Fail("ERROR: System out of memory.");
    } catch (...) {
        // "attepting" is how hosts know this text.
        Fail("ERROR: Unknown exception caught while attepting to create a NITF Image Support Data object.");
    }
    ImageSupportDataNITFFactory::Destroy(aIsd);
    return false;
}

bool NITFFactory::ExtractOpenFileInformation(const char*& aFileName, const GDALOpenInfo* aRequest, int& aImageIndex,
                                             bool* aIsSubdataset, int* aVersion)
{
    const OpenName name = Parse(aRequest == nullptr ? nullptr : aRequest->pszFilename);
    aFileName = name.file;
    aImageIndex = name.index;
    if (aIsSubdataset != nullptr) {
        *aIsSubdataset = name.isSubdataset;
    }
    if (name.file == nullptr) {
        return false;
    }
    if (aVersion != nullptr && *aVersion == -1) {
        GDALNITFFileReader::IsNITFFile(name.file, *aVersion);
    }
    return true;
}

const char* NITFFactory::GetErrorMessage() noexcept
{
    return Detail::TextOrNull(Messages().error);
}

const char* NITFFactory::GetWarningMessage() noexcept
{
    return Detail::TextOrNull(Messages().warning);
}

}  // namespace ORMO::SensorModel::CSM
