#pragma once

#include "fields/ByteSource.h"
#include "raster/detail/GdalRaster.h"
#include "segments/image/NITFImageDataMaskSubheader.h"
#include "segments/image/detail/PixelLayout.h"

#include <cstdint>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// The pixels of one image segment: its layout, its file, and, once somebody asked for them, its data mask and its
/// decoder. May be used from several threads.
class ImagePixels
{
public:
    /// A null source stands for an image without a file. `aImage` counts the image segments of the file from 0.
    ImagePixels(PixelLayout aLayout, std::shared_ptr<const ByteSource> aSource, std::uint32_t aImage);
    ~ImagePixels();
    ImagePixels(const ImagePixels&) = delete;
    ImagePixels& operator=(const ImagePixels&) = delete;

    const PixelLayout& Layout() const noexcept { return m_layout; }
    /// Fills a buffer with the samples of a window, from `aFile` when that is given and the data are uncompressed.
    PixelAnswer Read(const PixelWindow& aWindow, std::uint64_t aBufferSize, void* aBuffer, std::FILE* aFile) const;
    /// The data mask, read when first asked for; null, with the reason, when there is none or it cannot be read.
    std::shared_ptr<const NITFImageDataMaskSubheader> Mask(std::string& aReason) const;

private:
    PixelAnswer ReadUncompressed(const PixelWindow& aWindow, char* aOut, std::FILE* aFile) const;
    PixelAnswer Decode(const PixelWindow& aWindow, void* aOut) const;
    PixelAnswer OpenDecoder(std::shared_ptr<const GdalRaster>& aRaster) const;

    PixelLayout m_layout;
    std::shared_ptr<const ByteSource> m_source;
    std::uint32_t m_image;
    mutable std::mutex m_guard;
    mutable std::shared_ptr<const NITFImageDataMaskSubheader> m_mask;
    mutable std::string m_maskError;
    mutable std::shared_ptr<const GdalRaster> m_raster;
};

}  // namespace ORMO::SensorModel::CSM::Detail
