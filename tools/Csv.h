#pragma once

#include <string>

namespace OrmoNitf {

/// A text as a cell of CSV (RFC 4180): in quotes where it needs them.
std::string CsvCell(const std::string& aText);

}  // namespace OrmoNitf
