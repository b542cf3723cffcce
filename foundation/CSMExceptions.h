#pragma once

#include "CSMException.h"

namespace ORMO::SensorModel::CSM {

/// Declares one exception class. The classes differ in nothing but their name and their fixed text, which
/// CSMExceptions.cpp gives; copying is inherited from the root.
#define ORMO_CSM_EXCEPTION(aName)                                               \
    class ORMO_CSM_API aName : public CSMException                              \
    {                                                                           \
    public:                                                                     \
        aName() noexcept = default;                                             \
        explicit aName(const char* aSource) noexcept : CSMException(aSource) {} \
        aName(const char* aAdditionalMessage, const char* aSource) noexcept     \
            : CSMException(aAdditionalMessage, aSource)                         \
        {                                                                       \
        }                                                                       \
        const char* GetErrorMessage() const override;                           \
    }

/// For callers: a data source cannot be accessed.
ORMO_CSM_EXCEPTION(DataSourceAccessException);
/// An input file name is null or names no readable file.
ORMO_CSM_EXCEPTION(FileAccessException);
/// An ISD, file header or subheader cannot be created from the given input.
ORMO_CSM_EXCEPTION(ImageSupportDataConstructionException);
/// A field, TRE, segment or subheader cannot be initialised from the input.
ORMO_CSM_EXCEPTION(InitializationException);
/// The plug-in finds that an ISD is none that it supports.
ORMO_CSM_EXCEPTION(InvalidImageSupportDataException);
/// For callers: a sensor-model state is empty or invalid.
ORMO_CSM_EXCEPTION(InvalidSensorModelStateException);
/// A factory cannot construct a requested object.
ORMO_CSM_EXCEPTION(ObjectConstructionException);
/// A copy of a parsed object fails or a query cannot be answered. Its fixed text is that of
/// UnsupportedImageSupportDataException: the additional message and the source tell what happened.
ORMO_CSM_EXCEPTION(RequestedOperationFailedException);
/// For callers: no class interprets the data of this DES.
ORMO_CSM_EXCEPTION(UnsupportedDESDATAException);
/// For callers: no class interprets the user-defined subheader of this DES.
ORMO_CSM_EXCEPTION(UnsupportedDESSHFException);
/// The ISD factory is given a CSM API ISD that it cannot use.
ORMO_CSM_EXCEPTION(UnsupportedImageSupportDataException);
/// For callers: a raster format is not supported.
ORMO_CSM_EXCEPTION(UnsupportedRasterFormatException);
/// For callers: a version of a raster format is not supported.
ORMO_CSM_EXCEPTION(UnsupportedRasterFormatVersionException);
/// A transform parameter names an unknown geoid.
ORMO_CSM_EXCEPTION(UnsupportedReferenceGeoidException);
/// For callers: a terrain model is not supported.
ORMO_CSM_EXCEPTION(UnsupportedTerrainModelException);
/// The TRE factory is asked for an unknown tag.
ORMO_CSM_EXCEPTION(UnsupportedTREException);
/// A CSM API ISD is asked for of a kind that cannot be made.
ORMO_CSM_EXCEPTION(UnsupportedTSMISDTypeException);

#undef ORMO_CSM_EXCEPTION

}  // namespace ORMO::SensorModel::CSM
