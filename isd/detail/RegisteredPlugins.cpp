#include "isd/detail/RegisteredPlugins.h"

#include "isd/detail/CsmCall.h"

#include <algorithm>

#if !defined(_WIN32)
#include <dlfcn.h>
#endif

namespace ORMO::SensorModel::CSM::Detail {

namespace {

/// No plug-in has so many models; one that says so is not asked for longer.
constexpr int MOST_MODELS = 10000;

}  // namespace

std::vector<const TSMPlugin*> RegisteredPlugins()
{
    TSMPlugin::TSMPluginList* list = nullptr;
    AskCsm([&] { return TSMPlugin::getList(list); });
    // Before the first registration some base libraries have no list.
    return list == nullptr ? std::vector<const TSMPlugin*>()
                           : std::vector<const TSMPlugin*>(list->begin(), list->end());
}

std::vector<OfferedModel> ModelsOf(const TSMPlugin& aPlugin)
{
    std::vector<OfferedModel> models;
    int count = 0;
    if (!AskCsm([&] { return aPlugin.getNSensorModels(count); })) {
        return models;
    }
    for (int i = 0; i < std::min(count, MOST_MODELS); ++i) {
        OfferedModel model;
        if (!AskCsm([&] { return aPlugin.getSensorModelName(i, model.name); }) || model.name.empty()) {
            continue;
        }
        int version = 0;
        if (AskCsm([&] { return aPlugin.getSensorModelVersion(model.name, version); })) {
            model.version = std::to_string(version);
        }
        models.push_back(std::move(model));
    }
    return models;
}

std::string LibraryOf(const TSMPlugin& aPlugin)
{
#if defined(_WIN32)
    static_cast<void>(aPlugin);
    return {};
#else
    // An object begins with the address of its table of virtual operations, which stands in the library of its class.
    const void* const table = *reinterpret_cast<const void* const*>(&aPlugin);
    Dl_info info{};
    return dladdr(table, &info) != 0 && info.dli_fname != nullptr ? info.dli_fname : "";
#endif
}

}  // namespace ORMO::SensorModel::CSM::Detail
