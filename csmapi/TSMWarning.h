#pragma once

#include "TSMMisc.h"

#include <string>

/// What operations of the CSM API return from `new`, and the caller deletes; a null pointer means no warning.
class TSM_EXPORT_API TSMWarning
{
public:
    enum WarningType
    {
        UNKNOWN_WARNING = 1,
        DATA_NOT_AVAILABLE = 2,
        PRECISION_NOT_MET = 3,
        NEGATIVE_PRECISION = 4,
        IMAGE_COORD_OUT_OF_BOUNDS = 5,
        IMAGE_ID_TOO_LONG = 6,
        NO_INTERSECTION = 7
    };

    TSMWarning() : theWarning(UNKNOWN_WARNING) {}
    TSMWarning(const WarningType& aWarningType, const std::string& aMessage, const std::string& aFunction)
        : theWarning(aWarningType), theMessage(aMessage), theFunction(aFunction)
    {
    }

    // Without const in other base libraries of this generation, as in TSMError.
    WarningType getWarning() const { return theWarning; }
    const std::string& getMessage() const { return theMessage; }
    const std::string& getFunction() const { return theFunction; }

    void setTSMWarning(const WarningType& aWarningType, const std::string& aMessage, const std::string& aFunction)
    {
        theWarning = aWarningType;
        theMessage = aMessage;
        theFunction = aFunction;
    }

private:
    WarningType theWarning;
    std::string theMessage;
    std::string theFunction;
};
