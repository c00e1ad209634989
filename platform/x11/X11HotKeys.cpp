#include "platform/x11/X11HotKeys.h"

#include "platform/Alive.h"
#include "platform/VirtualKeys.h"
#include "platform/x11/SharedConnection.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <future>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include <xkbcommon/xkbcommon-keysyms.h>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::SharedConnection;
using x11::XkbEvents;
using Handle = HotKeyService::Handle;

// An X server that takes longer is stopped or far away; the main thread waits no more for it.
constexpr std::chrono::seconds answerLimit{5};

// Which modifier bits are what, by the keyboard map. 0 for a key that the keyboard does not have.
struct ModifierMasks {
    std::uint16_t alt = 0;
    std::uint16_t super = 0;
    std::uint16_t numLock = 0;
    std::uint16_t scrollLock = 0;

    bool operator==(const ModifierMasks &) const = default;

    std::uint16_t locks() const {
        return static_cast<std::uint16_t>(XCB_MOD_MASK_LOCK | numLock | scrollLock);
    }
    // Nothing, and why in `refusal`, if a modifier is not on the keyboard.
    std::optional<std::uint16_t> of(std::uint32_t hotKeyModifiers, std::string &refusal) const {
        const struct {
            std::uint32_t flag;
            std::uint16_t mask;
            const char *name;
        } rows[] = {{hotKeyCommand, XCB_MOD_MASK_CONTROL, "Ctrl"},
                    {hotKeyShift, XCB_MOD_MASK_SHIFT, "Shift"},
                    {hotKeyOption, alt, "Alt"},
                    {hotKeyControl, super, "Super"}};
        std::uint16_t masks = 0;
        for (const auto &row : rows) {
            if ((hotKeyModifiers & row.flag) != 0) {
                if (row.mask == 0) {
                    refusal = std::string("the keyboard has no ") + row.name + " key";
                    return std::nullopt;
                }
                masks |= row.mask;
            }
        }
        return masks;
    }
};

ModifierMasks readMasks(Connection &connection) {
    const auto *setup = xcb_get_setup(connection.get());
    const auto first = setup->min_keycode;
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - first + 1);
    const auto modifierCookie = xcb_get_modifier_mapping(connection.get());
    const auto keyCookie = xcb_get_keyboard_mapping(connection.get(), first, count);
    const x11::Reply<xcb_get_modifier_mapping_reply_t> modifiers(
        xcb_get_modifier_mapping_reply(connection.get(), modifierCookie, nullptr));
    const x11::Reply<xcb_get_keyboard_mapping_reply_t> keys(
        xcb_get_keyboard_mapping_reply(connection.get(), keyCookie, nullptr));
    if (!modifiers || !keys) {
        return {};
    }
    const std::size_t perKey = keys->keysyms_per_keycode;
    const auto *symbols = xcb_get_keyboard_mapping_keysyms(keys.get());
    const auto has = [&](xcb_keycode_t key, std::initializer_list<xcb_keysym_t> wanted) {
        if (key < first) {
            return false;
        }
        const auto *begin = symbols + static_cast<std::size_t>(key - first) * perKey;
        return std::any_of(begin, begin + perKey, [&](xcb_keysym_t symbol) {
            return std::ranges::find(wanted, symbol) != wanted.end();
        });
    };
    const std::size_t perModifier = modifiers->keycodes_per_modifier;
    const auto *codes = xcb_get_modifier_mapping_keycodes(modifiers.get());
    const auto maskOf = [&](std::initializer_list<xcb_keysym_t> wanted) -> std::uint16_t {
        // The first three modifiers are always Shift, Lock and Control.
        for (std::size_t modifier = 3; modifier < 8; ++modifier) {
            for (std::size_t at = 0; at < perModifier; ++at) {
                if (has(codes[modifier * perModifier + at], wanted)) {
                    return static_cast<std::uint16_t>(1u << modifier);
                }
            }
        }
        return 0;
    };
    ModifierMasks masks;
    masks.alt = maskOf({XKB_KEY_Alt_L, XKB_KEY_Alt_R});
    if (masks.alt == 0) {
        masks.alt = maskOf({XKB_KEY_Meta_L, XKB_KEY_Meta_R});
    }
    masks.super = maskOf({XKB_KEY_Super_L, XKB_KEY_Super_R});
    masks.numLock = maskOf({XKB_KEY_Num_Lock});
    masks.scrollLock = maskOf({XKB_KEY_Scroll_Lock});
    return masks;
}

struct Grab {
    HotKeyRequest request;
    xcb_keycode_t key = 0;
    std::uint16_t modifiers = 0;
    std::set<std::uint16_t> states; // the modifiers with every set of locks, where it is held
    std::string refusal;

    bool held() const { return !states.empty(); }
};

// Lives on the I/O thread.
class Grabs final : public SharedConnection::Listener {
  public:
    using Pressed = std::function<void(HotKeyId)>;
    using Changed = std::function<void(Handle, HotKeyId, HotKeyStatus)>;

    Grabs(SharedConnection &shared, XkbEvents events, Pressed pressed, Changed changed)
        : shared_(shared)
        , connection_(&shared.connection())
        , events_(events)
        , masks_(readMasks(*connection_))
        , pressed_(std::move(pressed))
        , changed_(std::move(changed)) {
        events_.detectAutoRepeat(*connection_);
        shared_.add(*this);
    }
    ~Grabs() {
        shared_.remove(*this);
        for (auto &[handle, grab] : grabs_) {
            release(grab);
        }
    }
    Grabs(const Grabs &) = delete;
    Grabs &operator=(const Grabs &) = delete;

    void settle() override {
        if (std::exchange(otherMap_, false)) {
            followMap();
        }
    }

    // Empty when the combination is ours now, else why it is not.
    std::string add(Handle handle, const HotKeyRequest &request) {
        Grab grab{request, 0, 0, {}, {}};
        if (!takeUnlessSuspended(grab)) {
            // The map may have changed just now, and the layout's reader may have seen it first.
            followMap();
            takeUnlessSuspended(grab);
        }
        std::string refusal = grab.refusal;
        if (refusal.empty()) {
            grabs_.emplace(handle, std::move(grab));
        }
        return refusal;
    }

    void remove(Handle handle) {
        if (const auto entry = grabs_.find(handle); entry != grabs_.end()) {
            release(entry->second);
            grabs_.erase(entry);
        }
    }

    void setSuspended(bool suspended) {
        suspended_ = suspended;
        takeAgain();
    }

    // Takes what is missing, and tells of each change.
    void takeAgain() {
        for (auto &[handle, grab] : grabs_) {
            const std::string before = grab.refusal;
            if (suspended_) {
                release(grab);
            } else if (!grab.held()) {
                take(grab);
            }
            if (grab.refusal != before) {
                changed_(handle, grab.request.id,
                         {grab.refusal.empty() ? HotKeyState::active : HotKeyState::refused,
                          grab.refusal});
            }
        }
        xcb_flush(connection_->get());
    }

    void handle(const xcb_generic_event_t &event) override {
        otherMap_ |= events_.isMapChange(event);
        const auto type = event.response_type & 0x7f;
        const auto &key = reinterpret_cast<const xcb_key_press_event_t &>(event);
        if (type == XCB_KEY_RELEASE) {
            down_.erase(key.detail);
            released_[key.detail] = key.time;
        } else if (type == XCB_KEY_PRESS) {
            // A held key repeats: presses with no release between, or, from a server that cannot do
            // so, with a release of the same moment.
            const auto release = released_.find(key.detail);
            const bool repeated = !down_.insert(key.detail).second ||
                                  (release != released_.end() && release->second == key.time);
            if (!repeated) {
                press(key);
            }
        }
    }

  private:
    void press(const xcb_key_press_event_t &key) {
        const auto modifiers = static_cast<std::uint16_t>(key.state & 0xff & ~masks_.locks());
        for (const auto &[handle, grab] : grabs_) {
            if (grab.held() && grab.key == key.detail && grab.modifiers == modifiers) {
                pressed_(grab.request.id);
                return;
            }
        }
    }

    void followMap() {
        const auto masks = readMasks(*connection_);
        if (masks != masks_) {
            masks_ = masks;
            auto before = grabs_;
            for (auto &[handle, grab] : grabs_) {
                grab.states.clear();
            }
            takeAgain();
            // After that, so that a press in between finds the combinations that stay the same.
            for (auto &[handle, grab] : before) {
                release(grab);
            }
        }
    }

    bool takeUnlessSuspended(Grab &grab) {
        if (suspended_) {
            return describe(grab);
        }
        take(grab);
        return grab.held();
    }

    // Finds the key and modifiers on the keyboard; false, and why, when they are not there.
    bool describe(Grab &grab) const {
        grab.refusal.clear();
        const auto key = x11KeyOfVirtualKey(grab.request.keyCode);
        if (!key) {
            grab.refusal = "the keyboard has no such key";
            return false;
        }
        const auto modifiers = masks_.of(grab.request.modifiers, grab.refusal);
        if (!modifiers) {
            return false;
        }
        grab.key = *key;
        grab.modifiers = *modifiers;
        return true;
    }

    // A lock without a key adds none.
    std::set<std::uint16_t> statesOf(const Grab &grab) const {
        std::set<std::uint16_t> states{grab.modifiers};
        for (const auto lock :
             {std::uint16_t{XCB_MOD_MASK_LOCK}, masks_.numLock, masks_.scrollLock}) {
            for (const auto state : std::set(states)) {
                states.insert(static_cast<std::uint16_t>(state | lock));
            }
        }
        return states;
    }

    void take(Grab &grab) {
        if (!describe(grab)) {
            return;
        }
        std::vector<xcb_void_cookie_t> cookies;
        grab.states = statesOf(grab);
        for (const auto state : grab.states) {
            if (++holders_[{grab.key, state}] == 1) {
                cookies.push_back(xcb_grab_key_checked(connection_->get(), 0,
                                                       connection_->screen().root, state, grab.key,
                                                       XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
            }
        }
        bool all = true;
        for (const auto cookie : cookies) {
            const x11::Reply<xcb_generic_error_t> error(
                xcb_request_check(connection_->get(), cookie));
            all = all && !error;
        }
        all = all && !connection_->broken();
        if (!all) {
            release(grab);
            grab.refusal = connection_->broken() ? "the X server is gone"
                                                 : "another program has taken this key combination";
        }
    }

    void release(Grab &grab) {
        for (const auto state : std::exchange(grab.states, {})) {
            if (--holders_[{grab.key, state}] == 0) {
                xcb_ungrab_key(connection_->get(), grab.key, connection_->screen().root, state);
            }
        }
        xcb_flush(connection_->get());
    }

    SharedConnection &shared_;
    Connection *connection_;
    XkbEvents events_;
    bool otherMap_ = false;
    ModifierMasks masks_;
    Pressed pressed_;
    Changed changed_;
    std::map<Handle, Grab> grabs_;
    // How many hot keys stand on each grab: the server keeps one for all of a program's, and one
    // release would end it for all.
    std::map<std::pair<xcb_keycode_t, std::uint16_t>, int> holders_;
    bool suspended_ = false;
    std::set<xcb_keycode_t> down_;
    std::map<xcb_keycode_t, xcb_timestamp_t> released_;
};

class X11HotKeys final : public HotKeyService {
  public:
    X11HotKeys(MainQueue &mainQueue, std::shared_ptr<SharedConnection> shared, XkbEvents events)
        : shared_(std::move(shared)) {
        const auto pressed = alive_.guardOn(mainQueue, [this](HotKeyId id) { press(id); });
        const auto changed = alive_.guardOn(
            mainQueue, [this](Handle handle, HotKeyId id, const HotKeyStatus &status) {
                change(handle, id, status);
            });
        shared_->run([&] { grabs_ = std::make_unique<Grabs>(*shared_, events, pressed, changed); });
    }
    ~X11HotKeys() override {
        shared_->run([this] { grabs_.reset(); });
    }

    bool installHandler(Pressed pressed) override {
        pressed_ = std::move(pressed);
        return true;
    }
    void removeHandler() override { pressed_ = nullptr; }

    Registration registerHotKey(const HotKeyRequest &request) override {
        const Handle handle = ++last_;
        auto answer = std::make_shared<std::promise<std::string>>();
        auto answered = answer->get_future();
        shared_->submit([grabs = grabs_.get(), handle, request, answer] {
            answer->set_value(grabs->add(handle, request));
        });
        if (answered.wait_for(answerLimit) != std::future_status::ready) {
            // The grab may still succeed later; it is given back then.
            shared_->submit([grabs = grabs_.get(), handle] { grabs->remove(handle); });
            return {0, "the X server does not answer"};
        }
        if (auto refusal = answered.get(); !refusal.empty()) {
            return {0, std::move(refusal)};
        }
        statuses_[handle] = {HotKeyState::active, {}};
        return {handle, {}};
    }

    void unregisterHotKey(Handle handle) override {
        if (statuses_.erase(handle) != 0) {
            shared_->submit([grabs = grabs_.get(), handle] { grabs->remove(handle); });
        }
    }

    HotKeyStatus status(Handle handle) const override {
        const auto entry = statuses_.find(handle);
        return entry == statuses_.end() ? HotKeyStatus() : entry->second;
    }
    void setStatusHandler(StatusChanged changed) override { statusChanged_ = std::move(changed); }

    void setSuspended(bool suspended) override {
        suspended_ = suspended;
        shared_->submit([grabs = grabs_.get(), suspended] { grabs->setSuspended(suspended); });
    }

    void retryRefused() override {
        shared_->submit([grabs = grabs_.get()] { grabs->takeAgain(); });
    }

    std::string description() const override { return "X11, grabbed keys"; }

  private:
    void press(HotKeyId id) const {
        if (pressed_ && !suspended_) {
            const Pressed pressed = pressed_;
            pressed(id);
        }
    }

    void change(Handle handle, HotKeyId id, const HotKeyStatus &status) {
        const auto entry = statuses_.find(handle);
        if (entry == statuses_.end()) {
            return;
        }
        entry->second = status;
        if (statusChanged_) {
            const StatusChanged changed = statusChanged_;
            changed(id, status);
        }
    }

    Pressed pressed_;
    StatusChanged statusChanged_;
    std::map<Handle, HotKeyStatus> statuses_;
    bool suspended_ = false;
    Alive alive_;
    std::shared_ptr<SharedConnection> shared_;
    std::unique_ptr<Grabs> grabs_; // on the I/O thread
    Handle last_ = 0;
};

} // namespace

Created<HotKeyService> createX11HotKeys(MainQueue &mainQueue,
                                        std::shared_ptr<SharedConnection> connection) {
    std::string declined;
    const auto events = SharedConnection::keyboardOf(connection, declined);
    if (!events) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<X11HotKeys>(mainQueue, std::move(connection), *events), {}};
}

} // namespace nerlo::platform
