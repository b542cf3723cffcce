#pragma once

#include <string>
#include <string_view>

namespace ORMO::SensorModel::CSM::Detail {

/// True when XML 1.0 can carry every byte, bytes above 127 read as Latin-1.
[[nodiscard]] bool IsXmlText(std::string_view aBytes) noexcept;

/// Appends the bytes as UTF-8 element content or attribute value: an XML parser gives the same bytes back (as Latin-1
/// code points). The bytes must be XML text.
void AppendXmlText(std::string_view aBytes, std::string& aOut);

/// Appends a blank, the name, "=" and the escaped value in double quotes. Bytes that XML cannot carry become '?'.
void AppendXmlAttribute(std::string_view aName, std::string_view aValue, std::string& aOut);

/// Closes an open start tag and appends the value and the end tag with a line feed. A value that XML cannot carry is
/// written in base64, and the start tag gets one more attribute that says so.
void AppendXmlValueAndEnd(std::string_view aElement, std::string_view aValue, std::string& aOut);

}  // namespace ORMO::SensorModel::CSM::Detail
