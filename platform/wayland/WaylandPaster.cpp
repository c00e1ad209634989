#include "platform/wayland/WaylandPaster.h"

#include "platform/Pasteboard.h"
#include "platform/VirtualKeys.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"
#include "platform/xkb/Keymap.h"

#include <chrono>
#include <cstdint>
#include <string_view>
#include <utility>

#include <fake-input-client.h>
#include <linux/input-event-codes.h>
#include <sys/mman.h>
#include <unistd.h>
#include <virtual-keyboard-unstable-v1-client.h>
#include <wayland-client.h>

namespace nerlo::platform {

namespace {

using namespace std::chrono_literals;
using wayland::EventLoop;
using wayland::Registry;

// The window that had the keyboard goes on another connection, and the compositor may hear of that
// a moment later.
constexpr auto keyboardIsBackAfter = 60ms;

// A connection that lives for one paste: the compositor lets go of the keys with it, whatever
// happens.
class Keys {
  public:
    // Null without a compositor that lets this program press keys; `declined` says why.
    static std::unique_ptr<Keys> make(IoThread &io, const std::string &display,
                                      std::string &declined) {
        auto loop = EventLoop::connect(io, display);
        if (!loop) {
            declined = "there is no Wayland compositor";
            return nullptr;
        }
        std::unique_ptr<Keys> keys(new Keys(std::move(loop)));
        if (!keys->loop_->roundTrip(pasteboardServerLimit)) {
            declined = "the Wayland compositor does not answer";
            return nullptr;
        }
        if (!keys->haveKeyboard() && !keys->fakeInput_) {
            declined = "the Wayland compositor lets this program press no keys (KWin lets one that "
                       "is installed)";
            return nullptr;
        }
        return keys;
    }

    ~Keys() {
        if (keyboard_) {
            zwp_virtual_keyboard_v1_destroy(keyboard_);
        }
        if (manager_) {
            zwp_virtual_keyboard_manager_v1_destroy(manager_);
        }
        if (fakeInput_) {
            org_kde_kwin_fake_input_destroy(fakeInput_);
        }
        if (seat_) {
            wl_seat_destroy(seat_);
        }
    }

    const char *protocol() const {
        return haveKeyboard() ? "Wayland, virtual keyboard" : "KWin, fake input";
    }

    // `letter` is the evdev code of the key that writes a V in the user's layout. False if the
    // compositor did not do it.
    bool pressCtrlV(std::uint32_t letter) {
        return haveKeyboard() ? pressOnOwnKeyboard() : pressOnUsersKeyboard(letter);
    }

  private:
    explicit Keys(std::unique_ptr<EventLoop> loop)
        : loop_(std::move(loop)) {
        registry_ = std::make_unique<Registry>(
            loop_->display(),
            [this](std::uint32_t name, std::string_view interface, std::uint32_t version) {
                found(name, interface, version);
            },
            [](std::uint32_t) {});
    }

    void found(std::uint32_t name, std::string_view interface, std::uint32_t version) {
        constexpr std::uint32_t firstWithKeys = ORG_KDE_KWIN_FAKE_INPUT_KEYBOARD_KEY_SINCE_VERSION;
        if (!seat_ && interface == wl_seat_interface.name) {
            seat_ = reinterpret_cast<wl_seat *>(registry_->bind(name, wl_seat_interface, 1));
        } else if (!manager_ && interface == zwp_virtual_keyboard_manager_v1_interface.name) {
            manager_ = reinterpret_cast<zwp_virtual_keyboard_manager_v1 *>(
                registry_->bind(name, zwp_virtual_keyboard_manager_v1_interface, 1));
        } else if (!fakeInput_ && interface == org_kde_kwin_fake_input_interface.name &&
                   version >= firstWithKeys) {
            fakeInput_ = reinterpret_cast<org_kde_kwin_fake_input *>(
                registry_->bind(name, org_kde_kwin_fake_input_interface, firstWithKeys));
        }
    }

    bool haveKeyboard() const { return seat_ && manager_; }

    bool pressOnOwnKeyboard() {
        const auto layout = xkb::Keymap::fromNames("us");
        if (!layout || !begin(layout->asText())) {
            return false;
        }
        constexpr std::uint32_t ctrlMask = 4; // Control's place is the same in every keymap
        key(KEY_LEFTCTRL, WL_KEYBOARD_KEY_STATE_PRESSED);
        zwp_virtual_keyboard_v1_modifiers(keyboard_, ctrlMask, 0, 0, 0);
        key(KEY_V, WL_KEYBOARD_KEY_STATE_PRESSED);
        key(KEY_V, WL_KEYBOARD_KEY_STATE_RELEASED);
        key(KEY_LEFTCTRL, WL_KEYBOARD_KEY_STATE_RELEASED);
        zwp_virtual_keyboard_v1_modifiers(keyboard_, 0, 0, 0, 0);
        return loop_->roundTrip(pasteboardServerLimit);
    }

    // The letters stand where a us keyboard has them, whatever the user's layout.
    bool begin(const std::string &keymap) {
        const std::size_t size = keymap.size() + 1; // the zero belongs to it
        const FileDescriptor file(memfd_create("nerlo-pro", MFD_CLOEXEC));
        if (!file || pwrite(file.get(), keymap.c_str(), size, 0) != static_cast<ssize_t>(size)) {
            return false;
        }
        keyboard_ = zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(manager_, seat_);
        zwp_virtual_keyboard_v1_keymap(keyboard_, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file.get(),
                                       static_cast<std::uint32_t>(size));
        return loop_->roundTrip(pasteboardServerLimit);
    }

    void key(std::uint32_t code, std::uint32_t state) {
        zwp_virtual_keyboard_v1_key(keyboard_, ++time_, code, state);
    }

    // As if the user had pressed them: his layout counts, and so do keys that he holds.
    bool pressOnUsersKeyboard(std::uint32_t letter) {
        org_kde_kwin_fake_input_authenticate(fakeInput_, "Nerlo Pro", "pastes the cleaned text");
        const std::pair<std::uint32_t, std::uint32_t> keys[] = {
            {KEY_LEFTCTRL, WL_KEYBOARD_KEY_STATE_PRESSED},
            {letter, WL_KEYBOARD_KEY_STATE_PRESSED},
            {letter, WL_KEYBOARD_KEY_STATE_RELEASED},
            {KEY_LEFTCTRL, WL_KEYBOARD_KEY_STATE_RELEASED}};
        for (const auto &[code, state] : keys) {
            org_kde_kwin_fake_input_keyboard_key(fakeInput_, code, state);
        }
        return loop_->roundTrip(pasteboardServerLimit);
    }

    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<Registry> registry_;
    wl_seat *seat_ = nullptr;
    zwp_virtual_keyboard_manager_v1 *manager_ = nullptr;
    zwp_virtual_keyboard_v1 *keyboard_ = nullptr;
    std::uint32_t time_ = 0; // only its order counts
    org_kde_kwin_fake_input *fakeInput_ = nullptr;
};

class WaylandPaster final : public Paster {
  public:
    WaylandPaster(MainQueue &mainQueue, const KeyboardLayout &layout, IoThread &io,
                  std::string display, std::string description)
        : mainQueue_(mainQueue)
        , layout_(layout)
        , io_(io)
        , display_(std::move(display))
        , description_(std::move(description)) {}
    ~WaylandPaster() override { mainQueue_.cancel(next_); }

    // The compositor gives the keyboard back by itself. Modifiers that the user holds do not count
    // for a keyboard of our own; elsewhere no program is told of them but the one in front.
    void remember() override {}

    void paste(std::function<void(bool)> done) override {
        mainQueue_.cancel(next_);
        next_ = mainQueue_.postAfter(keyboardIsBackAfter, [this, done = std::move(done)] {
            next_ = 0;
            std::string declined;
            const auto keys = Keys::make(io_, display_, declined);
            done(keys && keys->pressCtrlV(letterKey()));
        });
    }

    std::string description() const override { return description_; }

  private:
    std::uint32_t letterKey() const {
        const auto key = layout_.keyOfSymbol("v");
        return (key ? evdevOfVirtualKey(*key) : std::nullopt).value_or(KEY_V);
    }

    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
    IoThread &io_;
    const std::string display_;
    const std::string description_;
    MainQueue::TaskId next_ = 0;
};

} // namespace

Created<Paster> createWaylandPaster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                    IoThread &io, const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    std::string declined;
    const auto keys = Keys::make(io, name, declined);
    if (!keys) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<WaylandPaster>(mainQueue, layout, io, name, keys->protocol()), {}};
}

} // namespace nerlo::platform
