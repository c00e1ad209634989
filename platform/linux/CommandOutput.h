// What a short-lived program prints.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace nerlo::platform {

struct CommandLimits {
    std::chrono::milliseconds time{1000};
    std::size_t bytes = std::size_t{4} << 20;
};

// Runs a program, found by $PATH, with nothing on its standard input and its errors dropped, and
// gives its standard output. Empty when it cannot be started, fails, or goes beyond a limit; it is
// ended then. Blocks; any thread.
std::string outputOfCommand(const std::vector<std::string> &command, CommandLimits limits = {});

} // namespace nerlo::platform
