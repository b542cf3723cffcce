#pragma once

#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace OrmoNitf {

/// What a command writes. A file appears under its name only when it is whole: it is written beside the target and
/// renamed at the end. "-", or no name at all, is standard output.
class Output
{
public:
    Output() = default;
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// False, with the reason, when nothing can be written there or the target is the input itself.
    [[nodiscard]] bool Open(const std::string& aTarget, const std::string& aInput, std::string& aReason);
    std::FILE* Stream() const noexcept { return m_stream; }
    /// Ends the writing; false, with the reason, when not all of it arrived. Without it nothing is left behind.
    [[nodiscard]] bool Commit(std::string& aReason);

private:
    std::FILE* m_stream = nullptr;
    std::string m_target;
    std::string m_temporary;  ///< empty for standard output
};

/// Lets `aWrite` write to the named file, or to standard output; it answers false when it has told of a problem of its
/// own. Answers the exit code; problems of the target go to standard error.
int WriteWith(const std::string& aTarget, const std::string& aInput, const std::function<bool(std::FILE*)>& aWrite);

/// Writes all of a text to the named file, or to standard output. Answers the exit code; problems go to standard error.
int WriteText(std::string_view aText, const std::string& aTarget, const std::string& aInput);

/// A text from a file or a path without a byte that could steer a terminal: such bytes are spelled out.
std::string Printable(std::string aText);
/// A path as text in UTF-8: as it is, or all but ASCII spelled out when it is no UTF-8 or could steer a terminal.
std::string PathText(const std::string& aPath);
/// Whether a text has such bytes; `aText` is Latin-1.
bool HasControls(std::string_view aText) noexcept;

}  // namespace OrmoNitf
