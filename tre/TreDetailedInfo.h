#pragma once

#include "../foundation/CSMCnst.h"
#include "../foundation/Export.h"
#include "../nitf/NITFCnst.h"

#include <cstdint>
#include <string>

namespace ORMO::SensorModel::CSM {

/// All that is known of one field of a typed TRE. A plain record; copies are independent of the TRE.
struct ORMO_CSM_API TreDetailedInfo
{
    std::string fieldName;
    std::uint32_t width = 0;  ///< bytes in this TRE
    NITFCnst::FieldType requirement = NITFCnst::FIELD_TYPE_UNKNOWN;
    Util::CSMCnst::DataType dataType = Util::CSMCnst::DATA_TYPE_UNKNOWN;
    std::string longName;
    std::string unit;         ///< empty when the field has none
    std::string values;       ///< allowed values: alternatives between "|"; empty when every value is allowed
    std::string description;  ///< the catalogue text of GetAllTREFieldDescriptions
};

}  // namespace ORMO::SensorModel::CSM
