#pragma once

#include "DesFieldSet.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class DesDESSHF;

/// The data of a DES (DESDATA), cut into the fields of its type. Made and destroyed by SupportedDESDATAs.
class ORMO_CSM_API DesDESDATA : public DesFieldSet
{
public:
    ~DesDESDATA() override;
    /// Replaces the fields by those of an object of the same class; raises RequestedOperationFailedException for
    /// another.
    DesDESDATA& operator=(const DesDESDATA& aOther);
    bool operator==(const DesDESDATA& aOther) const;
    bool operator!=(const DesDESDATA& aOther) const { return !(*this == aOther); }
    virtual std::unique_ptr<DesDESDATA> Clone() const = 0;

    /// The long name of the type; "UNKNOWN" before anything is read.
    const char* GetDESDATAName() const noexcept;
    /// The bytes as they stand in the file.
    const char* GetDataDESDATA() const noexcept { return Data().c_str(); }
    const char* GetDataDESDATA(std::size_t& aLength) const noexcept;
    /// The field names in the order of the bytes.
    const std::vector<const char*>* GetAllDesDESDATAFields() const { return FieldNames(); }
    /// What the data and their subheader fields say against one another; empty when they agree.
    virtual std::string CheckAgainst(const DesDESSHF& aSubheader) const = 0;

protected:
    DesDESDATA();
    DesDESDATA(const DesDESDATA& aOther);

    /// The field table of the type, with its names.
    virtual const Layout& InitDESDATAFieldsMap() const = 0;
    /// Takes a copy of the bytes and cuts them into fields. Raises UnsupportedDESDATAException for an identifier of
    /// another type and InitializationException when the bytes are missing or do not fit, or required fields are blank.
    void InitDesDESDATA(const char* aType, const char* aData, std::size_t aLength);
    virtual void Assign(const DesDESDATA& aOther);

private:
    const char* m_name;
};

}  // namespace ORMO::SensorModel::CSM
