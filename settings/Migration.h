// What older versions of the program have left in the settings, and how it is brought up to date.
//
// Each change of what the settings hold is a numbered step. The store keeps the number of the last
// one that has been done; it has none yet where the two marks of the first versions tell it (see
// FirstStart.h). The profiles file has no number of its own: a step that changes profiles must
// leave one alone that has been changed already. Main thread only.
#pragma once

#include "settings/ProfilesFile.h"
#include "storage/SettingsStore.h"

#include <functional>
#include <string_view>
#include <vector>

namespace nerlo::settings {

class nrPreferences;

inline constexpr std::string_view settingsVersionKey = "settingsVersion";

struct MigrationStep {
    int number; // from 1, one more than that of the step before
    // Before anything is loaded. It may be run again when the program was ended in the middle.
    std::function<void(storage::SettingsStore &store, nrPreferences &preferences)> run;
};
const std::vector<MigrationStep> &migrationSteps();

// Step 1 made profiles of the options that had stood in the store: the profile "profile 1" with the
// store's switches as booleans, its texts, and its choices as integers, in this order; what is
// absent is off, empty and 0. The store is left as it is.
ProfileRecord migratedProfile(const storage::SettingsStore &store);

} // namespace nerlo::settings
