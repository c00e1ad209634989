// The one thread that waits for the desktop: for the connections to its servers, for the pipes and
// timeouts of what came over them, and for the watched folders. It sleeps until something comes.
//
// What runs here holds up everything else that does, so nothing may wait for another program, and
// whoever has a lot to do does it in bounded pieces. Two waits are allowed, because whoever causes
// them stops the whole desktop and not only us:
// - for the answer of the X server, which answers at once unless it hangs or a program has grabbed
//   it;
// - for a compositor that comes back after the connection was lost, with a time limit.
// Reading the largest value that an X client can store at once takes the longest otherwise, some
// tenths of a second. A hung, slow or dying owner or reader of the clipboard costs nothing: its own
// transfer ends at its own time limit, and the others keep theirs.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace nerlo::platform {

class IoThread {
  public:
    using Clock = std::chrono::steady_clock;
    using Task = std::function<void()>;
    // Gets what epoll says; an error or a hang-up comes without being asked for.
    using Handler = std::function<void(std::uint32_t events)>;

    // Throws std::system_error if the system has no descriptors or threads left.
    IoThread();
    // Runs the tasks that are posted, and ends. Nothing is watched or timed any more by then.
    ~IoThread();
    IoThread(const IoThread &) = delete;
    IoThread &operator=(const IoThread &) = delete;

    // Runs `task` on the thread, in the order of the posts. Any thread.
    void post(Task task);
    // Posts `task` and waits until it has run. Any other thread.
    void run(const Task &task);

    // The rest is for the thread alone. A handler or task may end itself or others; what was ended
    // does not run any more. None may throw.

    // What was asked for ends with this object; it may be empty.
    template <class Key>
    class Running {
      public:
        Running() = default;
        Running(Running &&other) noexcept
            : thread_(std::exchange(other.thread_, nullptr))
            , key_(other.key_) {}
        Running &operator=(Running &&other) noexcept {
            std::swap(thread_, other.thread_);
            std::swap(key_, other.key_);
            return *this;
        }
        ~Running() {
            if (thread_) {
                thread_->end(key_);
            }
        }
        explicit operator bool() const { return thread_ != nullptr; }

      private:
        friend class IoThread;
        Running(IoThread &thread, Key key)
            : thread_(&thread)
            , key_(key) {}

        IoThread *thread_ = nullptr;
        Key key_{};
    };
    using Id = std::uint64_t;
    using Due = std::pair<Clock::time_point, Id>;
    using Watch = Running<Id>;
    using Timer = Running<Due>;

    // While `fd` has one of `events`, runs `handler` again and again. Empty if the system cannot
    // watch it. To be ended before `fd` is closed.
    Watch watch(int fd, std::uint32_t events, Handler handler);
    // For other events from now on. Nothing if the watch is empty.
    void setEvents(const Watch &watch, std::uint32_t events);
    // Runs `task` once, at `time` or as soon after it as the thread can.
    Timer at(Clock::time_point time, Task task);

    // Leaves a process behind in which this thread goes on, alone, with the file descriptors
    // `kept`, which lead nowhere here from now on (platform/linux/LeftBehind.h). Nothing is watched
    // or timed there until it is asked for again; here, what is kept must not be watched any more.
    // No other thread may call meanwhile. True in the new process; false here, also if the system
    // grants none.
    bool goOnBehind(const std::vector<int> &kept);

  private:
    struct Watched {
        int fd;
        std::shared_ptr<const Handler> handler;
    };

    void openQueue();
    void end(Id watch);
    void end(const Due &timer);
    void serve();
    void runTasks();
    void runTimers();
    int timeout() const;

    int epoll_ = -1;
    int wakeUp_ = -1; // eventfd
    std::map<Id, Watched> watched_;
    std::map<Due, Task> timers_;
    Id lastId_ = 0;
    bool ending_ = false;

    std::mutex mutex_;
    std::vector<Task> tasks_; // guarded by mutex_

    std::thread thread_;
};

} // namespace nerlo::platform
