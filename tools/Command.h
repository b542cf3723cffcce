#pragma once

#include <functional>

namespace CLI {
class App;
}

namespace OrmoNitf {

/// Runs a command whose arguments were read; answers the exit code of the program. Results go to standard output or the
/// named file, problems to standard error.
using Action = std::function<int()>;

/// A command of the program: a constant of the source that has it, listed in main.cpp.
struct Command
{
    const char* name;
    const char* summary;
    const char* examples;   ///< two command lines without the program's name
    const char* exitCodes;  ///< what each code means here
    /// Adds the options and answers what runs once they are read. The action owns the variables of the options.
    Action (*declare)(CLI::App& aApp);
};

inline constexpr const char* EXIT_CODES_OF_FILES =
    "0 done, 1 a file has errors that salvage lets pass, 2 wrong use or a file that cannot be opened";

}  // namespace OrmoNitf
