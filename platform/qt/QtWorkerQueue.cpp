#include "platform/qt/QtWorkerQueue.h"

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
    pool_.start(std::move(task));
}

} // namespace nerlo::platform
