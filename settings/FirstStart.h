// What happens to the settings at the start of the program, before anything reads them.
#pragma once

#include "settings/Migration.h"
#include "storage/SettingsStore.h"

namespace nerlo::settings {

class nrPreferences;

// Writes the first-start values of the application's own keys.
void setDefaults(storage::SettingsStore &store);

// A first start gets the defaults and a first profile; settings of an older version go through the
// steps that they have not seen; any other start changes nothing.
//
// "firstRunPreferences" is set by the program once it has shown itself, and
// "firstRunPreferencesProfiles" here: it stands for step 1. The number of a later step stands in
// the store.
void setAllDefaultsInFirstRun(storage::SettingsStore &store, nrPreferences &preferences,
                              const std::vector<MigrationStep> &steps = migrationSteps());

} // namespace nerlo::settings
