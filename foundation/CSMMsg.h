#pragma once

#include "Export.h"

namespace ORMO::SensorModel::CSM {

/// The fixed texts of the library, each spelled once; never instantiated.
/// A text that ends in "for", "field" or "=>" is a prefix: Util::CSMUtilGeneric::ConstructMessage appends to it what
/// it is about.
class ORMO_CSM_API CSMMsg
{
public:
    class Error
    {
    public:
        // The texts of the exception classes.
        static constexpr const char* CSM_OBJECT_CONSTRUCTION_EXCEPTION =
            "ERROR: Ormo CSM class object construction exception.";
        static constexpr const char* DATA_SOURCE_ACCESS_EXCEPTION =
            "ERROR: Error encountered while accessing the data source.";
        static constexpr const char* FILE_ACCESS_EXCEPTION =
            "ERROR: Input file doesn't exist, the system is unable/doesn't have sufficient privilege to access the "
            "file, or the file contains errors.";
        static constexpr const char* INIT_ERROR =
            "ERROR: Errors encountered while initializing an object or a system component.";
        static constexpr const char* INVALID_ISD =
            "ERROR: Input image support data object contains invalid information.";
        static constexpr const char* INVALID_SENSOR_MODEL_STATE =
            "ERROR: Input sensor model state string is empty or invalid for the requested sensor model.";
        static constexpr const char* ISD_NOT_SUPPORTED =
            "ERROR: Input image support data object is not supported by the requested sensor model.";
        static constexpr const char* ORMO_ISD_CONSTRUCTION_EXCEPTION =
            "ERROR: Failed to create required Ormo CSM image support data with the given input.";
        static constexpr const char* UNSUPPORTED_DESDATA_EXCEPTION =
            "ERROR: Requested specific DesDESDATA class not currently supported by the Ormo CSM system.";
        static constexpr const char* UNSUPPORTED_DESSHF_EXCEPTION =
            "ERROR: Requested specific DesDESSHF class not currently supported by the Ormo CSM system.";
        static constexpr const char* UNSUPPORTED_RASTER_FORMAT =
            "ERROR: Input raster format is not supported by the CSM system.";
        static constexpr const char* UNSUPPORTED_RASTER_FORMAT_VERSION =
            "ERROR: The specific version of the input raster format is not supported by the CSM system.";
        static constexpr const char* UNSUPPORTED_REFERENCE_GEOID_EXCEPTION = "ERROR: Unsupported reference geoid.";
        static constexpr const char* UNSUPPORTED_TERRAIN_MODEL_EXCEPTION = "ERROR: Unsupported input terrain model.";
        static constexpr const char* UNSUPPORTED_TRE_EXCEPTION =
            "ERROR: Requested specific TRE not currently supported by the Ormo CSM system.";
        // "sypported" is how hosts know this text.
        static constexpr const char* UNSUPPORTED_TSM_ISD_TYPE =
            "ERROR: Requested TSM ISD type is not sypported by the system.";

        // Texts that callers give as additional messages, and prefixes.
        static constexpr const char* FIELD_VALUE_OUT_OF_VALID_RANGE = "ERROR: Field value out of valid range for";
        static constexpr const char* INDEX_OUT_OF_BOUND = "ERROR: Index out of bound.";
        static constexpr const char* INVALID_CONDITIONALLY_REQUIRED_FIELD_VALUE =
            "ERROR: The value of conditionally required field is invalid for";
        static constexpr const char* INVALID_INPUT_ARGUMENT = "ERROR: One or more input arguments are invalid.";
        static constexpr const char* INVALID_REQUIRED_FIELD_VALUE = "ERROR: The value of required field is invalid for";
        static constexpr const char* INVALID_SENSOR_MODEL_NAME =
            "ERROR: Input sensor model name is NULL, an empty string, or doesn't follow the required CSM naming "
            "convention.";
        static constexpr const char* MISSING_CON_REQ_FIELD_OR_INVALID_VALUE =
            "ERROR: Conditionally required field is missing or its value is invalid/out-of-range =>";
        static constexpr const char* MISSING_CONDITIONALLY_REQUIRED_FIELD =
            "ERROR: Missing conditionally required field";
        static constexpr const char* MISSING_REQUIRED_FIELD = "ERROR: Missing required field";
        static constexpr const char* MISSING_REQ_FIELD_OR_INVALID_VALUE =
            "ERROR: Required field is missing or its value is invalid/out-of-range =>";
        static constexpr const char* REQUESTED_OPERATION_FAILED = "ERROR: Unable to complete the requested operation.";
        static constexpr const char* UNKNOWN_ERROR = "ERROR: Unknown system error encountered!";
        static constexpr const char* UNSUPPORTED_SENSOR_MODEL =
            "ERROR: Requested sensor model is not supported by this CSM plugin.";

    private:
        Error();
    };

    class Warn
    {
    public:
        static constexpr const char* DATA_NOT_STANDARDS_COMPLIANT = "WARN: Data not standards compliant.";
        static constexpr const char* FIELD_VALUE_OUT_OF_VALID_RANGE = "WARN: Field value out of valid range for";
        static constexpr const char* MISSING_FIELD = "WARN: Missing field";

    private:
        Warn();
    };

private:
    CSMMsg();
};

}  // namespace ORMO::SensorModel::CSM
