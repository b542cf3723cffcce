// The command that makes and continues a catalogue of an archive.

#include "segments/NITFWords.h"
#include "tools/CatalogueFiles.h"
#include "tools/CatalogueSink.h"
#include "tools/CatalogueWorkers.h"
#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Output.h"
#include "tools/Progress.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <unordered_set>
#include <utility>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using ORMO::SensorModel::CSM::NITFWords;

namespace Catalogue {

namespace {

struct Options
{
    FileOptions files;
    WorkerOptions workers;
    unsigned timeLimit = 60;
    std::string out;
    std::string format = "gpkg";
    std::string table = "files";
    std::string records;
    bool nulls = false;
    bool prune = false;
    bool retry = false;
    bool list = false;
    bool columns = false;
    bool isWorker = false;

    bool IsGeoPackage() const noexcept { return format == "gpkg"; }
};

/// One run: from what is found to what is written, and what became of each file.
class Run
{
public:
    Run(const Options& aOptions, Sink& aSink, GeoPackage* aCatalogue)
        : m_options(aOptions), m_sink(aSink), m_catalogue(aCatalogue)
    {
    }

    bool Do(std::string& aReason)
    {
        const bool good = m_options.records.empty() ? ReadFiles(aReason) : TakeRecords(aReason);
        m_total.Erase();
        return good && m_sink.Finish(aReason);
    }

    int ExitCode() const
    {
        return !m_isComplete                                                                ? EXIT_WRONG_USE
               : Count(Status::REFUSED) + Count(Status::CRASHED) + Count(Status::TIMED_OUT) ? EXIT_FILE_HAS_ERRORS
                                                                                            : EXIT_DONE;
    }

    void PrintTotal() const
    {
        const auto seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - m_start).count();
        std::string line = "ormo-nitf: " + NITFWords::Count(m_seen, "file");
        const char* join = ": ";
        for (const auto& [word, count] : m_counts) {
            line += join + std::to_string(count) + ' ' + word;
            join = ", ";
        }
        std::array<char, 64> rate{};
        std::snprintf(rate.data(), rate.size(), "; %.1f s, %.0f files a second", seconds,
                      static_cast<double>(m_read) / std::max(seconds, 0.001));
        std::cerr << line << (m_read == 0 ? "" : rate.data()) << '\n';
        if (m_gone != 0 && !m_options.prune) {
            std::cerr << "ormo-nitf: " << NITFWords::Count(m_gone, "file")
                      << " of the catalogue no longer there: --prune takes them out\n";
        }
    }

private:
    bool ReadFiles(std::string& aReason)
    {
        Candidates found = FindCandidates(m_options.files, m_options.nulls);
        m_isComplete = found.isComplete;
        LeaveOutTheCatalogue(found.files);
        m_seen = found.files.size();
        if (m_catalogue != nullptr && !Prune(found, aReason)) {
            return false;
        }
        std::vector<Candidate> left;
        std::copy_if(found.files.begin(), found.files.end(), std::back_inserter(left),
                     [this](const Candidate& aFile) { return !IsKnown(aFile); });
        if (left.size() != found.files.size()) {
            m_counts["unchanged"] = found.files.size() - left.size();
        }
        if (m_options.list) {
            for (const Candidate& file : left) {
                std::cout << file.path << '\0';
            }
            return true;
        }
        m_total = Progress(left.size());
        bool isWritten = true;
        const TakeRecord take = [&](std::size_t aFile, const Json& aRecord) {
            isWritten = Take(left[aFile], aRecord, aReason);
            m_total.Show(++m_read);
            return isWritten;
        };
        return left.empty() || (ReadInWorkers(left, m_options.workers, take, aReason) && isWritten);
    }

    bool IsKnown(const Candidate& aFile) const
    {
        if (m_catalogue == nullptr) {
            return false;
        }
        const auto known = m_catalogue->Files().find(aFile.path);
        return known != m_catalogue->Files().end() && known->second.size == aFile.size &&
               known->second.modified == aFile.modified && (known->second.isRead || !m_options.retry);
    }

    bool Take(const Candidate& aFile, const Json& aRecord, std::string& aReason)
    {
        std::string status = aRecord.at("status");
        const bool isNone = status == Status::NO_NITF;
        if (aFile.isNamed && m_options.format == "ndjson") {
            // Who names files wants a line for each.
            ++m_counts[status];
            return m_sink.Write(aRecord, aReason);
        }
        if (isNone && aFile.isNamed) {
            Json refused = aRecord;
            refused["status"] = status = Status::REFUSED;
            refused["error_count"] = 1;
            ++m_counts[status];
            return m_sink.Write(refused, aReason);
        }
        ++m_counts[status];
        if (isNone || status == Status::MISSING) {
            // What the catalogue said of it before is no longer true.
            return m_catalogue == nullptr || m_catalogue->Remove(aFile.path, aReason);
        }
        return m_sink.Write(aRecord, aReason);
    }

    /// Records that another run has made, one a line.
    bool TakeRecords(std::string& aReason)
    {
        std::ifstream file;
        if (m_options.records != "-") {
            file.open(m_options.records);
            if (!file) {
                aReason = m_options.records + ": " + std::strerror(errno);
                return false;
            }
        }
        std::istream& lines = m_options.records == "-" ? std::cin : file;
        for (std::string line; std::getline(lines, line);) {
            ++m_seen;
            try {
                const Json record = Json::parse(line);
                Candidate source;
                source.path = PathOf(record);
                ++m_read;
                if (!Take(source, record, aReason)) {
                    return false;
                }
            } catch (const Json::exception& error) {
                PrintProblem(m_options.records,
                             "ERROR: Line " + std::to_string(m_seen) + " is no record of a catalogue: " + error.what());
                m_isComplete = false;
            }
        }
        return true;
    }

    /// What is written may lie below the directories that are looked through, with its journal and its lock.
    void LeaveOutTheCatalogue(std::vector<Candidate>& aFiles) const
    {
        if (m_options.out.empty()) {
            return;
        }
        std::error_code ignored;
        const std::string own = std::filesystem::weakly_canonical(m_options.out, ignored).string();
        const auto isOwn = [&own](const Candidate& aFile) {
            return !aFile.isNamed &&
                   (aFile.path == own || aFile.path == own + "-journal" || aFile.path == own + ".lock");
        };
        aFiles.erase(std::remove_if(aFiles.begin(), aFiles.end(), isOwn), aFiles.end());
    }

    /// Files of the catalogue that are no longer below the directories that were looked through.
    bool Prune(const Candidates& aFound, std::string& aReason)
    {
        std::unordered_set<std::string_view> there;
        for (const Candidate& file : aFound.files) {
            there.insert(file.path);
        }
        std::vector<std::string> gone;
        for (const auto& [path, known] : m_catalogue->Files()) {
            const auto isBelow = [&path = path](const std::string& aDirectory) {
                return aDirectory == "/" || (path.compare(0, aDirectory.size(), aDirectory) == 0 &&
                                             path.size() > aDirectory.size() && path[aDirectory.size()] == '/');
            };
            if (there.count(path) == 0 && std::any_of(aFound.walked.begin(), aFound.walked.end(), isBelow)) {
                gone.push_back(path);
            }
        }
        m_gone = gone.size();
        for (std::size_t i = 0; m_options.prune && i != gone.size(); ++i) {
            ++m_counts["taken out"];
            if (!m_catalogue->Remove(gone[i], aReason)) {
                return false;
            }
        }
        return true;
    }

    std::size_t Count(const char* aStatus) const
    {
        const auto count = m_counts.find(aStatus);
        return count == m_counts.end() ? 0 : count->second;
    }

    const Options& m_options;
    Sink& m_sink;
    GeoPackage* m_catalogue;
    Progress m_total{0};
    std::map<std::string, std::size_t> m_counts;
    std::size_t m_seen = 0;
    std::size_t m_read = 0;
    std::size_t m_gone = 0;
    bool m_isComplete = true;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

int Perform(const Options& aOptions, Sink& aSink, GeoPackage* aCatalogue)
{
    Run run(aOptions, aSink, aCatalogue);
    std::string reason;
    if (!run.Do(reason)) {
        PrintProblem(aOptions.out.empty() ? "catalogue" : aOptions.out, "ERROR: " + reason + '.');
        return EXIT_WRONG_USE;
    }
    if (!aOptions.list) {
        run.PrintTotal();
    }
    return run.ExitCode();
}

int WriteGeoPackage(const Options& aOptions)
{
    std::string reason;
    const std::unique_ptr<GeoPackage> catalogue = GeoPackage::Open(aOptions.out, reason);
    if (catalogue == nullptr) {
        PrintProblem(aOptions.out, "ERROR: " + reason + '.');
        return EXIT_WRONG_USE;
    }
    return Perform(aOptions, *catalogue, catalogue.get());
}

int WriteLines(const Options& aOptions)
{
    int exitCode = EXIT_DONE;
    const int written = WriteWith(aOptions.out, "", [&](std::FILE* aOut) {
        const auto table = std::find_if(Tables().begin(), Tables().end(),
                                        [&](const Table& aTable) { return aTable.name == aOptions.table; });
        const std::unique_ptr<Sink> sink = aOptions.format == "csv"    ? MakeCsvSink(aOut, *table)
                                           : aOptions.format == "stac" ? MakeStacSink(aOut)
                                                                       : MakeLinesSink(aOut);
        exitCode = Perform(aOptions, *sink, nullptr);
        return std::ferror(aOut) == 0;
    });
    return std::max(exitCode, written);
}

int Do(Options& aOptions)
{
    aOptions.workers.jobs = aOptions.files.jobs;
    aOptions.workers.request.salvage = aOptions.files.salvage;
    aOptions.workers.timeLimit = std::chrono::seconds(aOptions.timeLimit);
    if (aOptions.isWorker) {
        return Work(aOptions.workers);
    }
    if (aOptions.columns) {
        std::cout << TablesPage();
        return EXIT_DONE;
    }
    const FileOptions& files = aOptions.files;
    if (files.files.empty() && files.directories.empty() && files.listFrom.empty() && aOptions.records.empty()) {
        std::cerr << "ormo-nitf: ERROR: No file is named: give FILE..., -r DIR, --files-from FILE or --records FILE.\n";
        return EXIT_WRONG_USE;
    }
    if (!aOptions.IsGeoPackage()) {
        return WriteLines(aOptions);
    }
    if (aOptions.out.empty() || aOptions.out == "-") {
        std::cerr << "ormo-nitf: ERROR: A GeoPackage needs a file: -o archive.gpkg; -f ndjson, csv and stac go to "
                     "standard output.\n";
        return EXIT_WRONG_USE;
    }
    return WriteGeoPackage(aOptions);
}

Action Declare(CLI::App& aApp)
{
    auto options = std::make_shared<Options>();
    AddFileOptions(aApp, options->files, true);
    aApp.add_flag("-0,--null", options->nulls, "Paths of --files-from end with a NUL, as find -print0 writes them");
    aApp.add_option("-o", options->out, "File to write; a GeoPackage that is there is continued");
    std::vector<std::string> tables;
    for (const Table& table : Tables()) {
        tables.push_back(table.name);
    }
    aApp.add_option("-f,--format", options->format, "gpkg, ndjson (a record per file), csv or stac (an item per image)")
        ->type_name("FORMAT")
        ->check(CLI::IsMember({"gpkg", "ndjson", "csv", "stac"}).description(""));
    aApp.add_option("--table", options->table, "Table that csv writes: files, images, segments, tres or findings")
        ->type_name("TABLE")
        ->check(CLI::IsMember(tables).description(""));
    aApp.add_option("--records", options->records,
                    "Records that -f ndjson wrote in place of files; - for standard input")
        ->type_name("FILE");
    aApp.add_option("--time-limit", options->timeLimit, "Seconds after which a file is given up")
        ->type_name("S")
        ->check(CLI::Range(1, 86400).description(""));
    aApp.add_option("--memory-limit", options->workers.memoryLimit, "Megabytes that reading may take in one process")
        ->type_name("MB");
    aApp.add_flag("--previews", options->workers.request.previews, "Keep a small picture of every image");
    aApp.add_flag("--prune", options->prune, "Take files out of the catalogue that are no longer below -r DIR");
    aApp.add_flag("--retry", options->retry, "Read files again over which the program crashed or took too long");
    aApp.add_flag("--list", options->list,
                  "Print the paths of the files that are to be read, each ended by a NUL, and read none");
    aApp.add_flag("--columns", options->columns, "The tables and their columns as a Markdown page");
    aApp.add_flag("--worker", options->isWorker)->group("");
    return [options] { return Do(*options); };
}

}  // namespace

}  // namespace Catalogue

constexpr Command CATALOGUE{
    .name = "catalogue",
    .summary = "What an archive of files holds, as a GeoPackage, STAC items, CSV or lines of JSON",
    .examples =
        "catalogue -r /data/images -j 4 -o archive.gpkg\n"
        "catalogue -r /data/images -f stac > items.ndjson",
    .exitCodes =
        "0 done, 1 a file could not be read and is in the catalogue with its error, 2 wrong use, a directory that "
        "cannot be read, or a catalogue that cannot be written",
    .declare = Catalogue::Declare};

}  // namespace OrmoNitf
