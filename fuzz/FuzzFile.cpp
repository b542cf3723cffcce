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

/// Whether the bytes become an object, as they are or as what can be read of them.
bool Made(const MemoryFile& aFile, ImageSupportData*& aIsd, bool aSalvage)
{
    try {
        if (aSalvage) {
            ImageSupportDataFactory::Salvage(aFile.Path().c_str(), &aIsd);
        } else {
            ImageSupportDataFactory::Create(aFile.Path().c_str(), &aIsd, true, false);
        }
        return true;
    } catch (const CSMException&) {
        return false;
    } catch (const std::exception&) {
        return false;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* aBytes, std::size_t aSize)
{
    const MemoryFile file(aBytes, aSize);
    ImageSupportData* isd = nullptr;
    if (!Made(file, isd, false) && !Made(file, isd, true)) {
        return 0;
    }
    if (isd == nullptr || isd->Serialize() == nullptr) {
        __builtin_trap();
    }
    unsigned long errors = 0;
    unsigned long warnings = 0;
    isd->RigorousValidation(errors, warnings);
    isd->GetAllSecurityClassificationMarkings();
    isd->GetImageSupportDataSummary();
    dynamic_cast<const ImageSupportDataNITF&>(*isd).RetrieveOrmoMetadata(0);
    ImageSupportDataFactory::Destroy(&isd);
    return 0;
}
