#include "platform/qt/QtMainQueue.h"

#include <utility>

namespace nerlo::platform {

void QtMainQueue::post(Task task) {
    QMetaObject::invokeMethod(&receiver_, std::move(task), Qt::QueuedConnection);
}

MainQueue::TaskId QtMainQueue::postAfter(Clock::duration delay, Task task,
                                         Clock::duration tolerance) {
    const auto id = ++lastId_;
    auto timer = std::make_unique<QTimer>();
    timer->setSingleShot(true);
    timer->setTimerType(tolerance > tolerance.zero() ? Qt::CoarseTimer : Qt::PreciseTimer);
    QObject::connect(timer.get(), &QTimer::timeout, &receiver_,
                     [this, id, task = std::move(task)]() mutable {
                         // The timer must not be deleted while its own handler runs, and the task
                         // may cancel other timers.
                         const auto running = std::move(task);
                         timers_.extract(id).mapped().release()->deleteLater();
                         running();
                     });
    timer->start(std::chrono::ceil<std::chrono::milliseconds>(delay));
    timers_.emplace(id, std::move(timer));
    return id;
}

void QtMainQueue::cancel(TaskId id) {
    timers_.erase(id);
}

} // namespace nerlo::platform
