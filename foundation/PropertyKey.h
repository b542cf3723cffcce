#pragma once

#include "Export.h"

namespace ORMO::SensorModel::CSM {

/// Keys under which hosts ask for image metadata; never instantiated. The keys of the classified-system properties
/// file are Util::CSMCnst::PropertyKey.
class ORMO_CSM_API PropertyKey
{
public:
    static constexpr const char* ACQUISITION_DATE = "acquisition.date";
    static constexpr const char* ANGLE_TO_NORTH = "angle.to.north";
    static constexpr const char* CIRCULAR_ERROR = "circular.error";
    static constexpr const char* CSMXFORM_SYS_PROPERTIES = "csmxform.sys.properties";
    static constexpr const char* DESIRED_SENSOR_MODELS = "desired.sensor.models";
    static constexpr const char* GEODATA_XFORM = "geodata.xform";
    static constexpr const char* IMAGE_ACCESS_TARGET_PROFILE = "image.access.target.profile";
    static constexpr const char* IMAGE_CATEGORY = "image.category";
    static constexpr const char* IMAGE_FILE_NAME = "image.file.name";
    static constexpr const char* IMAGE_IDENTIFIER = "image.identifier";
    static constexpr const char* IMAGE_REFERENCE_DATETIME = "image.reference.datetime";
    static constexpr const char* IMAGE_REPRESENTATION = "image.representation";
    static constexpr const char* ITERATIVE_PRECISION = "iterative.precision";
    static constexpr const char* LINEAR_ERROR = "linear.error";
    static constexpr const char* METADATA_SUMMARY = "metadata.summary";
    static constexpr const char* NITF_CLASSIFICATION = "nitf.classification";
    static constexpr const char* NITF_FILE_METADATA = "nitf.file.metadata";
    static constexpr const char* NITF_VERSION = "nitf.version";
    static constexpr const char* ONAME = "originator.name";
    static constexpr const char* OPHONE = "originator.phone.number";
    static constexpr const char* OSTAID = "originating.station.id";
    static constexpr const char* PERCENT_CLOUD_COVER = "percent.cloud.cover";
    static constexpr const char* PLATFORM_IDENTIFICATION = "platform.identification";
    static constexpr const char* POINTING_ERR_COVARIANCE = "pointing.error.covariance";
    static constexpr const char* PRODUCT_ID = "product.id";
    static constexpr const char* SECONDARY_TARGETING_INFO = "secondary.targeting.info";
    static constexpr const char* SENSOR = "sensor";
    static constexpr const char* SENSOR_CATEGORY = "sensor.category";
    static constexpr const char* SENSOR_ID = "sensor.id";
    static constexpr const char* SENSOR_MODE = "sensor.mode";
    static constexpr const char* SENSOR_MODEL_CATEGORY = "sensor.model.category";
    static constexpr const char* SENSOR_MODEL_METADATA_1 = "sensor.model.metadata.1";
    static constexpr const char* SENSOR_MODEL_METADATA_2 = "sensor.model.metadata.2";
    static constexpr const char* SENSOR_MODEL_NAME = "sensor.model.name";
    static constexpr const char* SENSOR_MODEL_PARAMETERS = "sensor.model.parameters";
    static constexpr const char* SENSOR_MODEL_PEDIGREE = "sensor.model.pedigree";
    static constexpr const char* SENSOR_MODEL_STATE = "sensor.model.state";
    static constexpr const char* SENSOR_NAME = "sensor.name";
    static constexpr const char* SENSOR_PLATFORM_TRAJECTORY_ID = "sensor.platform.trajectory.id";
    static constexpr const char* SENSOR_TYPE = "sensor.type";
    static constexpr const char* SUN_AZIMUTH_ANGLE = "sun.azimuth.angle";
    static constexpr const char* SUN_ELEVATION_ANGLE = "sun.elevation.angle";
    static constexpr const char* TERRAIN_MODEL = "terrain.model";
    static constexpr const char* TERRAIN_MODEL_DATA_SOURCE = "terrain.model.data.source";
    static constexpr const char* TERRAIN_MODEL_NAME = "terrain.model.name";
    static constexpr const char* TERRAIN_MODEL_TYPE = "terrain.model.type";

private:
    PropertyKey();
};

}  // namespace ORMO::SensorModel::CSM
