// Hot keys by passive grabs on the root window.
//
// A grab belongs to one key code and one exact set of modifiers, so each hot key takes a grab for
// every state of Caps Lock, Num Lock and Scroll Lock. Which modifiers Alt, Super and the locks are
// is the keyboard map's to say; when that changes, the grabs are made again.
#pragma once

#include "platform/Created.h"
#include "platform/HotKeyService.h"
#include "platform/MainQueue.h"

#include <memory>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

// Declines a null connection. The main queue must outlive the result.
Created<HotKeyService> createX11HotKeys(MainQueue &mainQueue,
                                        std::shared_ptr<x11::SharedConnection> connection);

} // namespace nerlo::platform
