#include "foundation/CSMException.h"

#include "foundation/CSMUtilString.h"

#include <string>

namespace ORMO::SensorModel::CSM {
namespace {

/// A copy of the text from array new; null for a null or empty text and when there is no memory, since an exception
/// without its text still serves better than none.
char* CopyOrNull(const char* aText) noexcept
{
    char* copy = nullptr;
    if (aText != nullptr && *aText != '\0' && !Util::CSMUtilString::Copy(aText, &copy)) {
        copy = nullptr;
    }
    return copy;
}

/// True when a text that is there could not be copied.
bool IsLost(const char* aText, const char* aCopy) noexcept
{
    return aText != nullptr && aCopy == nullptr;
}

}  // namespace

CSMException::CSMException() noexcept
{
    DefaultInit();
}

CSMException::CSMException(const char* aSource) noexcept
{
    DefaultInit();
    m_source = CopyOrNull(aSource);
}

CSMException::CSMException(const char* aAdditionalMessage, const char* aSource) noexcept
{
    DefaultInit();
    m_additionalMessage = CopyOrNull(aAdditionalMessage);
    m_source = CopyOrNull(aSource);
}

CSMException::CSMException(const CSMException& aException) noexcept
{
    DefaultInit();
    CloneObj(aException);
}

CSMException& CSMException::operator=(const CSMException& aException) noexcept
{
    CloneObj(aException);
    return *this;
}

CSMException::~CSMException()
{
    Cleanup();
}

const char* CSMException::GetAdditionalMessage() const
{
    return m_additionalMessage == nullptr ? "" : m_additionalMessage;
}

const char* CSMException::GetAllMesssages() const
{
    if (m_allMessages != nullptr) {
        return m_allMessages;
    }
    try {
        std::string text = GetErrorMessage();
        if (m_additionalMessage != nullptr) {
            if (!text.empty()) {
                text += '\n';
            }
            text += m_additionalMessage;
        }
        m_allMessages = CopyOrNull(text.c_str());
    } catch (...) {
        // Without memory for the whole text the class's own text is the best answer, and nothing is kept.
        return GetErrorMessage();
    }
    return m_allMessages;
}

const char* CSMException::GetErrorMessage() const
{
    return "Exception caught!";
}

const char* CSMException::GetSource() const
{
    return m_source == nullptr ? "unknown" : m_source;
}

void CSMException::Cleanup() noexcept
{
    delete[] m_additionalMessage;
    delete[] m_allMessages;
    delete[] m_source;
    DefaultInit();
}

void CSMException::CloneObj(const CSMException& aException) noexcept
{
    if (this == &aException) {
        return;
    }
    Cleanup();
    m_additionalMessage = CopyOrNull(aException.m_additionalMessage);
    m_allMessages = CopyOrNull(aException.m_allMessages);
    m_source = CopyOrNull(aException.m_source);
    if (IsLost(aException.m_additionalMessage, m_additionalMessage) ||
        IsLost(aException.m_allMessages, m_allMessages) || IsLost(aException.m_source, m_source)) {
        Cleanup();
    }
}

void CSMException::DefaultInit() noexcept
{
    m_additionalMessage = nullptr;
    m_allMessages = nullptr;
    m_source = nullptr;
}

}  // namespace ORMO::SensorModel::CSM
