#include "foundation/CSMUtilFile.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"

#include <map>
#include <string>

namespace OrmoFuzz {

using namespace ORMO::SensorModel::CSM::Util;

void RunProperties(std::string_view aBytes)
{
    const std::string& path = PathOf(aBytes);
    const AllocationWatch watch(aBytes.size());
    std::map<std::string, std::string> map;
    Require(CSMUtilFile::GetKeyValuePairsFromFile(true, path.c_str(), map), "the file is read");
    int count = -1;
    KeyValuePair* pairs = nullptr;
    Require(CSMUtilFile::GetKeyValuePairsFromFile(path.c_str(), count, &pairs), "the file is read as an array");
    Require(count >= 0 && (count == 0) == (pairs == nullptr), "no pairs are no array");
    std::map<std::string, std::string> first;
    for (int i = 0; i != count; ++i) {
        Require(pairs[i].key != nullptr, "a pair has a key");
        first.emplace(pairs[i].key, pairs[i].value == nullptr ? "" : pairs[i].value);
    }
    CSMUtilFile::DeleteKeyValuesPairArray(count, &pairs);
    Require(pairs == nullptr, "the array is gone");
    // A text ends at a NUL byte, so that only the map tells of what stands behind it.
    Require(aBytes.find('\0') != std::string_view::npos || first == map, "both ways say the same");
}

}  // namespace OrmoFuzz
