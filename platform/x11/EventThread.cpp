#include "platform/x11/EventThread.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>
#include <utility>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace nerlo::platform::x11 {

EventThread::EventThread(EventSource &source)
    : source_(source)
    , wakeUp_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (wakeUp_ < 0) {
        throw std::system_error(errno, std::generic_category(), "eventfd");
    }
    thread_ = std::thread([this] { run(); });
}

EventThread::~EventThread() {
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    submit([] {});
    thread_.join();
    close(wakeUp_);
}

void EventThread::submit(std::function<void()> command) {
    {
        const std::lock_guard lock(mutex_);
        commands_.push_back(std::move(command));
    }
    const std::uint64_t one = 1;
    // Can fail only when wake-ups by the billion are waiting already.
    [[maybe_unused]] const auto written = write(wakeUp_, &one, sizeof one);
}

void EventThread::run() {
    for (;;) {
        std::vector<std::function<void()>> commands;
        bool ending = false;
        {
            const std::lock_guard lock(mutex_);
            commands.swap(commands_);
            ending = ending_;
        }
        for (const auto &command : commands) {
            command();
        }
        if (ending) {
            return;
        }
        source_.process();

        int timeout = -1;
        if (const auto deadline = source_.deadline()) {
            const auto left =
                std::chrono::ceil<std::chrono::milliseconds>(*deadline - EventSource::Clock::now());
            timeout = static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, 60'000));
        }
        std::array<pollfd, 2> waiting{
            {{wakeUp_, POLLIN, 0}, {source_.fileDescriptor(), POLLIN, 0}}};
        poll(waiting.data(), waiting.size(), timeout);
        if (waiting[0].revents != 0) {
            std::uint64_t count = 0;
            [[maybe_unused]] const auto got = read(wakeUp_, &count, sizeof count);
        }
    }
}

} // namespace nerlo::platform::x11
