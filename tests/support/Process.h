#pragma once

#include <array>
#include <cstdio>
#include <string>

#include <sys/wait.h>

namespace ORMO::SensorModel::CSM::Tests {

/// What a command printed, and its exit code; -1 when it did not end by itself.
struct Outcome
{
    std::string text;
    int code = -1;
};

/// Runs a command of the shell. Standard error goes with the text only when the command says so.
inline Outcome RunCommand(const std::string& aCommand)
{
    Outcome outcome;
    std::FILE* const pipe = popen(aCommand.c_str(), "r");
    if (pipe == nullptr) {
        return outcome;
    }
    std::array<char, 4096> block{};
    for (std::size_t read = 0; (read = std::fread(block.data(), 1, block.size(), pipe)) != 0;) {
        outcome.text.append(block.data(), read);
    }
    const int status = pclose(pipe);
    outcome.code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return outcome;
}

}  // namespace ORMO::SensorModel::CSM::Tests
