// The serial queue of the main thread: everything that touches windows, settings or the clipboard
// runs there, one task after the other, in the order in which it was posted.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

namespace nerlo::platform {

class MainQueue {
  public:
    using Clock = std::chrono::steady_clock;
    using Task = std::function<void()>;
    // Names one delayed task. 0 is never given to a task.
    using TaskId = std::uint64_t;

    virtual ~MainQueue() = default;

    // Runs `task` on the main thread, never inside this call. Any thread. A task still waiting when
    // the queue is destroyed is dropped without being run.
    virtual void post(Task task) = 0;

    // Runs `task` once, `delay` from now; the platform may defer it by up to `tolerance` to save
    // power. Main thread only.
    virtual TaskId postAfter(Clock::duration delay, Task task, Clock::duration tolerance = {}) = 0;

    // After this the task does not run any more. Nothing happens if it has run already, runs just
    // now, or `id` is 0. Main thread only.
    virtual void cancel(TaskId id) = 0;

    // The clock that the delays are measured on. Any thread.
    virtual Clock::time_point now() const = 0;
};

} // namespace nerlo::platform
