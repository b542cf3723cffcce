#include "isd/ITSMISDCreator.h"

#include "isd/OrmoTSMISD.h"
#include "isd/detail/CsmRecords.h"

#include <exception>
#include <memory>

namespace ORMO::SensorModel::CSM {

namespace {

std::unique_ptr<tsm_ISD> CopyOf(const bytestreamISD& aSource)
{
    auto copy = std::make_unique<bytestreamISD>();
    copy->_isd = aSource._isd;
    return copy;
}

std::unique_ptr<tsm_ISD> CopyOf(const OrmoTSMISD& aSource)
{
    return std::make_unique<OrmoTSMISD>(aSource);
}

std::unique_ptr<tsm_ISD> CopyOf(const filenameISD& aSource)
{
    auto copy = std::make_unique<filenameISD>();
    copy->_filename = aSource._filename;
    return copy;
}

template<typename NitfISD>
std::unique_ptr<tsm_ISD> CopyOf(const NitfISD& aSource)
{
    auto copy = std::make_unique<NitfISD>();
    Detail::CopyNitfIsd(aSource, *copy);
    return copy;
}

/// Copies the source if it is of the class.
template<typename Class>
bool CloneAs(const tsm_ISD& aSource, SupportedTSMISD::ISDType aKind, SupportedTSMISD::ISDType& aType,
             std::unique_ptr<tsm_ISD>& aCopy)
{
    const auto* const source = dynamic_cast<const Class*>(&aSource);
    if (source == nullptr) {
        return false;
    }
    aCopy = CopyOf(*source);
    aType = aKind;
    return true;
}

}  // namespace

ITSMISDCreator::~ITSMISDCreator() = default;

bool ITSMISDCreator::CloneTSMISD(const tsm_ISD& aSource, SupportedTSMISD::ISDType& aType, tsm_ISD** aTsmISD) noexcept
{
    if (aTsmISD == nullptr) {
        return false;
    }
    std::unique_ptr<tsm_ISD> copy;
    try {
        if (!CloneAs<bytestreamISD>(aSource, SupportedTSMISD::ISD_TYPE_BYTE_STREAM, aType, copy) &&
            !CloneAs<OrmoTSMISD>(aSource, SupportedTSMISD::ISD_TYPE_ORMO, aType, copy) &&
            !CloneAs<filenameISD>(aSource, SupportedTSMISD::ISD_TYPE_FILE_NAME, aType, copy) &&
            !CloneAs<NITF_2_0_ISD>(aSource, SupportedTSMISD::ISD_TYPE_NITF20, aType, copy) &&
            !CloneAs<NITF_2_1_ISD>(aSource, SupportedTSMISD::ISD_TYPE_NITF21, aType, copy)) {
            return false;
        }
    } catch (const std::exception&) {
        // Memory is short: what was copied so far is gone with `copy`.
        return false;
    }
    *aTsmISD = copy.release();
    return true;
}

}  // namespace ORMO::SensorModel::CSM
