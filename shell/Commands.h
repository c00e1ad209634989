// What the program can be told to do from outside: by its command line and over the bus.
#pragma once

#include "clipboard/nrChangePasterboard.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::shell {

enum class AutomaticMode { on, off, toggle };

// "on", "off" or "toggle"; nothing for any other word.
std::optional<AutomaticMode> parseAutomaticMode(std::string_view word);

// "done", "nothing kept" or "refused".
std::string_view nameOf(clipboard::nrChangePasterboard::Restored outcome);

// Set by main(), called on the main thread. None is null once the event loop runs.
struct Commands {
    std::function<void()> clean;
    std::function<void(std::int32_t index)> operation;
    std::function<void(std::function<void(clipboard::nrChangePasterboard::Restored)>)> restore;
    std::function<bool(AutomaticMode)> automatic; // returns whether it is on now
    std::function<void()> activate;               // the program was started again
    std::function<void()> preferences;            // opens the window
    // By name, or by place in decimal digits; UTF-8. False when there is none.
    std::function<bool(const std::string &nameOrPlace)> profile;
    std::function<bool()> automaticNow;
    std::function<std::string()> profileNow; // name of the selected one, UTF-8
    std::function<std::string()> backend;    // of the clipboard, for people; UTF-8
    std::function<std::string()> doctor;     // UTF-8
    std::function<void()> quit;
};

} // namespace nerlo::shell
