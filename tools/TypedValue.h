#pragma once

#include "segments/NITFFieldValue.h"
#include "tools/JsonWriter.h"

#include <string>
#include <string_view>

namespace OrmoNitf {

/// The text without the blanks around it.
std::string_view TrimmedBlanks(std::string_view aText) noexcept;

/// The same as text in UTF-8 of one line; control bytes are spelled out.
std::string ValueText(std::string_view aLatin1);

/// Writes the value of a field for its meaning: a number where the field is one, dates as ISO 8601 has them, text
/// without the blanks around it, null for blanks, {"base64": "..."} for other bytes.
void WriteTyped(const ORMO::SensorModel::CSM::NITFFieldValue& aValue, JsonWriter& aOut);

}  // namespace OrmoNitf
