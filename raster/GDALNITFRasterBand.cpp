#include "raster/GDALNITFRasterBand.h"

#include "raster/detail/GdalRaster.h"

#include <utility>

namespace ORMO::SensorModel::CSM {

static_assert(GDALNITFRasterBand::DATA_TYPE_UINT8 == static_cast<std::uint32_t>(ORMO_SAMPLE_UINT8) &&
              GDALNITFRasterBand::DATA_TYPE_COMPLEX64 == static_cast<std::uint32_t>(ORMO_SAMPLE_COMPLEX64));

GDALNITFRasterBand::GDALNITFRasterBand(std::shared_ptr<const Raster> aRaster, std::uint32_t aBand)
    : m_raster(std::move(aRaster)), m_band(aBand)
{
}

std::uint32_t GDALNITFRasterBand::GetNumOfRows() const noexcept
{
    return m_raster->Shape().rows;
}

std::uint32_t GDALNITFRasterBand::GetNumOfColumns() const noexcept
{
    return m_raster->Shape().columns;
}

GDALNITFRasterBand::DataType GDALNITFRasterBand::GetDataType() const
{
    return static_cast<DataType>(m_raster->TypeOf(m_band));
}

std::size_t GDALNITFRasterBand::GetBytesPerSample(DataType aType) noexcept
{
    return Detail::SampleBytes(static_cast<OrmoSampleType>(aType));
}

bool GDALNITFRasterBand::Read(std::uint32_t aRow, std::uint32_t aColumn, std::uint32_t aRows, std::uint32_t aColumns,
                              std::uint32_t aRowsOut, std::uint32_t aColumnsOut, DataType aType, void* aBuffer,
                              std::size_t aBufferSize, std::string& aReason) const
{
    const std::uint32_t rows = GetNumOfRows();
    const std::uint32_t columns = GetNumOfColumns();
    if (aRows == 0 || aColumns == 0 || aRow >= rows || aRows > rows - aRow || aColumn >= columns ||
        aColumns > columns - aColumn || aType > DATA_TYPE_COMPLEX64) {
        aReason = "the window is not inside the band";
        return false;
    }
    const std::uint64_t samples = std::uint64_t{aRowsOut} * aColumnsOut;
    if (aBuffer == nullptr || samples == 0 || samples > aBufferSize / GetBytesPerSample(aType)) {
        aReason = "the buffer is too small";
        return false;
    }
    return m_raster->Read(
        {m_band, aRow, aColumn, aRows, aColumns, aRowsOut, aColumnsOut, static_cast<OrmoSampleType>(aType)}, aBuffer,
        aReason);
}

}  // namespace ORMO::SensorModel::CSM
