#include "engine/CleaningReport.h"

namespace nerlo::engine {

namespace {

std::string messageOf(const PatternFailure &failure) {
    const std::string name = failure.rule == PatternFailure::ownPattern
                                 ? "your pattern"
                                 : "find-and-replace rule " + std::to_string(failure.rule);
    if (failure.why == PatternFailure::Why::GivenUp) {
        return name + " was given up: it takes too much work on this text";
    }
    const std::string line =
        failure.place.line > 1 ? "line " + std::to_string(failure.place.line) + ", " : "";
    return name + " has an error at " + line + "character " +
           std::to_string(failure.place.character);
}

} // namespace

std::string messageOf(const CleaningReport &report) {
    std::string message;
    for (const PatternFailure &failure : report) {
        message += (message.empty() ? "" : "; ") + messageOf(failure);
    }
    return message;
}

} // namespace nerlo::engine
