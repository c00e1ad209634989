#include "shell/Requests.h"

#include <algorithm>

namespace nerlo::shell {

namespace {

constexpr CommandRow rows[] = {
    {Command::automatic, "Automatic", "automatic", "on|off|toggle",
     "Clean each new copy by itself."},
    {Command::profile, "Profile", "profile", "NAME", "Use this profile from now on."},
    {Command::preferences, "Preferences", "preferences", nullptr, "Open the preferences."},
    {Command::clean, "Clean", "clean", nullptr, "Clean the text on the clipboard."},
    {Command::operation, "Operation", "operation", "INDEX|NAME",
     "Run one operation on it, by index or name (see: nerlo operations)."},
    {Command::choose, "Choose", "choose", nullptr,
     "Choose what is done to it, in a small window at the pointer."},
    {Command::restore, "Restore", "restore", nullptr,
     "Put back what stood there before the last clean."},
    {Command::why, "Why", "why", nullptr,
     "Say which profile the last copy was cleaned with, and why."},
    {Command::doctor, "Doctor", "doctor", nullptr,
     "Say what works on this desktop, and what does not."},
    {Command::quit, "Quit", "quit", nullptr, "End the running program."},
    {Command::activate, "Activate", nullptr, nullptr, nullptr},
};

} // namespace

std::optional<AutomaticMode> parseAutomaticMode(std::string_view word) {
    if (word == "on") {
        return AutomaticMode::on;
    }
    if (word == "off") {
        return AutomaticMode::off;
    }
    return word == "toggle" ? std::optional(AutomaticMode::toggle) : std::nullopt;
}

QString nameOf(clipboard::nrChangePasterboard::Restored outcome) {
    using Restored = clipboard::nrChangePasterboard::Restored;
    return outcome == Restored::done          ? "done"
           : outcome == Restored::incomplete  ? "incomplete"
           : outcome == Restored::nothingKept ? "nothing kept"
           : outcome == Restored::tooLarge    ? "too large"
           : outcome == Restored::tooOld      ? "too old"
           : outcome == Restored::newerCopy   ? "newer copy"
                                              : "refused";
}

std::span<const CommandRow> commandRows() {
    return rows;
}

const CommandRow &rowOf(Command command) {
    return *std::ranges::find(rows, command, &CommandRow::command);
}

} // namespace nerlo::shell
