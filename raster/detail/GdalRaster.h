#pragma once

#include "raster/GDALNITFRasterBand.h"
#include "raster/detail/PixelDriver.h"

#include <cstddef>
#include <memory>
#include <mutex>
#include <string>

namespace ORMO::SensorModel::CSM {

namespace Detail {

/// The library that reads pixels through GDAL, loaded when first asked for: from the directory of this library, else
/// from where the system looks. Null, with the reason, when there is none.
const OrmoPixelDriver* PixelDriver(std::string& aReason);

/// Bytes of one sample.
std::size_t SampleBytes(OrmoSampleType aType) noexcept;

}  // namespace Detail

/// One image segment opened through GDAL. May be used from several threads, which take turns.
class ORMO_CSM_LOCAL GDALNITFRasterBand::Raster
{
public:
    /// Null, with the reason, when the library is missing (`aIsDriverMissing`) or cannot decode the segment.
    static std::shared_ptr<const Raster> Open(const std::string& aFile, std::uint32_t aImage, bool& aIsDriverMissing,
                                              std::string& aReason);
    ~Raster();
    Raster(const Raster&) = delete;
    Raster& operator=(const Raster&) = delete;

    const OrmoRasterShape& Shape() const noexcept { return m_shape; }
    /// The type in which a band that exists is held.
    OrmoSampleType TypeOf(std::uint32_t aBand) const;
    /// Fills a buffer that is large enough; the window must lie in the raster.
    [[nodiscard]] bool Read(const OrmoRasterRequest& aRequest, void* aOut, std::string& aReason) const;

private:
    Raster(const OrmoPixelDriver& aDriver, void* aRaster);

    const OrmoPixelDriver& m_driver;
    void* m_raster;
    OrmoRasterShape m_shape{};
    mutable std::mutex m_turn;
};

namespace Detail {
using GdalRaster = GDALNITFRasterBand::Raster;
}

}  // namespace ORMO::SensorModel::CSM
