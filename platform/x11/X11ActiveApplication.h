// The frontmost window of an X display, from the window manager's _NET_ACTIVE_WINDOW.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/Created.h"
#include "platform/MainQueue.h"

#include <memory>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

// Declines a null connection; under Xwayland only X windows are seen. The main queue must outlive
// the result.
Created<ActiveApplication>
createX11ActiveApplication(MainQueue &mainQueue, std::shared_ptr<x11::SharedConnection> connection);

} // namespace nerlo::platform
