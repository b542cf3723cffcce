#pragma once

#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

struct SmallFile
{
    const char* name;
    std::string bytes;
};

/// Ten good files of a few kilobytes that have every kind of segment and area between them.
const std::vector<SmallFile>& SmallFiles();

}  // namespace ORMO::SensorModel::CSM::Tests
