#pragma once

#include "tests/support/SourceDir.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace ORMO::SensorModel::CSM::Tests {

/// Where a real file lies: in the directory that ORMO_CORPUS names, else beside the sources. Not checked.
inline std::filesystem::path CorpusFile(const char* aName)
{
    const char* const directory = std::getenv("ORMO_CORPUS");
    return (directory != nullptr ? std::filesystem::path(directory)
                                 : std::filesystem::path(SourceDir()) / "../shared/corpus") /
           aName;
}

/// All bytes of a real file; empty when it is absent.
inline std::string CorpusBytes(const char* aName)
{
    std::ifstream file(CorpusFile(aName), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace ORMO::SensorModel::CSM::Tests
