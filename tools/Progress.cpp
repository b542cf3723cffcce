#include "tools/Progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <unistd.h>

namespace OrmoNitf {

namespace {

/// "12 s", "3 min", "2.5 h"
std::string Duration(double aSeconds)
{
    char text[32] = "";
    if (aSeconds < 90.0) {
        std::snprintf(text, sizeof(text), "%.0f s", aSeconds);
    } else if (aSeconds < 5400.0) {
        std::snprintf(text, sizeof(text), "%.0f min", aSeconds / 60.0);
    } else {
        std::snprintf(text, sizeof(text), "%.1f h", aSeconds / 3600.0);
    }
    return text;
}

}  // namespace

Progress::Progress(std::size_t aTotal) noexcept : m_total(aTotal) {}

bool Progress::IsTerminal() noexcept
{
    return ::isatty(STDERR_FILENO) != 0;
}

void Progress::Show(std::size_t aDone)
{
    constexpr std::size_t WIDTH = 30;
    const auto now = std::chrono::steady_clock::now();
    if (m_total < 2 || !IsTerminal() || now - m_start < std::chrono::seconds(1) ||
        (m_isShown && now - m_last < std::chrono::milliseconds(100))) {
        return;
    }
    const std::size_t full = WIDTH * aDone / m_total;
    const std::string bar = std::string(full, '#') + std::string(WIDTH - full, '.');
    const double seconds = std::chrono::duration<double>(now - m_start).count();
    const double rate = static_cast<double>(aDone) / seconds;
    std::fprintf(stderr, "\r\x1B[K[%s] %zu of %zu files, %.0f a second, %s left", bar.c_str(), aDone, m_total, rate,
                 Duration(static_cast<double>(m_total - aDone) / std::max(rate, 1e-9)).c_str());
    std::fflush(stderr);
    m_isShown = true;
    m_last = now;
}

void Progress::Erase()
{
    if (m_isShown) {
        std::fputs("\r\x1B[K", stderr);
        std::fflush(stderr);
        m_isShown = false;
    }
}

}  // namespace OrmoNitf
