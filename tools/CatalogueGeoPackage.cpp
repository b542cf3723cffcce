#include "isd/ImageSupportDataFactory.h"
#include "raster/detail/GdalLibrary.h"
#include "raster/detail/TableDriver.h"
#include "tools/CatalogueSink.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <deque>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace OrmoNitf::Catalogue {

namespace {

/// Counts up when tables or columns change so that an older program must not write on.
constexpr long FORMAT = 1;

const OrmoTableDriver* Driver(std::string& aReason)
{
    const auto isRight = [](OrmoTableDriverFunction aFunction) {
        return aFunction()->version == ORMO_TABLE_DRIVER_VERSION;
    };
    const auto function = ORMO::SensorModel::CSM::Detail::FindInGdalLibrary<OrmoTableDriverFunction>(
        reinterpret_cast<const void*>(&ORMO::SensorModel::CSM::ImageSupportDataFactory::Destroy), ORMO_GDAL_LIBRARY,
        ORMO_TABLE_DRIVER_FUNCTION, isRight, aReason);
    if (function == nullptr) {
        aReason = "A GeoPackage needs the library that holds GDAL: " + aReason + "; -f ndjson, csv and stac do not";
        return nullptr;
    }
    return function();
}

/// A file beside the catalogue that one process at a time can hold.
class Lock
{
public:
    explicit Lock(const std::string& aPath) : m_path(aPath + ".lock") {}
    ~Lock()
    {
        if (m_descriptor >= 0) {
            ::unlink(m_path.c_str());
            ::close(m_descriptor);
        }
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    bool Take(std::string& aReason)
    {
        for (;;) {
            const int descriptor = ::open(m_path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
            if (descriptor < 0) {
                aReason = std::strerror(errno);
                return false;
            }
            if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
                aReason = errno == EWOULDBLOCK ? "Another run is writing this catalogue" : std::strerror(errno);
                ::close(descriptor);
                return false;
            }
            // Who held it before may have taken the file away meanwhile.
            struct stat held = {};
            struct stat named = {};
            if (::fstat(descriptor, &held) == 0 && ::stat(m_path.c_str(), &named) == 0 && held.st_ino == named.st_ino) {
                m_descriptor = descriptor;
                return true;
            }
            ::close(descriptor);
        }
    }

private:
    std::string m_path;
    int m_descriptor = -1;
};

class Writer final : public GeoPackage
{
public:
    Writer(const OrmoTableDriver& aDriver, const std::string& aPath) : m_driver(aDriver), m_path(aPath), m_lock(aPath)
    {
    }
    ~Writer() override
    {
        std::string ignored;
        Close(ignored);
    }

    bool Open(std::string& aReason)
    {
        struct stat status = {};
        if (!m_lock.Take(aReason)) {
            return false;
        }
        if (::stat(m_path.c_str(), &status) != 0 && !Make(aReason)) {
            return false;
        }
        m_file = m_driver.open(m_path.c_str(), 0, m_room.data(), m_room.size());
        if (m_file == nullptr) {
            aReason = m_room.data();
            return false;
        }
        return IsOfThisFormat(aReason) && ReadFiles(aReason);
    }

    const std::unordered_map<std::string, Known>& Files() const override { return m_known; }

    bool Write(const Json& aRecord, std::string& aReason) override
    {
        const std::string path = PathOf(aRecord);
        // Nothing is written before all of a record is understood.
        std::deque<Row> rows;
        for (const Table& table : Tables()) {
            if (&table == &Tables().front()) {
                Prepare(table, aRecord, rows);
                continue;
            }
            const auto members = aRecord.find(table.name);
            for (std::size_t i = 0; members != aRecord.end() && i != members->size(); ++i) {
                Prepare(table, members->at(i), rows);
            }
        }
        if (!Begin(aReason) || !Erase(path, aReason)) {
            return false;
        }
        std::int64_t id = 0;
        for (Row& row : rows) {
            const bool isOfFiles = &row == &rows.front();
            if (!isOfFiles) {
                row.values.push_back({0, ORMO_VALUE_INTEGER, id, 0.0, nullptr, 0});
            }
            if (!Did(m_driver.insert(m_file, row.table->name.c_str(), row.values.data(),
                                     static_cast<std::uint32_t>(row.values.size()),
                                     row.shape.empty() ? nullptr : row.shape.c_str(), isOfFiles ? &id : nullptr,
                                     m_room.data(), m_room.size()),
                     aReason)) {
                return false;
            }
        }
        m_known[path].id = id;
        return CommitSometimes(aReason);
    }

    bool Remove(const std::string& aPath, std::string& aReason) override
    {
        return Begin(aReason) && Erase(aPath, aReason) && CommitSometimes(aReason);
    }

    bool Finish(std::string& aReason) override { return Commit(aReason) && Close(aReason); }

private:
    using Clock = std::chrono::steady_clock;

    struct Row
    {
        const Table* table = nullptr;
        std::vector<OrmoTableValue> values;
        std::deque<std::string> texts;  ///< that the values point to
        std::string shape;
    };

    bool Did(int aDone, std::string& aReason)
    {
        if (aDone == 0) {
            aReason = m_room.data();
        }
        return aDone != 0;
    }

    bool Close(std::string& aReason)
    {
        void* const file = std::exchange(m_file, nullptr);
        return file == nullptr || Did(m_driver.close(file, m_room.data(), m_room.size()), aReason);
    }

    bool Run(const std::string& aSql, std::string& aReason, OrmoTableRow aRow = nullptr, void* aContext = nullptr)
    {
        return Did(m_driver.query(m_file, aSql.c_str(), aRow, aContext, m_room.data(), m_room.size()), aReason);
    }

    static OrmoValueType TypeOf(Type aType) noexcept
    {
        return aType == Type::Integer ? ORMO_VALUE_INTEGER
               : aType == Type::Real  ? ORMO_VALUE_REAL
               : aType == Type::Bytes ? ORMO_VALUE_BYTES
                                      : ORMO_VALUE_TEXT;
    }

    /// A new catalogue appears under its name when all tables stand in it.
    bool Make(std::string& aReason)
    {
        const std::string path = m_path + ".new.gpkg";
        ::unlink(path.c_str());
        ::unlink((path + "-journal").c_str());
        m_file = m_driver.open(path.c_str(), 1, m_room.data(), m_room.size());
        if (m_file == nullptr) {
            aReason = m_room.data();
            return false;
        }
        if (!AddTables(aReason) || !Close(aReason)) {
            ::unlink(path.c_str());
            return false;
        }
        if (std::rename(path.c_str(), m_path.c_str()) != 0) {
            aReason = std::strerror(errno);
            return false;
        }
        return true;
    }

    bool AddTables(std::string& aReason)
    {
        for (const Table& table : Tables()) {
            const bool isOfFiles = &table == &Tables().front();
            const char* shapes = nullptr;
            std::vector<OrmoTableColumn> columns;
            if (!isOfFiles) {
                columns.push_back({"file_id", ORMO_VALUE_INTEGER});
            }
            for (const Column& column : table.columns) {
                if (column.type == Type::Footprint) {
                    shapes = column.name.c_str();
                } else {
                    columns.push_back({column.name.c_str(), TypeOf(column.type)});
                }
            }
            if (!Did(m_driver.addTable(m_file, table.name.c_str(), shapes, columns.data(),
                                       static_cast<std::uint32_t>(columns.size()), m_room.data(), m_room.size()),
                     aReason) ||
                !(isOfFiles ||
                  Run("CREATE INDEX " + table.name + "_by_file ON " + table.name + " (file_id)", aReason))) {
                return false;
            }
        }
        return Run("CREATE UNIQUE INDEX files_by_path ON files (path, ifnull(path_bytes, ''))", aReason) &&
               Run("CREATE INDEX tres_by_tag ON tres (tag)", aReason) &&
               Run("CREATE TABLE catalogue (format INTEGER NOT NULL, program TEXT NOT NULL)", aReason) &&
               Run("INSERT INTO catalogue VALUES (" + std::to_string(FORMAT) + ", 'ormo-nitf " ORMO_VERSION "')",
                   aReason);
    }

    bool IsOfThisFormat(std::string& aReason)
    {
        std::string format;
        const auto take = [](void* aContext, const char* const* aTexts, std::uint32_t) {
            *static_cast<std::string*>(aContext) = aTexts[0] == nullptr ? "" : aTexts[0];
            return 0;
        };
        if (!Run("SELECT format FROM catalogue", aReason, take, &format) || format.empty()) {
            aReason = "The file is no catalogue of this program; nothing is written";
            return false;
        }
        const long number = std::strtol(format.c_str(), nullptr, 10);
        if (number != FORMAT) {
            aReason = "The catalogue has format " + format + ", this program writes format " + std::to_string(FORMAT) +
                      (number > FORMAT ? ": it was made by a newer version of ormo-nitf" : "");
            return false;
        }
        return true;
    }

    bool ReadFiles(std::string& aReason)
    {
        const auto take = [](void* aContext, const char* const* aTexts, std::uint32_t) {
            auto* const self = static_cast<Writer*>(aContext);
            const std::string path = aTexts[5] == nullptr ? aTexts[1] : FromHex(aTexts[5]);
            const std::string_view status = aTexts[4];
            self->m_known[path] = {NumberOf(aTexts[0]), NumberOf(aTexts[2]), NumberOf(aTexts[3]),
                                   status != Status::CRASHED && status != Status::TIMED_OUT};
            return 1;
        };
        // A column that is the key itself would be no column of the answer.
        return Run(
            "SELECT id + 0, path, size, modified_ns, status, CASE WHEN path_bytes IS NULL THEN NULL ELSE "
            "hex(path_bytes) END FROM files WHERE path IS NOT NULL AND status IS NOT NULL",
            aReason, take, this);
    }

    static std::int64_t NumberOf(const char* aText) { return aText == nullptr ? 0 : std::strtoll(aText, nullptr, 10); }

    static std::string FromHex(std::string_view aHex)
    {
        std::string bytes;
        for (std::size_t i = 0; i + 1 < aHex.size(); i += 2) {
            bytes += static_cast<char>(std::stoi(std::string(aHex.substr(i, 2)), nullptr, 16));
        }
        return bytes;
    }

    bool Begin(std::string& aReason)
    {
        if (m_isInTransaction) {
            return true;
        }
        m_isInTransaction = Did(m_driver.begin(m_file, m_room.data(), m_room.size()), aReason);
        m_began = Clock::now();
        return m_isInTransaction;
    }

    bool Commit(std::string& aReason)
    {
        return !std::exchange(m_isInTransaction, false) ||
               Did(m_driver.commit(m_file, m_room.data(), m_room.size()), aReason);
    }

    /// Often enough to lose little work, seldom enough not to wait for the disk.
    bool CommitSometimes(std::string& aReason)
    {
        return Clock::now() - m_began < std::chrono::seconds(1) || Commit(aReason);
    }

    bool Erase(const std::string& aPath, std::string& aReason)
    {
        const auto known = m_known.find(aPath);
        if (known == m_known.end()) {
            return true;
        }
        const std::string id = std::to_string(known->second.id);
        m_known.erase(known);
        for (const Table& table : Tables()) {
            const char* const key = &table == &Tables().front() ? "id" : "file_id";
            if (!Run("DELETE FROM " + table.name + " WHERE " + key + " = " + id, aReason)) {
                return false;
            }
        }
        return true;
    }

    static void Prepare(const Table& aTable, const Json& aMembers, std::deque<Row>& aRows)
    {
        Row& row = aRows.emplace_back();
        row.table = &aTable;
        std::uint32_t at = &aTable == &Tables().front() ? 0 : 1;
        for (const Column& column : aTable.columns) {
            const auto member = aMembers.find(column.name);
            const bool isNull = member == aMembers.end() || member->is_null();
            if (column.type == Type::Footprint) {
                row.shape = isNull ? "" : member->dump();
                continue;
            }
            OrmoTableValue value{at++, TypeOf(column.type), 0, 0.0, nullptr, 0};
            if (isNull) {
                continue;
            }
            if (column.type == Type::Integer) {
                value.integer = member->get<std::int64_t>();
            } else if (column.type == Type::Real) {
                value.real = member->get<double>();
            } else {
                const std::string& text =
                    row.texts.emplace_back(column.type == Type::Bytes ? BytesOf(*member) : member->get<std::string>());
                value.bytes = text.c_str();
                value.size = text.size();
            }
            row.values.push_back(value);
        }
    }

    const OrmoTableDriver& m_driver;
    std::string m_path;
    Lock m_lock;
    void* m_file = nullptr;
    std::array<char, 1024> m_room{};
    std::unordered_map<std::string, Known> m_known;
    bool m_isInTransaction = false;
    Clock::time_point m_began;
};

}  // namespace

std::unique_ptr<GeoPackage> GeoPackage::Open(const std::string& aPath, std::string& aReason)
{
    const OrmoTableDriver* const driver = Driver(aReason);
    if (driver == nullptr) {
        return nullptr;
    }
    auto writer = std::make_unique<Writer>(*driver, aPath);
    if (!writer->Open(aReason)) {
        return nullptr;
    }
    return writer;
}

}  // namespace OrmoNitf::Catalogue
