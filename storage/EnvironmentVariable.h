// The variables that the process was started with.
#pragma once

#include <cstdlib>
#include <string_view>

namespace nerlo::storage {

// As bytes; empty if the variable is not set. Valid until this variable is changed; the programs
// change none once they have threads.
inline std::string_view environmentVariable(const char *name) {
    const char *value = std::getenv(name);
    return value ? value : "";
}

} // namespace nerlo::storage
