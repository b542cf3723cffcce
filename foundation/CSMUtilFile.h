#pragma once

#include "Export.h"

#include <map>
#include <string>

namespace ORMO::SensorModel::CSM::Util {
/// One entry of a properties file.
struct KeyValuePair
{
    char* key = nullptr;
    char* value = nullptr;
};

/// Questions about files, and the reader of properties files.
class ORMO_CSM_API CSMUtilFile
{
public:
    /// True when the path leads, through symbolic links if need be, to a regular file. Directories, pipes and devices
    /// are no files in this sense. The wide form takes a BSTR. False for an empty path.
    static bool FileExists(const wchar_t* aPath) noexcept;
    static bool FileExists(const char* aPath) noexcept;
    static bool FileExists(const std::string& aPath) noexcept;

    /// The part of a path behind its last "/" or backslash; the caller frees it with CSMUtilString::DeleteCString.
    /// Throws FileAccessException for a null or empty argument and for a path that names no file, such as "/data/".
    static void GetFileName(const char* aPath, char** aName);

    /// Reads a properties file of "key=value" lines; lines that begin with "#" are comments. The first line of a key
    /// wins. Values are kept with their white space, keys are trimmed.
    /// With aClear set the map is emptied first; otherwise pairs are added and the keys already in the map stay as they
    /// are. False when the file cannot be opened.
    static bool GetKeyValuePairsFromFile(bool aClear, const char* aPath, std::map<std::string, std::string>& aPairs);
    /// The same as an array in the order of the file, which the caller frees with DeleteKeyValuesPairArray; no pairs
    /// give true and a null array.
    /// Throws FileAccessException for an empty path and a null output.
    static bool GetKeyValuePairsFromFile(const char* aPath, int& aCount, KeyValuePair** aPairs);
    /// Frees the texts of every pair and the array, and sets the pointer to null.
    static void DeleteKeyValuesPairArray(int aCount, KeyValuePair** aPairs) noexcept;

private:
    CSMUtilFile() = delete;
    ~CSMUtilFile() = delete;
    CSMUtilFile& operator=(const CSMUtilFile&) = delete;
};
}  // namespace ORMO::SensorModel::CSM::Util
