#pragma once

#include "DesDESSHF.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// Subheader fields of a "CSATTA DES": when the attitudes of a satellite were taken (STDI-0002 Vol 2 App C).
class ORMO_CSM_API DesDESSHFCSATTA : public DesDESSHF
{
public:
    /// Raises as DesDESSHF::InitDesDESSHF says.
    DesDESSHFCSATTA(const char* aType, const char* aData, std::size_t aLength);
    std::unique_ptr<DesDESSHF> Clone() const override { return std::make_unique<DesDESSHFCSATTA>(*this); }

    /// The seconds between two attitudes; false when DT_ATT is no number.
    bool GetTimeStep(double& aSeconds) const { return GetFieldAsDouble("DT_ATT", aSeconds); }
    /// How many attitudes there are; false when NUM_ATT is no number.
    bool GetNumOfPoints(unsigned long& aCount) const { return GetFieldAsUnsignedLong("NUM_ATT", aCount); }

protected:
    const Layout& InitDESSHFFieldsMap() const override;
};

}  // namespace ORMO::SensorModel::CSM
