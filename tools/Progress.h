#pragma once

#include <chrono>
#include <cstddef>

namespace OrmoNitf {

/// A bar on the last line of the terminal that shows how much of long work is done. Nothing is shown when standard
/// error is no terminal, for a single file and in the first second.
class Progress
{
public:
    explicit Progress(std::size_t aTotal) noexcept;

    /// Whether standard error is a terminal.
    static bool IsTerminal() noexcept;
    void Show(std::size_t aDone);
    /// Gives the line back, before anything else is written.
    void Erase();

private:
    std::size_t m_total;
    bool m_isShown = false;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    std::chrono::steady_clock::time_point m_last = m_start;
};

}  // namespace OrmoNitf
