// Hot keys that follow the shortcuts in the settings store.
//
// Main thread only.
#pragma once

#include "platform/Alive.h"
#include "shortcuts/GlobalHotKeys.h"
#include "storage/SettingsStore.h"

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::shortcuts {

// The shortcut that is stored under `key`; none where there is none or no archive of one.
std::optional<nrShortcut> storedShortcut(const storage::SettingsStore &store, std::string_view key);
// Stores the shortcut, or removes the key when there is none.
void storeShortcut(storage::SettingsStore &store, std::string_view key,
                   const std::optional<nrShortcut> &shortcut);

// The hot key of one settings key: there whenever a shortcut is stored under it.
class nrShortcutUserDefaultsHotKey {
  public:
    // `changed` runs after each change of the stored value.
    nrShortcutUserDefaultsHotKey(storage::SettingsStore &store, GlobalHotKeys &hotKeys,
                                 std::string userDefaultsKey, HotKeyHandler handler,
                                 std::string title, std::function<void()> changed);
    ~nrShortcutUserDefaultsHotKey();
    nrShortcutUserDefaultsHotKey(const nrShortcutUserDefaultsHotKey &) = delete;
    nrShortcutUserDefaultsHotKey &operator=(const nrShortcutUserDefaultsHotKey &) = delete;

    platform::HotKeyStatus status() const;
    // Tries again if there is no hot key for what is stored.
    void retry();

    const std::string userDefaultsKey;
    const HotKeyHandler handler;
    const std::string title;
    const std::string observableKeyPath; // "values." and the key
    const std::optional<GlobalHotKeys::Token> &monitor() const { return monitor_; }

  private:
    void observeValue();
    void installHotKeyFromUserDefaults();

    storage::SettingsStore &store_;
    GlobalHotKeys &hotKeys_;
    std::function<void()> changed_;
    std::optional<GlobalHotKeys::Token> monitor_;
    std::string refusal_;
    storage::SettingsStore::Observation observation_; // last: it ends first
};

class UserDefaultsHotKeys {
  public:
    using Registered =
        std::map<std::string, std::unique_ptr<nrShortcutUserDefaultsHotKey>, std::less<>>;
    // Observes as long as it lives.
    using Observation = std::shared_ptr<void>;

    // Both must outlive this.
    UserDefaultsHotKeys(storage::SettingsStore &store, GlobalHotKeys &hotKeys);

    // Replaces an earlier binding of the key. `title` says what the hot key does, in UTF-8, where a
    // desktop shows it to the user.
    void registerGlobalShortcutWithUserDefaultsKey(std::string_view key, HotKeyHandler handler,
                                                   std::string title = {});
    void unregisterGlobalShortcutWithUserDefaultsKey(std::string_view key);
    void setGlobalShortcut(const std::optional<nrShortcut> &shortcut, std::string_view key) {
        storeShortcut(store_, key, shortcut);
    }
    const Registered &registeredUserDefaultsHotKeys() const { return registered_; }

    platform::HotKeyStatus status(std::string_view key) const;
    // Another key's hot key for which this shortcut is stored, or null.
    const nrShortcutUserDefaultsHotKey *otherWith(const nrShortcut &shortcut,
                                                  std::string_view key) const;
    // Calls `changed` after each change of the status of any key, or of what keys are called.
    [[nodiscard]] Observation observeStatus(std::function<void()> changed);
    // Tries again what was refused: whoever had it may be gone. Asks the user nothing.
    void retryRefused();
    void keyboardLayoutChanged() { retryRefused(); }

    storage::SettingsStore &store() { return store_; }
    const storage::SettingsStore &store() const { return store_; }
    GlobalHotKeys &hotKeys() { return hotKeys_; }

  private:
    void tell();

    storage::SettingsStore &store_;
    GlobalHotKeys &hotKeys_;
    std::vector<std::weak_ptr<std::function<void()>>> observers_;
    Registered registered_;
    platform::Alive alive_;
};

} // namespace nerlo::shortcuts
