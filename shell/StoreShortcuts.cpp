#include "shell/StoreShortcuts.h"

#include "platform/backends/Backends.h"
#include "platform/qt/QtMainQueue.h"
#include "settings/SettingsPaths.h"
#include "shell/HotKeyCommands.h"
#include "shell/Terminal.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "storage/FileSettingsStore.h"

namespace nerlo::shell {

int storeShortcuts(const std::vector<std::string> &wanted) {
    platform::QtMainQueue mainQueue;
    const auto layout = platform::openKeyboardLayout(mainQueue);
    std::vector<ShortcutChange> changes;
    for (const auto &text : wanted) {
        changes.push_back(parseShortcutChange(text, *layout.backend));
        if (!changes.back().error.empty()) {
            return complain(changes.back().error, unusableArguments);
        }
    }
    storage::FileSettingsStore store(settings::SettingsPaths::standard().store);
    if (!store.loadError().empty()) {
        return complain(store.loadError());
    }
    for (const auto &change : changes) {
        shortcuts::storeShortcut(store, change.key, change.shortcut);
    }
    if (!store.synchronize()) {
        store.forgetChanges(); // reported as not stored, so they must not be stored later either
        return complain(store.error());
    }
    return succeeded;
}

} // namespace nerlo::shell
