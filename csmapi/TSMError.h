#pragma once

#include "TSMMisc.h"

#include <string>

/// What operations of the CSM API throw, always by value.
class TSM_EXPORT_API TSMError
{
public:
    enum ErrorType
    {
        ALGORITHM = 1,
        BOUNDS = 2,
        FILE_READ = 3,
        FILE_WRITE = 4,
        ILLEGAL_MATH_OPERATION = 5,
        INDEX_OUT_OF_RANGE = 6,
        INVALID_SENSOR_MODEL_STATE = 7,
        INVALID_USE = 8,
        ISD_NOT_SUPPORTED = 9,
        MEMORY = 10,
        SENSOR_MODEL_NOT_CONSTRUCTIBLE = 11,
        SENSOR_MODEL_NOT_SUPPORTED = 12,
        STRING_TOO_LONG = 13,
        UNKNOWN_ERROR = 14,
        UNSUPPORTED_FUNCTION = 15,
        UNKNOWN_SUPPORT_DATA = 16,
        DATA_NOT_AVAILABLE = 17
    };

    TSMError() : theError(UNKNOWN_ERROR) {}
    TSMError(const ErrorType& aErrorType, const std::string& aMessage, const std::string& aFunction)
        : theError(aErrorType), theMessage(aMessage), theFunction(aFunction)
    {
    }

    // Other base libraries of this generation declare these without const: code that has to build against them
    // catches a TSMError by non-const reference.
    ErrorType getError() const { return theError; }
    const std::string& getMessage() const { return theMessage; }
    const std::string& getFunction() const { return theFunction; }

    void setTSMError(const ErrorType& aErrorType, const std::string& aMessage, const std::string& aFunction)
    {
        theError = aErrorType;
        theMessage = aMessage;
        theFunction = aFunction;
    }

private:
    ErrorType theError;
    std::string theMessage;
    std::string theFunction;
};
