// What the program can be asked from outside: by its arguments, and over the bus.
#pragma once

#include "clipboard/nrChangePasterboard.h"

#include <QString>
#include <QVariant>
#include <optional>
#include <span>
#include <string_view>

namespace nerlo::shell {

enum class AutomaticMode { on, off, toggle };

// "on", "off" or "toggle"; nothing for any other word.
std::optional<AutomaticMode> parseAutomaticMode(std::string_view word);

// What the bus says: "done", "incomplete" (done, but without some formats), and for what was not
// done "nothing kept", "too large", "too old", "newer copy" or "refused".
QString nameOf(clipboard::nrChangePasterboard::Restored outcome);

enum class Command {
    automatic,
    profile,
    preferences,
    clean,
    operation,
    choose,
    restore,
    why,
    doctor,
    quit,
    activate, // the program was started again
};

struct Request {
    Command command;
    // What the bus method takes: the word of an AutomaticMode, a profile's name or place, or the
    // index (int) of an operation. The command line has checked words and indices.
    QVariant argument{};
};

struct CommandRow {
    Command command;
    const char *method;    // of the bus interface
    const char *argument;  // of the command line, without its dashes; null for none
    const char *valueName; // null when the argument takes no value
    const char *help;
};

// All commands, in the order in which those of one command line are done.
std::span<const CommandRow> commandRows();
const CommandRow &rowOf(Command command);

} // namespace nerlo::shell
