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

/// The bytes as a file that lives in memory: what salvage takes.
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

/// Whether the call makes an object; a refusal is as good.
template<typename Make>
bool IsMade(Make aMake)
{
    try {
        aMake();
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
    ImageSupportData* isd = nullptr;
    const bool isWhole =
        IsMade([&] { ImageSupportDataFactory::CreateFromMemory(aBytes, aSize, false, "fuzz", &isd, true, false); });
    if (!isWhole && !IsMade([&] {
            const MemoryFile file(aBytes, aSize);
            ImageSupportDataFactory::Salvage(file.Path().c_str(), &isd);
        })) {
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
