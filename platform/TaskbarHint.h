// Whether a window has an entry in the desktop's taskbar.
#pragma once

#include <cstdint>

namespace nerlo::platform {

class TaskbarHint {
  public:
    virtual ~TaskbarHint() = default;
    // `window` is the window system's id of a window of this program, shown or not. Main thread;
    // nothing where the window system has no such thing.
    virtual void setShownInTaskbar(std::uint64_t window, bool shown) = 0;
};

} // namespace nerlo::platform
