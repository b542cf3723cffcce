#pragma once

#include <ostream>
#include <string>
#include <string_view>

namespace OrmoNitf {

/// Whether standard output takes colours: a terminal that knows them, and no NO_COLOR.
bool IsColoured();

/// Text for a person: lines of at most 100 columns, continued further in; colours on a terminal only, and not when
/// NO_COLOR is set.
class Lines
{
public:
    static constexpr std::size_t WIDTH = 100;

    enum class Style
    {
        Plain,
        Heading,
        Warning,
        Error
    };

    explicit Lines(std::ostream& aOut);

    /// Writes a line behind that many blanks, broken behind commas or at blanks where it is too long.
    void Add(std::size_t aIndent, std::string_view aText, Style aStyle = Style::Plain);
    /// The same as it is, whatever its length: a path must stay whole.
    void AddWhole(std::string_view aText, Style aStyle = Style::Plain);

private:
    void Write(std::size_t aIndent, std::string_view aText, Style aStyle);

    std::ostream& m_out;
    bool m_coloured;
};

}  // namespace OrmoNitf
