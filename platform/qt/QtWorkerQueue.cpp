#include "platform/qt/QtWorkerQueue.h"

#include "platform/linux/NamedThread.h"

#include <utility>

namespace nerlo::platform {

QtWorkerQueue::QtWorkerQueue() {
    // A thread that waits costs nothing; one that ends after a while wakes an idle machine up.
    pool_.setExpiryTimeout(-1);
}

QtWorkerQueue::~QtWorkerQueue() {
    pool_.clear();
    pool_.waitForDone();
}

void QtWorkerQueue::post(std::function<void()> task) {
    const SignalsBlocked inherited; // by a thread that this may start
    pool_.start([task = std::move(task)] {
        nameThisThread("nerlo-worker");
        task();
    });
}

} // namespace nerlo::platform
