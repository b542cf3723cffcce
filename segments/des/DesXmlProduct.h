#pragma once

#include <string>

namespace ORMO::SensorModel::CSM {

/// What the XML document of a complex or derived radar product says of itself. Members that the document does not
/// state are empty.
struct DesXmlProduct
{
    std::string standard;   ///< "SICD" or "SIDD"
    std::string version;    ///< of the standard, such as "1.2.1"
    std::string collector;  ///< the sensor that collected the data
    std::string mode;       ///< radar mode, such as "SPOTLIGHT"
    std::string centre;     ///< scene centre: latitude, longitude in degrees and height in metres, as they are written
    std::string reference;  ///< reference point: earth-centred x, y and z in metres, as they are written
};

}  // namespace ORMO::SensorModel::CSM
