#pragma once

#include "isd/SpecialOrmoISDsDLL.h"

namespace ORMO::SensorModel::CSM::Detail {

/// The entry points of a companion ISD library, found once per process; all null when the library is absent.
struct IsdCompanion
{
    SpecialOrmoISDsDLL::CreateISDFunction* createISD = nullptr;
    SpecialOrmoISDsDLL::CreateIsdNITFFunction* createIsdNITF = nullptr;
    SpecialOrmoISDsDLL::DelISDFunction* delISD = nullptr;
    SpecialOrmoISDsDLL::ISDTypeFunction* isdType = nullptr;
    SpecialOrmoISDsDLL::IsSupportedISDFileFunction* isSupportedISDFile = nullptr;

    static const IsdCompanion& Sci();
    static const IsdCompanion& Secret();

    /// The library that makes and releases ISDs: the SCI one, else the SECRET one; null when neither is there.
    static const IsdCompanion* Maker();
    /// The same for the NITF factory.
    static const IsdCompanion* NitfMaker();

    /// Offers an ISD to the library, which nulls the pointer of one that it made. A failure is the library's own and
    /// leaves the pointer.
    void Offer(ImageSupportData*& aIsd) const noexcept;
};

}  // namespace ORMO::SensorModel::CSM::Detail
