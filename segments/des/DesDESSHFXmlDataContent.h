#pragma once

#include "DesDESSHF.h"

#include <cstddef>
#include <memory>

namespace ORMO::SensorModel::CSM {

/// Subheader fields of an "XML_DATA_CONTENT" DES: what its XML document is about (STDI-0002 Vol 2 App F).
class ORMO_CSM_API DesDESSHFXmlDataContent : public DesDESSHF
{
public:
    /// Raises as DesDESSHF::InitDesDESSHF says.
    DesDESSHFXmlDataContent(const char* aType, const char* aData, std::size_t aLength);
    std::unique_ptr<DesDESSHF> Clone() const override { return std::make_unique<DesDESSHFXmlDataContent>(*this); }

protected:
    const Layout& InitDESSHFFieldsMap() const override;
};

}  // namespace ORMO::SensorModel::CSM
