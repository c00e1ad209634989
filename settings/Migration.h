// The options of versions before there were profiles, which stood in the settings store.
#pragma once

#include "platform/SettingsStore.h"
#include "settings/ProfilesFile.h"

namespace nerlo::settings {

// The profile "profile 1" with the store's switches as booleans, its texts, and its choices as
// integers, in this order; what is absent is off, empty and 0. The store is left as it is.
ProfileRecord migratedProfile(const platform::SettingsStore &store);

} // namespace nerlo::settings
