#include "raster/detail/GdalRaster.h"

#include "raster/detail/GdalLibrary.h"

#include <array>

// There in a program that is linked with the archive of the library that holds GDAL, null in all others.
extern "C" ORMO_CSM_API [[gnu::weak]] const OrmoPixelDriver* ormo_csm_pixel_driver();

namespace ORMO::SensorModel::CSM {

namespace {
constexpr std::size_t REASON_SIZE = 1024;
}

namespace Detail {

namespace {

struct Loaded
{
    const OrmoPixelDriver* driver = nullptr;
    std::string reason;
};

Loaded Load()
{
    // The library stays loaded: rasters that it opened outlive any moment at which it could be unloaded.
    Loaded loaded;
    if (ormo_csm_pixel_driver != nullptr) {
        loaded.driver = ormo_csm_pixel_driver();
        return loaded;
    }
    const auto isRight = [](OrmoPixelDriverFunction aFunction) {
        return aFunction()->version == ORMO_PIXEL_DRIVER_VERSION;
    };
    const auto function =
        FindInGdalLibrary<OrmoPixelDriverFunction>(reinterpret_cast<const void*>(&PixelDriver), ORMO_GDAL_LIBRARY,
                                                   ORMO_PIXEL_DRIVER_FUNCTION, isRight, loaded.reason);
    loaded.driver = function == nullptr ? nullptr : function();
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
