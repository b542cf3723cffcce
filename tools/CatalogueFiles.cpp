#include "tools/CatalogueFiles.h"

#include "tools/Isd.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <utility>

namespace OrmoNitf::Catalogue {

namespace fs = std::filesystem;

namespace {

class Finder
{
public:
    /// Links in the directories of a path are followed, so that a file has one path; a link to a file keeps its name.
    void AddFile(const std::string& aPath)
    {
        std::error_code error;
        const fs::path path = fs::absolute(aPath, error).lexically_normal();
        const fs::path directory = fs::canonical(path.parent_path(), error);
        Candidate file;
        file.path = error ? path.string() : (directory / path.filename()).string();
        file.isNamed = true;
        if (!file.Look()) {
            PrintProblem(aPath, std::string("ERROR: ") + std::strerror(errno) + '.');
            m_found.isComplete = false;
        }
        m_found.files.push_back(std::move(file));
    }

    void AddDirectory(const std::string& aDirectory)
    {
        std::error_code error;
        const fs::path top = fs::canonical(aDirectory, error);
        if (error) {
            Refuse(aDirectory, error);
            return;
        }
        const bool wasComplete = std::exchange(m_found.isComplete, true);
        std::vector<fs::path> left{top};
        while (!left.empty()) {
            const fs::path directory = std::move(left.back());
            left.pop_back();
            Look(directory, left);
        }
        if (m_found.isComplete) {
            m_found.walked.push_back(top.string());
        }
        m_found.isComplete = m_found.isComplete && wasComplete;
    }

    Candidates Take()
    {
        std::vector<Candidate>& files = m_found.files;
        // Of a file that is named and found the named one stays.
        std::sort(files.begin(), files.end(), [](const Candidate& aLeft, const Candidate& aRight) {
            return std::pair(std::string_view(aLeft.path), !aLeft.isNamed) <
                   std::pair(std::string_view(aRight.path), !aRight.isNamed);
        });
        files.erase(
            std::unique(files.begin(), files.end(),
                        [](const Candidate& aLeft, const Candidate& aRight) { return aLeft.path == aRight.path; }),
            files.end());
        return std::move(m_found);
    }

    void Fail() noexcept { m_found.isComplete = false; }

private:
    void Refuse(const std::string& aDirectory, const std::error_code& aError)
    {
        PrintProblem(aDirectory, "ERROR: The directory cannot be read: " + aError.message() + '.');
        m_found.isComplete = false;
    }

    void Look(const fs::path& aDirectory, std::vector<fs::path>& aLeft)
    {
        std::error_code error;
        fs::directory_iterator it(aDirectory, error);
        for (; !error && it != fs::directory_iterator(); it.increment(error)) {
            std::error_code ignored;
            if (it->symlink_status(ignored).type() == fs::file_type::directory) {
                aLeft.push_back(it->path());
                continue;
            }
            Candidate file;
            file.path = it->path().string();
            if (file.Look()) {
                m_found.files.push_back(std::move(file));
            }
        }
        if (error && error != std::errc::no_such_file_or_directory) {
            Refuse(aDirectory.string(), error);
        }
    }

    Candidates m_found;
};

}  // namespace

Candidates FindCandidates(const FileOptions& aOptions, bool aNulls)
{
    Finder finder;
    std::vector<std::string> files = aOptions.files;
    if (!aOptions.listFrom.empty() && !AddList(aOptions.listFrom, files, aNulls ? '\0' : '\n')) {
        finder.Fail();
    }
    for (const std::string& file : files) {
        finder.AddFile(file);
    }
    for (const std::string& directory : aOptions.directories) {
        finder.AddDirectory(directory);
    }
    return finder.Take();
}

}  // namespace OrmoNitf::Catalogue
