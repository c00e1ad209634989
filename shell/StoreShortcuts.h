// The argument --shortcut: global shortcuts are stored in the settings, which a running program
// follows.
#pragma once

#include <string>
#include <vector>

namespace nerlo::shell {

// `wanted` is what the user wrote, as "clean=Super+V". All are stored or none; what is wrong is
// said on standard error. Returns the exit status: "failed" for keys that cannot be used, by the
// same rules as in the preferences. Needs a QCoreApplication.
int storeShortcuts(const std::vector<std::string> &wanted);

} // namespace nerlo::shell
