#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// Bytes of a DES that are cut into the fields of their type: what DesDESSHF and DesDESDATA share. Nothing changes
/// after construction; texts that queries hand out belong to the object.
class ORMO_CSM_API DesFieldSet
{
public:
    /// What the object holds, and the field table of a type: known to the library only.
    struct Parts;
    struct Layout;

    /// The identifier of the type, such as "CSATTA DES"; "UNKNOWN" before anything is read.
    const char* GetUniqueDESTypeID() const noexcept;

    // The value of a field; false for an unknown name or when it does not convert.
    bool GetFieldAsBool(const char* aName, bool& aValue) const;
    bool GetFieldAsDouble(const char* aName, double& aValue) const;
    bool GetFieldAsLong(const char* aName, long& aValue) const;
    /// The bytes exactly as stored, padding included, with a NUL behind them.
    bool GetFieldAsString(const char* aName, const char*& aValue, std::size_t& aLength) const;
    bool GetFieldAsUnsignedLong(const char* aName, unsigned long& aValue) const;
    bool IsFieldEditable(const char* aName) const;
    /// 1 when the type allows the value for the field, 0 when not, -1 when the field or value is unknown. Fields of the
    /// type that these bytes have not are known too.
    int IsFieldValueInRange(const char* aName, const char* aValue) const;
    /// Number of fields with values that the type does not allow; appends one line for each to `aErrors`, and one that
    /// begins "WARN: " for an optional field, which is not counted.
    int ValidateFieldValues(std::string& aErrors) const;

    /// The value of a field as stored; an empty view with a null pointer when it is not there.
    std::string_view FieldText(std::string_view aName) const noexcept;
    std::size_t GetNumOfFields() const noexcept;
    /// One field by its place.
    bool GetFieldAt(std::size_t aIndex, std::string& aName, const char*& aValue, std::size_t& aLength) const;
    /// Appends one XML element per field, each on a line behind the indent.
    void AppendXml(std::string& aXml, const char* aIndent, const char* aElement) const;

protected:
    DesFieldSet();
    DesFieldSet(const DesFieldSet& aOther);
    DesFieldSet& operator=(const DesFieldSet& aOther);
    virtual ~DesFieldSet();

    bool Equals(const DesFieldSet& aOther) const noexcept;
    /// Takes a copy of the bytes; raises InitializationException when there are none or the identifier is blank.
    void TakeData(const char* aType, const char* aData, std::size_t aLength, const char* aMessage, const char* aSource);
    /// Cuts the bytes into the fields of the layout; `aArea` is "DESSHF" or "DESDATA". Raises InitializationException
    /// when the bytes do not fit or required fields are blank.
    void CutFields(const Layout& aLayout, const char* aArea);
    const std::string& Data() const noexcept;
    /// The names of all fields in their order, listed when first asked for.
    const std::vector<const char*>* FieldNames() const;

private:
    std::unique_ptr<Parts> m_parts;  // never null
};

}  // namespace ORMO::SensorModel::CSM
