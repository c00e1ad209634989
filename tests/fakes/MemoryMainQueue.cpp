#include "tests/fakes/MemoryMainQueue.h"

namespace nerlo::test {

void MemoryMainQueue::post(Task task) {
    const std::lock_guard lock(mutex_);
    posted_.push_back(std::move(task));
}

platform::MainQueue::TaskId MemoryMainQueue::postAfter(Clock::duration delay, Task task,
                                                       Clock::duration) {
    delayed_.emplace(std::pair(now_ + delay, ++lastId_), std::move(task));
    return lastId_;
}

void MemoryMainQueue::cancel(TaskId id) {
    std::erase_if(delayed_, [&](const auto &entry) { return entry.first.second == id; });
}

platform::MainQueue::Clock::time_point MemoryMainQueue::now() const {
    return now_;
}

void MemoryMainQueue::runPosted() {
    for (;;) {
        Task task;
        {
            const std::lock_guard lock(mutex_);
            if (posted_.empty()) {
                return;
            }
            task = std::move(posted_.front());
            posted_.pop_front();
        }
        task();
    }
}

void MemoryMainQueue::advance(Clock::duration duration) {
    const auto end = now_ + duration;
    runPosted();
    while (!delayed_.empty() && delayed_.begin()->first.first <= end) {
        auto next = delayed_.extract(delayed_.begin());
        now_ = next.key().first;
        next.mapped()();
        runPosted();
    }
    now_ = end;
}

} // namespace nerlo::test
