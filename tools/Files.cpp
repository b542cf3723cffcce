#include "tools/Files.h"

#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "tools/Isd.h"
#include "tools/Progress.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <mutex>
#include <new>
#include <sstream>
#include <streambuf>
#include <thread>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;
namespace fs = std::filesystem;

namespace {

thread_local std::ostream* t_results = nullptr;
thread_local std::ostream* t_problems = nullptr;

/// Every file at or below a directory that begins like a NITF file, in the order of the names.
bool AddDirectory(const std::string& aDirectory, std::vector<std::string>& aFiles)
{
    std::error_code error;
    std::vector<std::string> found;
    fs::recursive_directory_iterator it(aDirectory, fs::directory_options::skip_permission_denied, error);
    for (; !error && it != fs::recursive_directory_iterator(); it.increment(error)) {
        std::error_code ignored;
        const char* format = nullptr;
        if (it->is_regular_file(ignored) && ImageSupportDataFactory::IsSupportedISDFile(it->path().c_str(), format)) {
            found.push_back(it->path().string());
        }
    }
    if (error) {
        PrintProblem(aDirectory, "ERROR: The directory cannot be read: " + error.message() + '.');
    }
    std::sort(found.begin(), found.end());
    aFiles.insert(aFiles.end(), found.begin(), found.end());
    return !error;
}

/// The work on many files: who is next, and whose turn it is to be written.
class Run
{
public:
    Run(std::vector<std::string> aFiles, unsigned aJobs, const std::function<int(const std::string&)>& aWork)
        : m_files(std::move(aFiles)), m_jobs(aJobs), m_work(aWork), m_progress(m_files.size())
    {
    }

    int Do()
    {
        std::vector<std::thread> threads;
        const std::size_t count = std::min<std::size_t>(m_jobs, m_files.size());
        for (std::size_t i = 1; i < count; ++i) {
            threads.emplace_back([this] { Work(); });
        }
        Work();
        for (std::thread& thread : threads) {
            thread.join();
        }
        m_progress.Erase();
        PrintTotal();
        return m_exitCode;
    }

private:
    /// Collects what the work on one file gives. Large results are written as they come once it is the file's turn.
    class Collector : public std::streambuf
    {
    public:
        Collector(Run& aRun, std::size_t aFile) : m_run(aRun), m_file(aFile) {}
        std::string text;

    private:
        int_type overflow(int_type aCharacter) override
        {
            if (!traits_type::eq_int_type(aCharacter, traits_type::eof())) {
                text += traits_type::to_char_type(aCharacter);
            }
            return traits_type::not_eof(aCharacter);
        }
        std::streamsize xsputn(const char* aBytes, std::streamsize aCount) override
        {
            text.append(aBytes, static_cast<std::size_t>(aCount));
            if (text.size() > MOST_KEPT && m_run.IsTurnOf(m_file)) {
                m_run.Write(text);
                text.clear();
            }
            return aCount;
        }

        // Documents up to this size are written in one call: lines of several processes that share an output stay
        // whole.
        static constexpr std::size_t MOST_KEPT = std::size_t{8} << 20U;

        Run& m_run;
        std::size_t m_file;
    };

    void Work()
    {
        for (std::size_t file = 0; Take(file);) {
            Collector collector(*this, file);
            std::ostream results(&collector);
            results.exceptions(std::ios::badbit);  // memory that runs out must not pass for the end of the document
            std::ostringstream problems;
            t_results = &results;
            t_problems = &problems;
            int exitCode = EXIT_WRONG_USE;
            try {
                exitCode = m_work(m_files[file]);
            } catch (const std::bad_alloc&) {
                collector.text.clear();  // rather no document than the beginning of one
                PrintProblem(m_files[file], "ERROR: System out of memory.");
            } catch (const CSMException& error) {
                PrintProblem(m_files[file], error.GetErrorMessage());
            } catch (const std::exception& error) {
                PrintProblem(m_files[file], std::string("ERROR: ") + error.what());
            }
            t_results = nullptr;
            t_problems = nullptr;
            Finish(file, exitCode, collector.text, problems.str());
        }
    }

    /// The next file; not too far ahead of what is written, because all between is kept.
    bool Take(std::size_t& aFile)
    {
        constexpr std::size_t AHEAD = 8;
        std::unique_lock lock(m_lock);
        m_turned.wait(lock, [this] { return m_next < m_turn + AHEAD * m_jobs || m_isBroken; });
        if (m_next == m_files.size() || m_isBroken) {
            return false;
        }
        aFile = m_next++;
        return true;
    }

    void Finish(std::size_t aFile, int aExitCode, const std::string& aResults, const std::string& aProblems)
    {
        std::unique_lock lock(m_lock);
        m_turned.wait(lock, [this, aFile] { return m_turn == aFile; });
        lock.unlock();
        Write(aResults);
        if (!aProblems.empty()) {
            m_progress.Erase();
            std::cerr << aProblems << std::flush;
        }
        lock.lock();
        ++m_turn;
        m_exitCode = std::max(m_exitCode, aExitCode);
        ++m_counts[static_cast<std::size_t>(std::clamp(aExitCode, 0, 2))];
        m_progress.Show(m_turn);
        m_turned.notify_all();
    }

    bool IsTurnOf(std::size_t aFile)
    {
        const std::scoped_lock lock(m_lock);
        return m_turn == aFile;
    }

    /// Only ever called by whose turn it is.
    void Write(const std::string& aText)
    {
        if (aText.empty() || m_isBroken) {
            return;
        }
        m_progress.Erase();
        errno = 0;
        if (std::fwrite(aText.data(), 1, aText.size(), stdout) != aText.size() || std::fflush(stdout) != 0) {
            const std::string reason = std::strerror(errno);
            const std::scoped_lock lock(m_lock);
            m_isBroken = true;
            m_exitCode = EXIT_WRONG_USE;
            std::cerr << "standard output: ERROR: " << reason << ".\n";
        }
    }

    void PrintTotal() const
    {
        const std::size_t failed = m_counts[1] + m_counts[2];
        if (m_files.size() < 2 || m_isBroken || (failed == 0 && !Progress::IsTerminal())) {
            return;
        }
        std::cerr << "ormo-nitf: " << m_files.size() << " files: " << m_counts[0] << " without errors";
        if (m_counts[1] != 0) {
            std::cerr << ", " << m_counts[1] << " with errors";
        }
        if (m_counts[2] != 0) {
            std::cerr << ", " << m_counts[2] << " not read";
        }
        std::cerr << '\n';
    }

    std::vector<std::string> m_files;
    unsigned m_jobs;
    const std::function<int(const std::string&)>& m_work;
    Progress m_progress;
    std::mutex m_lock;
    std::condition_variable m_turned;
    std::size_t m_next = 0;
    std::size_t m_turn = 0;
    std::array<std::size_t, 3> m_counts{};
    int m_exitCode = EXIT_DONE;
    std::atomic<bool> m_isBroken = false;
};

}  // namespace

std::ostream& Results()
{
    return t_results == nullptr ? std::cout : *t_results;
}

std::ostream& Problems()
{
    return t_problems == nullptr ? std::cerr : *t_problems;
}

bool AddList(const std::string& aList, std::vector<std::string>& aFiles, char aEnd)
{
    std::ifstream file;
    if (aList != "-") {
        file.open(aList);
        if (!file) {
            PrintProblem(aList, std::string("ERROR: ") + std::strerror(errno) + '.');
            return false;
        }
    }
    std::istream& lines = aList == "-" ? std::cin : file;
    for (std::string line; std::getline(lines, line, aEnd);) {
        if (aEnd == '\n' && !line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty()) {
            aFiles.push_back(line);
        }
    }
    return true;
}

void AddFileOptions(CLI::App& aApp, FileOptions& aOptions, bool aSalvage)
{
    aApp.add_option("FILE", aOptions.files, "NITF or NSIF files");
    aApp.add_option("-r,--recursive", aOptions.directories, "All NITF files at and below a directory")
        ->type_name("DIR")
        ->allow_extra_args(false);
    aApp.add_option("--files-from", aOptions.listFrom, "A file with one path a line; - for standard input")
        ->type_name("FILE");
    aApp.add_option("-j,--jobs", aOptions.jobs, "How many files to work on at once")
        ->type_name("N")
        ->check(CLI::Range(1, 256).description(""));
    if (aSalvage) {
        aApp.add_flag("--salvage", aOptions.salvage, "Show what can be read of a damaged file, and say what cannot");
    }
}

int ForEachFile(const FileOptions& aOptions, const std::function<int(const std::string&)>& aWork)
{
    std::vector<std::string> files = aOptions.files;
    bool complete = aOptions.listFrom.empty() || AddList(aOptions.listFrom, files);
    for (const std::string& directory : aOptions.directories) {
        complete = AddDirectory(directory, files) && complete;
    }
    if (files.empty()) {
        if (aOptions.directories.empty() && aOptions.listFrom.empty()) {
            std::cerr << "ormo-nitf: ERROR: No file is named: give FILE..., -r DIR or --files-from FILE.\n";
            return EXIT_WRONG_USE;
        }
        if (complete) {
            std::cerr << "ormo-nitf: WARN: No NITF file was found.\n";
        }
        return complete ? EXIT_DONE : EXIT_WRONG_USE;
    }
    const int exitCode = Run(std::move(files), aOptions.jobs, aWork).Do();
    return complete ? exitCode : static_cast<int>(EXIT_WRONG_USE);
}

}  // namespace OrmoNitf
