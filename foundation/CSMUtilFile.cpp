#include "foundation/CSMUtilFile.h"

#include "foundation/CSMExceptions.h"
#include "foundation/CSMUtilString.h"
#include "foundation/detail/Ascii.h"
#include "foundation/detail/HandOut.h"
#include "foundation/detail/Utf8.h"

#include <exception>
#include <fstream>
#include <set>
#include <utility>
#include <vector>

#include <sys/stat.h>

namespace ORMO::SensorModel::CSM::Util {
namespace {
using Pair = std::pair<std::string, std::string>;

/// False for a line that holds no pair: blank, a comment, without "=" or without a key.
bool ReadPair(std::string_view aLine, Pair& aPair)
{
    const std::string_view line = Detail::TrimmedStart(aLine);
    const std::size_t equals = line.find('=');
    if (line.empty() || line.front() == '#' || equals == std::string_view::npos || equals == 0) {
        return false;
    }
    aPair.first = Detail::TrimmedEnd(line.substr(0, equals));
    aPair.second = line.substr(equals + 1);
    return true;
}

/// Every pair in the order of the file, repeated keys included. False when the file cannot be opened or read.
bool ReadPairs(const std::string& aPath, std::vector<Pair>& aPairs)
{
    if (!CSMUtilFile::FileExists(aPath)) {
        return false;
    }
    std::ifstream file(aPath);
    if (!file) {
        return false;
    }
    std::string line;
    while (std::getline(file, line)) {
        // Files written elsewhere end their lines with CR LF; the CR is no part of the value.
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        Pair pair;
        if (ReadPair(line, pair)) {
            aPairs.push_back(std::move(pair));
        }
    }
    return !file.bad();
}

/// Drops the later pairs of a key and copies the rest into a new array; false when memory is short.
bool ToArray(const std::vector<Pair>& aPairs, int& aCount, KeyValuePair** aArray)
{
    std::set<std::string_view> known;
    std::vector<const Pair*> kept;
    for (const Pair& pair : aPairs) {
        if (known.insert(pair.first).second) {
            kept.push_back(&pair);
        }
    }
    if (kept.empty()) {
        return true;
    }
    *aArray = new KeyValuePair[kept.size()];
    aCount = static_cast<int>(kept.size());
    for (std::size_t i = 0; i != kept.size(); ++i) {
        KeyValuePair& entry = (*aArray)[i];
        if (!Detail::HandOut(kept[i]->first, &entry.key) || !Detail::HandOut(kept[i]->second, &entry.value)) {
            CSMUtilFile::DeleteKeyValuesPairArray(aCount, aArray);
            aCount = 0;
            return false;
        }
    }
    return true;
}
}  // namespace

bool CSMUtilFile::FileExists(const char* aPath) noexcept
{
    struct stat status = {};
    return aPath != nullptr && ::stat(aPath, &status) == 0 && S_ISREG(status.st_mode);
}

bool CSMUtilFile::FileExists(const std::string& aPath) noexcept
{
    // Behind a NUL the system would not look: the name of another file must not stand for this one.
    return aPath.find('\0') == std::string::npos && FileExists(aPath.c_str());
}

bool CSMUtilFile::FileExists(const wchar_t* aPath) noexcept
{
    try {
        std::string path;
        return aPath != nullptr && Detail::NarrowToUtf8(aPath, path) && FileExists(path);
    } catch (const std::exception&) {
        return false;
    }
}

void CSMUtilFile::GetFileName(const char* aPath, char** aName)
{
    constexpr const char* SOURCE = "CSMUtilFile::GetFileName";
    if (aName != nullptr) {
        *aName = nullptr;
    }
    const std::string_view path = Detail::ViewOf(aPath);
    if (Detail::Trimmed(path).empty() || aName == nullptr) {
        throw FileAccessException("ERROR: Invalid input fully qualified file name and/or NULL output parameter.",
                                  SOURCE);
    }
    const std::string_view name = path.substr(path.find_last_of("/\\") + 1);
    if (name.empty() || name == "." || name == "..") {
        throw FileAccessException("ERROR: Invalid input fully qualified file name.", SOURCE);
    }
    Detail::HandOutOrThrow(name, aName);
}

bool CSMUtilFile::GetKeyValuePairsFromFile(bool aClear, const char* aPath, std::map<std::string, std::string>& aPairs)
{
    try {
        // Copied first, since the path may be a value of the map.
        const std::string path(Detail::Trimmed(Detail::ViewOf(aPath)));
        if (aClear) {
            aPairs.clear();
        }
        std::vector<Pair> pairs;
        if (path.empty() || !ReadPairs(path, pairs)) {
            return false;
        }
        for (Pair& pair : pairs) {
            aPairs.insert(std::move(pair));
        }
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

bool CSMUtilFile::GetKeyValuePairsFromFile(const char* aPath, int& aCount, KeyValuePair** aPairs)
{
    aCount = 0;
    if (aPairs != nullptr) {
        *aPairs = nullptr;
    }
    const std::string_view path = Detail::Trimmed(Detail::ViewOf(aPath));
    if (path.empty() || aPairs == nullptr) {
        throw FileAccessException("ERROR: NULL/invalid input argument.", "CSMUtilFile::GetKeyValuePairsFromFile");
    }
    try {
        std::vector<Pair> pairs;
        return ReadPairs(std::string(path), pairs) && ToArray(pairs, aCount, aPairs);
    } catch (const std::exception&) {
        return false;
    }
}

void CSMUtilFile::DeleteKeyValuesPairArray(int aCount, KeyValuePair** aPairs) noexcept
{
    if (aPairs == nullptr || *aPairs == nullptr) {
        return;
    }
    for (int i = 0; i < aCount; ++i) {
        CSMUtilString::DeleteCString((*aPairs)[i].key);
        CSMUtilString::DeleteCString((*aPairs)[i].value);
    }
    delete[] * aPairs;
    *aPairs = nullptr;
}
}  // namespace ORMO::SensorModel::CSM::Util
