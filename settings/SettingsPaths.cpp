#include "settings/SettingsPaths.h"

#include "settings/UserLanguages.h"
#include "text/Utf.h"

#include <cstdlib>
#include <string_view>

#include <pwd.h>
#include <unistd.h>

namespace nerlo::settings {

namespace {

std::string_view valueOf(const Environment &environment, const char *name) {
    const char *value = environment(name);
    return value ? value : "";
}

std::string home(const Environment &environment) {
    if (const auto path = valueOf(environment, "HOME"); path.starts_with('/')) {
        return std::string(path);
    }
    const passwd *entry = ::getpwuid(::getuid());
    return entry && entry->pw_dir ? entry->pw_dir : "/";
}

// A path that is not absolute counts as none.
std::string folder(const Environment &environment, const char *name, const char *inHome) {
    const auto path = valueOf(environment, name);
    return (path.starts_with('/') ? std::string(path) : home(environment) + inHome) + "/nerlo-pro";
}

} // namespace

Environment processEnvironment() {
    return [](const char *name) { return std::getenv(name); };
}

SettingsPaths SettingsPaths::standard(const Environment &environment) {
    const std::string data = folder(environment, "XDG_DATA_HOME", "/.local/share") + "/Data";
    return {folder(environment, "XDG_CONFIG_HOME", "/.config") + "/defaults.plist",
            data + "/profiles.nrp", data + "/profilesFR.nrp", data + "/removedProfiles.nrp"};
}

std::string firstLanguage(const storage::SettingsStore &store) {
    if (const auto *value = store.find("AppleLanguages")) {
        const auto *languages = value->as<storage::PropertyArray>();
        if (languages && !languages->empty()) {
            return text::utf16ToUtf8(languages->front().stringValue());
        }
    }
    return userLanguages().front();
}

} // namespace nerlo::settings
