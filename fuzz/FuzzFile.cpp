// Any bytes as a file: opened, asked, written out and validated, or refused; never more.

#include "foundation/CSMException.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/ImageSupportDataNITF.h"

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

using namespace ORMO::SensorModel::CSM;

namespace {

/// The bytes as a file that lives in memory.
class MemoryFile
{
public:
    MemoryFile(const std::uint8_t* aBytes, std::size_t aSize) : m_descriptor(memfd_create("fuzz", 0))
    {
        if (write(m_descriptor, aBytes, aSize) != static_cast<ssize_t>(aSize)) {
            __builtin_trap();
        }
    }
    ~MemoryFile() { close(m_descriptor); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(m_descriptor); }

private:
    int m_descriptor;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aBytes, std::size_t aSize)
{
    const MemoryFile file(aBytes, aSize);
    ImageSupportData* isd = nullptr;
    try {
        ImageSupportDataFactory::Create(file.Path().c_str(), &isd, true, false);
    } catch (const CSMException&) {
        return 0;
    } catch (const std::exception&) {
        return 0;
    }
    if (isd == nullptr || isd->Serialize() == nullptr) {
        __builtin_trap();
    }
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    isd->GetAllSecurityClassificationMarkings();
    ImageSupportDataFactory::Destroy(&isd);
    return 0;
}
