// Which application is in front.
#pragma once

#include <functional>
#include <string>

namespace nerlo::platform {

class ActiveApplication {
  public:
    // Gets the application's identifier, in UTF-8: a row of the table in SpreadsheetLinks.h if the
    // window belongs to one, else the name that the window gives itself (WM_CLASS, app_id), else
    // the empty string.
    using Handler = std::function<void(std::string identifier)>;

    virtual ~ActiveApplication() = default;

    // From now on runs `activated` on the main queue each time another window comes to the front;
    // not for the one that is in front already. Null ends that: the handler does not run any more.
    // Main thread only. Without support by the desktop it never runs.
    virtual void setActivatedHandler(Handler activated) = 0;

    // For the user's eyes: one English line, also on what is missing.
    virtual std::string description() const = 0;
    // What it cannot do now and could at another time, in the same words; empty for nothing.
    virtual std::string limitation() const { return {}; }
};

} // namespace nerlo::platform
