#include "segments/image/detail/ImagePixels.h"

#include "segments/image/detail/ImageDataMask.h"
#include "segments/image/detail/UncompressedPixels.h"

#include <string_view>
#include <utility>

namespace ORMO::SensorModel::CSM::Detail {

namespace {

using Reader = NITFImagePixelReader;

/// "C8 (JPEG 2000)". A mask in front changes nothing of the method.
std::string NameOf(const std::string& aCode)
{
    constexpr std::pair<char, const char*> METHODS[] = {
        {'0', "user-defined"},  {'1', "bi-level"}, {'2', "ARIDPCM"},  {'3', "JPEG"},     {'4', "vector quantisation"},
        {'5', "lossless JPEG"}, {'6', "reserved"}, {'7', "reserved"}, {'8', "JPEG 2000"}};
    if (aCode == "I1") {
        return "I1 (downsampled JPEG)";
    }
    if (aCode.size() == 2 && (aCode[0] == 'C' || aCode[0] == 'M')) {
        for (const auto& [digit, name] : METHODS) {
            if (aCode[1] == digit) {
                return aCode + " (" + name + ')';
            }
        }
    }
    return '"' + aCode + '"';
}

/// The type for samples of this layout; false for 8 bytes of integer, which GDAL does not have.
bool SampleTypeOf(const PixelLayout& aLayout, OrmoSampleType& aType) noexcept
{
    const std::size_t size = aLayout.SampleSize();
    const bool isSigned = aLayout.type == NITFCnst::PIXEL_TYPE_SI;
    if (aLayout.type == NITFCnst::PIXEL_TYPE_C) {
        aType = ORMO_SAMPLE_COMPLEX64;
    } else if (aLayout.type == NITFCnst::PIXEL_TYPE_R) {
        aType = size == 4 ? ORMO_SAMPLE_FLOAT32 : ORMO_SAMPLE_FLOAT64;
    } else if (size == 1) {
        aType = ORMO_SAMPLE_UINT8;
    } else if (size == 2) {
        aType = isSigned ? ORMO_SAMPLE_INT16 : ORMO_SAMPLE_UINT16;
    } else {
        aType = isSigned ? ORMO_SAMPLE_INT32 : ORMO_SAMPLE_UINT32;
        return size == 4;
    }
    return true;
}

}  // namespace

ImagePixels::ImagePixels(PixelLayout aLayout, std::shared_ptr<const ByteSource> aSource, std::uint32_t aImage)
    : m_layout(std::move(aLayout)), m_source(std::move(aSource)), m_image(aImage)
{
}

ImagePixels::~ImagePixels() = default;

PixelAnswer ImagePixels::Read(const PixelWindow& aWindow, std::uint64_t aBufferSize, void* aBuffer,
                              std::FILE* aFile) const
{
    PixelAnswer answer = CheckRequest(m_layout, aWindow, aBufferSize, aBuffer);
    if (!answer.IsGood()) {
        return answer;
    }
    return m_layout.IsUncompressed() ? ReadUncompressed(aWindow, static_cast<char*>(aBuffer), aFile)
                                     : Decode(aWindow, aBuffer);
}

std::shared_ptr<const NITFImageDataMaskSubheader> ImagePixels::Mask(std::string& aReason) const
{
    if (!m_layout.IsMasked()) {
        aReason = "ERROR: The image has no data mask.";
        return nullptr;
    }
    const std::lock_guard lock(m_guard);
    if (m_mask == nullptr && m_maskError.empty()) {
        m_mask = NITFImageDataMaskSubheader::Read({m_source, m_layout}, m_maskError);
    }
    aReason = m_maskError;
    return m_mask;
}

PixelAnswer ImagePixels::ReadUncompressed(const PixelWindow& aWindow, char* aOut, std::FILE* aFile) const
{
    std::shared_ptr<const ByteSource> source = m_source;
    std::string reason;
    if (aFile != nullptr) {
        source = ByteSource::OfStream(aFile, reason);
    }
    if (source == nullptr) {
        return {Reader::STATUS_NO_FILE,
                reason.empty() ? "ERROR: There is no file to read the pixels from." : "ERROR: " + reason + '.'};
    }
    std::shared_ptr<const NITFImageDataMaskSubheader> mask;
    if (m_layout.IsMasked()) {
        mask = aFile == nullptr ? Mask(reason) : NITFImageDataMaskSubheader::Read({source, m_layout}, reason);
        if (mask == nullptr) {
            return {Reader::STATUS_INVALID_MASK, reason};
        }
    }
    return UncompressedPixels(m_layout, *source, mask.get()).Read(aWindow, aOut);
}

PixelAnswer ImagePixels::OpenDecoder(std::shared_ptr<const GdalRaster>& aRaster) const
{
    if (m_source == nullptr || m_source->IsMemory() || m_source->Path().empty()) {
        return {Reader::STATUS_NO_FILE, "ERROR: Compressed pixels are read from a named file, and there is none."};
    }
    if (m_layout.compression == "I1") {  // GDAL would hand its bytes out as if they were pixels
        return {Reader::STATUS_UNSUPPORTED_COMPRESSION, "ERROR: Compression " + NameOf(m_layout.compression) +
                                                            " of image segment " + std::to_string(m_image) +
                                                            " cannot be decoded."};
    }
    const std::lock_guard lock(m_guard);
    if (m_raster == nullptr) {
        bool isDriverMissing = false;
        std::string reason;
        m_raster = GdalRaster::Open(m_source->Path(), m_image, isDriverMissing, reason);
        if (m_raster == nullptr) {
            return isDriverMissing
                       ? PixelAnswer{Reader::STATUS_NO_DECODER,
                                     "ERROR: The library for compressed pixels cannot be loaded: " + reason + '.'}
                       : PixelAnswer{Reader::STATUS_UNSUPPORTED_COMPRESSION,
                                     "ERROR: Compression " + NameOf(m_layout.compression) + " of image segment " +
                                         std::to_string(m_image) + " cannot be decoded: " + reason + '.'};
        }
    }
    aRaster = m_raster;
    return {};
}

PixelAnswer ImagePixels::Decode(const PixelWindow& aWindow, void* aOut) const
{
    OrmoSampleType type = ORMO_SAMPLE_UINT8;
    if (!SampleTypeOf(m_layout, type)) {
        return {Reader::STATUS_UNSUPPORTED_PIXELS,
                "ERROR: Compressed pixels of " + std::to_string(m_layout.bits) + " bits cannot be read."};
    }
    std::shared_ptr<const GdalRaster> raster;
    PixelAnswer answer = OpenDecoder(raster);
    if (!answer.IsGood()) {
        return answer;
    }
    const OrmoRasterShape& shape = raster->Shape();
    if (shape.rows != m_layout.rows || shape.columns != m_layout.columns || aWindow.band >= shape.bands) {
        return {Reader::STATUS_DECODING_FAILED, "ERROR: The compressed data hold " + std::to_string(shape.rows) +
                                                    " rows by " + std::to_string(shape.columns) + " columns in " +
                                                    std::to_string(shape.bands) +
                                                    " band(s), which is not what the subheader says."};
    }
    const OrmoRasterRequest request{
        static_cast<std::uint32_t>(aWindow.band),         static_cast<std::uint32_t>(aWindow.row),
        static_cast<std::uint32_t>(aWindow.column),       static_cast<std::uint32_t>(aWindow.rows),
        static_cast<std::uint32_t>(aWindow.columns),      static_cast<std::uint32_t>(aWindow.RowsOut()),
        static_cast<std::uint32_t>(aWindow.ColumnsOut()), type};
    std::string reason;
    if (!raster->Read(request, aOut, reason)) {
        return {Reader::STATUS_DECODING_FAILED, "ERROR: The compressed pixels cannot be decoded: " + reason + '.'};
    }
    return {};
}

}  // namespace ORMO::SensorModel::CSM::Detail
