// One transfer through a pipe, served by the toolkit's event loop.
//
// Main thread.
#pragma once

#include "platform/linux/Transfer.h"

#include <QSocketNotifier>
#include <QTimer>

#include <functional>
#include <memory>

namespace nerlo::platform {

class PipeTransfer {
  public:
    // Serves `transfer` until its end or its deadline. `ended` runs then, in the event loop; it may
    // end this object.
    PipeTransfer(std::unique_ptr<Transfer> transfer, std::function<void()> ended);

  private:
    void wait();
    void end();

    std::unique_ptr<Transfer> transfer_;
    std::function<void()> ended_;
    QSocketNotifier ready_;
    QTimer deadline_;
};

} // namespace nerlo::platform
