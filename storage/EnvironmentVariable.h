// The variables that the process was started with.
#pragma once

#include <cstdlib>
#include <string_view>

namespace nerlo::storage {

// As bytes; empty if the variable is not set. Valid until something changes this variable, which
// no part of the programs does once there are threads.
inline std::string_view environmentVariable(const char *name) {
    const char *value = std::getenv(name);
    return value ? value : "";
}

} // namespace nerlo::storage
