#include "tools/Lines.h"

#include <algorithm>
#include <cstdlib>

#include <unistd.h>

namespace OrmoNitf {

namespace {

bool IsColoured()
{
    const char* const none = std::getenv("NO_COLOR");
    const char* const terminal = std::getenv("TERM");
    return (none == nullptr || *none == '\0') && ::isatty(STDOUT_FILENO) != 0 &&
           (terminal == nullptr || std::string_view(terminal) != "dumb");
}

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

}  // namespace

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
        const auto blank = aText.rfind(' ', WIDTH - indent);
        const bool whole = blank == std::string_view::npos || blank == 0;
        const std::size_t end = whole ? WIDTH - indent : blank;
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
