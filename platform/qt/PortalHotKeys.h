// Hot keys by the desktop portal's GlobalShortcuts, for Wayland: the user confirms or changes them
// in the desktop's own dialog, and the desktop keeps them.
//
// A portal session binds its shortcuts once, so each change of ours begins another session with all
// of them, which takes the place of the present one when the user has agreed. Until then, and if
// the user declines, what is bound stays so. Nothing waits: hot keys are "pending" until the portal
// has answered.
#pragma once

#include "platform/Created.h"
#include "platform/HotKeyService.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"

#include <string>

namespace nerlo::platform {

// Declines without a session bus; a portal that is missing is found out with the first hot key, and
// then refuses it. `applicationId` is that of the desktop file. Both references must outlive the
// result. Main thread, with an event loop.
Created<HotKeyService> createPortalHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                           std::string applicationId);

// How the portal is told which keys we would like: "CTRL+LOGO+v". Empty if the layout knows no name
// for the key.
std::string preferredTrigger(const HotKeyRequest &request, const KeyboardLayout &layout);

} // namespace nerlo::platform
