// A line on standard error that tells how far a long run has come, rewritten in place.
//
// Shown only when standard error is a terminal, from the second second on; otherwise this costs
// nothing. The counters may be raised from any thread.
#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <thread>

namespace nerlo::cli {

class Progress {
  public:
    Progress();
    ~Progress(); // as stop()
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void addRead(std::uint64_t bytes) { read_.fetch_add(bytes, std::memory_order_relaxed); }
    void addDone(std::uint64_t bytes) { done_.fetch_add(bytes, std::memory_order_relaxed); }

    // Takes the line away for good, so that output and messages start on a clean line.
    void stop();

  private:
    void run();

    std::atomic<std::uint64_t> read_{0}; // bytes
    std::atomic<std::uint64_t> done_{0};
    std::mutex mutex_;
    std::condition_variable wake_;
    bool stopping_ = false;
    std::thread thread_; // runs only on a terminal
};

} // namespace nerlo::cli
