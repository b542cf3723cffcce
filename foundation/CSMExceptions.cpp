#include "foundation/CSMExceptions.h"

#include "foundation/CSMMsg.h"

namespace ORMO::SensorModel::CSM {

/// Gives one exception class its fixed text. Defined here and not in the header, these operations also anchor the
/// type information of each class in the library.
#define ORMO_CSM_EXCEPTION_TEXT(aName, aText)  \
    const char* aName::GetErrorMessage() const \
    {                                          \
        return CSMMsg::Error::aText;           \
    }

ORMO_CSM_EXCEPTION_TEXT(DataSourceAccessException, DATA_SOURCE_ACCESS_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(FileAccessException, FILE_ACCESS_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(ImageSupportDataConstructionException, ORMO_ISD_CONSTRUCTION_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(InitializationException, INIT_ERROR)
ORMO_CSM_EXCEPTION_TEXT(InvalidImageSupportDataException, INVALID_ISD)
ORMO_CSM_EXCEPTION_TEXT(InvalidSensorModelStateException, INVALID_SENSOR_MODEL_STATE)
ORMO_CSM_EXCEPTION_TEXT(ObjectConstructionException, CSM_OBJECT_CONSTRUCTION_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(RequestedOperationFailedException, ISD_NOT_SUPPORTED)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedDESDATAException, UNSUPPORTED_DESDATA_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedDESSHFException, UNSUPPORTED_DESSHF_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedImageSupportDataException, ISD_NOT_SUPPORTED)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedRasterFormatException, UNSUPPORTED_RASTER_FORMAT)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedRasterFormatVersionException, UNSUPPORTED_RASTER_FORMAT_VERSION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedReferenceGeoidException, UNSUPPORTED_REFERENCE_GEOID_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedTerrainModelException, UNSUPPORTED_TERRAIN_MODEL_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedTREException, UNSUPPORTED_TRE_EXCEPTION)
ORMO_CSM_EXCEPTION_TEXT(UnsupportedTSMISDTypeException, UNSUPPORTED_TSM_ISD_TYPE)

#undef ORMO_CSM_EXCEPTION_TEXT

}  // namespace ORMO::SensorModel::CSM
