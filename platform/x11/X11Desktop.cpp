#include "platform/x11/X11Desktop.h"

#include "platform/Alive.h"
#include "platform/x11/SharedConnection.h"

#include <cstring>
#include <utility>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::SharedConnection;

// Selection of the tray of the first screen, and the message that a new owner sends.
constexpr const char *traySelection = "_NET_SYSTEM_TRAY_S0";
constexpr const char *managerMessage = "MANAGER";

// Lives on the I/O thread.
class TrayListener final : public SharedConnection::Listener {
  public:
    TrayListener(SharedConnection &shared, std::function<void()> appeared)
        : shared_(shared)
        , appeared_(std::move(appeared))
        , tray_(shared.connection().atom(traySelection))
        , manager_(shared.connection().atom(managerMessage)) {
        shared_.add(*this);
        // Asked after the events were, so that no tray is missed between the two.
        auto *xcb = shared_.connection().get();
        const x11::Reply<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, tray_), nullptr));
        if (reply && reply->owner != XCB_NONE) {
            tell();
        }
    }
    ~TrayListener() { shared_.remove(*this); }
    TrayListener(const TrayListener &) = delete;
    TrayListener &operator=(const TrayListener &) = delete;

    std::uint32_t rootEvents() const override { return XCB_EVENT_MASK_STRUCTURE_NOTIFY; }
    void handle(const xcb_generic_event_t &event) override {
        if ((event.response_type & 0x7f) != XCB_CLIENT_MESSAGE) {
            return;
        }
        const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(event);
        // Time stamp, selection, owner.
        if (message.type == manager_ && message.data.data32[1] == tray_) {
            tell();
        }
    }

  private:
    void tell() {
        if (auto appeared = std::exchange(appeared_, nullptr)) {
            appeared();
        }
    }

    SharedConnection &shared_;
    std::function<void()> appeared_;
    xcb_atom_t tray_;
    xcb_atom_t manager_;
};

class X11TrayWatch final : public TrayWatch {
  public:
    X11TrayWatch(std::shared_ptr<SharedConnection> shared, MainQueue &mainQueue,
                 std::function<void()> appeared)
        : shared_(std::move(shared)) {
        shared_->run([&, tell = alive_.guardOn(mainQueue, std::move(appeared))] {
            listener_ = std::make_unique<TrayListener>(*shared_, tell);
        });
    }
    ~X11TrayWatch() override {
        shared_->run([this] { listener_.reset(); });
    }

  private:
    std::shared_ptr<SharedConnection> shared_;
    Alive alive_;
    std::unique_ptr<TrayListener> listener_; // on the I/O thread
};

class X11TaskbarHint final : public TaskbarHint {
  public:
    explicit X11TaskbarHint(std::shared_ptr<SharedConnection> shared)
        : shared_(std::move(shared)) {}

    void setShownInTaskbar(std::uint64_t window, bool shown) override {
        shared_->submit([shared = shared_.get(), window, shown] {
            tellWindowManager(shared->connection(), window, shown);
        });
    }

  private:
    static void tellWindowManager(Connection &connection, std::uint64_t window, bool shown) {
        constexpr std::uint32_t remove = 0;
        constexpr std::uint32_t add = 1;
        constexpr std::uint32_t fromApplication = 1;
        xcb_client_message_event_t message;
        std::memset(&message, 0, sizeof message);
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = static_cast<xcb_window_t>(window);
        message.type = connection.atom("_NET_WM_STATE");
        message.data.data32[0] = shown ? remove : add;
        message.data.data32[1] = connection.atom("_NET_WM_STATE_SKIP_TASKBAR");
        message.data.data32[3] = fromApplication;
        xcb_send_event(connection.get(), 0, connection.screen().root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
    }

    std::shared_ptr<SharedConnection> shared_;
};

} // namespace

std::unique_ptr<TaskbarHint> createX11TaskbarHint(std::shared_ptr<SharedConnection> connection) {
    return connection ? std::make_unique<X11TaskbarHint>(std::move(connection)) : nullptr;
}

std::unique_ptr<TrayWatch> createX11TrayWatch(MainQueue &mainQueue,
                                              std::shared_ptr<SharedConnection> connection,
                                              std::function<void()> appeared) {
    return connection ? std::make_unique<X11TrayWatch>(std::move(connection), mainQueue,
                                                       std::move(appeared))
                      : nullptr;
}

} // namespace nerlo::platform
