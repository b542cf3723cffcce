#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Names the kinds of CSM API ISDs that the library knows; never instantiated.
class ORMO_CSM_API SupportedTSMISD
{
public:
    /// Has a fixed type, so that a caller's number may be cast to it without harm.
    enum ISDType : int
    {
        ISD_TYPE_BYTE_STREAM = 0,  ///< bytestreamISD
        ISD_TYPE_FILE_NAME = 1,    ///< filenameISD
        ISD_TYPE_NITF20 = 2,       ///< NITF_2_0_ISD
        ISD_TYPE_NITF21 = 3,       ///< NITF_2_1_ISD
        ISD_TYPE_ORMO = 4          ///< OrmoTSMISD
    };

    /// The format texts that the classes of the CSM API carry.
    static constexpr const char* ISD_BYTE_STREAM_FORMAT_STR = Util::CSMCnst::CSM_ISD_FORMAT_BYTESTREAM;
    static constexpr const char* ISD_FILE_NAME_FORMAT_STR = Util::CSMCnst::CSM_ISD_FORMAT_FILENAME;
    static constexpr const char* ISD_NITF20_FORMAT_STR = Util::CSMCnst::CSM_ISD_FORMAT_NITF20;
    static constexpr const char* ISD_NITF21_FORMAT_STR = Util::CSMCnst::CSM_ISD_FORMAT_NITF21;

    /// True for the five kinds above and for no other number.
    static bool IsSupportedTSMISDType(ISDType aType) noexcept;

private:
    SupportedTSMISD();
};

}  // namespace ORMO::SensorModel::CSM
