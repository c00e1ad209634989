#include "shell/QuitSignals.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <system_error>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace nerlo::shell {

namespace {

constexpr std::array quitting{SIGTERM, SIGINT, SIGHUP};

// A signal handler may do little more than write a byte, so it writes one to this pipe.
std::array<int, 2> wakeUp{-1, -1};

void handle(int) {
    const auto before = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(wakeUp[1], &byte, 1);
    errno = before;
}

int openPipe() {
    if (pipe2(wakeUp.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        throw std::system_error(errno, std::generic_category(), "pipe2");
    }
    return wakeUp[0];
}

} // namespace

QuitSignals::QuitSignals(std::function<void()> quit)
    : notifier_(openPipe(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [quit = std::move(quit)] {
        char byte = 0;
        [[maybe_unused]] const auto got = read(wakeUp[0], &byte, 1);
        quit();
    });
    struct sigaction action {};
    action.sa_handler = handle;
    action.sa_flags = SA_RESTART;
    for (const int number : quitting) {
        sigaction(number, &action, nullptr);
    }
}

QuitSignals::~QuitSignals() {
    for (const int number : quitting) {
        std::signal(number, SIG_DFL);
    }
    close(wakeUp[0]);
    close(wakeUp[1]);
}

} // namespace nerlo::shell
