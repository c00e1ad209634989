// Finds out what the desktop offers: the backends are asked in order, and the first that does not
// decline is taken.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/HotKeyService.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/PopupLayer.h"
#include "platform/TaskbarHint.h"
#include "platform/TrayWatch.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nerlo::platform {

template <class Interface>
struct Chosen {
    std::unique_ptr<Interface> backend;
    // Why those before it declined, one English line each, for the user's eyes.
    std::vector<std::string> declined;
};

// Wayland, then X11 (under a Wayland compositor: its Xwayland). Null without any display. The main
// queue must outlive the result.
Chosen<Pasteboard> openPasteboard(MainQueue &mainQueue);

// In the same order; the last never declines and never learns of an application.
Chosen<ActiveApplication> openActiveApplication(MainQueue &mainQueue);

// In the same order; the last never declines and is the us layout.
Chosen<KeyboardLayout> openKeyboardLayout(MainQueue &mainQueue);

// On Wayland the desktop portal, else X11; the last never declines and refuses every hot key. Both
// references must outlive the result. `applicationId` is that of the desktop file.
Chosen<HotKeyService> openHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                  const std::string &applicationId);

// Null where the toolkit's own windows are the best there is. The main queue must outlive the
// result.
Chosen<PopupLayer> openPopupLayer(MainQueue &mainQueue);

// The rest is for the main thread, once the toolkit's application object is there.

// Null where programs cannot keep a window out of the taskbar.
std::unique_ptr<TaskbarHint> openTaskbarHint();

// `appeared` runs on the main queue, at most once: soon if there is a tray already, else when one
// comes. Null where there are no trays of this kind.
std::unique_ptr<TrayWatch> openTrayWatch(MainQueue &mainQueue, std::function<void()> appeared);

// Whether a window of the toolkit can take the whole keyboard for a while.
bool keyboardCanBeGrabbed();

// Whether the toolkit can tell where the pointer is, and put a menu there.
bool pointerPositionKnown();

} // namespace nerlo::platform
