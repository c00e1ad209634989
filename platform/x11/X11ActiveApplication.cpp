#include "platform/x11/X11ActiveApplication.h"

#include "platform/Alive.h"
#include "platform/SpreadsheetLinks.h"
#include "platform/x11/SharedConnection.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::SharedConnection;

// In bytes; no honest program has longer names.
constexpr std::size_t longestClass = 1024;

// Watches the root window; lives on the I/O thread. There only while somebody listens: every change
// of the root window's properties wakes it.
class ActiveWindow final : public SharedConnection::Listener {
  public:
    ActiveWindow(SharedConnection &shared, ActiveApplication::Handler activated)
        : shared_(shared)
        , connection_(shared.connection())
        , activated_(std::move(activated))
        , activeWindow_(connection_.atom("_NET_ACTIVE_WINDOW")) {
        shared_.add(*this);
        window_ = inFront();
    }
    ~ActiveWindow() { shared_.remove(*this); }
    ActiveWindow(const ActiveWindow &) = delete;
    ActiveWindow &operator=(const ActiveWindow &) = delete;

    std::uint32_t rootEvents() const override { return XCB_EVENT_MASK_PROPERTY_CHANGE; }
    void handle(const xcb_generic_event_t &event) override {
        moved_ |=
            (event.response_type & 0x7f) == XCB_PROPERTY_NOTIFY &&
            reinterpret_cast<const xcb_property_notify_event_t &>(event).atom == activeWindow_;
    }
    void settle() override {
        if (std::exchange(moved_, false)) {
            look();
        }
    }

  private:
    xcb_window_t inFront() {
        const auto property =
            connection_.property(connection_.screen().root, activeWindow_, 64, false);
        const auto words = property ? property->words() : std::vector<std::uint32_t>();
        return words.empty() ? xcb_window_t{XCB_NONE} : words[0];
    }

    void look() {
        const auto window = inFront();
        // None for a moment while the focus moves, and under a Wayland compositor for as long as a
        // window of another kind is in front: then nothing is known.
        if (window != window_) {
            window_ = window;
            activated_(window == XCB_NONE ? std::string() : identifierOf(window));
        }
    }

    std::string identifierOf(xcb_window_t window) {
        const auto property = connection_.property(window, XCB_ATOM_WM_CLASS, longestClass, false);
        if (!property) {
            return {};
        }
        // Instance and class, each with a zero behind it. Either may name a spreadsheet.
        const std::string_view both = property->bytes;
        const auto instance = both.substr(0, both.find('\0'));
        auto name = both.substr(std::min(both.size(), instance.size() + 1));
        name = name.substr(0, name.find('\0'));
        for (const auto candidate : {instance, name}) {
            if (const auto known = spreadsheetOfWindow(candidate); !known.empty()) {
                return std::string(known);
            }
        }
        return std::string(name);
    }

    SharedConnection &shared_;
    Connection &connection_;
    ActiveApplication::Handler activated_;
    xcb_atom_t activeWindow_;
    xcb_window_t window_ = XCB_NONE;
    bool moved_ = false;
};

class X11ActiveApplication final : public ActiveApplication {
  public:
    X11ActiveApplication(MainQueue &mainQueue, std::shared_ptr<SharedConnection> shared)
        : mainQueue_(mainQueue)
        , shared_(std::move(shared)) {}
    ~X11ActiveApplication() override { setActivatedHandler(nullptr); }

    void setActivatedHandler(Handler activated) override {
        alive_ = {};
        std::function<void(std::string)> tell;
        if (activated) {
            tell = alive_.guardOn(mainQueue_, std::move(activated));
        }
        shared_->run([&] {
            window_.reset();
            if (tell) {
                window_ = std::make_unique<ActiveWindow>(*shared_, std::move(tell));
            }
        });
    }

    std::string description() const override { return "X11, _NET_ACTIVE_WINDOW"; }

  private:
    MainQueue &mainQueue_;
    std::shared_ptr<SharedConnection> shared_;
    Alive alive_;                          // of one handler after the other
    std::unique_ptr<ActiveWindow> window_; // on the I/O thread; null: nobody listens
};

} // namespace

Created<ActiveApplication>
createX11ActiveApplication(MainQueue &mainQueue, std::shared_ptr<SharedConnection> connection) {
    if (!connection) {
        return {nullptr, x11::noDisplay};
    }
    return {std::make_unique<X11ActiveApplication>(mainQueue, std::move(connection)), {}};
}

} // namespace nerlo::platform
