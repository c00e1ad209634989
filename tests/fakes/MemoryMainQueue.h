// A main queue that is stepped by hand, on a clock that is moved by hand.
#pragma once

#include "platform/MainQueue.h"

#include <cstddef>
#include <deque>
#include <map>
#include <mutex>
#include <utility>

namespace nerlo::test {

class MemoryMainQueue final : public platform::MainQueue {
  public:
    void post(Task task) override;
    TaskId postAfter(Clock::duration delay, Task task, Clock::duration tolerance = {}) override;
    void cancel(TaskId id) override;
    Clock::time_point now() const override;

    // Runs what was posted, and what that posts in turn, until nothing is left. The clock does not
    // move.
    void runPosted();
    // Moves the clock on, running each delayed task at its time, and what was posted before and
    // after each.
    void advance(Clock::duration duration);

    // Delayed tasks that have still to run.
    std::size_t delayedCount() const { return delayed_.size(); }

  private:
    mutable std::mutex mutex_; // guards posted_; the rest belongs to the main thread
    std::deque<Task> posted_;
    std::map<std::pair<Clock::time_point, TaskId>, Task> delayed_;
    Clock::time_point now_{};
    TaskId lastId_ = 0;
};

} // namespace nerlo::test
