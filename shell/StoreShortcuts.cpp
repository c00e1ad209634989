#include "shell/StoreShortcuts.h"

#include "platform/backends/Backends.h"
#include "platform/linux/DesktopHotKeys.h"
#include "platform/qt/QtMainQueue.h"
#include "settings/SettingsPaths.h"
#include "shell/Desktop.h"
#include "shell/HotKeyCommands.h"
#include "shell/StatusMenu.h"
#include "shell/Terminal.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "storage/FileSettingsStore.h"

namespace nerlo::shell {

namespace {

// There is nothing else to do meanwhile.
class HereQueue final : public platform::WorkerQueue {
  public:
    void post(std::function<void()> task) override { task(); }
};

} // namespace

int storeShortcuts(const std::vector<std::string> &wanted) {
    platform::QtMainQueue mainQueue;
    platform::Backends backends(mainQueue);
    const auto layout = backends.openKeyboardLayout();
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
    HereQueue here;
    const auto systemHotKeys = platform::createDesktopHotKeys(
        *layout.backend, here, mainQueue, platform::DesktopSources::system(applicationId));
    systemHotKeys->refresh();
    const auto refusal =
        refusalOf(changes, store, *layout.backend, *systemHotKeys, StatusMenu::mainMenu());
    if (!refusal.empty()) {
        return complain(refusal);
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
