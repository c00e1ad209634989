#include "platform/x11/X11Desktop.h"

#include "platform/Alive.h"
#include "platform/x11/SharedConnection.h"

#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::SharedConnection;

// Selection of the tray of the first screen, and the message that a new owner sends.
constexpr const char *traySelection = "_NET_SYSTEM_TRAY_S0";
constexpr const char *managerMessage = "MANAGER";

bool hasTray(Connection &connection) {
    auto *xcb = connection.get();
    const auto cookie = xcb_get_selection_owner(xcb, connection.atom(traySelection));
    const x11::Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(xcb, cookie, nullptr));
    return reply && reply->owner != XCB_NONE;
}

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
        if (hasTray(shared_.connection())) {
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

constexpr const char *skipTaskbar = "_NET_WM_STATE_SKIP_TASKBAR";

class X11TaskbarHint final : public TaskbarHint {
  public:
    explicit X11TaskbarHint(std::shared_ptr<SharedConnection> shared)
        : shared_(std::move(shared)) {}

    // Waits, because the window must not appear before.
    void setShownInTaskbar(std::uint64_t id, bool shown) override {
        shared_->run([&connection = shared_->connection(), id, shown] {
            const auto window = static_cast<xcb_window_t>(id);
            if (!isMapped(connection, window)) {
                setProperty(connection, window, shown);
            }
            tellWindowManager(connection, window, shown);
        });
    }

  private:
    static bool isMapped(Connection &connection, xcb_window_t window) {
        const auto cookie = xcb_get_window_attributes(connection.get(), window);
        const x11::Reply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection.get(), cookie, nullptr));
        return attributes && attributes->map_state != XCB_MAP_STATE_UNMAPPED;
    }

    // Where the window manager looks when the window appears. From then on the property is its own,
    // and it is told.
    static void setProperty(Connection &connection, xcb_window_t window, bool shown) {
        constexpr std::size_t limit = 1024;
        const auto state = connection.atom("_NET_WM_STATE");
        const auto property = connection.property(window, state, limit, false);
        auto atoms = property ? property->words() : std::vector<std::uint32_t>();
        std::erase(atoms, connection.atom(skipTaskbar));
        if (!shown) {
            atoms.push_back(connection.atom(skipTaskbar));
        }
        xcb_change_property(connection.get(), XCB_PROP_MODE_REPLACE, window, state, XCB_ATOM_ATOM,
                            32, static_cast<std::uint32_t>(atoms.size()), atoms.data());
    }

    static void tellWindowManager(Connection &connection, xcb_window_t window, bool shown) {
        constexpr std::uint32_t remove = 0;
        constexpr std::uint32_t add = 1;
        constexpr std::uint32_t fromApplication = 1;
        xcb_client_message_event_t message;
        std::memset(&message, 0, sizeof message);
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = connection.atom("_NET_WM_STATE");
        message.data.data32[0] = shown ? remove : add;
        message.data.data32[1] = connection.atom(skipTaskbar);
        message.data.data32[3] = fromApplication;
        xcb_send_event(connection.get(), 0, connection.screen().root,
                       XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                       reinterpret_cast<const char *>(&message));
        xcb_flush(connection.get());
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

bool x11TrayThere(const std::shared_ptr<SharedConnection> &connection) {
    bool there = false;
    if (connection) {
        connection->run([&, &x = connection->connection()] { there = hasTray(x); });
    }
    return there;
}

bool unmanagedWindowsGetKeys(const std::shared_ptr<SharedConnection> &connection) {
    // Of the compositors that are known, those built on this library do.
    constexpr std::string_view library = "wlroots";
    constexpr std::size_t limit = 1024;
    bool known = false;
    if (connection) {
        connection->run([&, &x = connection->connection()] {
            const auto check =
                x.property(x.screen().root, x.atom("_NET_SUPPORTING_WM_CHECK"), limit, false);
            const auto window = check ? check->words() : std::vector<std::uint32_t>();
            const auto name = window.empty()
                                  ? std::nullopt
                                  : x.property(window[0], x.atom("_NET_WM_NAME"), limit, false);
            known = name && name->bytes.starts_with(library);
        });
    }
    return known;
}

} // namespace nerlo::platform
