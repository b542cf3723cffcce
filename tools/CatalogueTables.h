#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

namespace OrmoNitf::Catalogue {

using Json = nlohmann::ordered_json;

enum class Type
{
    Integer,
    Real,
    Text,
    Bytes,     ///< in a record {"base64": "..."}
    Footprint  ///< in a record a geometry of GeoJSON
};

struct Column
{
    std::string name;
    Type type = Type::Text;
    std::string meaning;
};

struct Table
{
    std::string name;
    std::string meaning;
    std::vector<Column> columns;
};

/// The tables of a catalogue: files, and those whose rows belong to a file. A record is the row of the table of files
/// as one object, with the rows of each other table in a member of the table's name.
const std::vector<Table>& Tables();
/// The same as a page in Markdown.
std::string TablesPage();

/// What became of a file, in its column `status`.
namespace Status {
inline constexpr const char* READ = "read";
inline constexpr const char* SALVAGED = "salvaged";
inline constexpr const char* REFUSED = "refused";
inline constexpr const char* CRASHED = "crashed";
inline constexpr const char* TIMED_OUT = "timed out";
// These two stand in records only.
inline constexpr const char* NO_NITF = "no NITF";
inline constexpr const char* MISSING = "missing";
}  // namespace Status

/// A file as the file system shows it.
struct Source
{
    std::string path;
    std::int64_t size = 0;
    std::int64_t modified = 0;  ///< nanoseconds since 1970

    /// False, with errno set, when there is no such file.
    [[nodiscard]] bool Look();
};

struct Request
{
    bool salvage = false;
    bool previews = false;
};

/// Reads a file and tells all that a catalogue keeps of it. Raises nothing that a file could cause.
Json RecordOf(const std::string& aPath, const Request& aRequest);
/// The record of a file that was not read.
Json RecordOf(const Source& aSource, const char* aStatus, const std::string& aError);

/// The bytes of a path that a record tells.
std::string PathOf(const Json& aRecord);
/// The bytes of a value {"base64": "..."}.
std::string BytesOf(const Json& aValue);

}  // namespace OrmoNitf::Catalogue
