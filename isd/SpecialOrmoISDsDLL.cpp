#include "isd/SpecialOrmoISDsDLL.h"

#include <algorithm>
#include <iterator>

#if defined(_WIN32)
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace ORMO::SensorModel::CSM {
namespace {

constexpr const char* REQUIRED_EXPORTS[] = {
    SpecialOrmoISDsDLL::GET_ACCEPTABLE_IMAGE_CATEGORIES,
    SpecialOrmoISDsDLL::CREATE_ISD,
    SpecialOrmoISDsDLL::CREATE_ISD_NITF,
    SpecialOrmoISDsDLL::DEL_CSTRING,
    SpecialOrmoISDsDLL::DELETE_CSTRING_ARRAY,
    SpecialOrmoISDsDLL::DEL_ISD,
    SpecialOrmoISDsDLL::DEL_SUPPORTED_SPECIAL_NITF_TRES,
    SpecialOrmoISDsDLL::GET_ALL_SUPPORTED_TRE_CE_RE_TAGS,
    SpecialOrmoISDsDLL::GET_DEFAULT_CLASSIFICATION_LEVEL_STRING,
    SpecialOrmoISDsDLL::GET_SUPPORTED_SPECIAL_NITF_TRES,
    SpecialOrmoISDsDLL::ISD_TYPE,
    SpecialOrmoISDsDLL::IS_SUPPORTED_ISD_FILE,
    SpecialOrmoISDsDLL::IS_VALID_SECURITY_CLASSIFICATION_MARKING,
};
static_assert(std::size(REQUIRED_EXPORTS) == 13);

}  // namespace

const char* SpecialOrmoISDsDLL::FirstMissingExport(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept
{
    const auto* const missing =
        std::find_if(std::begin(REQUIRED_EXPORTS), std::end(REQUIRED_EXPORTS),
                     [aLibrary](const char* aName) { return FindExport(aLibrary, aName) == nullptr; });
    return missing == std::end(REQUIRED_EXPORTS) ? nullptr : *missing;
}

bool SpecialOrmoISDsDLL::ExportsAll(Util::CSMUtilWindows::ModuleHandle aLibrary) noexcept
{
    return FirstMissingExport(aLibrary) == nullptr;
}

void* SpecialOrmoISDsDLL::FindExport(Util::CSMUtilWindows::ModuleHandle aLibrary, const char* aName) noexcept
{
    // A null handle would make dlsym look through the whole process.
    if (aLibrary == nullptr || aName == nullptr) {
        return nullptr;
    }
#if defined(_WIN32)
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(aLibrary), aName));
#else
    return dlsym(aLibrary, aName);
#endif
}

}  // namespace ORMO::SensorModel::CSM
