#include "cli/PatternFailures.h"

#include "cli/Failure.h"

namespace nerlo::cli {

namespace {

std::string messageOf(const engine::PatternFailure &failure) {
    const std::string name = failure.rule == engine::PatternFailure::ownPattern
                                 ? "your pattern"
                                 : "find-and-replace rule " + std::to_string(failure.rule);
    if (failure.why == engine::PatternFailure::Why::GivenUp) {
        return name + " was given up: it takes too much work on this text";
    }
    const std::string line =
        failure.place.line > 1 ? "line " + std::to_string(failure.place.line) + ", " : "";
    return name + " has an error at " + line + "character " +
           std::to_string(failure.place.character);
}

} // namespace

std::string messageOf(const engine::CleaningReport &report) {
    std::string message;
    for (const engine::PatternFailure &failure : report) {
        message += (message.empty() ? "" : "; ") + messageOf(failure);
    }
    return message;
}

void checkPatterns(const engine::CleaningOptions &options, const engine::Operation *operation) {
    // An empty text has every pattern compiled.
    engine::CleaningReport report;
    const engine::CleaningContext context{.options = options, .locale = "", .report = &report};
    if (operation) {
        operation->run({}, context);
    } else {
        engine::runPipeline({}, context);
    }
    if (!report.empty()) {
        throw Failure(ExitStatus::unusableArguments, messageOf(report));
    }
}

} // namespace nerlo::cli
