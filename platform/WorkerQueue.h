// Background threads for work that would hold up the main thread.
#pragma once

#include <functional>

namespace nerlo::platform {

class WorkerQueue {
  public:
    virtual ~WorkerQueue() = default;

    // Runs `task` on some background thread; tasks run at the same time and end in any order. Any
    // thread. The task must not throw. The destructor waits for the tasks that have begun and drops
    // those that have not.
    virtual void post(std::function<void()> task) = 0;
};

} // namespace nerlo::platform
