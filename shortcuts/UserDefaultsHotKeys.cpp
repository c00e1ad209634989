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
    HotKeyHandler handler_, std::string title, std::function<void()> changed)
    : userDefaultsKey(std::move(userDefaultsKey_))
    , handler(std::move(handler_))
    , observableKeyPath("values." + userDefaultsKey)
    , store_(store)
    , hotKeys_(hotKeys)
    , title_(std::move(title))
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

void nrShortcutUserDefaultsHotKey::observeValue() {
    hotKeys_.removeGlobalHotkeyMonitor(std::exchange(monitor_, std::nullopt));
    refusal_.clear();
    installHotKeyFromUserDefaults();
    changed_();
}

void nrShortcutUserDefaultsHotKey::installHotKeyFromUserDefaults() {
    if (const auto shortcut = storedShortcut(store_, userDefaultsKey)) {
        auto added = hotKeys_.addGlobalHotkeyMonitorWithShortcut(*shortcut, handler,
                                                                 {userDefaultsKey, title_});
        monitor_ = std::move(added.token);
        refusal_ = std::move(added.refusal);
    }
}

UserDefaultsHotKeys::UserDefaultsHotKeys(storage::SettingsStore &store, GlobalHotKeys &hotKeys)
    : store_(store)
    , hotKeys_(hotKeys) {
    hotKeys_.setStatusHandler([this](const GlobalHotKeys::Token &) { tell(); });
}

UserDefaultsHotKeys::~UserDefaultsHotKeys() {
    hotKeys_.setStatusHandler(nullptr);
}

void UserDefaultsHotKeys::registerGlobalShortcutWithUserDefaultsKey(std::string_view key,
                                                                    HotKeyHandler handler,
                                                                    std::string title) {
    // The earlier one goes first, so that its combination is free for the new one.
    registered_.erase(std::string(key));
    registered_.emplace(key, std::make_unique<nrShortcutUserDefaultsHotKey>(
                                 store_, hotKeys_, std::string(key), std::move(handler),
                                 std::move(title), [this] { tell(); }));
}

void UserDefaultsHotKeys::unregisterGlobalShortcutWithUserDefaultsKey(std::string_view key) {
    if (registered_.erase(std::string(key)) != 0) {
        tell();
    }
}

platform::HotKeyStatus UserDefaultsHotKeys::status(std::string_view key) const {
    const auto entry = registered_.find(key);
    return entry == registered_.end() ? platform::HotKeyStatus() : entry->second->status();
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
