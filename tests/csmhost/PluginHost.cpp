// A host of the CSM API as they are written for this generation, readable to C++11: it knows nothing of the library but
// the name of its plug-in, and prints what every query answers. With an argument it loads that library first.

#include "TSMISDByteStream.h"
#include "TSMISDFilename.h"
#include "TSMISDNITF20.h"
#include "TSMISDNITF21.h"
#include "TSMPlugin.h"
#include "TSMWarning.h"

#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

#include <dlfcn.h>

namespace {

class ForeignISD : public tsm_ISD
{
public:
    ForeignISD() { _format = "NITF2.1"; }
};

class NamedBytes : public bytestreamISD
{
};

/// Prints an answer, or the error that came in its place.
template<typename Ask>
void Print(const char* aWhat, Ask aAsk)
{
    std::cout << aWhat << ": ";
    try {
        std::cout << aAsk();
    } catch (TSMError& error) {
        std::cout << "error " << error.getError() << " [" << error.getMessage() << "] " << error.getFunction();
    }
    std::cout << '\n';
}

/// The answer, marked when a warning came with it. It is passed by reference and so read after the query has filled it.
template<typename Answer>
std::string Answered(TSMWarning* aWarning, const Answer& aAnswer)
{
    const bool isWarning = aWarning != nullptr;
    delete aWarning;
    std::ostringstream text;
    text << (isWarning ? "warned " : "") << aAnswer;
    return text.str();
}

void PrintNames(const TSMPlugin& aPlugin)
{
    std::string text;
    Print("getManufacturer", [&] { return Answered(aPlugin.getManufacturer(text), text); });
    Print("getPluginName", [&] { return Answered(aPlugin.getPluginName(text), text); });
    Print("getReleaseDate", [&] { return Answered(aPlugin.getReleaseDate(text), text); });
    int count = 99;
    Print("getNSensorModels", [&] { return Answered(aPlugin.getNSensorModels(count), count); });
    const int indices[] = {0, 1, -1};
    for (int index : indices) {
        text = "before";
        Print("getSensorModelName", [&] { return Answered(aPlugin.getSensorModelName(index, text), text); });
        std::cout << "  name is now [" << text << "]\n";
    }
    Print("getSensorModelNameFromSensorModelState",
          [&] { return Answered(aPlugin.getSensorModelNameFromSensorModelState("ORMO_CSM", text), text); });
}

void PrintQueries(const TSMPlugin& aPlugin, const tsm_ISD& aIsd, const std::string& aName)
{
    std::cout << "model [" << aName << "]\n";
    int version = 0;
    Print("getSensorModelVersion", [&] { return Answered(aPlugin.getSensorModelVersion(aName, version), version); });
    bool result = true;
    Print("canSensorModelBeConstructedFromState",
          [&] { return Answered(aPlugin.canSensorModelBeConstructedFromState(aName, "state", result), result); });
    result = false;
    Print("canSensorModelBeConstructedFromISD",
          [&] { return Answered(aPlugin.canSensorModelBeConstructedFromISD(aIsd, aName, result), result); });
    result = false;
    Print("canISDBeConvertedToSensorModelState",
          [&] { return Answered(aPlugin.canISDBeConvertedToSensorModelState(aIsd, aName, result), result); });
    std::string state = "before";
    Print("convertISDToSensorModelState",
          [&] { return Answered(aPlugin.convertISDToSensorModelState(aIsd, aName, state), "converted"); });
    std::cout << "  state is now [" << state << "]\n";
    TSMSensorModel* model = reinterpret_cast<TSMSensorModel*>(&result);
    Print("constructSensorModelFromISD",
          [&] { return Answered(aPlugin.constructSensorModelFromISD(aIsd, aName, model), "constructed"); });
    std::cout << "  model is " << (model == nullptr ? "null" : "set") << '\n';
}

template<typename Isd>
void PrintSupport(const TSMPlugin& aPlugin, const char* aClass)
{
    const Isd isd;
    bool result = false;
    delete aPlugin.canSensorModelBeConstructedFromISD(isd, "ormo_csm", result);
    std::cout << aClass << ' ' << (result ? "yes" : "no") << '\n';
}

int CountPlugins(const std::string& aName)
{
    TSMPlugin::TSMPluginList* list = nullptr;
    delete TSMPlugin::getList(list);
    int count = 0;
    for (const TSMPlugin* plugin : *list) {
        std::string name;
        delete plugin->getPluginName(name);
        count += name == aName ? 1 : 0;
    }
    return count;
}

}  // namespace

int main(int aCount, char** aArguments)
{
    const std::string name = "ORMO_CSM_PLUGIN";
    void* library = nullptr;
    if (aCount > 1) {
        std::cerr << "registered before: " << CountPlugins(name) << '\n';
        library = dlopen(aArguments[1], RTLD_NOW | RTLD_LOCAL);
        if (library == nullptr) {
            std::cerr << dlerror() << '\n';
            return 2;
        }
    }
    std::cout << "registered: " << CountPlugins(name) << '\n';
    TSMPlugin* plugin = nullptr;
    if (TSMWarning* const warning = TSMPlugin::findPlugin(name, plugin)) {
        std::cerr << warning->getMessage();
        delete warning;
        return 1;
    }
    PrintNames(*plugin);
    PrintQueries(*plugin, filenameISD(), "Ormo_Csm");
    PrintQueries(*plugin, ForeignISD(), "ORMO_CSM");
    PrintQueries(*plugin, filenameISD(), "ORMO_CSM ");
    PrintQueries(*plugin, filenameISD(), "");
    TSMSensorModel* model = reinterpret_cast<TSMSensorModel*>(plugin);
    Print("constructSensorModelFromState",
          [&] { return Answered(plugin->constructSensorModelFromState("state", model), "constructed"); });
    std::cout << "  model is " << (model == nullptr ? "null" : "set") << '\n';
    PrintSupport<bytestreamISD>(*plugin, "bytestreamISD");
    PrintSupport<filenameISD>(*plugin, "filenameISD");
    PrintSupport<NITF_2_0_ISD>(*plugin, "NITF_2_0_ISD");
    PrintSupport<NITF_2_1_ISD>(*plugin, "NITF_2_1_ISD");
    PrintSupport<NamedBytes>(*plugin, "a class derived from bytestreamISD");
    PrintSupport<tsm_ISD>(*plugin, "tsm_ISD");
    if (library != nullptr) {
        dlclose(library);
        std::cerr << "registered after: " << CountPlugins(name) << '\n';
    }
    return 0;
}
