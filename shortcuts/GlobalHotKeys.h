// The registry of global hot keys: which combination runs what.
//
// Main thread only.
#pragma once

#include "platform/HotKeyService.h"
#include "shortcuts/nrShortcut.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace nerlo::shortcuts {

using HotKeyHandler = std::function<void()>;

// One registration with the desktop, which ends with the object.
class nrShortcutHotKey {
  public:
    // `carbonHotKey` is 0 where the desktop refused.
    nrShortcutHotKey(platform::HotKeyService &service, nrShortcut shortcut, HotKeyHandler handler,
                     const platform::HotKeyRequest &request);
    ~nrShortcutHotKey();
    nrShortcutHotKey(const nrShortcutHotKey &) = delete;
    nrShortcutHotKey &operator=(const nrShortcutHotKey &) = delete;

    const nrShortcut shortcut;
    const HotKeyHandler handler;
    const std::uint32_t carbonHotKeyID;
    platform::HotKeyService::Handle carbonHotKey = 0;
    std::string refusal;

  private:
    platform::HotKeyService &service_;
};

// What a desktop that lets the user choose the keys is told; see HotKeyRequest.
struct HotKeyCommand {
    std::string name;
    std::string title;
};

class GlobalHotKeys {
  public:
    // Key code and modifiers: what a key is called changes with the keyboard layout.
    using Token = nrShortcut;
    struct Added {
        std::optional<Token> token;
        std::string refusal; // why there is none: English, UTF-8, one line
    };

    // The service must outlive this, and this what it hands out.
    explicit GlobalHotKeys(platform::HotKeyService &service);
    ~GlobalHotKeys();

    // A combination that is registered already, that the desktop refuses, or without a key gives no
    // token.
    Added addGlobalHotkeyMonitorWithShortcut(const nrShortcut &shortcut, HotKeyHandler handler,
                                             const HotKeyCommand &command = {});
    void removeGlobalHotkeyMonitor(const std::optional<Token> &token);

    platform::HotKeyStatus status(const Token &token) const;
    // See HotKeyService.
    void retryRefused() { service_.retryRefused(); }
    // Runs when the status of a hot key changes later.
    void setStatusHandler(std::function<void(const Token &)> changed);

    // Our hot keys are out of the way as long as one of these lives.
    class [[nodiscard]] Suspension {
      public:
        explicit Suspension(GlobalHotKeys &hotKeys);
        ~Suspension();
        Suspension(const Suspension &) = delete;
        Suspension &operator=(const Suspension &) = delete;

      private:
        GlobalHotKeys &hotKeys_;
    };

    // The signature of our hot keys among all.
    static constexpr std::uint32_t signature = 0x4d415353;

  private:
    bool installHandler();
    void pressed(platform::HotKeyId id);

    platform::HotKeyService &service_;
    std::map<Token, nrShortcutHotKey> hotKeys_;
    std::function<void(const Token &)> statusChanged_;
    bool handlerInstalled_ = false;
    std::uint32_t registrations_ = 0;
    int suspensions_ = 0;
};

} // namespace nerlo::shortcuts
