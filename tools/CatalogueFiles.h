#pragma once

#include "tools/CatalogueTables.h"
#include "tools/Files.h"

#include <string>
#include <vector>

namespace OrmoNitf::Catalogue {

struct Candidate : Source
{
    bool isNamed = false;  ///< by the user, so that it is told of even if it is no NITF file
};

struct Candidates
{
    /// Regular files by absolute path, each once, in the order of the paths, and those that are named and are not
    /// there. Whether they are NITF files is not known.
    std::vector<Candidate> files;
    /// Directories below which every file was found.
    std::vector<std::string> walked;
    /// Whether all that was named could be looked into; what could not is among the problems.
    bool isComplete = true;
};

/// The files that the options name. Links to directories are not followed. With `aNulls` the names of a list end with a
/// NUL in place of a line feed.
Candidates FindCandidates(const FileOptions& aOptions, bool aNulls);

}  // namespace OrmoNitf::Catalogue
