#include "cli/OrderedWorkers.h"

#include <utility>

namespace nerlo::cli {

namespace {

constexpr std::size_t piecesPerThread = 16;
constexpr std::size_t mostBytes = 32 << 20;

} // namespace

OrderedWorkers::OrderedWorkers(unsigned threads, Work work, Deliver deliver)
    : work_(std::move(work))
    , deliver_(std::move(deliver))
    , mostPieces_(threads * piecesPerThread) {
    for (unsigned i = 0; i < threads; ++i) {
        threads_.emplace_back([this] { run(); });
    }
}

OrderedWorkers::~OrderedWorkers() {
    {
        const std::lock_guard lock(mutex_);
        closed_ = true;
    }
    workToDo_.notify_all();
    for (std::thread &thread : threads_) {
        thread.join();
    }
}

void OrderedWorkers::push(std::string requests) {
    const std::size_t size = requests.size();
    {
        std::unique_lock lock(mutex_);
        room_.wait(lock, [&] {
            return slots_.empty() || (slots_.size() < mostPieces_ && bytes_ + size <= mostBytes);
        });
        bytes_ += size;
        slots_.push_back({std::move(requests), size, false, {}});
    }
    workToDo_.notify_one();
}

void OrderedWorkers::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        workToDo_.wait(lock, [this] { return started_ < slots_.size() || closed_; });
        if (started_ == slots_.size()) {
            return;
        }
        Slot &slot = slots_[started_++];
        lock.unlock();
        slot.answers = work_(slot.requests);
        std::string().swap(slot.requests);
        lock.lock();
        slot.answered = true;
        deliverReady(lock);
    }
}

// The thread that answers the oldest piece delivers it, and the answered pieces that follow it; the
// others go on working.
void OrderedWorkers::deliverReady(std::unique_lock<std::mutex> &lock) {
    while (!delivering_ && !slots_.empty() && slots_.front().answered) {
        std::vector<Answers> ready;
        for (; !slots_.empty() && slots_.front().answered; slots_.pop_front(), --started_) {
            bytes_ -= slots_.front().bytes;
            ready.push_back(std::move(slots_.front().answers));
        }
        delivering_ = true;
        lock.unlock();
        room_.notify_one();
        deliver_(std::move(ready));
        lock.lock();
        delivering_ = false;
    }
}

} // namespace nerlo::cli
