#include "settings/Migration.h"

#include "settings/SettingsKeys.h"

namespace nerlo::settings {

ProfileRecord migratedProfile(const storage::SettingsStore &store) {
    ProfileRecord profile{{"profileName", u"profile 1"}};
    // The profile's order is switches, texts, choices.
    for (const SettingsKey &row : profileKeys()) {
        if (!row.migrated) {
            continue;
        }
        switch (row.kind) {
        case SettingKind::Switch:
            profile.set(row.key, store.boolForKey(row.key));
            break;
        case SettingKind::Text:
            profile.set(row.key, store.stringForKey(row.key));
            break;
        default:
            profile.set(row.key, store.integerForKey(row.key));
            break;
        }
    }
    return profile;
}

} // namespace nerlo::settings
