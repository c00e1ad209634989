// The main queue on Qt's event loop.
#pragma once

#include "platform/MainQueue.h"

#include <map>
#include <memory>

#include <QObject>
#include <QTimer>

namespace nerlo::platform {

// Made on the thread that runs the application's event loop.
class QtMainQueue final : public MainQueue {
  public:
    void post(Task task) override;
    // A delay is rounded up to milliseconds.
    TaskId postAfter(Clock::duration delay, Task task, Clock::duration tolerance = {}) override;
    void cancel(TaskId id) override;
    Clock::time_point now() const override { return Clock::now(); }

  private:
    QObject receiver_; // what is posted to it goes with it
    std::map<TaskId, std::unique_ptr<QTimer>> timers_;
    TaskId lastId_ = 0;
};

} // namespace nerlo::platform
