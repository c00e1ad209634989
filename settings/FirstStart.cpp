#include "settings/FirstStart.h"

#include "settings/SettingsKeys.h"
#include "settings/nrPreferences.h"

namespace nerlo::settings {

namespace {

constexpr auto profilesKey = "firstRunPreferencesProfiles";

std::int64_t versionOf(const storage::SettingsStore &store) {
    return store.find(settingsVersionKey)  ? store.integerForKey(settingsVersionKey)
           : store.boolForKey(profilesKey) ? 1
                                           : 0;
}

void setVersion(storage::SettingsStore &store, int number) {
    store.set(profilesKey, true);
    if (number > 1) {
        store.set(settingsVersionKey, number);
    }
}

} // namespace

void setDefaults(storage::SettingsStore &store) {
    for (const SettingsKey &row : settingsKeys()) {
        if (row.scope == SettingScope::Store && row.firstStart) {
            store.set(row.key, *row.firstStart);
        }
    }
}

void setAllDefaultsInFirstRun(storage::SettingsStore &store, nrPreferences &preferences,
                              const std::vector<MigrationStep> &steps) {
    if (!store.boolForKey("firstRunPreferences")) {
        setDefaults(store);
        preferences.firstRunPreferences();
        setVersion(store, steps.back().number);
        return;
    }
    for (const MigrationStep &step : steps) {
        if (step.number > versionOf(store)) {
            step.run(store, preferences);
            setVersion(store, step.number);
        }
    }
}

} // namespace nerlo::settings
