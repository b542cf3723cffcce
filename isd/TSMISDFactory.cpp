#include "isd/TSMISDFactory.h"

#include "foundation/CSMExceptions.h"
#include "isd/OrmoTSMISD.h"
#include "isd/TSMISDCreators.h"

#include <memory>
#include <stdexcept>

namespace ORMO::SensorModel::CSM {

namespace {

std::unique_ptr<ITSMISDCreator> CreatorOf(SupportedTSMISD::ISDType aType)
{
    switch (aType) {
        case SupportedTSMISD::ISD_TYPE_BYTE_STREAM:
            return std::make_unique<TSMISDCreatorByteStream>();
        case SupportedTSMISD::ISD_TYPE_FILE_NAME:
            return std::make_unique<TSMISDCreatorFileName>();
        case SupportedTSMISD::ISD_TYPE_NITF20:
            return std::make_unique<TSMISDCreatorNITF20>();
        case SupportedTSMISD::ISD_TYPE_NITF21:
            return std::make_unique<TSMISDCreatorNITF21>();
        case SupportedTSMISD::ISD_TYPE_ORMO:
            return std::make_unique<TSMISDCreatorOrmoTSMISD>();
        default:
            throw UnsupportedTSMISDTypeException("TSMISDFactory::CreateISD");
    }
}

template<typename Class>
bool Is(const tsm_ISD& aTsmISD)
{
    return dynamic_cast<const Class*>(&aTsmISD) != nullptr;
}

}  // namespace

void TSMISDFactory::CreateISD(const char* aPath, SupportedTSMISD::ISDType aType, tsm_ISD** aTsmISD)
{
    if (aTsmISD == nullptr) {
        throw std::invalid_argument("Input argument \"aTsmISD\" cannot be NULL.");
    }
    CreatorOf(aType)->Create(aPath, aTsmISD);
}

bool TSMISDFactory::IsSupportedISD(const tsm_ISD& aTsmISD) noexcept
{
    return Is<bytestreamISD>(aTsmISD) || Is<OrmoTSMISD>(aTsmISD) || Is<filenameISD>(aTsmISD) ||
           Is<NITF_2_0_ISD>(aTsmISD) || Is<NITF_2_1_ISD>(aTsmISD);
}

void TSMISDFactory::DeleteISD(tsm_ISD** aTsmISD) noexcept
{
    if (aTsmISD != nullptr) {
        delete *aTsmISD;
        *aTsmISD = nullptr;
    }
}

}  // namespace ORMO::SensorModel::CSM
