#pragma once

#include "fields/ByteSource.h"
#include "nitf/NITFCnst.h"

#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM::Detail {

/// A file header of no more bytes is refused.
constexpr std::uint64_t MOST_BYTES_REFUSED = 39;

/// The bytes of a file header as they are to be read.
struct RawFileHeader
{
    std::string bytes;
    bool streaming = false;  ///< put together with the replacement of a STREAMING_FILE_HEADER DES
    std::string warnings;
    std::string hint;  ///< added when the header cannot be read: why its lengths are unknown
};

/// Finds HL and reads as many bytes. When FL says that the file was written as a stream (MIL-STD-2500C, 5.8.3.2), the
/// replacement header at the end of the file is checked and takes the place of the first bytes.
[[nodiscard]] bool ReadRawFileHeader(const ByteSource& aSource, NITFCnst::Version aVersion, RawFileHeader& aOut,
                                     std::string& aErrors);

}  // namespace ORMO::SensorModel::CSM::Detail
