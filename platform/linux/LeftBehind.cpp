#include "platform/linux/LeftBehind.h"

#include "platform/linux/NamedThread.h"
#include "platform/linux/Transfer.h"

#include <algorithm>
#include <climits>
#include <csignal>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

namespace nerlo::platform {

namespace {

// False if the system cannot; what is left open then could keep others waiting for its end.
bool closeAllBut(std::vector<int> kept) {
    std::ranges::sort(kept);
    unsigned next = STDERR_FILENO + 1;
    for (const int fd : kept) {
        const auto end = static_cast<unsigned>(fd);
        if (end > next && close_range(next, end - 1, 0) != 0) {
            return false;
        }
        next = std::max(next, end + 1);
    }
    return close_range(next, UINT_MAX, 0) == 0;
}

// With the dispositions of a new process, as far as the program has changed them.
void takeSignals() {
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes away is no reason to end
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        std::signal(number, SIG_DFL);
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

} // namespace

bool leaveBehind(const std::vector<int> &kept) {
    const FileDescriptor nowhere(open("/dev/null", O_RDWR | O_CLOEXEC));
    const pid_t child = nowhere ? fork() : -1;
    if (child > 0) {
        for (const int fd : kept) {
            dup3(nowhere.get(), fd, O_CLOEXEC);
        }
    }
    if (child != 0) {
        return false;
    }
    for (const int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (std::ranges::find(kept, standard) == kept.end()) {
            dup2(nowhere.get(), standard);
        }
    }
    if (!closeAllBut(kept)) {
        _exit(1);
    }
    setsid();
    nameThisThread("nerlo-hold");
    takeSignals();
    malloc_trim(0);
    return true;
}

} // namespace nerlo::platform
