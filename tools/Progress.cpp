#include "tools/Progress.h"

#include <cstdio>
#include <string>

#include <unistd.h>

namespace OrmoNitf {

Progress::Progress(std::size_t aTotal) noexcept : m_total(aTotal) {}

bool Progress::IsTerminal() noexcept
{
    return ::isatty(STDERR_FILENO) != 0;
}

void Progress::Show(std::size_t aDone)
{
    constexpr std::size_t WIDTH = 40;
    const auto now = std::chrono::steady_clock::now();
    if (m_total < 2 || !IsTerminal() || now - m_start < std::chrono::seconds(1) ||
        (m_isShown && now - m_last < std::chrono::milliseconds(100))) {
        return;
    }
    const std::size_t full = WIDTH * aDone / m_total;
    const std::string bar = std::string(full, '#') + std::string(WIDTH - full, '.');
    std::fprintf(stderr, "\r[%s] %zu of %zu files", bar.c_str(), aDone, m_total);
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
