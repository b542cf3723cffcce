#include "foundation/CSMSysSecurity.h"
#include "isd/OrmoCSMPlugin.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/TSMPluginInfo.h"
#include "tools/Commands.h"
#include "tools/Isd.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <dlfcn.h>

namespace OrmoNitf {

using namespace ORMO::SensorModel::CSM;

namespace {

void PrintPlugin(const TSMPluginInfo& aPlugin, const std::string& aOwnName)
{
    std::cout << aPlugin.GetPluginName() << (aPlugin.GetPluginName() == aOwnName ? "  (this library)" : "") << '\n'
              << "  manufacturer:   " << aPlugin.GetManufacturer() << '\n'
              << "  release date:   " << aPlugin.GetPluginReleaseDate() << '\n'
              << "  library:        " << aPlugin.GetLibraryName() << '\n';
    for (int i = 0; i != aPlugin.GetTotalNumberOfSensorModelsInPlugin(); ++i) {
        std::cout << (i == 0 ? "  sensor models:  " : ", ") << aPlugin.GetSensorModelName(i);
    }
    std::cout << '\n';
}

const char* LevelName(Util::CSMCnst::ClassType aLevel)
{
    switch (aLevel) {
        case Util::CSMCnst::CLASS_TYPE_SCI:
            return "SCI";
        case Util::CSMCnst::CLASS_TYPE_SECRET:
            return "SECRET";
        default:
            return "unclassified";
    }
}

void PrintCompanion(const SpecialOrmoDLLStatus& aStatus)
{
    std::cout << aStatus.library << ": " << (aStatus.isInUse ? "in use" : "absent") << '\n'
              << "  file:           " << aStatus.fileName << '\n'
              << "  named by:       "
              << (aStatus.isConfigured ? std::string("property ") + aStatus.propertyKey
                                       : std::string("default; property ") + aStatus.propertyKey + " is not set")
              << '\n';
    if (!aStatus.isInUse) {
        std::string reason = aStatus.reason;
        std::replace(reason.begin(), reason.end(), '\n', ' ');
        std::cout << "  reason:         " << reason << '\n';
    }
}

int Plugin(const std::vector<std::string>& aLibraries)
{
    int exitCode = EXIT_DONE;
    for (const std::string& library : aLibraries) {
        if (dlopen(library.c_str(), RTLD_NOW | RTLD_NOLOAD) != nullptr) {
            continue;  // it stands in the list already
        }
        const std::size_t before = TSMPluginInfo::OfRegisteredPlugins().size();
        if (dlopen(library.c_str(), RTLD_NOW) == nullptr) {
            PrintProblem(library, std::string("ERROR: The library cannot be loaded: ") + dlerror());
            exitCode = EXIT_WRONG_USE;
        } else if (TSMPluginInfo::OfRegisteredPlugins().size() == before) {
            PrintProblem(library,
                         "WARN: The library was loaded and registered no plug-in with the CSM API library of this "
                         "program. It may be linked with another one.");
            exitCode = EXIT_FILE_HAS_ERRORS;
        }
    }
    std::string own;
    OrmoCSMPlugin::Instance().getPluginName(own);
    for (const TSMPluginInfo& plugin : TSMPluginInfo::OfRegisteredPlugins()) {
        PrintPlugin(plugin, own);
    }
    const Util::CSMCnst::ClassType level = CSMSysSecurity::GetHighestClassificationLevel();
    std::cout << "classification level: " << LevelName(level) << ", default marking \""
              << CSMSysSecurity::GetDefaultClassificationLevelString(level) << "\"\n";
    for (const SpecialOrmoDLLStatus& status : SpecialOrmoDLLsLoader::GetStatusOfLibraries()) {
        PrintCompanion(status);
    }
    return exitCode;
}

Action DeclarePlugin(CLI::App& aApp)
{
    auto libraries = std::make_shared<std::vector<std::string>>();
    aApp.add_option("LIBRARY", *libraries, "Plug-in libraries to load first");
    return [libraries] { return Plugin(*libraries); };
}

}  // namespace

constexpr Command PLUGIN{
    .name = "plugin",
    .summary = "The CSM plug-in, the plug-ins registered beside it, companion libraries, classification level",
    .examples =
        "plugin\n"
        "plugin ./libmodels.so",
    .exitCodes = "0 done, 1 a library that brings no plug-in, 2 wrong use or a library that cannot be loaded",
    .declare = DeclarePlugin};

}  // namespace OrmoNitf
