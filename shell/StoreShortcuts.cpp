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
    for (const auto &change : changes) {
        shortcuts::storeShortcut(store, change.key, change.shortcut);
    }
    return store.synchronize() ? succeeded : complain(store.error());
}

} // namespace nerlo::shell
