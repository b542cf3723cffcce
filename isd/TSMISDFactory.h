#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"
#include "SupportedTSMISD.h"

namespace ORMO::SensorModel::CSM {

/// Makes, recognises and releases CSM API ISDs; never instantiated.
class ORMO_CSM_API TSMISDFactory
{
public:
    /// Makes an ISD of a kind for an image file. Only a filenameISD needs no more than a name: for the other kinds the
    /// arguments are checked and `*aTsmISD` stays as it was (ImageSupportDataNITF::SetTSMISD fills those).
    ///
    /// Throws std::invalid_argument for a null output, UnsupportedTSMISDTypeException for a number that is none of the
    /// kinds, FileAccessException for a path that leads to no file.
    static void CreateISD(const char* aPath, SupportedTSMISD::ISDType aType, tsm_ISD** aTsmISD);

    /// Whether the object is of one of the five classes, or of one derived from them. Never throws.
    static bool IsSupportedISD(const tsm_ISD& aTsmISD) noexcept;

    /// Destroys the ISD and nulls the pointer. Null is ignored.
    static void DeleteISD(tsm_ISD** aTsmISD) noexcept;

private:
    TSMISDFactory();
};

}  // namespace ORMO::SensorModel::CSM
