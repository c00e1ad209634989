#include "shortcuts/GlobalHotKeys.h"

#include <utility>

namespace nerlo::shortcuts {

nrShortcutHotKey::nrShortcutHotKey(platform::HotKeyService &service, nrShortcut shortcut_,
                                   HotKeyHandler handler_, const platform::HotKeyRequest &request)
    : shortcut(shortcut_)
    , handler(std::move(handler_))
    , carbonHotKeyID(request.id.id)
    , service_(service) {
    auto registration = service_.registerHotKey(request);
    carbonHotKey = registration.handle;
    refusal = std::move(registration.refusal);
}

nrShortcutHotKey::~nrShortcutHotKey() {
    if (carbonHotKey != 0) {
        service_.unregisterHotKey(carbonHotKey);
    }
}

GlobalHotKeys::GlobalHotKeys(platform::HotKeyService &service)
    : service_(service) {
    service_.setStatusHandler([this](platform::HotKeyId id, const platform::HotKeyStatus &) {
        for (const auto &[token, hotKey] : hotKeys_) {
            if (hotKey.carbonHotKeyID == id.id && id.signature == signature && statusChanged_) {
                const Token changed = token;
                return statusChanged_(changed);
            }
        }
    });
}

GlobalHotKeys::~GlobalHotKeys() {
    service_.setStatusHandler(nullptr);
    hotKeys_.clear();
    if (handlerInstalled_) {
        service_.removeHandler();
    }
}

GlobalHotKeys::Added
GlobalHotKeys::addGlobalHotkeyMonitorWithShortcut(const nrShortcut &shortcut, HotKeyHandler handler,
                                                  const HotKeyCommand &command) {
    // Without a key the service would be given code 0, which is the A key.
    if (shortcut.keyCode() != shortcut.carbonKeyCode()) {
        return {std::nullopt, "the shortcut has no key"};
    }
    if (hotKeys_.contains(shortcut)) {
        return {std::nullopt, "another shortcut of this program has the same keys"};
    }
    if (!installHandler()) {
        return {std::nullopt, "the desktop does not take hot keys"};
    }
    const platform::HotKeyRequest request{shortcut.carbonKeyCode(),
                                          shortcut.carbonFlags(),
                                          {signature, ++registrations_},
                                          command.name,
                                          command.title};
    const auto [entry, added] =
        hotKeys_.try_emplace(shortcut, service_, shortcut, std::move(handler), request);
    if (entry->second.carbonHotKey == 0) {
        std::string refusal = entry->second.refusal;
        hotKeys_.erase(entry);
        return {std::nullopt, std::move(refusal)};
    }
    return {shortcut, {}};
}

void GlobalHotKeys::removeGlobalHotkeyMonitor(const std::optional<Token> &token) {
    if (!token) {
        return;
    }
    hotKeys_.erase(*token);
    if (hotKeys_.empty() && std::exchange(handlerInstalled_, false)) {
        service_.removeHandler();
    }
}

platform::HotKeyStatus GlobalHotKeys::status(const Token &token) const {
    const auto entry = hotKeys_.find(token);
    return entry == hotKeys_.end() ? platform::HotKeyStatus()
                                   : service_.status(entry->second.carbonHotKey);
}

void GlobalHotKeys::setStatusHandler(std::function<void(const Token &)> changed) {
    statusChanged_ = std::move(changed);
}

bool GlobalHotKeys::installHandler() {
    if (!handlerInstalled_) {
        handlerInstalled_ = service_.installHandler([this](platform::HotKeyId id) { pressed(id); });
    }
    return handlerInstalled_;
}

void GlobalHotKeys::pressed(platform::HotKeyId id) {
    if (id.signature != signature) {
        return;
    }
    for (const auto &[token, hotKey] : hotKeys_) {
        if (hotKey.carbonHotKeyID == id.id) {
            // A copy: the handler may end its own hot key.
            if (const HotKeyHandler handler = hotKey.handler) {
                handler();
            }
            return;
        }
    }
}

GlobalHotKeys::Suspension::Suspension(GlobalHotKeys &hotKeys)
    : hotKeys_(hotKeys) {
    if (hotKeys_.suspensions_++ == 0) {
        hotKeys_.service_.setSuspended(true);
    }
}

GlobalHotKeys::Suspension::~Suspension() {
    if (--hotKeys_.suspensions_ == 0) {
        hotKeys_.service_.setSuspended(false);
    }
}

} // namespace nerlo::shortcuts
