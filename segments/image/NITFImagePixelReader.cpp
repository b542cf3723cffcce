#include "segments/image/NITFImagePixelReader.h"

#include <string>

namespace ORMO::SensorModel::CSM {

namespace {

std::string& LastError()
{
    thread_local std::string text;
    return text;
}

}  // namespace

NITFImagePixelReader::~NITFImagePixelReader() = default;

const char* NITFImagePixelReader::GetStatusName(Status aStatus) noexcept
{
    constexpr const char* NAMES[] = {"STATUS_OK",
                                     "STATUS_NO_BUFFER",
                                     "STATUS_BUFFER_TOO_SMALL",
                                     "STATUS_OUT_OF_RANGE",
                                     "STATUS_NO_FILE",
                                     "STATUS_INVALID_LAYOUT",
                                     "STATUS_UNSUPPORTED_PIXELS",
                                     "STATUS_INVALID_MASK",
                                     "STATUS_DATA_SHORT",
                                     "STATUS_READ_FAILED",
                                     "STATUS_NO_DECODER",
                                     "STATUS_UNSUPPORTED_COMPRESSION",
                                     "STATUS_DECODING_FAILED",
                                     "STATUS_OUT_OF_MEMORY"};
    static_assert(std::size(NAMES) == STATUS_OUT_OF_MEMORY + 1);
    return aStatus >= STATUS_OK && aStatus <= STATUS_OUT_OF_MEMORY ? NAMES[aStatus] : "UNKNOWN";
}

const char* NITFImagePixelReader::GetLastPixelError() noexcept
{
    return LastError().c_str();
}

NITFImagePixelReader::Status NITFImagePixelReader::Answer(Status aStatus, const char* aText)
{
    LastError() = aText;
    return aStatus;
}

}  // namespace ORMO::SensorModel::CSM
