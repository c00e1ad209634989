#include "platform/x11/SharedConnection.h"

#include <utility>

namespace nerlo::platform::x11 {

std::shared_ptr<SharedConnection> SharedConnection::open(IoThread &io) {
    auto connection = Connection::open();
    return connection
               ? std::shared_ptr<SharedConnection>(new SharedConnection(io, std::move(connection)))
               : nullptr;
}

SharedConnection::SharedConnection(IoThread &io, std::unique_ptr<Connection> connection)
    : io_(io)
    , connection_(std::move(connection))
    , pump_(io, *this) {}

void SharedConnection::submit(std::function<void()> task) {
    pump_.submit(std::move(task));
}

void SharedConnection::run(const std::function<void()> &task) {
    io_.run([&] {
        task();
        pump_.process();
    });
}

std::optional<XkbEvents>
SharedConnection::keyboardOf(const std::shared_ptr<SharedConnection> &connection,
                             std::string &declined) {
    if (!connection) {
        declined = noDisplay;
        return std::nullopt;
    }
    auto &keyboard = connection->keyboard_;
    connection->run([&] {
        if (!keyboard) {
            keyboard = XkbEvents::select(*connection->connection_);
        }
    });
    if (!keyboard) {
        declined = "the X server has no keyboard extension";
    }
    return keyboard;
}

void SharedConnection::add(Listener &listener) {
    listeners_.push_back(&listener);
    selectRootEvents();
}

void SharedConnection::remove(Listener &listener) {
    std::erase(listeners_, &listener);
    selectRootEvents();
}

void SharedConnection::selectRootEvents() {
    std::uint32_t mask = XCB_EVENT_MASK_NO_EVENT;
    for (const auto *listener : listeners_) {
        mask |= listener->rootEvents();
    }
    xcb_change_window_attributes(connection_->get(), connection_->screen().root, XCB_CW_EVENT_MASK,
                                 &mask);
}

int SharedConnection::fileDescriptor() const {
    return connection_->broken() ? -1 : xcb_get_file_descriptor(connection_->get());
}

std::optional<EventSource::Clock::time_point> SharedConnection::deadline() const {
    return more_ ? std::optional(Clock::time_point::min()) : std::nullopt;
}

void SharedConnection::process() {
    more_ = false;
    for (int left = eventsAtOnce; left > 0; --left) {
        const Event event(xcb_poll_for_event(connection_->get()));
        if (!event) {
            break;
        }
        more_ = true;
        for (auto *listener : listeners_) {
            listener->handle(*event);
        }
    }
    if (more_) {
        for (auto *listener : listeners_) {
            listener->settle();
        }
    }
    xcb_flush(connection_->get());
}

} // namespace nerlo::platform::x11
