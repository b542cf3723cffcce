#include "isd/SpecialOrmoDLLsLoader.h"

#include "foundation/CSMSysProperties.h"
#include "foundation/CSMUtilString.h"
#include "isd/SpecialOrmoISDsDLL.h"

#include <atomic>
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

/// Where a companion library is looked for.
struct Place
{
    const char* library;
    const char* propertyKey;
    const char* defaultName;
};

constexpr Place GOLD_ISD{"SECRET ISD library", CSMCnst::PropertyKey::TALVIK_G_ISD_DLL,
                         CSMCnst::SPECIAL_GOLD_DLL_ISD_DEFAULT_NM};
constexpr Place GOLD_MENSURATION{"SECRET mensuration library", CSMCnst::PropertyKey::TALVIK_G_MSP_TOOLKIT,
                                 CSMCnst::SPECIAL_GOLD_DLL_MS_DEFAULT_NM};
constexpr Place GOLD_SENSOR_MODELS{"SECRET sensor-models library", CSMCnst::PropertyKey::TALVIK_G_SENSOR_MODELS_SYS_DLL,
                                   CSMCnst::SPECIAL_GOLD_DLL_SS_DEFAULT_NM};
constexpr Place RED_ISD{"SCI ISD library", CSMCnst::PropertyKey::TALVIK_R_SENSOR_SYS_DLL,
                        CSMCnst::SPECIAL_RED_DLL_ISD_DEFAULT_NM};

/// What became of a library: its handle, or why there is none.
struct Outcome
{
    ModuleHandle handle = nullptr;
    std::string reason;
};

std::string ConfiguredName(const Place& aPlace)
{
    const char* value = nullptr;
    return CSMSysProperties::GetProperty(aPlace.propertyKey, value) ? Util::CSMUtilString::Trim(value) : std::string();
}

std::string FileName(const Place& aPlace)
{
    std::string name = ConfiguredName(aPlace);
    return name.empty() ? aPlace.defaultName : name;
}

/// Loads the library and keeps it if `aFault` finds none in it; an empty text is no fault. Never throws.
template<typename Fault>
Outcome Load(const Place& aPlace, Fault aFault) noexcept
{
    try {
        Outcome outcome;
        const std::string fileName = FileName(aPlace);
        if (!CSMUtilWindows::LoadModule(fileName.c_str(), outcome.handle, outcome.reason)) {
            return outcome;
        }
        Library library(outcome.handle);
        outcome.handle = nullptr;
        outcome.reason = aFault(library.get());
        if (outcome.reason.empty()) {
            outcome.handle = library.release();
        }
        return outcome;
    } catch (...) {
        // A companion is optional: without memory to look for it the installation works as if it were absent.
        return {};
    }
}

std::string IsdLibraryFault(ModuleHandle aLibrary)
{
    const char* const missing = SpecialOrmoISDsDLL::FirstMissingExport(aLibrary);
    return missing == nullptr ? std::string() : std::string("It does not export ") + missing + ".";
}

std::string MissingExport(ModuleHandle aLibrary, const char* const* aNames, std::size_t aCount)
{
    for (std::size_t i = 0; i != aCount; ++i) {
        if (aNames == nullptr || aNames[i] == nullptr) {
            return "The list of required exports holds a null name.";
        }
        if (SpecialOrmoISDsDLL::FindExport(aLibrary, aNames[i]) == nullptr) {
            return std::string("It does not export ") + aNames[i] + ".";
        }
    }
    return {};
}

const Outcome& GoldIsd() noexcept
{
    static const Outcome outcome = Load(GOLD_ISD, IsdLibraryFault);
    return outcome;
}

const Outcome& GoldMensuration() noexcept
{
    static const Outcome outcome = Load(GOLD_MENSURATION, [](ModuleHandle) { return std::string(); });
    return outcome;
}

const Outcome& RedIsd() noexcept
{
    static const Outcome outcome = Load(RED_ISD, IsdLibraryFault);
    return outcome;
}

/// The decision about the sensor-models library; null before the first call of GetGoldOrmoSSsDLL.
std::atomic<const Outcome*> g_sensorModels{nullptr};

Outcome SensorModelsSoFar()
{
    if (const Outcome* const decided = g_sensorModels.load()) {
        return *decided;
    }
    return Load(GOLD_SENSOR_MODELS, [](ModuleHandle) -> std::string {
        return "It can be loaded; nobody has asked for it yet with the list of exports that it must have.";
    });
}

SpecialOrmoDLLStatus StatusOf(const Place& aPlace, const Outcome& aOutcome)
{
    SpecialOrmoDLLStatus status;
    status.library = aPlace.library;
    status.propertyKey = aPlace.propertyKey;
    status.fileName = FileName(aPlace);
    status.isConfigured = !ConfiguredName(aPlace).empty();
    status.isInUse = aOutcome.handle != nullptr;
    status.reason = aOutcome.reason;
    if (!status.isInUse && status.reason.empty()) {
        status.reason = "There was not enough memory to look for it.";
    }
    return status;
}

}  // namespace

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL() noexcept
{
    return GoldIsd().handle;
}

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoMSPTkDLL() noexcept
{
    return GoldMensuration().handle;
}

ModuleHandle SpecialOrmoDLLsLoader::GetGoldOrmoSSsDLL(const char**& aRequiredExports, std::size_t aCount) noexcept
{
    static const Outcome outcome = Load(
        GOLD_SENSOR_MODELS, [&](ModuleHandle aLibrary) { return MissingExport(aLibrary, aRequiredExports, aCount); });
    g_sensorModels = &outcome;
    return outcome.handle;
}

ModuleHandle SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL() noexcept
{
    return RedIsd().handle;
}

std::vector<SpecialOrmoDLLStatus> SpecialOrmoDLLsLoader::GetStatusOfLibraries()
{
    return {StatusOf(RED_ISD, RedIsd()), StatusOf(GOLD_ISD, GoldIsd()), StatusOf(GOLD_MENSURATION, GoldMensuration()),
            StatusOf(GOLD_SENSOR_MODELS, SensorModelsSoFar())};
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
