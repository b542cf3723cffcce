#include "tools/CatalogueFootprint.h"
#include "tools/CatalogueSink.h"
#include "tools/Csv.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace OrmoNitf::Catalogue {

namespace {

bool WriteLine(std::string& aLine, std::FILE* aOut, std::string& aReason)
{
    aLine += '\n';
    if (std::fwrite(aLine.data(), 1, aLine.size(), aOut) != aLine.size()) {
        aReason = std::strerror(errno);
        return false;
    }
    return true;
}

class Lines : public Sink
{
public:
    explicit Lines(std::FILE* aOut) : m_out(aOut) {}

    bool Write(const Json& aRecord, std::string& aReason) override
    {
        std::string line = aRecord.dump();
        return WriteLine(line, m_out, aReason);
    }
    bool Finish(std::string& /*aReason*/) override { return true; }

private:
    std::FILE* m_out;
};

class Csv : public Sink
{
public:
    Csv(std::FILE* aOut, const Table& aTable) : m_out(aOut), m_table(aTable), m_isOfFiles(&aTable == &Tables().front())
    {
    }

    bool Write(const Json& aRecord, std::string& aReason) override
    {
        if (!WriteTitle(aReason)) {
            return false;
        }
        if (m_isOfFiles) {
            return WriteRow(aRecord, {}, aReason);
        }
        const std::string path = CsvCell(aRecord.at("path").get_ref<const std::string&>()) + ',';
        const auto rows = aRecord.find(m_table.name);
        for (std::size_t i = 0; rows != aRecord.end() && i != rows->size(); ++i) {
            if (!WriteRow((*rows)[i], path, aReason)) {
                return false;
            }
        }
        return true;
    }
    bool Finish(std::string& aReason) override { return WriteTitle(aReason); }

private:
    bool WriteTitle(std::string& aReason)
    {
        if (m_hasTitle) {
            return true;
        }
        std::string line = m_isOfFiles ? "" : "path,";
        for (const Column& column : m_table.columns) {
            line += (&column == &m_table.columns.front() ? "" : ",") + column.name;
        }
        m_hasTitle = true;
        return WriteLine(line, m_out, aReason);
    }

    bool WriteRow(const Json& aRow, std::string aLine, std::string& aReason)
    {
        for (const Column& column : m_table.columns) {
            const auto value = aRow.find(column.name);
            aLine += &column == &m_table.columns.front() ? "" : ",";
            if (value == aRow.end() || value->is_null()) {
                continue;
            }
            aLine += column.type == Type::Footprint ? CsvCell(WellKnownText(*value))
                     : column.type == Type::Bytes   ? value->at("base64").get<std::string>()
                     : value->is_string()           ? CsvCell(value->get_ref<const std::string&>())
                                                    : value->dump();
        }
        return WriteLine(aLine, m_out, aReason);
    }

    std::FILE* m_out;
    const Table& m_table;
    bool m_isOfFiles;
    bool m_hasTitle = false;
};

}  // namespace

std::unique_ptr<Sink> MakeCsvSink(std::FILE* aOut, const Table& aTable)
{
    return std::make_unique<Csv>(aOut, aTable);
}

std::unique_ptr<Sink> MakeLinesSink(std::FILE* aOut)
{
    return std::make_unique<Lines>(aOut);
}

}  // namespace OrmoNitf::Catalogue
