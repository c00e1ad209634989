#include "cli/Progress.h"

#include <chrono>
#include <cstdio>

#include <unistd.h>

namespace nerlo::cli {

namespace {

constexpr auto quietTime = std::chrono::seconds(1);
constexpr auto refresh = std::chrono::milliseconds(200);

double megabytes(std::uint64_t bytes) {
    return static_cast<double>(bytes) / 1e6;
}

} // namespace

Progress::Progress() {
    if (isatty(STDERR_FILENO) != 0) {
        thread_ = std::thread([this] { run(); });
    }
}

Progress::~Progress() {
    stop();
}

void Progress::stop() {
    if (!thread_.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void Progress::run() {
    std::unique_lock lock(mutex_);
    const auto stopping = [this] { return stopping_; };
    if (wake_.wait_for(lock, quietTime, stopping)) {
        return;
    }
    do {
        std::fprintf(stderr, "\rnerlo: %.1f MB read, %.1f MB done\033[K", megabytes(read_),
                     megabytes(done_));
        std::fflush(stderr);
    } while (!wake_.wait_for(lock, refresh, stopping));
    std::fputs("\r\033[K", stderr);
    std::fflush(stderr);
}

} // namespace nerlo::cli
