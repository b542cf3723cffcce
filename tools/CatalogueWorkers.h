#pragma once

#include "tools/CatalogueFiles.h"

#include <chrono>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace OrmoNitf::Catalogue {

struct WorkerOptions
{
    unsigned jobs = 1;
    std::chrono::seconds timeLimit{60};  ///< for one file
    unsigned memoryLimit = 0;            ///< megabytes of address space of one worker; 0 for no limit
    Request request;
};

/// Takes the record of the file of that index; false ends the work.
using TakeRecord = std::function<bool(std::size_t aFile, Json aRecord)>;

/// Reads the files in processes of their own, so that a file over which one dies or never ends costs no more than its
/// own record, which then says so. A file over which a worker died is tried once more, alone: the worker may have died
/// of something else. Records come in the order of the files. False, with the reason, when no worker can be started.
bool ReadInWorkers(const std::vector<Candidate>& aFiles, const WorkerOptions& aOptions, const TakeRecord& aTake,
                   std::string& aReason);

/// The other side: reads paths, each ended by NUL, from standard input and writes the record of each as a line.
int Work(const WorkerOptions& aOptions);

}  // namespace OrmoNitf::Catalogue
