// Answers requests on several threads and hands the answers over in the order of the requests.
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace nerlo::cli {

// A request is moved in, and replaced by an empty one once it is answered.
template <class Request, class Answer>
class OrderedWorkers {
  public:
    // Called on any of the threads, by several at a time. Must not throw.
    using Work = std::function<Answer(const Request &request)>;
    // Called on any of the threads, by one at a time, with answers that follow those of the call
    // before. Must not throw.
    using Deliver = std::function<void(std::vector<Answer> answers)>;

    OrderedWorkers(unsigned threads, Work work, Deliver deliver)
        : work_(std::move(work))
        , deliver_(std::move(deliver))
        , mostPieces_(threads * piecesPerThread) {
        for (unsigned i = 0; i < threads; ++i) {
            threads_.emplace_back([this] { run(); });
        }
    }
    // Waits until the last answer is delivered.
    ~OrderedWorkers() {
        {
            const std::lock_guard lock(mutex_);
            closed_ = true;
        }
        workToDo_.notify_all();
        for (std::thread &thread : threads_) {
            thread.join();
        }
    }
    OrderedWorkers(const OrderedWorkers &) = delete;
    OrderedWorkers &operator=(const OrderedWorkers &) = delete;

    // Work for one thread: little, so that all have some, but not too little, which would have the
    // threads wait for each other. `bytes` is about what it takes in memory. Waits while too much
    // is under way, counted in requests and in bytes; one request is always let in, whatever its
    // size. Called by one thread.
    void push(Request request, std::size_t bytes) {
        {
            std::unique_lock lock(mutex_);
            room_.wait(lock, [&] {
                return slots_.empty() ||
                       (slots_.size() < mostPieces_ && bytes_ + bytes <= mostBytes);
            });
            bytes_ += bytes;
            slots_.push_back({std::move(request), bytes, false, {}});
        }
        workToDo_.notify_one();
    }

  private:
    static constexpr std::size_t piecesPerThread = 16;
    static constexpr std::size_t mostBytes = 32 << 20;

    struct Slot {
        Request request;
        std::size_t bytes;
        bool answered = false;
        Answer answer;
    };

    void run() {
        std::unique_lock lock(mutex_);
        for (;;) {
            workToDo_.wait(lock, [this] { return started_ < slots_.size() || closed_; });
            if (started_ == slots_.size()) {
                return;
            }
            Slot &slot = slots_[started_++];
            lock.unlock();
            slot.answer = work_(slot.request);
            slot.request = Request();
            lock.lock();
            slot.answered = true;
            deliverReady(lock);
        }
    }

    // The thread that answers the oldest request delivers it, and the answered ones that follow it;
    // the others go on working.
    void deliverReady(std::unique_lock<std::mutex> &lock) {
        while (!delivering_ && !slots_.empty() && slots_.front().answered) {
            std::vector<Answer> ready;
            for (; !slots_.empty() && slots_.front().answered; slots_.pop_front(), --started_) {
                bytes_ -= slots_.front().bytes;
                ready.push_back(std::move(slots_.front().answer));
            }
            delivering_ = true;
            lock.unlock();
            room_.notify_one();
            deliver_(std::move(ready));
            lock.lock();
            delivering_ = false;
        }
    }

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
