#include "isd/detail/IsdCompanion.h"

#include "isd/SpecialOrmoDLLsLoader.h"

namespace ORMO::SensorModel::CSM::Detail {
namespace {

IsdCompanion Resolve(SpecialOrmoDLLsLoader::ModuleHandle aLibrary) noexcept
{
    using Dll = SpecialOrmoISDsDLL;
    IsdCompanion companion;
    companion.createISD = Dll::FindFunction<Dll::CreateISDFunction>(aLibrary, Dll::CREATE_ISD);
    companion.createIsdNITF = Dll::FindFunction<Dll::CreateIsdNITFFunction>(aLibrary, Dll::CREATE_ISD_NITF);
    companion.delISD = Dll::FindFunction<Dll::DelISDFunction>(aLibrary, Dll::DEL_ISD);
    companion.isdType = Dll::FindFunction<Dll::ISDTypeFunction>(aLibrary, Dll::ISD_TYPE);
    companion.isSupportedISDFile =
        Dll::FindFunction<Dll::IsSupportedISDFileFunction>(aLibrary, Dll::IS_SUPPORTED_ISD_FILE);
    return companion;
}

/// The first companion that can make ISDs with `aCreate` and release them again.
template<typename Function>
const IsdCompanion* FirstWith(Function* IsdCompanion::*aCreate)
{
    for (const IsdCompanion* const companion : {&IsdCompanion::Sci(), &IsdCompanion::Secret()}) {
        if (companion->*aCreate != nullptr && companion->delISD != nullptr) {
            return companion;
        }
    }
    return nullptr;
}

}  // namespace

const IsdCompanion& IsdCompanion::Sci()
{
    static const IsdCompanion companion = Resolve(SpecialOrmoDLLsLoader::GetRedOrmoISDsDLL());
    return companion;
}

const IsdCompanion& IsdCompanion::Secret()
{
    static const IsdCompanion companion = Resolve(SpecialOrmoDLLsLoader::GetGoldOrmoISDsDLL());
    return companion;
}

const IsdCompanion* IsdCompanion::Maker()
{
    return FirstWith(&IsdCompanion::createISD);
}

const IsdCompanion* IsdCompanion::NitfMaker()
{
    return FirstWith(&IsdCompanion::createIsdNITF);
}

void IsdCompanion::Offer(ImageSupportData*& aIsd) const noexcept
{
    if (aIsd == nullptr || delISD == nullptr) {
        return;
    }
    try {
        delISD(&aIsd);
    } catch (...) {
        // Nothing of ours can mend what the library could not release.
    }
}

}  // namespace ORMO::SensorModel::CSM::Detail
