// What a window manager and a panel on X11 are asked and told.
#pragma once

#include "platform/MainQueue.h"
#include "platform/TaskbarHint.h"
#include "platform/TrayWatch.h"

#include <functional>
#include <memory>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

// Null for a null connection. Main thread.
std::unique_ptr<TaskbarHint>
createX11TaskbarHint(std::shared_ptr<x11::SharedConnection> connection);
// `appeared` runs on the main queue, at most once: soon if there is a tray already, else when one
// comes. Null as above.
std::unique_ptr<TrayWatch> createX11TrayWatch(MainQueue &mainQueue,
                                              std::shared_ptr<x11::SharedConnection> connection,
                                              std::function<void()> appeared);

// Whether there is a tray now. False for a null connection. Main thread.
bool x11TrayThere(const std::shared_ptr<x11::SharedConnection> &connection);

// In Xwayland: whether the compositor gives the keyboard also to windows that it does not manage.
// False for a null connection. Main thread.
bool unmanagedWindowsGetKeys(const std::shared_ptr<x11::SharedConnection> &connection);

} // namespace nerlo::platform
