#pragma once

#include "../foundation/CSMApi.h"
#include "../foundation/Export.h"

namespace ORMO::SensorModel::CSM {

/// Carries a CSM API ISD to ImageSupportDataFactory, which tells by the class of the wrapper what it can do with it.
class ORMO_CSM_API WrapperCSMISD
{
public:
    virtual ~WrapperCSMISD() = default;
    WrapperCSMISD(const WrapperCSMISD&) = delete;
    WrapperCSMISD& operator=(const WrapperCSMISD&) = delete;

    /// The wrapped ISD, which stays the caller's and must outlive the wrapper; may be null.
    const tsm_ISD* GetTsmISD() const noexcept { return m_tsmISD; }

protected:
    explicit WrapperCSMISD(const tsm_ISD* aTsmISD) noexcept : m_tsmISD(aTsmISD) {}

private:
    const tsm_ISD* m_tsmISD;
};

}  // namespace ORMO::SensorModel::CSM
