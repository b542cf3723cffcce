#include "raster/detail/PixelDriver.h"

#include "foundation/Export.h"
#include "raster/gdal/detail/Listener.h"

#include <exception>
#include <mutex>
#include <string>

#include <gdal_priv.h>

using ORMO::SensorModel::CSM::Detail::CopyReason;
using ORMO::SensorModel::CSM::Detail::Listener;

namespace {

GDALDataType TypeOf(OrmoSampleType aType) noexcept
{
    constexpr GDALDataType TYPES[] = {GDT_Byte,  GDT_UInt16,  GDT_Int16,   GDT_UInt32,
                                      GDT_Int32, GDT_Float32, GDT_Float64, GDT_CFloat32};
    return TYPES[aType];
}

OrmoSampleType TypeOf(GDALDataType aType) noexcept
{
    switch (aType) {
        case GDT_Byte:
            return ORMO_SAMPLE_UINT8;
        case GDT_UInt16:
            return ORMO_SAMPLE_UINT16;
        case GDT_Int16:
            return ORMO_SAMPLE_INT16;
        case GDT_UInt32:
            return ORMO_SAMPLE_UINT32;
        case GDT_Int32:
            return ORMO_SAMPLE_INT32;
        case GDT_Float32:
            return ORMO_SAMPLE_FLOAT32;
        default:
            return GDALDataTypeIsComplex(aType) != 0 ? ORMO_SAMPLE_COMPLEX64 : ORMO_SAMPLE_FLOAT64;
    }
}

void* Open(const char* aFile, std::uint32_t aImage, char* aReason, std::size_t aReasonSize)
{
    try {
        static std::once_flag isRegistered;
        const Listener listener;
        std::call_once(isRegistered, [] { GDALAllRegister(); });
        const std::string name = "NITF_IM:" + std::to_string(aImage) + ":" + aFile;
        constexpr const char* const DRIVERS[] = {"NITF", nullptr};
        GDALDataset* const raster = GDALDataset::Open(name.c_str(), GDAL_OF_RASTER | GDAL_OF_READONLY, DRIVERS);
        if (raster == nullptr || raster->GetRasterCount() == 0) {
            CopyReason(listener.Heard(), aReason, aReasonSize);
            GDALClose(raster);
            return nullptr;
        }
        return raster;
    } catch (const std::exception& exception) {
        CopyReason(exception.what(), aReason, aReasonSize);
        return nullptr;
    }
}

void Close(void* aRaster)
{
    const Listener listener;
    GDALClose(aRaster);
}

void Describe(void* aRaster, OrmoRasterShape* aShape)
{
    aShape->rows = static_cast<std::uint32_t>(GDALGetRasterYSize(aRaster));
    aShape->columns = static_cast<std::uint32_t>(GDALGetRasterXSize(aRaster));
    aShape->bands = static_cast<std::uint32_t>(GDALGetRasterCount(aRaster));
}

OrmoSampleType TypeOfBand(void* aRaster, std::uint32_t aBand)
{
    GDALRasterBand* const band = static_cast<GDALDataset*>(aRaster)->GetRasterBand(static_cast<int>(aBand) + 1);
    return band == nullptr ? ORMO_SAMPLE_UINT8 : TypeOf(band->GetRasterDataType());
}

int Read(void* aRaster, const OrmoRasterRequest* aRequest, void* aOut, char* aReason, std::size_t aReasonSize)
{
    try {
        const Listener listener;
        GDALRasterBand* const band =
            static_cast<GDALDataset*>(aRaster)->GetRasterBand(static_cast<int>(aRequest->band) + 1);
        const CPLErr error =
            band == nullptr
                ? CE_Failure
                : band->RasterIO(GF_Read, static_cast<int>(aRequest->column), static_cast<int>(aRequest->row),
                                 static_cast<int>(aRequest->columns), static_cast<int>(aRequest->rows), aOut,
                                 static_cast<int>(aRequest->columnsOut), static_cast<int>(aRequest->rowsOut),
                                 TypeOf(aRequest->type), 0, 0, nullptr);
        if (error != CE_None) {
            CopyReason(listener.Heard(), aReason, aReasonSize);
        }
        return error == CE_None ? 1 : 0;
    } catch (const std::exception& exception) {
        CopyReason(exception.what(), aReason, aReasonSize);
        return 0;
    }
}

}  // namespace

extern "C" ORMO_CSM_API const OrmoPixelDriver* ormo_csm_pixel_driver();

extern "C" const OrmoPixelDriver* ormo_csm_pixel_driver()
{
    static constexpr OrmoPixelDriver DRIVER{ORMO_PIXEL_DRIVER_VERSION, &Open, &Close, &Describe, &TypeOfBand, &Read};
    return &DRIVER;
}
