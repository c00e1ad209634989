// Worker threads from a pool of Qt's, as many as the machine has processors.
#pragma once

#include "platform/WorkerQueue.h"

#include <QThreadPool>

namespace nerlo::platform {

class QtWorkerQueue final : public WorkerQueue {
  public:
    QtWorkerQueue();
    ~QtWorkerQueue() override;

    void post(std::function<void()> task) override;

  private:
    QThreadPool pool_;
};

} // namespace nerlo::platform
