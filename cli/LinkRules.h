// The file of rules for addresses that the options may name.
#pragma once

#include "engine/Operations.h"

namespace nerlo::cli {

// Whether a clean needs rules that the options name but do not hold yet: the full pipeline, or that
// one operation unless null.
bool lacksLinkRules(const engine::CleaningOptions &options, const engine::Operation *operation);

// Reads them. Throws Failure, ioFailed, if the file cannot be read or used.
void addLinkRules(engine::CleaningOptions &options);

} // namespace nerlo::cli
