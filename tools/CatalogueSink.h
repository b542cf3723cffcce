#pragma once

#include "tools/CatalogueTables.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>

namespace OrmoNitf::Catalogue {

/// Where the records of a run go. What fails leaves its reason.
class Sink
{
public:
    Sink() = default;
    virtual ~Sink() = default;
    Sink(const Sink&) = delete;
    Sink& operator=(const Sink&) = delete;

    [[nodiscard]] virtual bool Write(const Json& aRecord, std::string& aReason) = 0;
    /// Ends the writing; what was written before stays, even without it.
    [[nodiscard]] virtual bool Finish(std::string& aReason) = 0;
};

/// A row of a table as CSV: `path` and the columns of the table, with a first line that names them.
std::unique_ptr<Sink> MakeCsvSink(std::FILE* aOut, const Table& aTable);
/// The records as they are, one a line.
std::unique_ptr<Sink> MakeLinesSink(std::FILE* aOut);
/// An item of STAC 1.0 for each image, one a line.
std::unique_ptr<Sink> MakeStacSink(std::FILE* aOut);

/// A GeoPackage that is made when there is none and continued when there is one. It always holds whole files, whenever
/// the process ends. One run at a time.
class GeoPackage : public Sink
{
public:
    /// What the catalogue says of a file.
    struct Known
    {
        std::int64_t id = 0;
        std::int64_t size = 0;
        std::int64_t modified = 0;
        bool isRead = true;  ///< no worker crashed or was ended over it
    };

    /// Null, with the reason, when it cannot be written, is in use, is no catalogue or one of a newer program.
    static std::unique_ptr<GeoPackage> Open(const std::string& aPath, std::string& aReason);

    /// By path.
    virtual const std::unordered_map<std::string, Known>& Files() const = 0;
    /// Takes a file out of the catalogue.
    [[nodiscard]] virtual bool Remove(const std::string& aPath, std::string& aReason) = 0;
};

}  // namespace OrmoNitf::Catalogue
