#include "raster/detail/GdalRaster.h"

#include <array>
#include <string_view>

#include <dlfcn.h>

namespace ORMO::SensorModel::CSM {

namespace {
constexpr std::size_t REASON_SIZE = 1024;
}

namespace Detail {

namespace {

/// The directory that this very code was loaded from, with the separator; empty when the system does not tell it.
std::string OwnDirectory()
{
    Dl_info info{};
    if (dladdr(reinterpret_cast<const void*>(&PixelDriver), &info) == 0 || info.dli_fname == nullptr) {
        return {};
    }
    const std::string_view path(info.dli_fname);
    const auto end = path.rfind('/');
    return end == std::string_view::npos ? std::string() : std::string(path.substr(0, end + 1));
}

const OrmoPixelDriver* DriverOf(void* aLibrary)
{
    // The library stays loaded: rasters that it opened outlive any moment at which it could be unloaded.
    auto* const function = reinterpret_cast<OrmoPixelDriverFunction>(dlsym(aLibrary, ORMO_PIXEL_DRIVER_FUNCTION));
    const OrmoPixelDriver* const driver = function == nullptr ? nullptr : function();
    return driver != nullptr && driver->version == ORMO_PIXEL_DRIVER_VERSION ? driver : nullptr;
}

struct Loaded
{
    const OrmoPixelDriver* driver = nullptr;
    std::string reason;
};

Loaded Load()
{
    Loaded loaded;
    const std::string own = OwnDirectory();
    const std::array<std::string, 2> places{own + ORMO_CSM_GDAL_LIBRARY, ORMO_CSM_GDAL_LIBRARY};
    for (const std::string& place : places) {
        void* const library = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            const char* const why = dlerror();
            loaded.reason = why == nullptr ? place + " cannot be loaded" : why;
            continue;
        }
        loaded.driver = DriverOf(library);
        if (loaded.driver != nullptr) {
            loaded.reason.clear();
            return loaded;
        }
        loaded.reason = place + " is of another version";
        dlclose(library);
    }
    return loaded;
}

}  // namespace

const OrmoPixelDriver* PixelDriver(std::string& aReason)
{
    static const Loaded loaded = Load();
    aReason = loaded.reason;
    return loaded.driver;
}

std::size_t SampleBytes(OrmoSampleType aType) noexcept
{
    switch (aType) {
        case ORMO_SAMPLE_UINT8:
            return 1;
        case ORMO_SAMPLE_UINT16:
        case ORMO_SAMPLE_INT16:
            return 2;
        case ORMO_SAMPLE_UINT32:
        case ORMO_SAMPLE_INT32:
        case ORMO_SAMPLE_FLOAT32:
            return 4;
        default:
            return 8;
    }
}

}  // namespace Detail

GDALNITFRasterBand::Raster::Raster(const OrmoPixelDriver& aDriver, void* aRaster) : m_driver(aDriver), m_raster(aRaster)
{
    m_driver.describe(m_raster, &m_shape);
}

GDALNITFRasterBand::Raster::~Raster()
{
    m_driver.close(m_raster);
}

std::shared_ptr<const GDALNITFRasterBand::Raster> GDALNITFRasterBand::Raster::Open(const std::string& aFile,
                                                                                   std::uint32_t aImage,
                                                                                   bool& aIsDriverMissing,
                                                                                   std::string& aReason)
{
    const OrmoPixelDriver* const driver = Detail::PixelDriver(aReason);
    aIsDriverMissing = driver == nullptr;
    if (driver == nullptr) {
        return nullptr;
    }
    std::array<char, REASON_SIZE> reason{};
    void* const raster = driver->open(aFile.c_str(), aImage, reason.data(), reason.size());
    if (raster == nullptr) {
        aReason = reason.data();
        return nullptr;
    }
    return std::shared_ptr<const Raster>(new Raster(*driver, raster));
}

OrmoSampleType GDALNITFRasterBand::Raster::TypeOf(std::uint32_t aBand) const
{
    const std::lock_guard lock(m_turn);
    return m_driver.typeOf(m_raster, aBand);
}

bool GDALNITFRasterBand::Raster::Read(const OrmoRasterRequest& aRequest, void* aOut, std::string& aReason) const
{
    std::array<char, REASON_SIZE> reason{};
    const std::lock_guard lock(m_turn);
    const bool isRead = m_driver.read(m_raster, &aRequest, aOut, reason.data(), reason.size()) == 1;
    if (!isRead) {
        aReason = reason.data();
    }
    return isRead;
}

}  // namespace ORMO::SensorModel::CSM
