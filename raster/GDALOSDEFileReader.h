#pragma once

#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Tells OSDE files; never instantiated. The marks by which an OSDE file is known are not public, so no file is ever
/// recognised as one: hosts that need OSDE bring a companion library, which is asked first.
class ORMO_CSM_API GDALOSDEFileReader
{
public:
    /// False for every file, with the version -1.
    static bool IsOSDEFile(const char* aPath, int& aVersion) noexcept;

private:
    GDALOSDEFileReader();
};

}  // namespace ORMO::SensorModel::CSM
