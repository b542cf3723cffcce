#pragma once

#include "DesFieldSet.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// The user-defined subheader fields of a DES (DESSHF), cut into the fields of its type. Made and destroyed by
/// SupportedDESSHFs.
class ORMO_CSM_API DesDESSHF : public DesFieldSet
{
public:
    ~DesDESSHF() override;
    /// Replaces the fields by those of an object of the same class; raises RequestedOperationFailedException for
    /// another.
    DesDESSHF& operator=(const DesDESSHF& aOther);
    bool operator==(const DesDESSHF& aOther) const;
    bool operator!=(const DesDESSHF& aOther) const { return !(*this == aOther); }
    virtual std::unique_ptr<DesDESSHF> Clone() const = 0;

    /// The long name of the type; "UNKNOWN" before anything is read.
    const char* GetDESSHFName() const noexcept;
    /// The bytes as they stand in the file.
    const char* GetDataDESSHF() const noexcept { return Data().c_str(); }
    const char* GetDataDESSHF(std::size_t& aLength) const noexcept;
    /// The field names in the order of the bytes.
    const std::vector<const char*>* GetAllDesDESSHFFields() const { return FieldNames(); }

protected:
    DesDESSHF();
    DesDESSHF(const DesDESSHF& aOther);

    /// The field table of the type, with its names.
    virtual const Layout& InitDESSHFFieldsMap() const = 0;
    /// Takes a copy of the bytes and cuts them into fields. Raises UnsupportedDESSHFException for an identifier of
    /// another type and InitializationException when the bytes are missing or do not fit, or required fields are blank.
    void InitDesDESSHF(const char* aType, const char* aData, std::size_t aLength);
    virtual void Assign(const DesDESSHF& aOther);

private:
    const char* m_name;
};

}  // namespace ORMO::SensorModel::CSM
