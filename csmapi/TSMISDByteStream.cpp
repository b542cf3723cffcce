#include "TSMISDByteStream.h"

#include "TSMError.h"

#include <fstream>
#include <ios>
#include <new>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

const char* const FUNCTION = "bytestreamISD::bytestreamISD";
const std::size_t BLOCK_SIZE = 64 * 1024;

/// Reads in blocks, so that a pipe or a file without a known size is taken whole as well.
bool ReadAll(const std::string& aFileName, std::string& aBytes)
{
    std::ifstream file(aFileName.c_str(), std::ios::in | std::ios::binary);
    if (!file) {
        return false;
    }
    std::vector<char> block(BLOCK_SIZE);
    do {
        file.read(block.data(), static_cast<std::streamsize>(block.size()));
        aBytes.append(block.data(), static_cast<std::size_t>(file.gcount()));
    } while (file);
    // A directory opens but does not read: only the end of the file is a good reason to stop.
    return file.eof() && !file.bad();
}

}  // namespace

bytestreamISD::bytestreamISD(std::string filename)
{
    _format = "BYTESTREAM";
    bool complete = false;
    try {
        complete = ReadAll(filename, _isd);
    } catch (const std::bad_alloc&) {
        throw TSMError(TSMError::MEMORY, "Not enough memory for the file", FUNCTION);
    } catch (const std::length_error&) {
        throw TSMError(TSMError::MEMORY, "Not enough memory for the file", FUNCTION);
    }
    if (!complete) {
        throw TSMError(TSMError::FILE_READ, "Unable to read the file " + filename, FUNCTION);
    }
}
