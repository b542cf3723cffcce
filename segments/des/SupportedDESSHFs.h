#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class DesDESSHF;

/// Chooses the class that reads the DESSHF of a DES type; never instantiated. Identifiers are compared exactly, the
/// blanks around them left out.
class ORMO_CSM_API SupportedDESSHFs
{
public:
    static constexpr const char* CSATTA = "CSATTA DES";
    static constexpr const char* CSSHPA = "CSSHPA DES";
    static constexpr const char* XML_DATA_CONTENT = "XML_DATA_CONTENT";
    static constexpr const char* CSATTB = "CSATTB";
    static constexpr const char* CSCSDB = "CSCSDB";
    static constexpr const char* CSEPHB = "CSEPHB";
    static constexpr const char* CSSFAB = "CSSFAB";
    static constexpr const char* CSSHPB = "CSSHPB DES";
    static constexpr const char* EXT_DEF_CONTENT = "EXT_DEF_CONTENT";
    static constexpr const char* LIDARA = "LIDARA DES";

    static const std::vector<const char*>& GetAllSupportedDESSHFs();
    static bool AbleToCreateDESSHF(const char* aType) noexcept;
    /// Makes an object from the bytes; the caller releases it with DestroyDESSHF. False, with the reason in `aMessage`
    /// when that is given (a new text that the caller frees with CSMUtilString::DeleteCString), when none is made. A
    /// type that is not known gives a warning.
    static bool CreateDESSHF(const char* aType, const char* aData, std::size_t aLength, DesDESSHF** aDESSHF,
                             char** aMessage);
    /// The same for NUL-terminated bytes.
    static bool CreateDESSHF(const char* aType, const char* aData, DesDESSHF** aDESSHF, char** aMessage);
    /// Releases the object and nulls the pointer.
    static void DestroyDESSHF(DesDESSHF** aDESSHF) noexcept;

protected:
    /// Whether all that CreateDESSHF needs is there; the text says what is not.
    static bool ValidateInputs(const char* aType, const char* aData, std::size_t aLength,
                               const DesDESSHF* const* aDESSHF, std::string& aMessage);

private:
    SupportedDESSHFs();
};

}  // namespace ORMO::SensorModel::CSM
