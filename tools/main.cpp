#include "tools/Commands.h"
#include "tools/Isd.h"
#include "tools/Nearest.h"
#include "tools/Output.h"

#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>

namespace {

/// Two examples and the exit codes, below the options.
std::string Footer(const OrmoNitf::Command& aCommand)
{
    std::string text = "Examples:\n";
    std::istringstream lines(aCommand.examples);
    for (std::string line; std::getline(lines, line);) {
        text += "  ormo-nitf " + line + '\n';
    }
    return text + "\nExit codes: " + aCommand.exitCodes;
}

/// A word in the place of a command that is none: what may be meant.
bool IsWrongCommand(int aCount, char** aArguments)
{
    if (aCount < 2 || *aArguments[1] == '-') {
        return false;
    }
    const std::string word = aArguments[1];
    std::vector<std::string> names;
    for (const OrmoNitf::Command* const command : OrmoNitf::COMMANDS) {
        names.emplace_back(command->name);
        if (word == names.back()) {
            return false;
        }
    }
    std::cerr << "ormo-nitf: ERROR: " << OrmoNitf::Printable(word) << " is no command."
              << OrmoNitf::DidYouMean(word, names) << " ormo-nitf --help lists them all.\n";
    return true;
}

int Run(int aCount, char** aArguments)
{
    CLI::App app("Reads NITF 2.0, NITF 2.1 and NSIF 1.0 files and tells all that they say.", "ormo-nitf");
    app.set_version_flag("--version", "ormo-nitf " ORMO_VERSION);
    app.require_subcommand(1);
    app.footer(
        "ormo-nitf COMMAND --help tells more of a command.\n"
        "Exit codes: 0 done, 1 the file has errors or there is no answer, 2 wrong use or a file that cannot be opened");
    int exitCode = OrmoNitf::EXIT_DONE;
    for (const OrmoNitf::Command* const command : OrmoNitf::COMMANDS) {
        CLI::App* const sub = app.add_subcommand(command->name, command->summary);
        sub->footer(Footer(*command));
        sub->callback([&exitCode, action = command->declare(*sub)] { exitCode = action(); });
    }
    if (IsWrongCommand(aCount, aArguments)) {
        return OrmoNitf::EXIT_WRONG_USE;
    }
    try {
        app.parse(aCount, aArguments);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? OrmoNitf::EXIT_DONE : OrmoNitf::EXIT_WRONG_USE;
    }
    std::cout.flush();
    return std::cout.good() ? exitCode : static_cast<int>(OrmoNitf::EXIT_WRONG_USE);
}

}  // namespace

int main(int aCount, char** aArguments)
{
    try {
        return Run(aCount, aArguments);
    } catch (const std::exception& error) {
        std::cerr << "ormo-nitf: " << error.what() << '\n';
        return OrmoNitf::EXIT_WRONG_USE;
    }
}
