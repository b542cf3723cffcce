#pragma once

#include "ITSMISDCreator.h"

namespace ORMO::SensorModel::CSM {

/// Makes a filenameISD that holds the path.
class ORMO_CSM_API TSMISDCreatorFileName : public ITSMISDCreator
{
public:
    void Create(const char* aPath, tsm_ISD** aTsmISD) override;
};

// The other four check their arguments and make nothing, so that `*aTsmISD` stays as it was: the content of these kinds
// comes from a file that was read, ImageSupportDataNITF::SetTSMISD and GetAllTsmISDs, never from a bare name.

/// For bytestreamISD.
class ORMO_CSM_API TSMISDCreatorByteStream : public ITSMISDCreator
{
public:
    void Create(const char* aPath, tsm_ISD** aTsmISD) override;
};

/// For NITF_2_0_ISD.
class ORMO_CSM_API TSMISDCreatorNITF20 : public ITSMISDCreator
{
public:
    void Create(const char* aPath, tsm_ISD** aTsmISD) override;
};

/// For NITF_2_1_ISD.
class ORMO_CSM_API TSMISDCreatorNITF21 : public ITSMISDCreator
{
public:
    void Create(const char* aPath, tsm_ISD** aTsmISD) override;
};

/// For OrmoTSMISD.
class ORMO_CSM_API TSMISDCreatorOrmoTSMISD : public ITSMISDCreator
{
public:
    void Create(const char* aPath, tsm_ISD** aTsmISD) override;
};

}  // namespace ORMO::SensorModel::CSM
