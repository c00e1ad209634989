#include "platform/linux/IoThread.h"

#include "platform/linux/LeftBehind.h"
#include "platform/linux/NamedThread.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <future>
#include <system_error>

#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

// At most so many events are taken in one round; the rest come with the next one.
constexpr std::size_t eventsAtOnce = 32;

int opened(int fd, const char *what) {
    if (fd < 0) {
        throw std::system_error(errno, std::generic_category(), what);
    }
    return fd;
}

} // namespace

IoThread::IoThread() {
    openQueue();
    thread_ = startThread("nerlo-io", [this] { serve(); });
}

void IoThread::openQueue() {
    epoll_ = opened(epoll_create1(EPOLL_CLOEXEC), "epoll");
    wakeUp_ = opened(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), "eventfd");
    epoll_event event{EPOLLIN, {.u64 = 0}}; // no watch has this id
    opened(epoll_ctl(epoll_, EPOLL_CTL_ADD, wakeUp_, &event), "epoll");
}

IoThread::~IoThread() {
    post([this] { ending_ = true; });
    thread_.join();
    close(wakeUp_);
    close(epoll_);
}

void IoThread::post(Task task) {
    const std::lock_guard lock(mutex_);
    tasks_.push_back(std::move(task));
    // Fails only when wake-ups by the billion are waiting already.
    eventfd_write(wakeUp_, 1);
}

void IoThread::run(const Task &task) {
    const auto ran = std::make_shared<std::promise<void>>();
    const auto done = ran->get_future();
    post([&task, ran] {
        task();
        ran->set_value();
    });
    done.wait();
}

IoThread::Watch IoThread::watch(int fd, std::uint32_t events, Handler handler) {
    const auto id = ++lastId_;
    epoll_event event{events, {.u64 = id}};
    if (epoll_ctl(epoll_, EPOLL_CTL_ADD, fd, &event) != 0) {
        return {};
    }
    watched_.emplace(id, Watched{fd, std::make_shared<const Handler>(std::move(handler))});
    return {*this, id};
}

void IoThread::setEvents(const Watch &watch, std::uint32_t events) {
    if (watch) {
        epoll_event event{events, {.u64 = watch.key_}};
        epoll_ctl(epoll_, EPOLL_CTL_MOD, watched_.at(watch.key_).fd, &event);
    }
}

void IoThread::end(Id watch) {
    const auto found = watched_.find(watch);
    epoll_ctl(epoll_, EPOLL_CTL_DEL, found->second.fd, nullptr);
    watched_.erase(found);
}

IoThread::Timer IoThread::at(Clock::time_point time, Task task) {
    // A time that has passed comes after everything that is due now, or the thread could do nothing
    // else.
    const Due due{std::max(time, Clock::now()), ++lastId_};
    timers_.emplace(due, std::move(task));
    return {*this, due};
}

void IoThread::end(const Due &timer) {
    timers_.erase(timer);
}

bool IoThread::goOnBehind(const std::vector<int> &kept) {
    if (!leaveBehind(kept)) {
        return false;
    }
    watched_.clear();
    timers_.clear();
    openQueue();
    return true;
}

void IoThread::serve() {
    while (!ending_) {
        std::array<epoll_event, eventsAtOnce> ready;
        const int count = epoll_wait(epoll_, ready.data(), ready.size(), timeout());
        for (int i = 0; i < count; ++i) {
            const auto &event = ready[static_cast<std::size_t>(i)];
            // An earlier handler of this round may have ended it.
            if (const auto found = watched_.find(event.data.u64); found != watched_.end()) {
                const auto handler = found->second.handler;
                (*handler)(event.events);
            }
        }
        runTimers();
        runTasks();
    }
}

void IoThread::runTasks() {
    eventfd_t count = 0;
    eventfd_read(wakeUp_, &count);
    std::vector<Task> tasks;
    {
        const std::lock_guard lock(mutex_);
        tasks.swap(tasks_);
    }
    for (auto &task : tasks) {
        // Destroyed here, before run() lets anybody go on who waits for a later task.
        std::exchange(task, nullptr)();
    }
}

void IoThread::runTimers() {
    const auto now = Clock::now();
    while (!timers_.empty() && timers_.begin()->first.first <= now) {
        const auto due = timers_.extract(timers_.begin());
        due.mapped()();
    }
}

// In milliseconds; -1 for as long as it takes.
int IoThread::timeout() const {
    if (timers_.empty()) {
        return -1;
    }
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(timers_.begin()->first.first - Clock::now());
    return static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, 60'000));
}

} // namespace nerlo::platform
