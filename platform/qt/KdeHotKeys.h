// Hot keys by KDE's own service for global shortcuts (KGlobalAccel), for Wayland sessions of KDE:
// it binds them without a question, and lists them in the system settings, where the user may
// choose other keys.
//
// What the user has chosen there stays until another shortcut is recorded here. Nothing waits: hot
// keys are "pending" until the service has answered.
#pragma once

#include "platform/Created.h"
#include "platform/HotKeyService.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"

#include <string>

namespace nerlo::platform {

// Declines where the service does not run. `applicationId` is that of the desktop file, under which
// the service keeps the keys; `applicationName` is shown to the user. Both references must outlive
// the result. Main thread, with an event loop.
Created<HotKeyService> createKdeHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                        const std::string &applicationId,
                                        const std::string &applicationName);

} // namespace nerlo::platform
