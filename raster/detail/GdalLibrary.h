#pragma once

#include <string>
#include <string_view>

#include <dlfcn.h>

namespace ORMO::SensorModel::CSM::Detail {

/// A function of the library that holds all that needs GDAL. The library is looked for beside the code of which
/// `aBeside` is an address, then where the system looks; it stays loaded. `aIsRight` says whether a function is that of
/// the version wanted. Null, with the reason, when there is none.
template<typename Function, typename IsRight>
Function FindInGdalLibrary(const void* aBeside, const char* aLibrary, const char* aFunction, const IsRight& aIsRight,
                           std::string& aReason)
{
    Dl_info info{};
    std::string own;
    if (dladdr(aBeside, &info) != 0 && info.dli_fname != nullptr) {
        const std::string_view path(info.dli_fname);
        own = path.substr(0, path.rfind('/') + 1);
    }
    for (const std::string& place : {own + aLibrary, std::string(aLibrary)}) {
        void* const library = dlopen(place.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            const char* const why = dlerror();
            aReason = why == nullptr ? place + " cannot be loaded" : why;
            continue;
        }
        auto* const function = reinterpret_cast<Function>(dlsym(library, aFunction));
        if (function != nullptr && aIsRight(function)) {
            aReason.clear();
            return function;
        }
        aReason = place + " is of another version";
        dlclose(library);
    }
    return nullptr;
}

}  // namespace ORMO::SensorModel::CSM::Detail
