#include "platform/linux/IoThread.h"

#include "platform/linux/CommandOutput.h"
#include "tests/Until.h"

#include <atomic>
#include <string>

#include <gtest/gtest.h>

#include <pthread.h>
#include <sys/epoll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;

TEST(IoThread, WhatWasEndedDoesNotRunAnyMore) {
    IoThread io;
    const int fds[] = {eventfd(1, EFD_CLOEXEC), eventfd(1, EFD_CLOEXEC)};
    IoThread::Watch watches[2];
    IoThread::Timer timers[2];
    std::atomic<int> ran = 0;
    io.run([&] {
        for (int i = 0; i < 2; ++i) {
            // Both are ready in the same look; the first one ends both.
            watches[i] = io.watch(fds[i], EPOLLIN, [&](auto) {
                ++ran;
                watches[0] = {};
                watches[1] = {};
            });
            timers[i] = io.at(IoThread::Clock::now(), [&] {
                ++ran;
                timers[0] = {};
                timers[1] = {};
            });
        }
    });
    EXPECT_TRUE(test::until([&] { return ran == 2; }));
    // A watch of the same descriptor is another one; nothing can watch what is no descriptor.
    bool refused = false;
    io.run([&] {
        watches[0] = io.watch(fds[0], EPOLLIN, [&](auto) {
            ++ran;
            watches[0] = {};
        });
        refused = !io.watch(-1, EPOLLIN, [](auto) {});
    });
    EXPECT_TRUE(refused);
    EXPECT_TRUE(test::until([&] { return ran == 3; }));
    io.run([] {}); // the last handler has returned
    close(fds[0]);
    close(fds[1]);
}

TEST(IoThread, NobodyWhoHasMuchToDoKeepsTheOthersWaiting) {
    IoThread io;
    const int always = eventfd(1, EFD_CLOEXEC);
    IoThread::Watch watch;
    IoThread::Timer busy;
    std::atomic<bool> ended = false;
    const std::function<void()> again = [&] {
        busy = io.at(IoThread::Clock::time_point::min(), [&] { again(); });
    };
    const std::function<void()> post = [&] {
        if (!ended) {
            io.post(post);
        }
    };
    std::string order;
    IoThread::Timer timers[2];
    io.run([&] {
        watch = io.watch(always, EPOLLIN, [](auto) {});
        again();
        post();
        const auto now = IoThread::Clock::now();
        timers[1] = io.at(now + 20ms, [&] { order += "b"; });
        timers[0] = io.at(now + 10ms, [&] { order += "a"; });
    });
    const auto seen = [&] {
        std::string so;
        io.run([&] { so = order; });
        return so;
    };
    EXPECT_TRUE(test::until([&] { return seen() == "ab"; }));
    ended = true;
    io.run([&] {
        watch = {};
        busy = {};
        timers[0] = {};
        timers[1] = {};
    });
    close(always);
}

TEST(IoThread, SignalsAreTheMainThreadsAndNoBusinessOfItsCommands) {
    IoThread io;
    sigset_t blocked;
    std::string masks;
    io.run([&] {
        pthread_sigmask(SIG_SETMASK, nullptr, &blocked);
        masks = outputOfCommand({"grep", "SigBlk", "/proc/self/status"});
    });
    EXPECT_TRUE(sigismember(&blocked, SIGTERM) == 1 && sigismember(&blocked, SIGPIPE) == 1);
    EXPECT_EQ(masks, "SigBlk:\t0000000000000000\n");
}

} // namespace
} // namespace nerlo::platform
