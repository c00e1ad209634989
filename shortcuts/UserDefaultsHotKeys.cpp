#include "shortcuts/UserDefaultsHotKeys.h"

#include <utility>

namespace nerlo::shortcuts {

std::optional<nrShortcut> storedShortcut(const storage::SettingsStore &store,
                                         std::string_view key) {
    const auto *data = store.dataForKey(key);
    return data ? nrShortcut::shortcutWithData(*data) : std::nullopt;
}

void storeShortcut(storage::SettingsStore &store, std::string_view key,
                   const std::optional<nrShortcut> &shortcut) {
    if (shortcut) {
        store.set(key, shortcut->data());
    } else {
        store.remove(key);
    }
}

nrShortcutUserDefaultsHotKey::nrShortcutUserDefaultsHotKey(
    storage::SettingsStore &store, GlobalHotKeys &hotKeys, std::string userDefaultsKey_,
    HotKeyHandler handler_, std::string title_, std::function<void()> changed)
    : userDefaultsKey(std::move(userDefaultsKey_))
    , handler(std::move(handler_))
    , title(std::move(title_))
    , observableKeyPath("values." + userDefaultsKey)
    , store_(store)
    , hotKeys_(hotKeys)
    , changed_(std::move(changed))
    , observation_(store.observe(userDefaultsKey, [this] { observeValue(); })) {}

nrShortcutUserDefaultsHotKey::~nrShortcutUserDefaultsHotKey() {
    observation_ = {};
    hotKeys_.removeGlobalHotkeyMonitor(monitor_);
}

platform::HotKeyStatus nrShortcutUserDefaultsHotKey::status() const {
    if (monitor_) {
        return hotKeys_.status(*monitor_);
    }
    return refusal_.empty() ? platform::HotKeyStatus()
                            : platform::HotKeyStatus{platform::HotKeyState::refused, refusal_};
}

void nrShortcutUserDefaultsHotKey::retry() {
    if (!monitor_) {
        installHotKeyFromUserDefaults();
    }
}

void nrShortcutUserDefaultsHotKey::observeValue() {
    hotKeys_.removeGlobalHotkeyMonitor(std::exchange(monitor_, std::nullopt));
    installHotKeyFromUserDefaults();
    changed_();
}

void nrShortcutUserDefaultsHotKey::installHotKeyFromUserDefaults() {
    refusal_.clear();
    const auto shortcut = storedShortcut(store_, userDefaultsKey);
    if (!shortcut) {
        return;
    }
    if (!shortcut->isValid()) {
        // It would take a key that is typed from every program.
        refusal_ = "a shortcut needs Ctrl or Super, or a function key";
        return;
    }
    auto added =
        hotKeys_.addGlobalHotkeyMonitorWithShortcut(*shortcut, handler, {userDefaultsKey, title});
    monitor_ = std::move(added.token);
    refusal_ = std::move(added.refusal);
}

UserDefaultsHotKeys::UserDefaultsHotKeys(storage::SettingsStore &store, GlobalHotKeys &hotKeys)
    : store_(store)
    , hotKeys_(hotKeys) {
    hotKeys_.setStatusHandler(alive_.guard([this](const GlobalHotKeys::Token &) { tell(); }));
}

void UserDefaultsHotKeys::registerGlobalShortcutWithUserDefaultsKey(std::string_view key,
                                                                    HotKeyHandler handler,
                                                                    std::string title) {
    // The earlier one goes first, so that its combination is free for the new one.
    registered_.erase(std::string(key));
    registered_.emplace(key, std::make_unique<nrShortcutUserDefaultsHotKey>(
                                 store_, hotKeys_, std::string(key), std::move(handler),
                                 std::move(title), [this] { retryRefused(); }));
}

void UserDefaultsHotKeys::unregisterGlobalShortcutWithUserDefaultsKey(std::string_view key) {
    if (registered_.erase(std::string(key)) != 0) {
        retryRefused();
    }
}

void UserDefaultsHotKeys::retryRefused() {
    hotKeys_.retryRefused();
    for (const auto &[key, hotKey] : registered_) {
        hotKey->retry();
    }
    tell();
}

platform::HotKeyStatus UserDefaultsHotKeys::status(std::string_view key) const {
    const auto entry = registered_.find(key);
    return entry == registered_.end() ? platform::HotKeyStatus() : entry->second->status();
}

const nrShortcutUserDefaultsHotKey *UserDefaultsHotKeys::otherWith(const nrShortcut &shortcut,
                                                                   std::string_view key) const {
    for (const auto &[other, hotKey] : registered_) {
        if (other != key && storedShortcut(store_, other) == shortcut) {
            return hotKey.get();
        }
    }
    return nullptr;
}

UserDefaultsHotKeys::Observation UserDefaultsHotKeys::observeStatus(std::function<void()> changed) {
    auto observer = std::make_shared<std::function<void()>>(std::move(changed));
    std::erase_if(observers_, [](const auto &other) { return other.expired(); });
    observers_.push_back(observer);
    return observer;
}

void UserDefaultsHotKeys::tell() {
    const auto observers = observers_;
    for (const auto &weak : observers) {
        if (const auto observer = weak.lock()) {
            (*observer)();
        }
    }
}

} // namespace nerlo::shortcuts
