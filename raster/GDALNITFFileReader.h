#pragma once

#include "../foundation/Export.h"

#include <cstddef>
#include <string>

namespace ORMO::SensorModel::CSM {

/// Tells NITF and NSIF files by their first bytes; never instantiated. Needs no GDAL: only the reading of pixels does.
class ORMO_CSM_API GDALNITFFileReader
{
public:
    /// Whether the file begins as a version of NITF or NSIF that the system can name: `aVersion` is then its
    /// NITFCnst::Version (10, 11, 20 or 21), else -1. White space around the path does not count. Reads a few bytes of
    /// a regular file; anything else, pipes and directories included, is no NITF file and is never waited for.
    static bool IsNITFFile(const char* aPath, int& aVersion);

    /// The same for the first bytes of a file, of which nine decide.
    static bool IsNITFFile(const unsigned char* aHeaderBytes, std::size_t aLength, int& aVersion) noexcept;

    /// Why a file is none that IsNITFFile recognises: the system's reason, or the bytes that stand in place of FHDR.
    /// Never waits.
    static std::string WhyNotNITFFile(const char* aPath);

private:
    GDALNITFFileReader();
};

}  // namespace ORMO::SensorModel::CSM
