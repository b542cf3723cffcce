#pragma once

#include "../foundation/Export.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {

/// One band of an image segment as GDAL reads it. Keeps the image open; may be used from several threads, which take
/// turns.
class ORMO_CSM_API GDALNITFRasterBand
{
public:
    /// The open image, known inside the library only.
    class Raster;

    /// The samples of a band, in the byte order of the machine.
    enum DataType : std::uint32_t
    {
        DATA_TYPE_UINT8 = 0,
        DATA_TYPE_UINT16,
        DATA_TYPE_INT16,
        DATA_TYPE_UINT32,
        DATA_TYPE_INT32,
        DATA_TYPE_FLOAT32,
        DATA_TYPE_FLOAT64,
        DATA_TYPE_COMPLEX64  ///< two floats
    };

    /// Counted from 0.
    std::uint32_t GetBandNumber() const noexcept { return m_band; }
    std::uint32_t GetNumOfRows() const noexcept;
    std::uint32_t GetNumOfColumns() const noexcept;
    /// The type in which GDAL holds the band.
    DataType GetDataType() const;
    static std::size_t GetBytesPerSample(DataType aType) noexcept;

    /// Reads a window, reduced to `aRowsOut` by `aColumnsOut` samples of the given type. False, with the reason, when
    /// the window leaves the band, the buffer (its size is in bytes) is too small or the data are damaged.
    bool Read(std::uint32_t aRow, std::uint32_t aColumn, std::uint32_t aRows, std::uint32_t aColumns,
              std::uint32_t aRowsOut, std::uint32_t aColumnsOut, DataType aType, void* aBuffer, std::size_t aBufferSize,
              std::string& aReason) const;

private:
    friend class GDALNITFFileReader;

    GDALNITFRasterBand(std::shared_ptr<const Raster> aRaster, std::uint32_t aBand);

    std::shared_ptr<const Raster> m_raster;
    std::uint32_t m_band;
};

}  // namespace ORMO::SensorModel::CSM
