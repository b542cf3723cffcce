#pragma once

#include "Export.h"

namespace ORMO::SensorModel::CSM::Util {

/// Constants and enumerations that every part of the library shares; never instantiated.
class ORMO_CSM_API CSMCnst
{
public:
    /// Classification level of the installation. The values are those that companion libraries are called with.
    enum ClassType
    {
        CLASS_TYPE_SECRET = 0,        ///< SECRET-level companion libraries are present.
        CLASS_TYPE_SCI = 1,           ///< The SCI-level companion library is present.
        CLASS_TYPE_UNCLASSIFIED = 2,  ///< No companion library is present.
    };

    enum ByteOrder
    {
        BYTE_ORDER_UNKNOWN = -1,
        BYTE_ORDER_LITTLE_ENDIAN = 0,
        BYTE_ORDER_BIG_ENDIAN = 1
    };

    /// How the value of a header or TRE field is to be understood.
    enum DataType
    {
        DATA_TYPE_UNKNOWN = -1,
        DATA_TYPE_TEXT = 0,
        DATA_TYPE_INT32,
        DATA_TYPE_UINT32,
        DATA_TYPE_INT64,
        DATA_TYPE_UINT64,
        DATA_TYPE_DOUBLE,
        DATA_TYPE_BOOL,
        DATA_TYPE_BINARY,
        DATA_TYPE_BINARY_COLOR,           ///< Three bytes: red, green, blue.
        DATA_TYPE_EXTENSION_DATA,         ///< A whole area of TREs.
        DATA_TYPE_FILE_PROFILE,           ///< The profile name of a file header.
        DATA_TYPE_CLASSIFICATION_REASON,  ///< A one-letter classification reason code.
        DATA_TYPE_DATE,
    };

    /// The WGS 84 ellipsoid, in metres.
    class Geodesy
    {
    public:
        static constexpr double WGS84_SEMIMAJOR_AXIS = 6378137.0;
        static constexpr double WGS84_SEMIMINOR_AXIS = 6356752.314245179;

    private:
        Geodesy();
    };

    /// Keys of the classified-system properties file, for CSMSysProperties::GetProperty.
    class PropertyKey
    {
    public:
        static constexpr const char* TALVIK_CLASSIFIED_SYS_CONFIG_DIR = "ormo:talvik.classified.sys.config.dir";
        /// A file name, not a key: the properties file inside the configuration directory.
        static constexpr const char* TALVIK_CLASSIFIED_SYS_PROPERTIES_FILE = "classified.talvik.properties";
        static constexpr const char* TALVIK_CSMXOFRM_APPROX = "ormo:talvik.csmxform.approx.ok";
        static constexpr const char* TALVIK_ENABLE_CSMXFORM = "ormo:talvik.enable.csmxform";
        static constexpr const char* TALVIK_ENSURE_EXT_INTERSECTS_TERRAIN = "ormo:talvik.ext.intersects.terrain";
        static constexpr const char* TALVIK_G_ISD_DLL = "ormo:talvik.g.isd";
        static constexpr const char* TALVIK_G_MSP_TOOLKIT = "ormo:talvik.g.msp.toolkit";
        static constexpr const char* TALVIK_G_SENSOR_MODELS_SYS_DLL = "ormo:talvik.g.sensor.models.system";
        static constexpr const char* TALVIK_LOG_DIR = "ormo:talvik.log.dir";
        static constexpr const char* TALVIK_PATH_DTED0 = "ormo:talvik.path.dted0";
        static constexpr const char* TALVIK_PATH_DTED1 = "ormo:talvik.path.dted1";
        static constexpr const char* TALVIK_PATH_DTED2 = "ormo:talvik.path.dted2";
        static constexpr const char* TALVIK_PATH_SRTM1 = "ormo:talvik.path.srtm1";
        static constexpr const char* TALVIK_PATH_SRTM2 = "ormo:talvik.path.srtm2";
        static constexpr const char* TALVIK_R_SENSOR_SYS_DLL = "ormo:talvik.r.sensor.system";
        static constexpr const char* CONST_HT_DEFAULT_TERRAIN_MODEL = "ormo:cnst.height.default.terrain.model";
        /// The environment variable that names the configuration directory.
        static constexpr const char* ENV_TALVIK_CLASSIFIED_SYS_CONFIG_DIR = "TALVIK_CLASSIFIED_SYS_CONFIG_DIR";

    private:
        PropertyKey();
    };

    static constexpr const char* CLASS_U = "U";
    static constexpr const char* CLASS_UNCLASSIFIED = "UNCLASSIFIED";
    static constexpr const char* CLASS_UNKNOWN = "UNKNOWN";

    static constexpr const char* STR_UPPER_ERROR = "ERROR";
    static constexpr const char* STR_UPPER_WARN = "WARN";
    static constexpr const char* STR_UPPER_UNKNOWN = "UNKNOWN";

    /// Format texts of the CSM API's own ISD classes.
    static constexpr const char* CSM_ISD_FORMAT_BYTESTREAM = "BYTESTREAM";
    static constexpr const char* CSM_ISD_FORMAT_FILENAME = "FILENAME";
    static constexpr const char* CSM_ISD_FORMAT_NITF20 = "NITF2.0";
    static constexpr const char* CSM_ISD_FORMAT_NITF21 = "NITF2.1";
    static constexpr const char* CSM_ISD_FORMAT_UNKNOWN = "UNKNOWN";

    /// Companion libraries that are looked for when the properties name no other: SECRET-level ISD, mensuration
    /// and sensor-model library, SCI-level ISD library.
    static constexpr const char* SPECIAL_GOLD_DLL_ISD_DEFAULT_NM = "SECRET_ImageSupportDataLib.dll";
    static constexpr const char* SPECIAL_GOLD_DLL_MS_DEFAULT_NM = "SECRET_MensurationLib.dll";
    static constexpr const char* SPECIAL_GOLD_DLL_SS_DEFAULT_NM = "SECRET_SensorModelsLib.dll";
    static constexpr const char* SPECIAL_RED_DLL_ISD_DEFAULT_NM = "SCI_ImageSupportDataLib.dll";

    /// First line of every XML document that the library writes.
    static constexpr const char* XML_VERSION_STR = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>";

private:
    CSMCnst();
};

}  // namespace ORMO::SensorModel::CSM::Util
