#pragma once

#include "DesDESSHF.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// Subheader fields of a "CSSHPA DES": what a shapefile outlines and where its files are (STDI-0002 Vol 2 App D).
class ORMO_CSM_API DesDESSHFCSSHPA : public DesDESSHF
{
public:
    /// Raises as DesDESSHF::InitDesDESSHF says.
    DesDESSHFCSSHPA(const char* aType, const char* aData, std::size_t aLength);
    std::unique_ptr<DesDESSHF> Clone() const override { return std::make_unique<DesDESSHFCSSHPA>(*this); }

protected:
    const Layout& InitDESSHFFieldsMap() const override;
};

}  // namespace ORMO::SensorModel::CSM
