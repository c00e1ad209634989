#include "platform/wayland/EventLoop.h"

#include "storage/EnvironmentVariable.h"

#include <algorithm>
#include <cerrno>
#include <future>
#include <utility>

#include <poll.h>
#include <sys/epoll.h>
#include <wayland-client.h>

namespace nerlo::platform::wayland {

namespace {

constexpr auto firstRetry = std::chrono::milliseconds(100);
constexpr auto lastRetry = std::chrono::seconds(30);
// After this the next loss counts as the first one again.
constexpr auto steadyConnection = std::chrono::minutes(1);

} // namespace

struct EventLoop::RoundTrip {
    using Task = std::function<void(bool)>;

    EventLoop &loop;
    Clock::time_point deadline;
    Task task;
    wl_callback *callback = nullptr;

    RoundTrip(EventLoop &ofLoop, Clock::time_point until, Task then)
        : loop(ofLoop)
        , deadline(until)
        , task(std::move(then)) {
        static const wl_callback_listener listener{[](void *self, wl_callback *, std::uint32_t) {
            auto &trip = *static_cast<RoundTrip *>(self);
            trip.loop.finish(trip, true);
        }};
        if (loop.connected_) {
            callback = wl_display_sync(loop.display_);
        }
        if (callback) {
            wl_callback_add_listener(callback, &listener, this);
        }
    }
    ~RoundTrip() {
        if (callback) {
            wl_callback_destroy(callback);
        }
    }
    RoundTrip(const RoundTrip &) = delete;
    RoundTrip &operator=(const RoundTrip &) = delete;
};

std::string EventLoop::defaultDisplay() {
    const std::string name(storage::environmentVariable("WAYLAND_DISPLAY"));
    const bool session = storage::environmentVariable("XDG_SESSION_TYPE") == "wayland";
    return name.empty() && session ? "wayland-0" : name;
}

std::unique_ptr<EventLoop> EventLoop::connect(IoThread &io, const std::string &displayName) {
    // An empty name would mean the default one to libwayland.
    wl_display *display = displayName.empty() ? nullptr : wl_display_connect(displayName.c_str());
    return display ? std::unique_ptr<EventLoop>(new EventLoop(io, displayName, display)) : nullptr;
}

EventLoop::EventLoop(IoThread &io, std::string displayName, wl_display *display)
    : io_(io)
    , displayName_(std::move(displayName))
    , display_(display) {}

EventLoop::~EventLoop() {
    roundTrips_.clear();
    wl_display_disconnect(display_);
}

bool EventLoop::roundTrip(Clock::duration limit) {
    std::optional<bool> result;
    afterRoundTrip(limit, [&result](bool answered) { result = answered; });
    const auto end = Clock::now() + limit;
    while (!result) {
        if (connected_) {
            flush();
        }
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        // poll() passes over a negative descriptor.
        pollfd waiting{connected_ ? wl_display_get_fd(display_) : -1,
                       static_cast<short>(flushBlocked_ ? POLLIN | POLLOUT : POLLIN), 0};
        const bool ready =
            poll(&waiting, 1, connected_ ? static_cast<int>(std::max<std::int64_t>(left, 0)) : 0) >
            0;
        if (ready && (waiting.revents & ~POLLOUT) != 0) {
            read();
        }
        expireRoundTrips(Clock::now());
    }
    return *result;
}

void EventLoop::start(Watcher watcher) {
    watcher_ = std::move(watcher);
    started_ = true;
    post([this] {
        if (connected_) {
            watchDisplay();
        } else {
            lose();
        }
    });
}

void EventLoop::stop(Clock::time_point atLeast, Clock::time_point atMost) {
    if (!started_) {
        return;
    }
    const auto reached = std::make_shared<std::promise<void>>();
    const auto end = reached->get_future();
    post([this, atLeast, atMost, reached] {
        end_ = End{std::min(atLeast, atMost), atMost, [reached] { reached->set_value(); }};
        abandonIncoming();
    });
    end.wait();
}

bool EventLoop::goOnBehind(Watcher watcher) {
    std::vector<int> kept{wl_display_get_fd(display_)};
    for (const auto &running : transfers_) {
        kept.push_back(running.transfer->fd());
    }
    if (!io_.goOnBehind(kept)) {
        return false;
    }
    end_.reset();
    roundTrips_.clear();
    watcher_ = std::move(watcher);
    watchDisplay();
    for (auto &running : transfers_) {
        watchTransfer(running);
    }
    post([] {}); // what is due
    return true;
}

void EventLoop::endWithTransfers(Task reached) {
    end_ = End{Clock::time_point::min(), Clock::time_point::max(), std::move(reached)};
}

void EventLoop::post(Task task) {
    io_.post([this, task = std::move(task)] {
        task();
        settle();
    });
}

void EventLoop::watchDisplay() {
    watch_ = io_.watch(wl_display_get_fd(display_), EPOLLIN, [this](std::uint32_t events) {
        if ((events & ~EPOLLOUT) != 0) {
            read();
        }
        settle();
    });
}

void EventLoop::settle() {
    if (connected_) {
        const bool wasBlocked = flushBlocked_;
        flush();
        if (flushBlocked_ != wasBlocked) {
            io_.setEvents(watch_, flushBlocked_ ? EPOLLIN | EPOLLOUT : EPOLLIN);
        }
    }
    if (!endReached()) {
        const auto next = nextDeadline();
        timer_ = next == Clock::time_point::max() ? IoThread::Timer()
                                                  : io_.at(next, [this] { expire(); });
        return;
    }
    abandonIncoming();
    for (auto &running : transfers_) {
        running.watch = {};
    }
    watch_ = {};
    timer_ = {};
    // The loop may be gone as soon as this is told.
    const auto reached = std::move(end_->reached);
    reached();
}

void EventLoop::add(std::unique_ptr<Transfer> transfer) {
    auto &running = transfers_.emplace_back();
    running.transfer = std::move(transfer);
    watchTransfer(running);
}

void EventLoop::watchTransfer(Running &running) {
    const auto &added = *running.transfer;
    running.watch =
        io_.watch(added.fd(), static_cast<std::uint32_t>(added.events()), [this, &added](auto) {
            advance(added);
            settle();
        });
}

// A transfer that ends may start another one, or end others.
void EventLoop::advance(const Transfer &transfer) {
    std::list<Running> served;
    served.splice(served.end(), transfers_,
                  std::ranges::find_if(transfers_, [&](const Running &running) {
                      return running.transfer.get() == &transfer;
                  }));
    if (served.front().transfer->advance()) {
        transfers_.splice(transfers_.end(), served);
    }
}

void EventLoop::limitOutgoing(std::size_t most) {
    const auto outgoing = [](const Running &running) {
        return running.transfer->events() == POLLOUT;
    };
    while (static_cast<std::size_t>(std::ranges::count_if(transfers_, outgoing)) > most) {
        // The deadline is counted from the last byte.
        const auto stillest = std::ranges::min_element(transfers_, {}, [&](const auto &running) {
            return outgoing(running) ? running.deadline() : Clock::time_point::max();
        });
        stillest->transfer->abandon();
        transfers_.erase(stillest);
    }
}

void EventLoop::abandonIncoming() {
    // Taken out of the list first: what they call may start new ones.
    std::list<Running> abandoned;
    for (auto next = transfers_.begin(); next != transfers_.end();) {
        const auto running = next++;
        if (running->transfer->events() == POLLIN) {
            abandoned.splice(abandoned.end(), transfers_, running);
        }
    }
    for (const auto &running : abandoned) {
        running.transfer->abandon();
    }
}

void EventLoop::afterRoundTrip(Clock::duration limit, std::function<void(bool)> task) {
    const auto deadline = connected_ ? Clock::now() + limit : Clock::time_point::min();
    roundTrips_.push_back(std::make_unique<RoundTrip>(*this, deadline, std::move(task)));
}

void EventLoop::finish(RoundTrip &trip, bool answered) {
    const RoundTrip::Task then = std::move(trip.task);
    std::erase_if(roundTrips_, [&trip](const auto &other) { return other.get() == &trip; });
    then(answered);
}

void EventLoop::expireRoundTrips(Clock::time_point until) {
    // From the start each time: a task may add and end others.
    for (;;) {
        const auto expired = std::ranges::find_if(
            roundTrips_, [until](const auto &trip) { return trip->deadline <= until; });
        if (expired == roundTrips_.end()) {
            return;
        }
        finish(**expired, false);
    }
}

void EventLoop::expire() {
    const auto now = Clock::now();
    expireTransfers(now);
    expireRoundTrips(now);
    if (!connected_ && retryAt_ <= now) {
        reconnect();
    }
    settle();
}

void EventLoop::expireTransfers(Clock::time_point until) {
    std::list<Running> expired;
    for (auto next = transfers_.begin(); next != transfers_.end();) {
        const auto running = next++;
        if (running->deadline() <= until) {
            expired.splice(expired.end(), transfers_, running);
        }
    }
    for (const auto &running : expired) {
        running.transfer->abandon();
    }
}

void EventLoop::flush() {
    flushBlocked_ = false;
    if (wl_display_flush(display_) < 0) {
        if (errno == EAGAIN) {
            flushBlocked_ = true;
        } else if (errno != EPIPE) { // after EPIPE the compositor's last words are still to be read
            lose();
        }
    }
}

void EventLoop::read() {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) {
            lose();
            return;
        }
    }
    if (wl_display_read_events(display_) < 0 || wl_display_dispatch_pending(display_) < 0) {
        lose();
    }
}

Clock::time_point EventLoop::nextDeadline() const {
    auto next = retryAt_;
    if (end_) {
        next = std::min(next, Clock::now() < end_->atLeast ? end_->atLeast : end_->atMost);
    }
    for (const auto &running : transfers_) {
        next = std::min(next, running.deadline());
    }
    for (const auto &trip : roundTrips_) {
        next = std::min(next, trip->deadline);
    }
    return next;
}

bool EventLoop::endReached() const {
    const auto now = Clock::now();
    return end_ && now >= end_->atLeast && (now >= end_->atMost || transfers_.empty());
}

void EventLoop::lose() {
    connected_ = false;
    flushBlocked_ = false;
    watch_ = {};
    for (const auto &trip : roundTrips_) {
        trip->deadline = Clock::time_point::min();
    }
    if (watcher_.lost) {
        watcher_.lost();
    }
    abandonIncoming();
    const auto now = Clock::now();
    retryDelay_ = now - connectedSince_ > steadyConnection
                      ? firstRetry
                      : std::clamp<Clock::duration>(2 * retryDelay_, firstRetry, lastRetry);
    retryAt_ = now + retryDelay_;
}

void EventLoop::reconnect() {
    retryAt_ = Clock::time_point::max();
    wl_display *display = watcher_.restored ? wl_display_connect(displayName_.c_str()) : nullptr;
    if (!display) {
        if (watcher_.gone) {
            watcher_.gone();
        }
        return;
    }
    wl_display_disconnect(std::exchange(display_, display));
    connected_ = true;
    connectedSince_ = Clock::now();
    watchDisplay();
    if (!watcher_.restored() && connected_) {
        lose();
    }
}

} // namespace nerlo::platform::wayland
