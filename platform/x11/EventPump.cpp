#include "platform/x11/EventPump.h"

#include <utility>

#include <sys/epoll.h>

namespace nerlo::platform::x11 {

EventPump::EventPump(IoThread &io, EventSource &source)
    : io_(io)
    , source_(source) {
    io_.post([this] {
        watch_ = io_.watch(source_.fileDescriptor(), EPOLLIN, [this](auto) { process(); });
        process();
    });
}

EventPump::~EventPump() {
    io_.run([this] {
        watch_ = {};
        timer_ = {};
    });
}

void EventPump::submit(std::function<void()> command) {
    io_.post([this, command = std::move(command)] {
        command();
        process();
    });
}

void EventPump::process() {
    source_.process();
    if (source_.fileDescriptor() < 0) {
        watch_ = {};
    }
    const auto deadline = source_.deadline();
    timer_ = deadline ? io_.at(*deadline, [this] { process(); }) : IoThread::Timer();
}

} // namespace nerlo::platform::x11
