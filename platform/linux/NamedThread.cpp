#include "platform/linux/NamedThread.h"

#include <utility>

#include <pthread.h>

namespace nerlo::platform {

SignalsBlocked::SignalsBlocked() {
    sigset_t all;
    sigfillset(&all);
    pthread_sigmask(SIG_SETMASK, &all, &before_);
}

SignalsBlocked::~SignalsBlocked() {
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

void nameThisThread(const char *name) {
    pthread_setname_np(pthread_self(), name);
}

std::thread startThread(const char *name, std::function<void()> run) {
    const SignalsBlocked inherited;
    return std::thread([name, run = std::move(run)] {
        nameThisThread(name);
        run();
    });
}

} // namespace nerlo::platform
