#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <cstdio>

namespace ORMO::SensorModel::CSM {

/// Reads the pixels of one image. No pixel is read before it is asked for, and no more than those asked for need.
///
/// Samples are handed out in the byte order of the machine, each in the smallest of 1, 2, 4 and 8 bytes that holds NBPP
/// bits: unsigned for INT and B, with sign for SI, IEEE 754 for R, two floats (real, imaginary) for C. Values are those
/// of the file: neither look-up tables nor PJUST are applied. Blocks that the data mask says are not in the file hold
/// the pad value of the mask, or 0.
class ORMO_CSM_API NITFImagePixelReader
{
public:
    enum Status : int
    {
        STATUS_OK = 0,
        STATUS_NO_BUFFER,                ///< The buffer is null.
        STATUS_BUFFER_TOO_SMALL,         ///< It does not hold the samples asked for.
        STATUS_OUT_OF_RANGE,             ///< The window is empty or leaves the image, or there is no such band.
        STATUS_NO_FILE,                  ///< There is no file to read from.
        STATUS_INVALID_LAYOUT,           ///< The fields of the subheader contradict one another.
        STATUS_UNSUPPORTED_PIXELS,       ///< No reader for this combination of PVTYPE, NBPP and IMODE.
        STATUS_INVALID_MASK,             ///< The data mask cannot be read or points outside the data.
        STATUS_DATA_SHORT,               ///< The file or the segment ends before the pixels asked for.
        STATUS_READ_FAILED,              ///< The system failed to read.
        STATUS_NO_DECODER,               ///< The library that reads compressed pixels cannot be loaded.
        STATUS_UNSUPPORTED_COMPRESSION,  ///< It cannot decode this compression.
        STATUS_DECODING_FAILED,          ///< The compressed data are damaged.
        STATUS_OUT_OF_MEMORY
    };

    virtual ~NITFImagePixelReader();

    /// Bytes of one sample as it is handed out; 0 when pixels of this kind cannot be read.
    virtual std::size_t GetBytesPerSample() const = 0;

    /// Every `aStep`th sample of a band in every `aStep`th row, from the first, as rows one after another:
    /// ceil(rows / aStep) times ceil(columns / aStep) samples. Compressed data may be reduced by their decoder.
    virtual Status RetrieveImageOverview(int aBand, int aStep, std::size_t aBufferSize, void* aBuffer) const = 0;

    /// The samples of a window of one band, row after row. Rows, columns and bands count from 0; the buffer size is in
    /// bytes. Uncompressed data are read from `aFile` when that is given, whose position stays as it is, else from the
    /// file that was opened. On any status but STATUS_OK the content of the buffer means nothing.
    virtual Status RetrieveImagePixels(int aFirstRow, int aFirstColumn, int aRows, int aColumns, int aBand,
                                       int aBufferSize, void* aBuffer, std::FILE* aFile) const = 0;

    /// "STATUS_OK" and so on.
    static const char* GetStatusName(Status aStatus) noexcept;
    /// Why the last request of this thread did not answer STATUS_OK; empty when it did.
    static const char* GetLastPixelError() noexcept;

protected:
    NITFImagePixelReader() = default;
    NITFImagePixelReader(const NITFImagePixelReader&) = default;
    NITFImagePixelReader& operator=(const NITFImagePixelReader&) = default;

    /// Keeps the text for GetLastPixelError and answers the status.
    static Status Answer(Status aStatus, const char* aText = "");
};

}  // namespace ORMO::SensorModel::CSM
