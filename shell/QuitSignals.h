// SIGTERM, SIGINT and SIGHUP as a call on the main thread, so that the program ends in order.
#pragma once

#include <functional>

#include <QSocketNotifier>

namespace nerlo::shell {

// Only one may exist at a time. Needs the application's object.
class QuitSignals {
  public:
    explicit QuitSignals(std::function<void()> quit);
    ~QuitSignals();
    QuitSignals(const QuitSignals &) = delete;
    QuitSignals &operator=(const QuitSignals &) = delete;

  private:
    QSocketNotifier notifier_;
};

} // namespace nerlo::shell
