#pragma once

#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

class ImageSupportData;

/// Says that this library does not read OSDE; never instantiated. Only a companion library makes ISDs of OSDE files.
class ORMO_CSM_API ImageSupportDataOSDEFactory
{
public:
    /// False, with nothing in `*aOut` and the reason in GetErrorMessage, for every file.
    static bool Create(const char* aPath, ImageSupportData** aOut, bool aFlag2, int aVersion);

    /// Texts of this thread's last call of Create, null when there is nothing to say.
    static const char* GetErrorMessage() noexcept;
    static const char* GetWarningMessage() noexcept;

private:
    ImageSupportDataOSDEFactory();
};

}  // namespace ORMO::SensorModel::CSM
