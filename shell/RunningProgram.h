// The program that runs already, as a second start finds it over the session bus.
#pragma once

#include "shell/CommandLine.h"

#include <optional>

namespace nerlo::shell {

// Whether a program owns the name on the bus.
bool programRuns();

// Has the running program do what the command line asks for, and prints what it answers. Returns
// the exit status; nothing if the program was about to end, and now has: then `commandLine` is left
// with the requests that were not done. Needs a QCoreApplication.
std::optional<int> handOver(CommandLine &commandLine);

} // namespace nerlo::shell
