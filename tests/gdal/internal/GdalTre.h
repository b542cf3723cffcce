#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ORMO::SensorModel::CSM::Tests {

/// Name and value of each field in the order of the data, turns of loops behind the name: LON_1_2.
using NamedValues = std::vector<std::pair<std::string, std::string>>;

/// What GDAL makes of a record that its own writer put into a file.
struct GdalReading
{
    NamedValues fields;
    std::string errors;  ///< what it complained about, each on a line
    bool found = false;  ///< whether it described the record at all
};

/// The tags in the description file that comes with GDAL; empty when there is no such file.
std::vector<std::string> TagsThatGdalDescribes();

/// Writes an image of one pixel with the record in its subheader and reads the record back.
GdalReading ReadThroughGdal(std::string_view aTag, std::string_view aData);

}  // namespace ORMO::SensorModel::CSM::Tests
