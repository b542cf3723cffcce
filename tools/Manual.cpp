// What the help says, in two other forms: a manual page and the completion of bash.

#include "tools/Commands.h"
#include "tools/Isd.h"

#include <iostream>
#include <sstream>
#include <string>

#include <CLI/CLI.hpp>

namespace OrmoNitf {

namespace {

/// A text as roff has it.
std::string Roff(const std::string& aText)
{
    std::string text;
    for (const char character : aText) {
        text += character == '\\' ? "\\e" : character == '-' ? "\\-" : std::string(1, character);
    }
    return !text.empty() && (text.front() == '.' || text.front() == '\'') ? "\\&" + text : text;
}

/// "-o,--out TEXT" or "FILE".
std::string NameOf(const CLI::Option& aOption)
{
    const std::string type = aOption.get_type_size() == 0 || aOption.get_positional() ? "" : aOption.get_type_name();
    return aOption.get_name(false, true) + (type.empty() ? "" : ' ' + type);
}

void PrintOptions(const CLI::App& aApp)
{
    for (const CLI::Option* const option : aApp.get_options()) {
        std::cout << ".TP\n.B " << Roff(NameOf(*option)) << '\n' << Roff(option->get_description()) << '\n';
    }
}

int PrintManual(const CLI::App& aRoot)
{
    std::cout << ".TH ORMO\\-NITF 1 \"\" \"ormo\\-nitf " ORMO_VERSION "\" \"User commands\"\n"
              << ".SH NAME\normo\\-nitf \\- " << Roff(aRoot.get_description()) << '\n'
              << ".SH SYNOPSIS\n.B ormo\\-nitf\n.I COMMAND\n[options]\n"
              << ".SH COMMANDS\n";
    for (const Command* const command : COMMANDS) {
        const CLI::App& app = *aRoot.get_subcommand(command->name);
        std::cout << ".SS ormo\\-nitf " << Roff(command->name) << '\n' << Roff(command->summary) << ".\n";
        PrintOptions(app);
        std::cout << ".PP\nExamples:\n.nf\n";
        std::istringstream lines(command->examples);
        for (std::string line; std::getline(lines, line);) {
            std::cout << "  ormo\\-nitf " << Roff(line) << '\n';
        }
        std::cout << ".fi\n.PP\nExit codes: " << Roff(command->exitCodes) << ".\n";
    }
    std::cout << ".SH EXIT STATUS\n"
              << "0 done, 1 the file has errors or there is no answer, 2 wrong use or a file that cannot be opened.\n"
              << ".SH ENVIRONMENT\n.TP\n.B NO_COLOR\nWhen it is set, nothing is coloured.\n";
    return EXIT_DONE;
}

int PrintCompletion(const CLI::App& aRoot)
{
    std::string names;
    std::ostringstream cases;
    for (const Command* const command : COMMANDS) {
        names += (names.empty() ? "" : " ") + std::string(command->name);
        std::string options;
        for (const CLI::Option* const option : aRoot.get_subcommand(command->name)->get_options()) {
            for (const std::string& name : option->get_lnames()) {
                options += (options.empty() ? "--" : " --") + name;
            }
            for (const std::string& name : option->get_snames()) {
                options += (options.empty() ? "-" : " -") + name;
            }
        }
        cases << "        " << command->name << ") options=\"" << options << "\" ;;\n";
    }
    std::cout << "# Completion of ormo-nitf for bash.\n"
              << "_ormo_nitf() {\n"
              << "    local word=${COMP_WORDS[COMP_CWORD]} options=\n"
              << "    if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
              << "        COMPREPLY=($(compgen -W \"" << names << " --help --version\" -- \"$word\"))\n"
              << "        return\n"
              << "    fi\n"
              << "    case ${COMP_WORDS[1]} in\n"
              << cases.str() << "    esac\n"
              << "    case $word in\n"
              << "        -*) COMPREPLY=($(compgen -W \"$options\" -- \"$word\")) ;;\n"
              << "        *) COMPREPLY=($(compgen -f -- \"$word\")) ;;\n"
              << "    esac\n"
              << "}\n"
              << "complete -o filenames -F _ormo_nitf ormo-nitf\n";
    return EXIT_DONE;
}

Action DeclareManual(CLI::App& aApp)
{
    return [&aApp] { return PrintManual(*aApp.get_parent()); };
}

Action DeclareCompletion(CLI::App& aApp)
{
    return [&aApp] { return PrintCompletion(*aApp.get_parent()); };
}

}  // namespace

constexpr Command MANUAL{.name = "manual",
                         .summary = "This help as a manual page",
                         .examples =
                             "manual > ormo-nitf.1\n"
                             "manual | man -l -",
                         .exitCodes = "0 done",
                         .declare = DeclareManual};

constexpr Command COMPLETION{.name = "completion",
                             .summary = "What bash needs to complete commands and options",
                             .examples =
                                 "completion > /etc/bash_completion.d/ormo-nitf\n"
                                 "completion | head",
                             .exitCodes = "0 done",
                             .declare = DeclareCompletion};

}  // namespace OrmoNitf
