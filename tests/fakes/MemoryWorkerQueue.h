// A worker queue that is stepped by hand, on the calling thread.
#pragma once

#include "platform/WorkerQueue.h"

#include <cstddef>
#include <deque>

namespace nerlo::test {

class MemoryWorkerQueue final : public platform::WorkerQueue {
  public:
    void post(std::function<void()> task) override { tasks_.push_back(std::move(task)); }

    std::size_t size() const { return tasks_.size(); }
    // Runs the task with this index, counted from the oldest that is waiting.
    void run(std::size_t index) {
        const auto task = std::move(tasks_.at(index));
        tasks_.erase(tasks_.begin() + static_cast<std::ptrdiff_t>(index));
        task();
    }
    void runAll() {
        while (!tasks_.empty()) {
            run(0);
        }
    }

  private:
    std::deque<std::function<void()>> tasks_;
};

} // namespace nerlo::test
