#include "shell/Commands.h"

namespace nerlo::shell {

std::optional<AutomaticMode> parseAutomaticMode(std::string_view word) {
    if (word == "on") {
        return AutomaticMode::on;
    }
    if (word == "off") {
        return AutomaticMode::off;
    }
    return word == "toggle" ? std::optional(AutomaticMode::toggle) : std::nullopt;
}

std::string_view nameOf(clipboard::nrChangePasterboard::Restored outcome) {
    using Restored = clipboard::nrChangePasterboard::Restored;
    return outcome == Restored::done          ? "done"
           : outcome == Restored::nothingKept ? "nothing kept"
                                              : "refused";
}

} // namespace nerlo::shell
