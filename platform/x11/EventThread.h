// A thread that waits for its connection to the X server, for commands of other threads and for the
// next deadline, and for nothing else: it never wakes up without a cause.
#pragma once

#include <chrono>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace nerlo::platform::x11 {

// What the thread looks after. After the thread has started, all is called on it.
class EventSource {
  public:
    using Clock = std::chrono::steady_clock;

    virtual ~EventSource() = default;
    // A file descriptor that becomes readable with news; -1 for none any more.
    virtual int fileDescriptor() const = 0;
    virtual std::optional<Clock::time_point> deadline() const = 0;
    // Takes what there is without waiting for more. Must leave nothing behind that would not make
    // the file descriptor readable again.
    virtual void process() = 0;
};

class EventThread {
  public:
    explicit EventThread(EventSource &source);
    // Runs the commands that are waiting, then ends.
    ~EventThread();
    EventThread(const EventThread &) = delete;
    EventThread &operator=(const EventThread &) = delete;

    // Runs `command` on the thread. Any thread.
    void submit(std::function<void()> command);

  private:
    void run();

    EventSource &source_;
    int wakeUp_; // eventfd
    std::mutex mutex_;
    std::vector<std::function<void()>> commands_; // guarded by mutex_
    bool ending_ = false;                         // guarded by mutex_
    std::thread thread_;
};

} // namespace nerlo::platform::x11
