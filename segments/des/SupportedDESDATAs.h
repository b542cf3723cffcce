#pragma once

#include "../../foundation/Export.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

class DesDESDATA;

/// Chooses the class that reads the DESDATA of a DES type; never instantiated. Identifiers are compared exactly, the
/// blanks around them left out.
class ORMO_CSM_API SupportedDESDATAs
{
public:
    static constexpr const char* DES_CSATTA = "CSATTA DES";
    static constexpr const char* DES_CSSHPA = "CSSHPA DES";
    static constexpr const char* CSATTB = "CSATTB";
    static constexpr const char* CSCSDB = "CSCSDB";
    static constexpr const char* CSEPHB = "CSEPHB";
    static constexpr const char* CSSFAB = "CSSFAB";

    static const std::vector<const char*>& GetAllSupportedDESDATAs();
    static bool AbleToCreateDESDATA(const char* aType) noexcept;
    /// The most bytes that the data of a type can have; 0 when its layout sets no bound, or is not known.
    static std::size_t GetMostBytes(const char* aType) noexcept;
    /// Makes an object from the bytes; the caller releases it with DestroyDESDATA. False, with the reason in `aMessage`
    /// when that is given (a new text that the caller frees with CSMUtilString::DeleteCString), when none is made. A
    /// type that is not known gives a warning.
    static bool CreateDESDATA(const char* aType, const char* aData, std::size_t aLength, DesDESDATA** aDESDATA,
                              char** aMessage);
    /// The same for NUL-terminated bytes.
    static bool CreateDESDATA(const char* aType, const char* aData, DesDESDATA** aDESDATA, char** aMessage);
    /// Releases the object and nulls the pointer.
    static void DestroyDESDATA(DesDESDATA** aDESDATA) noexcept;
    /// 1 when the data of a type are binary, 0 when they are text, -1 when the type is not known.
    static int IsBinary(const char* aType) noexcept;

protected:
    /// Whether all that CreateDESDATA needs is there; the text says what is not.
    static bool ValidateInputs(const char* aType, const char* aData, std::size_t aLength,
                               const DesDESDATA* const* aDESDATA, std::string& aMessage);

private:
    SupportedDESDATAs();
};

}  // namespace ORMO::SensorModel::CSM
