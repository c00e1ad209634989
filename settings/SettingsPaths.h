// Where the settings lie, and which language a first start takes.
#pragma once

#include "storage/SettingsStore.h"

#include <functional>
#include <string>

namespace nerlo::settings {

// The value of an environment variable, or null.
using Environment = std::function<const char *(const char *name)>;
Environment processEnvironment();

// Absolute paths, as the file system takes them.
struct SettingsPaths {
    std::string store;             // the settings store
    std::string profiles;          // the profiles
    std::string sharedFindReplace; // the find-and-replace list shared by all profiles
    std::string removedProfiles;   // what was removed of the profiles

    // $XDG_CONFIG_HOME and $XDG_DATA_HOME, or what stands for them in the home folder.
    static SettingsPaths standard(const Environment &environment = processEnvironment());
};

// The first of the settings key "AppleLanguages"; without it, of userLanguages().
std::string firstLanguage(const storage::SettingsStore &store);

} // namespace nerlo::settings
