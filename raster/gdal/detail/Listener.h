#pragma once

#include <algorithm>
#include <cstring>
#include <string>
#include <string_view>

#include <cpl_conv.h>
#include <cpl_error.h>

namespace ORMO::SensorModel::CSM::Detail {

/// Copies a reason to the room that the caller has for it, cut to it.
inline void CopyReason(std::string_view aText, char* aReason, std::size_t aSize) noexcept
{
    if (aReason != nullptr && aSize != 0) {
        const std::size_t count = std::min(aText.size(), aSize - 1);
        std::memcpy(aReason, aText.data(), count);
        aReason[count] = '\0';
    }
}

/// Keeps GDAL silent while it works and remembers the first thing that it would have said: what follows is often a
/// consequence. Decoders that worked in threads of their own would neither be heard nor kept silent.
class Listener
{
public:
    Listener()
    {
        CPLPushErrorHandlerEx(&Listener::Hear, this);
        CPLSetThreadLocalConfigOption(THREADS, "1");
    }
    ~Listener()
    {
        CPLSetThreadLocalConfigOption(THREADS, m_threads.empty() ? nullptr : m_threads.c_str());
        CPLPopErrorHandler();
    }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    bool HasHeard() const noexcept { return !m_heard.empty(); }
    std::string_view Heard() const noexcept
    {
        return m_heard.empty() ? std::string_view("GDAL gives no reason") : std::string_view(m_heard);
    }

private:
    static void Hear(CPLErr aClass, CPLErrorNum, const char* aText)
    {
        auto* const self = static_cast<Listener*>(CPLGetErrorHandlerUserData());
        if (aClass >= CE_Failure && self->m_heard.empty() && aText != nullptr) {
            self->m_heard = aText;
        }
    }

    static constexpr const char* THREADS = "GDAL_NUM_THREADS";

    std::string m_heard;
    std::string m_threads = CPLGetThreadLocalConfigOption(THREADS, "");
};

}  // namespace ORMO::SensorModel::CSM::Detail
