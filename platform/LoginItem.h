// Whether the program starts when the user logs in.
#pragma once

#include <string>

namespace nerlo::platform {

class LoginItem {
  public:
    virtual ~LoginItem() = default;
    // Empty when done, else what went wrong: one English line, UTF-8. Main thread.
    virtual std::string setEnabled(bool enabled) = 0;
    virtual bool enabled() const = 0;
};

} // namespace nerlo::platform
