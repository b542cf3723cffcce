#include "raster/GDALNITFFileReader.h"

#include "fields/ByteSource.h"
#include "fields/MessageText.h"
#include "foundation/CSMUtilString.h"
#include "nitf/NITFCnst.h"
#include "raster/detail/GdalRaster.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM {
namespace {

/// Format name and version: FHDR and FVER, one after the other.
constexpr std::size_t IDENTITY_LENGTH = 9;

constexpr NITFCnst::Version VERSIONS[] = {NITFCnst::NITF_VERSION_NUMBER_21, NITFCnst::NITF_VERSION_NUMBER_20,
                                          NITFCnst::NSIF_VERSION_NUMBER_10, NITFCnst::NITF_VERSION_NUMBER_11};

NITFCnst::Version Identify(std::string_view aBytes)
{
    const std::string_view identity = aBytes.substr(0, IDENTITY_LENGTH);
    const auto* const found = std::find_if(std::begin(VERSIONS), std::end(VERSIONS), [&](NITFCnst::Version aVersion) {
        return identity == NITFCnst::GetNITFVersionString(aVersion);
    });
    return found == std::end(VERSIONS) ? NITFCnst::NITF_VERSION_NUMBER_UNKNOWN : *found;
}

}  // namespace

bool GDALNITFFileReader::IsNITFFile(const char* aPath, int& aVersion)
{
    aVersion = NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
    const std::string path = Util::CSMUtilString::Trim(aPath == nullptr ? "" : aPath);
    std::string reason;
    const std::unique_ptr<Detail::ByteSource> file = Detail::ByteSource::Open(path, reason);
    std::string bytes;
    if (file != nullptr && file->ReadUpTo(0, IDENTITY_LENGTH, bytes)) {
        aVersion = Identify(bytes);
    }
    return aVersion != NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
}

bool GDALNITFFileReader::IsNITFFile(const unsigned char* aHeaderBytes, std::size_t aLength, int& aVersion) noexcept
{
    std::array<char, IDENTITY_LENGTH> bytes{};
    if (aHeaderBytes != nullptr && aLength >= bytes.size()) {
        std::copy_n(aHeaderBytes, bytes.size(), bytes.begin());
    }
    aVersion = Identify({bytes.data(), bytes.size()});
    return aVersion != NITFCnst::NITF_VERSION_NUMBER_UNKNOWN;
}

std::string GDALNITFFileReader::WhyNotNITFFile(const char* aPath)
{
    const std::string path = Util::CSMUtilString::Trim(aPath == nullptr ? "" : aPath);
    std::string reason;
    const std::unique_ptr<Detail::ByteSource> file = Detail::ByteSource::Open(path, reason);
    std::string bytes;
    if (file == nullptr || !file->ReadUpTo(0, IDENTITY_LENGTH, bytes)) {
        return reason;
    }
    return "field FHDR at byte offset 0 is " + Detail::Shown(bytes) +
           (bytes.size() < IDENTITY_LENGTH ? ", the file ends at " + std::to_string(bytes.size()) : "");
}

GDALNITFFileReader::GDALNITFFileReader(std::shared_ptr<const GDALNITFRasterBand::Raster> aRaster)
    : m_raster(std::move(aRaster))
{
}

std::unique_ptr<GDALNITFFileReader> GDALNITFFileReader::Open(const char* aPath, std::uint32_t aImage,
                                                             std::string& aReason)
{
    bool isDriverMissing = false;
    auto raster = Detail::GdalRaster::Open(Util::CSMUtilString::Trim(aPath == nullptr ? "" : aPath), aImage,
                                           isDriverMissing, aReason);
    return std::unique_ptr<GDALNITFFileReader>(raster == nullptr ? nullptr : new GDALNITFFileReader(std::move(raster)));
}

std::uint32_t GDALNITFFileReader::GetNumOfRows() const noexcept
{
    return m_raster->Shape().rows;
}

std::uint32_t GDALNITFFileReader::GetNumOfColumns() const noexcept
{
    return m_raster->Shape().columns;
}

std::uint32_t GDALNITFFileReader::GetNumOfBands() const noexcept
{
    return m_raster->Shape().bands;
}

std::optional<GDALNITFRasterBand> GDALNITFFileReader::GetRasterBand(std::uint32_t aBand) const
{
    return aBand < GetNumOfBands() ? std::optional(GDALNITFRasterBand(m_raster, aBand)) : std::nullopt;
}

}  // namespace ORMO::SensorModel::CSM
