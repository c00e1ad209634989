// Pasting by XTEST. Under a Wayland compositor it reaches the X11 programs alone.
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/Paster.h"

#include <memory>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

// Main thread. Declines for a null connection and for a server without XTEST; the references must
// outlive the result.
Created<Paster> createX11Paster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                std::shared_ptr<x11::SharedConnection> connection);

} // namespace nerlo::platform
