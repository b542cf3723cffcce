#include "tests/support/SourceDir.h"

namespace ORMO::SensorModel::CSM::Tests {

std::string SourceDir()
{
    return ORMO_SOURCE_DIR;
}

}  // namespace ORMO::SensorModel::CSM::Tests
