#pragma once

#include <string>

namespace ORMO::SensorModel::CSM::Tests {

/// The project's folder, where the tests read documents and tables of their own.
std::string SourceDir();

}  // namespace ORMO::SensorModel::CSM::Tests
