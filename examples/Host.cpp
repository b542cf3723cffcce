// A host of the CSM API in a page: lists the plug-ins, opens a NITF file, shows what a sensor model would be given, and
// asks each sensor model that takes the first image where its reference point lies.
//
// ormo-example-host FILE [PLUGIN.so ...]

#include "foundation/CSMApi.h"
#include "foundation/CSMException.h"
#include "isd/ImageSupportData.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/TSMPluginInfo.h"

#include <cstdio>
#include <exception>
#include <iostream>
#include <memory>

#include <dlfcn.h>

using namespace ORMO::SensorModel::CSM;

namespace {

template<typename NitfISD>
void PrintIsd(const NitfISD& aIsd)
{
    std::cout << "  file header of " << aIsd.fileHeader.size() << " bytes, " << aIsd.numTREs << " TREs, "
              << aIsd.numDESs << " DESs, " << aIsd.numImages << " images\n";
    for (int i = 0; i != aIsd.numImages; ++i) {
        std::cout << "  image " << i << ":";
        for (int t = 0; t != aIsd.images[i].numTREs; ++t) {
            std::cout << ' ' << aIsd.images[i].imageTREs[t].name << '(' << aIsd.images[i].imageTREs[t].length << ')';
        }
        std::cout << '\n';
    }
}

void PrintModel(TSMSensorModel& aModel)
{
    double x = 0.0, y = 0.0, z = 0.0, line = 0.0, sample = 0.0, precision = 0.0;
    delete aModel.getReferencePoint(x, y, z);  // what is returned is a warning, the caller's, or null
    delete aModel.groundToImage(x, y, z, line, sample, precision);
    std::printf("  reference point %.3f %.3f %.3f is at line %.3f, sample %.3f\n", x, y, z, line, sample);
}

void Run(const char* aFile)
{
    for (const TSMPluginInfo& plugin : TSMPluginInfo::OfRegisteredPlugins()) {
        std::cout << "plug-in " << plugin.GetPluginName() << " of " << plugin.GetManufacturer() << '\n';
    }
    ImageSupportData* isd = nullptr;
    ImageSupportDataFactory::Create(aFile, &isd, true, false);
    const std::unique_ptr<ImageSupportData, void (*)(ImageSupportData*)> owner(
        isd, [](ImageSupportData* aIsd) { ImageSupportDataFactory::Destroy(&aIsd); });
    const tsm_ISD** forms = nullptr;
    std::size_t count = 0;
    isd->GetAllTsmISDs(forms, count);
    for (std::size_t i = 0; i != count; ++i) {
        std::string format;
        forms[i]->getFormat(format);
        std::cout << "ISD " << format << '\n';
        if (const auto* const nitf21 = dynamic_cast<const NITF_2_1_ISD*>(forms[i])) {
            PrintIsd(*nitf21);
        } else if (const auto* const nitf20 = dynamic_cast<const NITF_2_0_ISD*>(forms[i])) {
            PrintIsd(*nitf20);
        }
    }
    const char** names = nullptr;
    const char** versions = nullptr;
    isd->GetSensorModelsOfImageSegment(names, versions, count, 0);
    for (std::size_t i = 0; i != count; ++i) {
        std::cout << "model " << names[i] << " version " << versions[i] << '\n' << std::flush;
        const std::unique_ptr<TSMSensorModel> model(isd->GetTSMSensorModel(names[i], 0));
        if (model != nullptr) {
            PrintModel(*model);
        }
    }
}

}  // namespace

int main(int aCount, char** aArguments)
{
    // Loading is all it takes: a plug-in registers itself.
    for (int i = 2; i < aCount; ++i) {
        if (dlopen(aArguments[i], RTLD_NOW) == nullptr) {
            std::cerr << dlerror() << '\n';
        }
    }
    try {
        Run(aCount > 1 ? aArguments[1] : "");
        return 0;
    } catch (TSMError& error) {
        std::cerr << error.getFunction() << ": " << error.getMessage() << '\n';
    } catch (const CSMException& exception) {
        std::cerr << exception.GetErrorMessage() << ' ' << exception.GetAdditionalMessage() << '\n';
    } catch (const std::exception& exception) {
        std::cerr << exception.what() << '\n';
    }
    return 1;
}
