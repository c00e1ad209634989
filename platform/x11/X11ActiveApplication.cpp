#include "platform/x11/X11ActiveApplication.h"

#include "platform/Alive.h"
#include "platform/SpreadsheetLinks.h"
#include "platform/x11/Connection.h"
#include "platform/x11/EventThread.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace nerlo::platform {

namespace {

using x11::Connection;

// Two names of a program are longer than this only by malice, in bytes.
constexpr std::size_t longestClass = 1024;

// Watches the root window; lives on the event thread once that has started.
class ActiveWindow final : public x11::EventSource {
  public:
    ActiveWindow(std::unique_ptr<Connection> connection, ActiveApplication::Handler activated)
        : connection_(std::move(connection))
        , activated_(std::move(activated))
        , activeWindow_(connection_->atom("_NET_ACTIVE_WINDOW")) {
        const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(connection_->get(), connection_->screen().root,
                                     XCB_CW_EVENT_MASK, &mask);
        window_ = inFront();
    }

    int fileDescriptor() const override {
        return connection_->broken() ? -1 : xcb_get_file_descriptor(connection_->get());
    }
    std::optional<Clock::time_point> deadline() const override { return std::nullopt; }
    void process() override {
        while (const auto event = x11::Event(xcb_poll_for_event(connection_->get()))) {
            if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY &&
                reinterpret_cast<const xcb_property_notify_event_t &>(*event).atom ==
                    activeWindow_) {
                look();
            }
        }
    }

  private:
    xcb_window_t inFront() {
        const auto property =
            connection_->property(connection_->screen().root, activeWindow_, 64, false);
        const auto words = property ? property->words() : std::vector<std::uint32_t>();
        return words.empty() ? xcb_window_t{XCB_NONE} : words[0];
    }

    void look() {
        const auto window = inFront();
        // While the focus moves, no window is in front for a moment.
        if (window == XCB_NONE || window == window_) {
            return;
        }
        window_ = window;
        activated_(identifierOf(window));
    }

    std::string identifierOf(xcb_window_t window) {
        const auto property = connection_->property(window, XCB_ATOM_WM_CLASS, longestClass, false);
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

    std::unique_ptr<Connection> connection_;
    ActiveApplication::Handler activated_;
    xcb_atom_t activeWindow_;
    xcb_window_t window_;
};

class X11ActiveApplication final : public ActiveApplication {
  public:
    explicit X11ActiveApplication(MainQueue &mainQueue)
        : mainQueue_(mainQueue) {}

    void setActivatedHandler(Handler activated) override {
        thread_.reset();
        source_.reset();
        alive_ = {};
        if (!activated) {
            return;
        }
        auto connection = Connection::open();
        if (!connection) {
            return;
        }
        source_ = std::make_unique<ActiveWindow>(std::move(connection),
                                                 alive_.guardOn(mainQueue_, std::move(activated)));
        thread_ = std::make_unique<x11::EventThread>(*source_);
    }

    std::string description() const override { return "X11, _NET_ACTIVE_WINDOW"; }

  private:
    MainQueue &mainQueue_;
    Alive alive_; // of one handler after the other
    std::unique_ptr<ActiveWindow> source_;
    std::unique_ptr<x11::EventThread> thread_;
};

} // namespace

Created<ActiveApplication> createX11ActiveApplication(MainQueue &mainQueue) {
    const auto connection = Connection::open();
    if (!connection) {
        return {nullptr, "no X display"};
    }
    return {std::make_unique<X11ActiveApplication>(mainQueue), {}};
}

} // namespace nerlo::platform
