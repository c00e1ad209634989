// The commands of `nerlo`, one source file each.
//
// An add function describes the command to `app`; when the arguments name it, parsing runs it and
// sets `status`. A command throws Failure or ClosedPipe when it cannot go on.
#pragma once

#include "cli/Failure.h"

namespace CLI {
class App;
}

namespace nerlo::cli {

void addClean(CLI::App &app, ExitStatus &status);
void addCheck(CLI::App &app, ExitStatus &status);
void addCount(CLI::App &app, ExitStatus &status);
void addBatch(CLI::App &app, ExitStatus &status);
void addOperations(CLI::App &app, ExitStatus &status);
void addKeys(CLI::App &app, ExitStatus &status);
void addProfiles(CLI::App &app, ExitStatus &status);
void addRules(CLI::App &app, ExitStatus &status);

} // namespace nerlo::cli
