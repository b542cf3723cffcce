#include "isd/SpecialOrmoDLLsLoader.h"

#include "foundation/CSMSysProperties.h"
#include "foundation/CSMUtilString.h"
#include "isd/SpecialOrmoISDsDLL.h"

#include <memory>
#include <string>

namespace ORMO::SensorModel::CSM {
namespace {

using Util::CSMCnst;
using Util::CSMUtilWindows;
using ModuleHandle = SpecialOrmoDLLsLoader::ModuleHandle;

struct Unload
{
    void operator()(void* aLibrary) const noexcept { CSMUtilWindows::FreeModuleHandle(aLibrary); }
};

/// A library that is unloaded again unless its handle is released.
using Library = std::unique_ptr<void, Unload>;

std::string FileName(const char* aPropertyKey, const char* aDefaultName)
{
    const char* value = nullptr;
    if (CSMSysProperties::GetProperty(aPropertyKey, value)) {
        std::string name = Util::CSMUtilString::Trim(value);
        if (!name.empty()) {
            return name;
        }
    }
    return aDefaultName;
}

/// Loads the library and keeps it if it is accepted. Whatever goes wrong, the answer is null.
template<typename Accepts>
ModuleHandle Load(const char* aPropertyKey, const char* aDefaultName, Accepts aAccepts) noexcept
{
    try {
        ModuleHandle handle = nullptr;
        const std::string fileName = FileName(aPropertyKey, aDefaultName);
        if (!CSMUtilWindows::LoadModule(fileName.c_str(), handle)) {
            return nullptr;
        }
        Library library(handle);
        return aAccepts(handle) ? library.release() : nullptr;
    } catch (...) {
        // A companion is optional: without memory to look for it the installation works as if it were absent.
        return nullptr;
    }
}

bool ExportsEach(ModuleHandle aLibrary, const char* const* aNames, std::size_t aCount) noexcept
{
    for (std::size_t i = 0; i != aCount; ++i) {
        if (aNames == nullptr || SpecialOrmoISDsDLL::FindExport(aLibrary, aNames[i]) == nullptr) {
            return false;
        }
    }
    return true;
}

}  // namespace

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL() noexcept
{
    static const ModuleHandle library = Load(CSMCnst::PropertyKey::TALVIK_G_ISD_DLL,
                                             CSMCnst::SPECIAL_GOLD_DLL_ISD_DEFAULT_NM, SpecialOrmoISDsDLL::ExportsAll);
    return library;
}

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoMSPTkDLL() noexcept
{
    static const ModuleHandle library =
        Load(CSMCnst::PropertyKey::TALVIK_G_MSP_TOOLKIT, CSMCnst::SPECIAL_GOLD_DLL_MS_DEFAULT_NM,
             [](ModuleHandle) { return true; });
    return library;
}

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoSSsDLL(const char**& aRequiredExports, std::size_t aCount) noexcept
{
    static const ModuleHandle library =
        Load(CSMCnst::PropertyKey::TALVIK_G_SENSOR_MODELS_SYS_DLL, CSMCnst::SPECIAL_GOLD_DLL_SS_DEFAULT_NM,
             [&](ModuleHandle aLibrary) { return ExportsEach(aLibrary, aRequiredExports, aCount); });
    return library;
}

ModuleHandle SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL() noexcept
{
    static const ModuleHandle library = Load(CSMCnst::PropertyKey::TALVIK_R_SENSOR_SYS_DLL,
                                             CSMCnst::SPECIAL_RED_DLL_ISD_DEFAULT_NM, SpecialOrmoISDsDLL::ExportsAll);
    return library;
}

CSMCnst::ClassType SpecialOrmoDLLsLoader::GetHighestClassificationLevel() noexcept
{
    if (GetRedOrmoISDsDLL() != nullptr) {
        return CSMCnst::CLASS_TYPE_SCI;
    }
    return GetGoldOrmoISDsDLL() != nullptr ? CSMCnst::CLASS_TYPE_SECRET : CSMCnst::CLASS_TYPE_UNCLASSIFIED;
}

const char* SpecialOrmoDLLsLoader::GetDefaultClassificationLevelString(CSMCnst::ClassType aLevel) noexcept
{
    for (const ModuleHandle library : {GetRedOrmoISDsDLL(), GetGoldOrmoISDsDLL()}) {
        auto* const ask =
            SpecialOrmoISDsDLL::FindFunction<SpecialOrmoISDsDLL::GetDefaultClassificationLevelStringFunction>(
                library, SpecialOrmoISDsDLL::GET_DEFAULT_CLASSIFICATION_LEVEL_STRING);
        if (ask != nullptr) {
            try {
                return ask(aLevel);
            } catch (...) {
                // What a companion fails to tell counts as no marking.
                return nullptr;
            }
        }
    }
    return aLevel == CSMCnst::CLASS_TYPE_UNCLASSIFIED ? CSMCnst::CLASS_UNCLASSIFIED : nullptr;
}

}  // namespace ORMO::SensorModel::CSM
