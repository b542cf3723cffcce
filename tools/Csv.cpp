#include "tools/Csv.h"

namespace OrmoNitf {

std::string CsvCell(const std::string& aText)
{
    if (aText.find_first_of(",\"\r\n") == std::string::npos) {
        return aText;
    }
    std::string quoted = "\"";
    for (const char character : aText) {
        quoted += character == '"' ? "\"\"" : std::string(1, character);
    }
    return quoted + '"';
}

}  // namespace OrmoNitf
