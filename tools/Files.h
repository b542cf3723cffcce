#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace OrmoNitf {

/// The files that a command works on, and how.
struct FileOptions
{
    std::vector<std::string> files;
    std::vector<std::string> directories;
    std::string listFrom;
    unsigned jobs = 1;
    bool salvage = false;
};

/// Adds FILE..., -r, --files-from and --jobs; with `aSalvage` also --salvage.
void AddFileOptions(CLI::App& aApp, FileOptions& aOptions, bool aSalvage);

/// Adds the paths that stand in a file, - for standard input, one a line unless another character ends them; empty ones
/// are left out. False, with the reason among the problems, when it cannot be read.
bool AddList(const std::string& aList, std::vector<std::string>& aFiles, char aEnd = '\n');

/// Where the work on a file writes: what it finds, and problems, one a line behind the file's name. Standard output and
/// standard error but for threads that work for ForEachFile.
std::ostream& Results();
std::ostream& Problems();

/// Does the work on every file, several files at once when asked for, and writes what each gives as a whole, in the
/// order of the files. Directories give all NITF files below them in the order of their names. No file stops the
/// others. On a terminal a bar shows how far it is when it takes more than a second. With many files a last line on
/// standard error says how many failed, on a terminal also that none did. Answers the highest exit code.
int ForEachFile(const FileOptions& aOptions, const std::function<int(const std::string& aPath)>& aWork);

}  // namespace OrmoNitf
