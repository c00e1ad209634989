// Options with all that a clean needs besides the text.
//
// `operation` is the one that is to run, null for the full pipeline. Any thread.
#pragma once

#include "engine/Operations.h"
#include "settings/OptionsError.h"
#include "storage/PropertyValue.h"

namespace nerlo::settings {

// The options of a profile. Throws OptionsError for a pattern that does not compile, and for a file
// of rules that the options name and that cannot be used.
engine::CleaningOptions preparedOptions(const storage::PropertyDictionary &profile,
                                        const engine::Operation *operation);

// Whether a clean needs rules for addresses that the options name but do not hold yet.
bool lacksLinkRules(const engine::CleaningOptions &options, const engine::Operation *operation);

// Reads them. Throws OptionsError, unreadable, if the file cannot be read or used.
void addLinkRules(engine::CleaningOptions &options);

} // namespace nerlo::settings
