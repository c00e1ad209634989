// What is said of patterns that could not be used.
#pragma once

#include "engine/Operations.h"

#include <string>

namespace nerlo::cli {

// English, in one line, with the rules' numbers; `report` is not empty.
std::string messageOf(const engine::CleaningReport &report);

// Throws Failure, unusableArguments, if a pattern that a clean would use does not compile: the full
// pipeline, or that one operation unless null.
void checkPatterns(const engine::CleaningOptions &options, const engine::Operation *operation);

} // namespace nerlo::cli
