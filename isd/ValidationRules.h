#pragma once

#include "../foundation/Export.h"
#include "../foundation/Finding.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ORMO::SensorModel::CSM {

/// One rule of the validation. The texts live as long as the library.
struct ORMO_CSM_API ValidationRule
{
    const char* id = "";                           ///< "PV-02"; what Finding::rule says
    Finding::Level level = Finding::Level::Error;  ///< of its findings; mild cases are warnings
    bool isForNitf20 = true;
    bool isForNitf21 = true;       ///< NSIF 1.0 included
    const char* subject = "";      ///< what it looks at: "image", "TREs", "file" ...
    const char* fields = "";       ///< the fields that it compares
    const char* sentence = "";     ///< what is wrong when it is broken
    const char* explanation = "";  ///< what it asks for, and why
    const char* source = "";       ///< the standard's clause or table, or where else it comes from
    const char* notChecked = "";   ///< why nothing looks; empty when something does
};

/// The rules of the validation: one row each.
class ORMO_CSM_API ValidationRules
{
public:
    /// All of them, by family.
    static const std::vector<ValidationRule>& GetAllRules();
    /// The rule of an identifier, case and blanks around it left out; null when there is none.
    static const ValidationRule* Find(const char* aId);

private:
    ValidationRules();
};

/// How a validation is run.
struct ORMO_CSM_API ValidationOptions
{
    /// The moment after which a date lies in the future, CCYYMMDDhhmmss in UTC; empty for that of the call.
    std::string now;
    /// Identifiers of rules whose findings are neither told nor counted.
    std::vector<std::string> ignored;
};

}  // namespace ORMO::SensorModel::CSM
