// Finds out what the desktop offers: the backends are asked in order, and the first that does not
// decline is taken.
#pragma once

#include "platform/ActiveApplication.h"
#include "platform/HotKeyService.h"
#include "platform/KeyboardLayout.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/Paster.h"
#include "platform/PointerPlace.h"
#include "platform/PopupLayer.h"
#include "platform/TaskbarHint.h"
#include "platform/TrayWatch.h"
#include "platform/linux/IoThread.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace nerlo::platform {

namespace x11 {
class SharedConnection;
}

template <class Interface>
struct Chosen {
    std::unique_ptr<Interface> backend;
    // Why those before it declined, one English line each, for the user's eyes.
    std::vector<std::string> declined;
    std::string lacks{}; // as in Created
};

// What is opened shares one thread and, but for the clipboard, one connection to the X server.
class Backends {
  public:
    // Main thread; throws std::system_error if the system has no threads or descriptors left. The
    // main queue must outlive it, and it must outlive all that it opened.
    explicit Backends(MainQueue &mainQueue);
    ~Backends();
    Backends(const Backends &) = delete;
    Backends &operator=(const Backends &) = delete;

    // For others that wait for the system.
    IoThread &io() { return io_; }

    // Why there is no display with a clipboard, one English line for each kind; empty if there is
    // one.
    std::vector<std::string> whyNoDisplay();

    // The rest uses the toolkit's connection to the session bus, which belongs to the application
    // object that is there at its first use.

    // Wayland, in GNOME the Shell's extension, while that runs, then X11 (under a Wayland
    // compositor: its Xwayland). Null without any display.
    Chosen<Pasteboard> openPasteboard();

    // In the same order; the last never declines and never learns of an application.
    Chosen<ActiveApplication> openActiveApplication();

    // In the same order; the last never declines and is the us layout.
    Chosen<KeyboardLayout> openKeyboardLayout();

    // On Wayland KDE's own service, or GNOME's extension while it runs, else the desktop portal;
    // else X11. The last never declines and refuses every hot key. `layout` must outlive the
    // result. `applicationId` is that of the desktop file.
    Chosen<HotKeyService> openHotKeys(const KeyboardLayout &layout,
                                      const std::string &applicationId);

    // Null where the toolkit's own windows are the best there is.
    Chosen<PopupLayer> openPopupLayer();

    // GNOME's extension. Null where there is nothing better than the toolkit and the popup layer.
    Chosen<PointerPlace> openPointerPlace();

    // In the same order as the clipboard. Null where no program may press keys. `layout` must
    // outlive the result.
    Chosen<Paster> openPaster(const KeyboardLayout &layout);

    // The rest needs the toolkit's application object.

    // Whether a window of the toolkit that no window manager manages gets all keys when it grabs
    // the keyboard. It can stand anywhere then, and the focus stays where it is meanwhile.
    bool grabGetsAllKeys();

    // Null where programs cannot keep a window out of the taskbar.
    std::unique_ptr<TaskbarHint> openTaskbarHint();

    // `appeared` runs on the main queue, at most once: soon if there is a tray already, else when
    // one comes. Null where there are no trays of this kind.
    std::unique_ptr<TrayWatch> openTrayWatch(std::function<void()> appeared);

    // Whether there is such a tray now; needs no application object.
    bool hasXembedTray();

  private:
    // Opened when it is first needed, and closed with the last that uses it. Null without a
    // display.
    std::shared_ptr<x11::SharedConnection> x11();

    MainQueue &mainQueue_;
    IoThread io_;
    std::weak_ptr<x11::SharedConnection> x11_;
};

// Whether the session is one of Wayland, whatever else it has.
bool underWayland();

// The rest is for the main thread, once the toolkit's application object is there.

// Whether a window of the toolkit can take the whole keyboard for a while.
bool keyboardCanBeGrabbed();

// Whether the toolkit can tell where the pointer is, and put a menu there.
bool pointerPositionKnown();

} // namespace nerlo::platform
