// Checks all NITF files below a directory: a line for each that cannot be read or has errors, and a total.
//
// ormo-example-check DIRECTORY

#include "ormo/nitf.hpp"

#include <filesystem>
#include <iostream>
#include <set>

namespace {

/// What is wrong with a file, a line each; empty when nothing is.
std::vector<std::string> ErrorsOf(const std::filesystem::path& aPath)
{
    std::vector<std::string> lines;
    std::vector<ormo::nitf::Finding> findings;
    try {
        findings = ormo::nitf::File(aPath).validate().findings;
    } catch (const ormo::nitf::Error& error) {
        findings = error.findings();
    }
    for (const ormo::nitf::Finding& finding : findings) {
        if (finding.level != ormo::nitf::Finding::Level::Warning) {
            lines.push_back(finding.Line());
        }
    }
    return lines;
}

}  // namespace

int main(int aCount, char** aArguments)
{
    std::set<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(aCount > 1 ? aArguments[1] : ".")) {
        if (entry.is_regular_file() && ormo::nitf::is_nitf(entry.path())) {
            paths.insert(entry.path());
        }
    }
    std::size_t bad = 0;
    for (const std::filesystem::path& path : paths) {
        const std::vector<std::string> errors = ErrorsOf(path);
        if (!errors.empty()) {
            ++bad;
            std::cout << path.filename().string() << ": " << errors.front() << '\n';
        }
    }
    std::cout << paths.size() << " files, " << bad << " with errors\n";
    return bad == 0 ? 0 : 1;
}
