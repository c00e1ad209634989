// The keyboard layout that a Wayland compositor hands out.
//
// Which of several layouts is the current one, a compositor tells only the program that has the
// focus; without it the first counts.
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/linux/IoThread.h"

#include <string>

namespace nerlo::platform {

// `display` is the name of a compositor's socket; empty for the one that the environment names. A
// seat without a keyboard has the us layout until it gets one. Both references must outlive the
// result.
Created<KeyboardLayout> createWaylandKeyboardLayout(MainQueue &mainQueue, IoThread &io,
                                                    const std::string &display = {});

} // namespace nerlo::platform
