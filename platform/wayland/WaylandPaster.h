// Pasting by a keyboard of our own, where the compositor lets programs have one; else by the
// user's, where it lets this program press keys on that (KWin: one whose desktop file asks for it).
#pragma once

#include "platform/Created.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/Paster.h"
#include "platform/linux/IoThread.h"

#include <string>

namespace nerlo::platform {

// Main thread. Waits for the compositor's first answer, for at most the clipboard's stall limit.
// `display` is the name of a compositor's socket; empty for the one that the environment names.
// The references must outlive the result.
Created<Paster> createWaylandPaster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                    IoThread &io, const std::string &display = {});

} // namespace nerlo::platform
