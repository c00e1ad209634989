#include "platform/wayland/WaylandPaster.h"

#include "platform/Pasteboard.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"
#include "platform/xkb/Keymap.h"

#include <chrono>
#include <cstdint>
#include <string_view>
#include <utility>

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

// A connection that lives for one paste: the compositor ends the keyboard with it, whatever
// happens.
class Keyboard {
  public:
    // Null without a compositor that gives out keyboards; `declined` says why.
    static std::unique_ptr<Keyboard> make(IoThread &io, const std::string &display,
                                          std::string &declined) {
        auto loop = EventLoop::connect(io, display);
        if (!loop) {
            declined = "there is no Wayland compositor";
            return nullptr;
        }
        std::unique_ptr<Keyboard> keyboard(new Keyboard(std::move(loop)));
        if (!keyboard->loop_->roundTrip(pasteboardStallLimit)) {
            declined = "the Wayland compositor does not answer";
            return nullptr;
        }
        if (!keyboard->seat_ || !keyboard->manager_) {
            declined = "the Wayland compositor lets programs press no keys";
            return nullptr;
        }
        return keyboard;
    }

    ~Keyboard() {
        if (keyboard_) {
            zwp_virtual_keyboard_v1_destroy(keyboard_);
        }
        if (manager_) {
            zwp_virtual_keyboard_manager_v1_destroy(manager_);
        }
        if (seat_) {
            wl_seat_destroy(seat_);
        }
    }

    // False if the compositor did not do it.
    bool pressCtrlV() {
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
        return loop_->roundTrip(pasteboardStallLimit);
    }

  private:
    explicit Keyboard(std::unique_ptr<EventLoop> loop)
        : loop_(std::move(loop)) {
        registry_ = std::make_unique<Registry>(
            loop_->display(),
            [this](std::uint32_t name, std::string_view interface, std::uint32_t) {
                if (!seat_ && interface == wl_seat_interface.name) {
                    seat_ =
                        reinterpret_cast<wl_seat *>(registry_->bind(name, wl_seat_interface, 1));
                } else if (!manager_ &&
                           interface == zwp_virtual_keyboard_manager_v1_interface.name) {
                    manager_ = reinterpret_cast<zwp_virtual_keyboard_manager_v1 *>(
                        registry_->bind(name, zwp_virtual_keyboard_manager_v1_interface, 1));
                }
            },
            [](std::uint32_t) {});
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
        return loop_->roundTrip(pasteboardStallLimit);
    }

    void key(std::uint32_t code, std::uint32_t state) {
        zwp_virtual_keyboard_v1_key(keyboard_, ++time_, code, state);
    }

    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<Registry> registry_;
    wl_seat *seat_ = nullptr;
    zwp_virtual_keyboard_manager_v1 *manager_ = nullptr;
    zwp_virtual_keyboard_v1 *keyboard_ = nullptr;
    std::uint32_t time_ = 0; // only its order counts
};

class WaylandPaster final : public Paster {
  public:
    WaylandPaster(MainQueue &mainQueue, IoThread &io, std::string display)
        : mainQueue_(mainQueue)
        , io_(io)
        , display_(std::move(display)) {}
    ~WaylandPaster() override { mainQueue_.cancel(next_); }

    // The compositor gives the keyboard back by itself, and no other keyboard's modifiers count for
    // ours.
    void remember() override {}

    void paste(std::function<void(bool)> done) override {
        mainQueue_.cancel(next_);
        next_ = mainQueue_.postAfter(keyboardIsBackAfter, [this, done = std::move(done)] {
            next_ = 0;
            std::string declined;
            const auto keyboard = Keyboard::make(io_, display_, declined);
            done(keyboard && keyboard->pressCtrlV());
        });
    }

    std::string description() const override { return "Wayland, virtual keyboard"; }

  private:
    MainQueue &mainQueue_;
    IoThread &io_;
    const std::string display_;
    MainQueue::TaskId next_ = 0;
};

} // namespace

Created<Paster> createWaylandPaster(MainQueue &mainQueue, IoThread &io,
                                    const std::string &display) {
    const std::string name = display.empty() ? EventLoop::defaultDisplay() : display;
    std::string declined;
    if (!Keyboard::make(io, name, declined)) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<WaylandPaster>(mainQueue, io, name), {}};
}

} // namespace nerlo::platform
