#include "platform/wayland/EventLoop.h"

#include "storage/EnvironmentVariable.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <optional>
#include <utility>

#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <unistd.h>
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

std::unique_ptr<EventLoop> EventLoop::connect(const std::string &displayName) {
    // An empty name would mean the default one to libwayland.
    wl_display *display = displayName.empty() ? nullptr : wl_display_connect(displayName.c_str());
    if (!display) {
        return nullptr;
    }
    std::unique_ptr<EventLoop> loop(new EventLoop(displayName, display));
    return loop->wake_ ? std::move(loop) : nullptr;
}

EventLoop::EventLoop(std::string displayName, wl_display *display)
    : displayName_(std::move(displayName))
    , display_(display)
    , wake_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

EventLoop::~EventLoop() {
    transfers_.clear();
    roundTrips_.clear();
    wl_display_disconnect(display_);
}

bool EventLoop::roundTrip(Clock::duration limit) {
    std::optional<bool> result;
    afterRoundTrip(limit, [&result](bool answered) { result = answered; });
    while (!result) {
        turn();
    }
    return *result;
}

void EventLoop::start(Watcher watcher) {
    watcher_ = std::move(watcher);
    if (!connected_) {
        post([this] { lose(); });
    }
    // Signals are the main thread's; and with SIGPIPE blocked here, a reader that closes its pipe
    // is an error of write().
    sigset_t all;
    sigset_t before;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before);
    thread_ = std::thread([this] { run(); });
    pthread_setname_np(thread_.native_handle(), "wayland");
    pthread_sigmask(SIG_SETMASK, &before, nullptr);
}

void EventLoop::stop(Clock::time_point atLeast, Clock::time_point atMost) {
    if (!thread_.joinable()) {
        return;
    }
    post([this, atLeast, atMost] {
        endAtLeast_ = std::min(atLeast, atMost);
        endAtMost_ = atMost;
        abandonIncoming();
    });
    thread_.join();
}

void EventLoop::post(Task task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    const std::uint64_t one = 1;
    // Cannot fail: the counter would have to overflow.
    [[maybe_unused]] const ssize_t written = write(wake_.get(), &one, sizeof one);
}

void EventLoop::add(std::unique_ptr<Transfer> transfer) {
    transfers_.push_back(std::move(transfer));
}

void EventLoop::limitOutgoing(std::size_t most) {
    const auto outgoing = [](const auto &transfer) { return transfer->events() == POLLOUT; };
    while (static_cast<std::size_t>(std::ranges::count_if(transfers_, outgoing)) > most) {
        // The deadline is counted from the last byte.
        const auto stillest = std::ranges::min_element(transfers_, {}, [&](const auto &transfer) {
            return outgoing(transfer) ? transfer->deadline() : Clock::time_point::max();
        });
        (*stillest)->abandon();
        transfers_.erase(stillest);
    }
}

void EventLoop::abandonIncoming() {
    // Taken out of the list first: what they call may start new ones.
    std::vector<std::unique_ptr<Transfer>> abandoned;
    for (auto &transfer : transfers_) {
        if (transfer->events() == POLLIN) {
            abandoned.push_back(std::move(transfer));
        }
    }
    std::erase(transfers_, nullptr);
    for (const auto &transfer : abandoned) {
        transfer->abandon();
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

void EventLoop::run() {
    while (runTasks()) {
        turn();
        if (!connected_ && retryAt_ <= Clock::now()) {
            reconnect();
        }
    }
    abandonIncoming();
}

bool EventLoop::runTasks() {
    std::vector<Task> tasks;
    {
        const std::lock_guard lock(mutex_);
        tasks.swap(tasks_);
    }
    for (const Task &task : tasks) {
        task();
    }
    const auto now = Clock::now();
    return now < endAtLeast_ || (now < endAtMost_ && !transfers_.empty());
}

void EventLoop::turn() {
    if (connected_) {
        prepareRead();
    }
    std::vector<pollfd> waits;
    waits.push_back({wake_.get(), POLLIN, 0});
    // poll() passes over a negative descriptor.
    const short compositorEvents = flushBlocked_ ? POLLIN | POLLOUT : POLLIN;
    waits.push_back({connected_ ? wl_display_get_fd(display_) : -1, compositorEvents, 0});
    for (const auto &transfer : transfers_) {
        waits.push_back({transfer->fd(), transfer->events(), 0});
    }
    if (poll(waits.data(), waits.size(), pollTimeout()) < 0) {
        for (pollfd &wait : waits) {
            wait.revents = 0;
        }
    }
    if (waits[0].revents) {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t taken = read(wake_.get(), &count, sizeof count);
    }
    std::vector<short> results;
    for (auto wait = waits.begin() + 2; wait != waits.end(); ++wait) {
        results.push_back(wait->revents);
    }
    advanceTransfers(results);
    if (connected_) {
        finishRead(waits[1].revents);
    }
    expireRoundTrips(Clock::now());
}

void EventLoop::prepareRead() {
    while (wl_display_prepare_read(display_) != 0) {
        if (wl_display_dispatch_pending(display_) < 0) {
            lose();
            return;
        }
    }
    flushBlocked_ = false;
    if (wl_display_flush(display_) < 0) {
        if (errno == EAGAIN) {
            flushBlocked_ = true;
        } else if (errno != EPIPE) { // after EPIPE the compositor's last words are still to be read
            wl_display_cancel_read(display_);
            lose();
        }
    }
}

void EventLoop::finishRead(short results) {
    if (results & (POLLIN | POLLHUP | POLLERR | POLLNVAL)) {
        if (wl_display_read_events(display_) < 0) {
            lose();
            return;
        }
    } else {
        wl_display_cancel_read(display_);
    }
    if (wl_display_dispatch_pending(display_) < 0) {
        lose();
    }
}

// A transfer may start another one when it ends, and so change the list.
void EventLoop::advanceTransfers(const std::vector<short> &results) {
    const auto now = Clock::now();
    std::vector<std::unique_ptr<Transfer>> served;
    served.swap(transfers_);
    for (std::size_t i = 0; i < served.size(); ++i) {
        if (results[i] != 0 && !served[i]->advance()) {
            served[i] = nullptr;
        } else if (served[i]->deadline() <= now) {
            served[i]->abandon();
            served[i] = nullptr;
        }
    }
    std::erase(served, nullptr);
    served.insert(served.end(), std::make_move_iterator(transfers_.begin()),
                  std::make_move_iterator(transfers_.end()));
    transfers_ = std::move(served);
}

int EventLoop::pollTimeout() const {
    auto next = endAtLeast_;
    if (endAtMost_ != Clock::time_point::max()) {
        next = Clock::now() < endAtLeast_ ? endAtLeast_ : endAtMost_;
    }
    for (const auto &transfer : transfers_) {
        next = std::min(next, transfer->deadline());
    }
    for (const auto &trip : roundTrips_) {
        next = std::min(next, trip->deadline);
    }
    next = std::min(next, retryAt_);
    if (next == Clock::time_point::max()) {
        return -1;
    }
    const auto now = Clock::now();
    if (next <= now) {
        return 0;
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(next - now).count();
    return static_cast<int>(std::min<std::int64_t>(left, 60'000));
}

void EventLoop::lose() {
    connected_ = false;
    flushBlocked_ = false;
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
    if (!watcher_.restored() && connected_) {
        lose();
    }
}

} // namespace nerlo::platform::wayland
