#include "platform/x11/X11Desktop.h"

#include "platform/Alive.h"
#include "platform/x11/Connection.h"
#include "platform/x11/EventThread.h"

#include <cstring>
#include <utility>

namespace nerlo::platform {

namespace {

using x11::Connection;

// Selection of the tray of the first screen, and the message that a new owner sends.
constexpr const char *traySelection = "_NET_SYSTEM_TRAY_S0";
constexpr const char *managerMessage = "MANAGER";

class TraySource final : public x11::EventSource {
  public:
    TraySource(std::unique_ptr<Connection> connection, std::function<void()> appeared)
        : connection_(std::move(connection))
        , appeared_(std::move(appeared))
        , tray_(connection_->atom(traySelection))
        , manager_(connection_->atom(managerMessage)) {
        const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        xcb_change_window_attributes(connection_->get(), connection_->screen().root,
                                     XCB_CW_EVENT_MASK, &mask);
        // Asked after the events were, so that no tray is missed between the two.
        const auto cookie = xcb_get_selection_owner(connection_->get(), tray_);
        const x11::Reply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(connection_->get(), cookie, nullptr));
        if (reply && reply->owner != XCB_NONE) {
            tell();
        }
    }

    int fileDescriptor() const override {
        return connection_->broken() ? -1 : xcb_get_file_descriptor(connection_->get());
    }
    std::optional<Clock::time_point> deadline() const override { return std::nullopt; }
    void process() override {
        while (const auto event = x11::Event(xcb_poll_for_event(connection_->get()))) {
            if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE) {
                continue;
            }
            const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
            // Time stamp, selection, owner.
            if (message.type == manager_ && message.data.data32[1] == tray_) {
                tell();
            }
        }
    }

  private:
    void tell() {
        if (auto appeared = std::exchange(appeared_, nullptr)) {
            appeared();
        }
    }

    std::unique_ptr<Connection> connection_;
    std::function<void()> appeared_;
    xcb_atom_t tray_;
    xcb_atom_t manager_;
};

class X11TrayWatch final : public TrayWatch {
  public:
    X11TrayWatch(std::unique_ptr<Connection> connection, MainQueue &mainQueue,
                 std::function<void()> appeared)
        : source_(std::move(connection), alive_.guardOn(mainQueue, std::move(appeared)))
        , thread_(source_) {}

  private:
    Alive alive_;
    TraySource source_;
    x11::EventThread thread_;
};

class X11TaskbarHint final : public TaskbarHint {
  public:
    explicit X11TaskbarHint(std::unique_ptr<Connection> connection)
        : connection_(std::move(connection)) {}

    void setShownInTaskbar(std::uint64_t window, bool shown) override {
        constexpr std::uint32_t remove = 0;
        constexpr std::uint32_t add = 1;
        constexpr std::uint32_t fromApplication = 1;
        xcb_client_message_event_t message;
        std::memset(&message, 0, sizeof message);
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = static_cast<xcb_window_t>(window);
        message.type = connection_->atom("_NET_WM_STATE");
        message.data.data32[0] = shown ? remove : add;
        message.data.data32[1] = connection_->atom("_NET_WM_STATE_SKIP_TASKBAR");
        message.data.data32[3] = fromApplication;
        xcb_send_event(connection_->get(), 0, connection_->screen().root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
        xcb_flush(connection_->get());
    }

  private:
    std::unique_ptr<Connection> connection_;
};

} // namespace

std::unique_ptr<TaskbarHint> createX11TaskbarHint() {
    auto connection = Connection::open();
    return connection ? std::make_unique<X11TaskbarHint>(std::move(connection)) : nullptr;
}

std::unique_ptr<TrayWatch> createX11TrayWatch(MainQueue &mainQueue,
                                              std::function<void()> appeared) {
    auto connection = Connection::open();
    return connection ? std::make_unique<X11TrayWatch>(std::move(connection), mainQueue,
                                                       std::move(appeared))
                      : nullptr;
}

} // namespace nerlo::platform
