// What nerlo-pro tells those who started it: its exit status, and lines on standard error.
#pragma once

#include <string>

namespace nerlo::shell {

inline constexpr int succeeded = 0;
inline constexpr int failed = 1;
inline constexpr int unusableArguments = 2;

// One line on standard error, UTF-8; never a text of the clipboard. Returns `status`.
int complain(const std::string &what, int status = failed);

} // namespace nerlo::shell
