#include "tools/Lines.h"

#include <algorithm>
#include <cstdlib>

#include <unistd.h>

namespace OrmoNitf {

namespace {

const char* Escape(Lines::Style aStyle) noexcept
{
    switch (aStyle) {
        case Lines::Style::Heading:
            return "\x1B[1m";
        case Lines::Style::Warning:
            return "\x1B[33m";
        case Lines::Style::Error:
            return "\x1B[31m";
        default:
            return "";
    }
}

/// Where to break a text that is too long: behind a comma in the last part of the line, else at a blank.
std::size_t BreakOf(std::string_view aText, std::size_t aRoom)
{
    constexpr std::size_t LAST_PART = 40;
    const auto comma = aText.rfind(", ", aRoom - 1);
    if (comma != std::string_view::npos && comma + LAST_PART > aRoom) {
        return comma + 1;
    }
    const auto blank = aText.rfind(' ', aRoom);
    return blank == std::string_view::npos || blank == 0 ? aRoom : blank;
}

}  // namespace

bool IsColoured()
{
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return (none == nullptr || *none == '\0') && ::isatty(STDOUT_FILENO) != 0 &&
           (terminal == nullptr || std::string_view(terminal) != "dumb");
}

Lines::Lines(std::ostream& aOut) : m_out(aOut), m_coloured(IsColoured()) {}

void Lines::Write(std::size_t aIndent, std::string_view aText, Style aStyle)
{
    const bool coloured = m_coloured && aStyle != Style::Plain;
    m_out << std::string(aIndent, ' ') << (coloured ? Escape(aStyle) : "") << aText << (coloured ? "\x1B[0m" : "")
          << '\n';
}

void Lines::AddWhole(std::string_view aText, Style aStyle)
{
    Write(0, aText, aStyle);
}

void Lines::Add(std::size_t aIndent, std::string_view aText, Style aStyle)
{
    constexpr std::size_t FURTHER = 4;
    std::size_t indent = aIndent;
    while (aText.size() > WIDTH - indent) {
        const std::size_t end = BreakOf(aText, WIDTH - indent);
        Write(indent, aText.substr(0, end), aStyle);
        aText.remove_prefix(end);
        aText.remove_prefix(std::min(aText.find_first_not_of(' '), aText.size()));
        indent = aIndent + FURTHER;
    }
    if (!aText.empty() || indent == aIndent) {
        Write(indent, aText, aStyle);
    }
}

}  // namespace OrmoNitf
