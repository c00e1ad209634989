// The argument --shortcut: global shortcuts are stored in the settings, which a running program
// follows.
#pragma once

#include <string>
#include <vector>

namespace nerlo::shell {

// `wanted` is what the user wrote, as "clean=Super+V". All are stored or none; what is wrong is
// said on standard error. Returns the exit status. Needs a QCoreApplication.
int storeShortcuts(const std::vector<std::string> &wanted);

} // namespace nerlo::shell
