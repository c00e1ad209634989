#include "settings/FirstStart.h"

#include "settings/SettingsKeys.h"
#include "settings/nrPreferences.h"

namespace nerlo::settings {

void setDefaults(storage::SettingsStore &store) {
    for (const SettingsKey &row : settingsKeys()) {
        if (row.scope == SettingScope::Store && row.firstStart) {
            store.set(row.key, *row.firstStart);
        }
    }
}

void setAllDefaultsInFirstRun(storage::SettingsStore &store, nrPreferences &preferences) {
    if (!store.boolForKey("firstRunPreferences")) {
        setDefaults(store);
        preferences.firstRunPreferences();
    } else if (!store.boolForKey("firstRunPreferencesProfiles")) {
        preferences.convertAfterUpdate();
    } else {
        return;
    }
    store.set("firstRunPreferencesProfiles", true);
}

} // namespace nerlo::settings
