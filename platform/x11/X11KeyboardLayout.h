// The keyboard layout of an X11 desktop, followed as it changes.
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"

#include <memory>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

// Declines a null connection. The main queue must outlive the result.
Created<KeyboardLayout> createX11KeyboardLayout(MainQueue &mainQueue,
                                                std::shared_ptr<x11::SharedConnection> connection);

} // namespace nerlo::platform
