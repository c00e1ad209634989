// What is wrong with options that somebody has given.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace nerlo::settings {

// The message is English, in one line, in UTF-8. It names the key or the file and never holds text
// that was to be cleaned.
class OptionsError : public std::runtime_error {
  public:
    enum class Kind : std::uint8_t {
        unusable,   // they cannot mean anything
        unreadable, // a file that they name cannot be read or used
    };

    explicit OptionsError(const std::string &message, Kind what = Kind::unusable)
        : std::runtime_error(message)
        , kind(what) {}

    Kind kind;
};

} // namespace nerlo::settings
