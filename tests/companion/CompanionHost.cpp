// What a host sees of the companions that are installed for it. Its arguments are a TFRD file and a NITF file.

#include "foundation/CSMExceptions.h"
#include "foundation/CSMSysSecurity.h"
#include "foundation/CSMUtilString.h"
#include "isd/ImageSupportData.h"
#include "isd/ImageSupportDataFactory.h"
#include "isd/SpecialOrmoDLLsLoader.h"
#include "isd/SpecialOrmoISDsDLL.h"
#include "tre/TREFactory.h"
#include "tre/TREStore.h"

#include <iostream>
#include <stdexcept>
#include <string>

using namespace ORMO::SensorModel::CSM;

namespace {

void PrintAlive()
{
    const SpecialOrmoDLLsLoader::ModuleHandle libraries[] = {SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL(),
                                                             SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL()};
    std::cout << "  alive";
    for (const SpecialOrmoDLLsLoader::ModuleHandle library : libraries) {
        int isds = 0;
        int tres = 0;
        int texts = 0;
        if (auto* const count = SpecialOrmoISDsDLL::FindFunction<void(int*, int*, int*)>(library, "CountAlive")) {
            count(&isds, &tres, &texts);
        }
        std::cout << ' ' << isds << tres << texts;
    }
    std::cout << '\n';
}

void MakeAndDestroy(const char* aPath)
{
    ImageSupportData* isd = nullptr;
    int version = 0;
    const char* format = nullptr;
    std::cout << "type " << ImageSupportDataFactory::ISDType(aPath, version, false);
    std::cout << " version " << version;
    std::cout << " supported " << ImageSupportDataFactory::IsSupportedISDFile(aPath, format) << ": ";
    try {
        ImageSupportDataFactory::Create(aPath, &isd, true, false);
        std::cout << (isd == nullptr ? "nothing" : isd->GetFileTypeAndVersion()) << '\n';
    } catch (const std::invalid_argument&) {
        std::cout << "invalid argument\n";
    } catch (const CSMException& exception) {
        std::cout << exception.GetAdditionalMessage() << '\n';
    }
    PrintAlive();
    ImageSupportDataFactory::Destroy(&isd);
    PrintAlive();
}

void ExtractSpecialTres()
{
    const char* const area = "XSPCLA00005plainXSPCLA00005throwXSPCLA00003bad";
    TREStore store;
    char* warnings = nullptr;
    TREFactory::ExtractTREs(area, store, false, false, &warnings, Util::CSMCnst::BYTE_ORDER_BIG_ENDIAN);
    const TREStore copies(store);
    for (const TRE* const tre : copies.InOrder()) {
        std::size_t length = 0;
        const char* const data = tre->GetRawTREDataString(length);
        std::cout << "TRE " << tre->GetTag() << " [" << std::string(data, length) << "] group "
                  << tre->GetSupportedTREFactoryCode() << " name " << tre->GetTREName() << '\n';
    }
    PrintAlive();
    const std::string text = warnings == nullptr ? "" : warnings;
    std::cout << "reason given: " << (text.find("refused by provider") != std::string::npos) << '\n';
    Util::CSMUtilString::DeleteCString(warnings);
}

}  // namespace

int main(int aCount, char** aArguments)
{
    const Util::CSMCnst::ClassType level = CSMSysSecurity::GetHighestClassificationLevel();
    std::cout << "level " << level << " [" << CSMSysSecurity::GetDefaultClassificationLevelString(level) << "]\n";
    for (const SpecialOrmoDLLStatus& status : SpecialOrmoDLLsLoader::GetStatusOfLibraries()) {
        if (status.isConfigured) {
            std::cout << status.library << ": " << (status.isInUse ? "in use" : status.reason) << '\n';
        }
    }
    for (int i = 1; i < aCount; ++i) {
        MakeAndDestroy(aArguments[i]);
    }
    ExtractSpecialTres();
    PrintAlive();
    return 0;
}
