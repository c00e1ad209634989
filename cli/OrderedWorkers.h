// Answers requests on several threads and hands the answers over in the order of the requests.
#pragma once

#include "cli/Answers.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace nerlo::cli {

class OrderedWorkers {
  public:
    // Called on any of the threads, by several at a time. Must not throw.
    using Work = std::function<Answers(std::string_view requests)>;
    // Called on any of the threads, by one at a time, with answers that follow those of the call
    // before. Must not throw.
    using Deliver = std::function<void(std::vector<Answers> answers)>;

    OrderedWorkers(unsigned threads, Work work, Deliver deliver);
    // Waits until the last answer is delivered.
    ~OrderedWorkers();
    OrderedWorkers(const OrderedWorkers &) = delete;
    OrderedWorkers &operator=(const OrderedWorkers &) = delete;

    // Some lines for one thread to answer: few, so that all have work, but not each by itself,
    // which would have the threads wait for each other. Waits while too much is under way, counted
    // in such pieces and in bytes; one piece is always let in, whatever its size. Called by one
    // thread.
    void push(std::string requests);

  private:
    struct Slot {
        std::string requests;
        std::size_t bytes; // of the requests, which are dropped once answered
        bool answered = false;
        Answers answers;
    };

    void run();
    void deliverReady(std::unique_lock<std::mutex> &lock);

    const Work work_;
    const Deliver deliver_;
    const std::size_t mostPieces_;

    std::mutex mutex_; // guards everything below
    std::condition_variable workToDo_;
    std::condition_variable room_;
    std::deque<Slot> slots_;  // in order; a reference stays good until the slot is popped
    std::size_t started_ = 0; // slots before this one are taken by a thread
    std::size_t bytes_ = 0;   // of all slots
    bool delivering_ = false;
    bool closed_ = false;

    std::vector<std::thread> threads_;
};

} // namespace nerlo::cli
