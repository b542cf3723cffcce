#pragma once

#include "tools/Commands.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <CLI/CLI.hpp>

namespace ORMO::SensorModel::CSM::Tests {

/// A command of the program with its arguments read, run in this process as often as it is asked.
class ProgramRun
{
public:
    struct Outcome
    {
        std::string text;      ///< what went to standard output,
        std::string problems;  ///< and to standard error
        int code = -1;
    };

    ProgramRun(const OrmoNitf::Command& aCommand, std::vector<std::string> aArguments)
    {
        m_action = aCommand.declare(m_app);
        std::reverse(aArguments.begin(), aArguments.end());
        m_app.parse(aArguments);
    }

    Outcome Run() const
    {
        return Run([](const OrmoNitf::Action& aAction) { return aAction(); });
    }
    /// The same with something around the command's work; `aAround` calls it, raises nothing and answers the exit code.
    template<typename Around>
    Outcome Run(Around aAround) const
    {
        Outcome outcome;
        char* text = nullptr;
        std::size_t size = 0;
        std::FILE* const results = open_memstream(&text, &size);
        std::ostringstream problems;
        std::FILE* const out = std::exchange(stdout, results);
        std::streambuf* const err = std::cerr.rdbuf(problems.rdbuf());
        outcome.code = aAround(m_action);
        std::cerr.rdbuf(err);
        std::cerr.clear();
        stdout = out;
        std::fclose(results);
        outcome.text.assign(text, size);
        std::free(text);
        outcome.problems = problems.str();
        return outcome;
    }

private:
    CLI::App m_app;
    OrmoNitf::Action m_action;
};

}  // namespace ORMO::SensorModel::CSM::Tests
