// The options of versions before there were profiles, which stood in the settings store.
#pragma once

#include "settings/ProfilesFile.h"
#include "storage/SettingsStore.h"

namespace nerlo::settings {

// The profile "profile 1" with the store's switches as booleans, its texts, and its choices as
// integers, in this order; what is absent is off, empty and 0. The store is left as it is.
ProfileRecord migratedProfile(const storage::SettingsStore &store);

} // namespace nerlo::settings
