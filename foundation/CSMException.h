#pragma once

#include "Export.h"

namespace ORMO::SensorModel::CSM {

/// Root of everything that the library raises. It is no std::exception: a caller that wants to catch all failures
/// catches both families. Exceptions are thrown by value and caught by reference; no operation here throws.
class ORMO_CSM_API CSMException
{
public:
    CSMException(const CSMException& aException) noexcept;
    CSMException& operator=(const CSMException& aException) noexcept;
    virtual ~CSMException();

    // Every text below belongs to the exception and lives as long as it does.

    /// The text that the thrower added, or an empty text.
    virtual const char* GetAdditionalMessage() const;
    /// The error message and, on a line of its own, the additional message. Composed on the first call and kept;
    /// null only when both are empty. The name is part of the interface as it is spelled.
    virtual const char* GetAllMesssages() const;
    /// The fixed text of the exception's class.
    virtual const char* GetErrorMessage() const;
    /// The operation that raised the exception as "Class::Operation", or "unknown".
    virtual const char* GetSource() const;

protected:
    CSMException() noexcept;
    /// A single text is the source, not a message. Null and empty texts count as not given.
    explicit CSMException(const char* aSource) noexcept;
    CSMException(const char* aAdditionalMessage, const char* aSource) noexcept;

private:
    void Cleanup() noexcept;
    void CloneObj(const CSMException& aException) noexcept;
    void DefaultInit() noexcept;

    char* m_additionalMessage;
    mutable char* m_allMessages;
    char* m_source;
};

}  // namespace ORMO::SensorModel::CSM
