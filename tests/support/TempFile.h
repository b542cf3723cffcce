#pragma once

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include <stdlib.h>
#include <unistd.h>

namespace ORMO::SensorModel::CSM::Tests {

/// A file with a name of its own in the directory for temporary files, removed at the end.
class TempFile
{
public:
    explicit TempFile(std::string_view aBytes = {}, std::string_view aExtension = ".ntf")
        : m_path((std::filesystem::temp_directory_path() / "ormo-test-XXXXXX").string().append(aExtension))
    {
        const int descriptor = mkstemps(m_path.data(), static_cast<int>(aExtension.size()));
        if (descriptor < 0) {
            throw std::runtime_error("no temporary file " + m_path);
        }
        close(descriptor);
        Write(aBytes);
    }
    ~TempFile()
    {
        std::error_code ignored;
        std::filesystem::remove(m_path, ignored);
    }
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    const std::string& Path() const { return m_path; }
    const char* CStr() const { return m_path.c_str(); }
    /// Replaces all that the file holds.
    void Write(std::string_view aBytes)
    {
        std::ofstream file(m_path, std::ios::binary | std::ios::trunc);
        file.write(aBytes.data(), static_cast<std::streamsize>(aBytes.size()));
    }

private:
    std::string m_path;
};

}  // namespace ORMO::SensorModel::CSM::Tests
