// What happens to the settings at the start of the program, before anything reads them.
#pragma once

#include "storage/SettingsStore.h"

namespace nerlo::settings {

class nrPreferences;

// Writes the first-start values of the application's own keys.
void setDefaults(storage::SettingsStore &store);

// A first start gets the defaults and a first profile; settings of a version before profiles are
// moved into one; any other start changes nothing. Two flags in the store are the whole test:
// "firstRunPreferences", which the program sets once it has shown itself, and
// "firstRunPreferencesProfiles", which is set here.
void setAllDefaultsInFirstRun(storage::SettingsStore &store, nrPreferences &preferences);

} // namespace nerlo::settings
