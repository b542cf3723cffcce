// What is to be opened: a file, a block of memory, or a CSM API ISD, with its first bytes and what they tell.

#include "fields/MessageText.h"
#include "foundation/detail/Ascii.h"
#include "isd/detail/IsdParts.h"
#include "isd/detail/WrappedIsd.h"
#include "raster/GDALNITFFileReader.h"
#include "segments/fileheader/detail/FileHeaderReader.h"

#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {

using Request = ImageSupportDataNITF::Request;

Request Request::Open(const char* aPath)
{
    std::string reason;
    const std::string path(Detail::Trimmed(aPath));
    Request request = OfSource(Detail::ByteSource::Open(path, reason), path);
    request.reason = reason.empty() ? request.reason : reason;
    return request;
}

Request Request::OfSource(std::shared_ptr<const Detail::ByteSource> aSource, std::string aPath)
{
    Request request;
    request.path = std::move(aPath);
    request.source = std::move(aSource);
    if (request.source != nullptr && !request.source->ReadUpTo(0, Detail::FIRST_READ, request.first)) {
        request.reason = "The file cannot be read";
        request.source.reset();
    }
    int version = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    GDALNITFFileReader::IsNITFFile(reinterpret_cast<const unsigned char*>(request.first.data()), request.first.size(),
                                   version);
    request.version = static_cast<NITFCnst::Version>(version);
    return request;
}

Request Request::OfMemory(const void* aBytes, std::size_t aLength, bool aCopy, const char* aName)
{
    const std::string name(Detail::Trimmed(aName));
    const std::string path = name.empty() ? "memory" : name;
    const std::string_view bytes(static_cast<const char*>(aBytes), aBytes == nullptr ? 0 : aLength);
    return OfSource(Detail::ByteSource::OfMemory(bytes, aCopy, path), path);
}

Request Request::OfWrapped(const WrapperCSMIsdNITF& aIsd)
{
    const std::string_view header = aIsd.GetFileHeader();
    const bool hasName = *aIsd.GetImageFileName() != '\0';
    Request request = OfMemory(header.data(), header.size(), true, hasName ? aIsd.GetImageFileName() : "CSM API ISD");
    request.wrapped = &aIsd;
    return request;
}

Finding Request::NotIdentified(std::string_view aSentence) const
{
    constexpr std::size_t IDENTITY_LENGTH = 9;
    Finding finding = Detail::MakeFinding(aSentence);
    if (source == nullptr) {
        finding.sentence = "ERROR: The file cannot be opened.";
        finding.detail = reason;
        return finding;
    }
    finding.field = "FHDR";
    finding.offset = 0;
    finding.value = first.substr(0, IDENTITY_LENGTH);
    if (first.size() < IDENTITY_LENGTH) {
        finding.detail = "ends the file at byte " + std::to_string(first.size());
    }
    return finding;
}

}  // namespace ORMO::SensorModel::CSM
