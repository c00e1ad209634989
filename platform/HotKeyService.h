// Key combinations that reach this program whatever window has the focus.
//
// Everything here is called, and calls back, on the main thread. Nothing throws.
#pragma once

#include "platform/SystemHotKeys.h" // the masks of the modifiers

#include <cstdint>
#include <functional>
#include <string>

namespace nerlo::platform {

// Whose hot key it is, and which of them.
struct HotKeyId {
    std::uint32_t signature = 0;
    std::uint32_t id = 0;
    bool operator==(const HotKeyId &) const = default;
};

struct HotKeyRequest {
    std::uint32_t keyCode = 0;   // virtual key code
    std::uint32_t modifiers = 0; // the masks of the hot-key service
    HotKeyId id;
    // For desktops where the user chooses the keys: the command's lasting name (ASCII), under which
    // the choice is kept, and what it does, in UTF-8.
    std::string name;
    std::string title;
};

enum class HotKeyState {
    none,    // nothing is registered
    pending, // the desktop has not answered yet
    active,
    refused,
};

struct HotKeyStatus {
    HotKeyState state = HotKeyState::none;
    // UTF-8, one line. Refused: why, in English. Active: the keys in the desktop's own words where
    // it chose them, else empty.
    std::string text;
    // Refused: who has the combination and for what, in the desktop's own words; empty where it
    // does not tell. UTF-8, one line.
    std::string owner = {};
    bool operator==(const HotKeyStatus &) const = default;
};

class HotKeyService {
  public:
    using Handle = std::uint64_t;
    struct Registration {
        Handle handle = 0;   // 0: refused
        std::string refusal; // then why, as in HotKeyStatus
    };
    using Pressed = std::function<void(HotKeyId)>;
    using StatusChanged = std::function<void(HotKeyId, const HotKeyStatus &)>;

    virtual ~HotKeyService() = default;

    // From now on runs `pressed` once for each press of a registered combination, however long it
    // is held. Never inside a call of this interface. False when that cannot be had.
    virtual bool installHandler(Pressed pressed) = 0;
    virtual void removeHandler() = 0;

    // Takes the combination for this program alone. A desktop that asks the user first answers
    // later, through the handler below, and says "pending" until then.
    virtual Registration registerHotKey(const HotKeyRequest &request) = 0;
    // Gives it back at once. An unknown handle is nothing.
    virtual void unregisterHotKey(Handle handle) = 0;

    virtual HotKeyStatus status(Handle handle) const = 0;
    // Runs after each change that comes later than registerHotKey's answer.
    virtual void setStatusHandler(StatusChanged changed) = 0;

    // While suspended the combinations go where they would go without this program, or at least run
    // nothing. Registrations stay, and can be made and ended.
    virtual void setSuspended(bool suspended) = 0;

    // Tries to take what was refused after its registration, if that does not trouble the user.
    // What comes of it goes to the status handler.
    virtual void retryRefused() {}

    // False where this desktop gives no program a hot key.
    virtual bool available() const { return true; }

    // For the user's eyes: one English line, also on what is missing and the way around it.
    virtual std::string description() const = 0;
};

// What to do where no desktop service takes hot keys.
inline constexpr const char *hotKeysByHand =
    "bind \"nerlo-pro --operation N\" or \"nerlo-pro --clean\" in the desktop's own keyboard "
    "settings";

} // namespace nerlo::platform
