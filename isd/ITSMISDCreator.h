#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"
#include "SupportedTSMISD.h"

namespace ORMO::SensorModel::CSM {

/// Makes CSM API ISDs of one kind from the name of an image file. Creators have no state; TSMISDFactory chooses among
/// them by SupportedTSMISD::ISDType.
class ORMO_CSM_API ITSMISDCreator
{
public:
    virtual ~ITSMISDCreator();

    /// Every creator throws std::invalid_argument for a null output and FileAccessException for a path that leads to no
    /// file. What is made belongs to the caller, who releases it with TSMISDFactory::DeleteISD.
    virtual void Create(const char* aPath, tsm_ISD** aTsmISD) = 0;

    /// A deep copy of an ISD of one of the five kinds, whatever the copy constructors of the CSM API's own classes do;
    /// an ISD of a class derived from one of them is copied as that one. False, with the outputs as they were, for a
    /// null output and for any other class, and when memory is short.
    static bool CloneTSMISD(const tsm_ISD& aSource, SupportedTSMISD::ISDType& aType, tsm_ISD** aTsmISD) noexcept;

protected:
    ITSMISDCreator() = default;
    ITSMISDCreator(const ITSMISDCreator&) = default;
    ITSMISDCreator& operator=(const ITSMISDCreator&) = default;
};

}  // namespace ORMO::SensorModel::CSM
