// Waiting for what other threads and programs do.
#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace nerlo::test {

// Waits until `done`; false after `limit`.
inline bool until(const std::function<bool()> &done,
                  std::chrono::milliseconds limit = std::chrono::seconds(20)) {
    const auto end = std::chrono::steady_clock::now() + limit;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return true;
}

// The same, while the main queue is served.
template <class Queue>
bool until(Queue &queue, const std::function<bool()> &done) {
    return until([&] {
        queue.runPosted();
        return done();
    });
}

} // namespace nerlo::test
