// Runs a peer of the X server on the I/O thread.
#pragma once

#include "platform/linux/IoThread.h"

#include <functional>
#include <optional>

namespace nerlo::platform::x11 {

// What is run. Once its pump is there, all is called on the I/O thread.
class EventSource {
  public:
    using Clock = IoThread::Clock;

    // How many events one call of process() takes: a program that sends more than we can deal with
    // must not keep everything else waiting.
    static constexpr int eventsAtOnce = 256;

    virtual ~EventSource() = default;
    // A file descriptor that becomes readable with news; -1 for none any more.
    virtual int fileDescriptor() const = 0;
    // When to call process() at the latest; a time that has passed for soon.
    virtual std::optional<Clock::time_point> deadline() const = 0;
    // Takes what there is without waiting for more. What it leaves behind must make the file
    // descriptor readable, or the deadline now.
    virtual void process() = 0;
};

class EventPump {
  public:
    // Both must outlive this.
    EventPump(IoThread &io, EventSource &source);
    // Waits until the commands submitted so far have run. Nothing of the source is called after
    // this.
    ~EventPump();
    EventPump(const EventPump &) = delete;
    EventPump &operator=(const EventPump &) = delete;

    // Runs `command` on the thread, and then what it brought about. Any thread.
    void submit(std::function<void()> command);
    // Takes what there is. On the I/O thread.
    void process();

  private:
    IoThread &io_;
    EventSource &source_;
    IoThread::Watch watch_;
    IoThread::Timer timer_;
};

} // namespace nerlo::platform::x11
