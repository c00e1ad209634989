#include "platform/wayland/WaylandKeyboardLayout.h"

#include "platform/Alive.h"
#include "platform/Pasteboard.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/Registry.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <algorithm>
#include <functional>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>
#include <wayland-client.h>

namespace nerlo::platform {

namespace {

using wayland::Clock;
using wayland::EventLoop;
using wayland::Registry;
using KeymapHandler = std::function<void(std::shared_ptr<const xkb::Keymap>)>;

// Real ones are some 60 KB.
constexpr std::uint32_t largestKeymap = 4 << 20;

// Not mapped into memory: the compositor could cut the file short under our hands.
std::shared_ptr<const xkb::Keymap> readKeymap(int fd, std::uint32_t size) {
    struct stat status {};
    if (size == 0 || size > largestKeymap || fstat(fd, &status) != 0 || !S_ISREG(status.st_mode)) {
        return nullptr;
    }
    std::string text(size, '\0');
    const ssize_t got = pread(fd, text.data(), text.size(), 0);
    text.resize(got > 0 ? static_cast<std::size_t>(got) : 0);
    text.resize(std::min(text.size(), text.find('\0')));
    return xkb::Keymap::fromText(text);
}

// The keyboard of the first seat; lives on the I/O thread once its connection is served there.
class Keyboard {
  public:
    explicit Keyboard(wl_display *display)
        : registry_(
              display,
              [this](std::uint32_t name, std::string_view interface, std::uint32_t version) {
                  if (!seat_ && interface == wl_seat_interface.name) {
                      bind(name, version);
                  }
              },
              [this](std::uint32_t name) {
                  if (name == name_) {
                      release();
                  }
              }) {}
    ~Keyboard() { release(); }
    Keyboard(const Keyboard &) = delete;
    Keyboard &operator=(const Keyboard &) = delete;

    void report(KeymapHandler handler) { handler_ = std::move(handler); }

    // For the time before anybody listens.
    std::shared_ptr<const xkb::Keymap> keymap;

  private:
    void bind(std::uint32_t name, std::uint32_t version) {
        name_ = name;
        seat_ = reinterpret_cast<wl_seat *>(
            registry_.bind(name, wl_seat_interface, std::min(version, 5u)));
        static constexpr wl_seat_listener listener{
            [](void *data, wl_seat *, std::uint32_t capabilities) {
                static_cast<Keyboard *>(data)->capabilities(capabilities);
            },
            [](void *, wl_seat *, const char *) {}};
        wl_seat_add_listener(seat_, &listener, this);
    }

    void capabilities(std::uint32_t capabilities) {
        const bool has = (capabilities & WL_SEAT_CAPABILITY_KEYBOARD) != 0;
        if (has && !keyboard_) {
            keyboard_ = wl_seat_get_keyboard(seat_);
            static constexpr wl_keyboard_listener listener{
                [](void *data, wl_keyboard *, std::uint32_t format, int fd, std::uint32_t size) {
                    static_cast<Keyboard *>(data)->takeKeymap(format, fd, size);
                },
                [](void *, wl_keyboard *, std::uint32_t, wl_surface *, wl_array *) {},
                [](void *, wl_keyboard *, std::uint32_t, wl_surface *) {},
                [](void *, wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t,
                   std::uint32_t) {},
                [](void *, wl_keyboard *, std::uint32_t, std::uint32_t, std::uint32_t,
                   std::uint32_t, std::uint32_t) {},
                [](void *, wl_keyboard *, std::int32_t, std::int32_t) {}};
            wl_keyboard_add_listener(keyboard_, &listener, this);
        } else if (!has) {
            releaseKeyboard();
        }
    }

    void takeKeymap(std::uint32_t format, int fd, std::uint32_t size) {
        auto read = format == WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1 ? readKeymap(fd, size) : nullptr;
        close(fd);
        if (!read) {
            return;
        }
        if (handler_) {
            handler_(std::move(read));
        } else {
            keymap = std::move(read);
        }
    }

    void releaseKeyboard() {
        if (keyboard_) {
            if (wl_keyboard_get_version(keyboard_) >= WL_KEYBOARD_RELEASE_SINCE_VERSION) {
                wl_keyboard_release(keyboard_);
            } else {
                wl_keyboard_destroy(keyboard_);
            }
            keyboard_ = nullptr;
        }
    }
    void release() {
        releaseKeyboard();
        if (seat_) {
            wl_seat_destroy(seat_);
            seat_ = nullptr;
        }
    }

    std::uint32_t name_ = 0;
    wl_seat *seat_ = nullptr;
    wl_keyboard *keyboard_ = nullptr;
    KeymapHandler handler_;
    Registry registry_;
};

class WaylandKeyboardLayout final : public XkbKeyboardLayout {
  public:
    WaylandKeyboardLayout(MainQueue &mainQueue, std::unique_ptr<EventLoop> loop,
                          std::unique_ptr<Keyboard> keyboard)
        : XkbKeyboardLayout(keyboard->keymap ? keyboard->keymap : xkb::Keymap::fromNames("us"))
        , loop_(std::move(loop))
        , keyboard_(std::move(keyboard)) {
        keyboard_->report(
            alive_.guardOn(mainQueue, [this](const std::shared_ptr<const xkb::Keymap> &keymap) {
                replace(keymap, 0);
            }));
        loop_->start({});
    }
    ~WaylandKeyboardLayout() override {
        loop_->stop(Clock::now(), Clock::now());
        keyboard_.reset();
    }

    std::string description() const override { return "Wayland, by the compositor's keymap"; }

  private:
    Alive alive_;
    std::unique_ptr<EventLoop> loop_;
    std::unique_ptr<Keyboard> keyboard_;
};

} // namespace

Created<KeyboardLayout> createWaylandKeyboardLayout(MainQueue &mainQueue, IoThread &io,
                                                    const std::string &display) {
    auto loop = EventLoop::connect(io, display.empty() ? EventLoop::defaultDisplay() : display);
    if (!loop) {
        return {nullptr, "there is no Wayland compositor"};
    }
    auto keyboard = std::make_unique<Keyboard>(loop->display());
    // The seats, then what they can, then the keymap.
    for (int trip = 0; trip < 3; ++trip) {
        if (!loop->roundTrip(pasteboardServerLimit)) {
            keyboard.reset();
            return {nullptr, "the Wayland compositor does not answer"};
        }
    }
    return {
        std::make_unique<WaylandKeyboardLayout>(mainQueue, std::move(loop), std::move(keyboard)),
        {}};
}

} // namespace nerlo::platform
