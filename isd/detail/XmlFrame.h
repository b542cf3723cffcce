#pragma once

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// Appends the declaration and the start tag of a document over five lines. The schema is the end of its URL.
void OpenDocument(std::string& aXml, std::string_view aRoot, std::string_view aSchema, std::string_view aVersion);
void CloseDocument(std::string& aXml, std::string_view aRoot);

}  // namespace ORMO::SensorModel::CSM::Detail
