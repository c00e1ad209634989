// What goes wrong in a command, with the exit status that it ends with.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace nerlo::cli {

enum class ExitStatus : std::uint8_t {
    done = 0,
    ioFailed = 1,          // an input or an output failed
    unusableArguments = 2, // nothing was tried
};

// The message names the file, key or operation; it never holds text that was to be cleaned.
class Failure : public std::runtime_error {
  public:
    Failure(ExitStatus exitStatus, const std::string &message)
        : std::runtime_error(message)
        , status(exitStatus) {}

    ExitStatus status;
};

// `text`, in which control characters are question marks: a terminal would act on them. They come
// from names of files and from files.
std::string withoutControls(std::string text);

// Writes "nerlo: MESSAGE" and a line break to standard error, to a terminal without control
// characters; then the hint, if there is one, on a line of its own.
void report(const std::string &message, const std::string &hint = {});

} // namespace nerlo::cli
