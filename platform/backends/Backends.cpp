#include "platform/backends/Backends.h"

#include "platform/Created.h"
#include "platform/qt/PortalHotKeys.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/WaylandActiveApplication.h"
#include "platform/wayland/WaylandKeyboardLayout.h"
#include "platform/wayland/WaylandPasteboard.h"
#include "platform/wayland/WaylandPopupLayer.h"
#include "platform/x11/X11ActiveApplication.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11HotKeys.h"
#include "platform/x11/X11KeyboardLayout.h"
#include "platform/x11/X11Pasteboard.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <utility>

namespace nerlo::platform {

namespace {

class NoActiveApplication final : public ActiveApplication {
  public:
    void setActivatedHandler(Handler) override {}
    std::string description() const override {
        return "none: which application is in front cannot be told here";
    }
};

class NoHotKeys final : public HotKeyService {
  public:
    bool installHandler(Pressed) override { return true; }
    void removeHandler() override {}
    Registration registerHotKey(const HotKeyRequest &) override { return {0, description()}; }
    void unregisterHotKey(Handle) override {}
    HotKeyStatus status(Handle) const override { return {}; }
    void setStatusHandler(StatusChanged) override {}
    void setSuspended(bool) override {}
    bool available() const override { return false; }
    std::string description() const override {
        return std::string("this desktop takes no hot keys; ") + hotKeysByHand;
    }
};

template <class Interface, class... Create>
Chosen<Interface> firstOf(MainQueue &mainQueue, Create... create) {
    Chosen<Interface> chosen;
    const auto ask = [&](auto &createOne) {
        if (!chosen.backend) {
            Created<Interface> created = createOne(mainQueue);
            chosen.backend = std::move(created.backend);
            if (!chosen.backend) {
                chosen.declined.push_back(std::move(created.declined));
            }
        }
    };
    (ask(create), ...);
    return chosen;
}

} // namespace

Chosen<Pasteboard> openPasteboard(MainQueue &mainQueue) {
    return firstOf<Pasteboard>(
        mainQueue, [](MainQueue &queue) { return createWaylandPasteboard(queue); },
        createX11Pasteboard);
}

Chosen<ActiveApplication> openActiveApplication(MainQueue &mainQueue) {
    return firstOf<ActiveApplication>(
        mainQueue, [](MainQueue &queue) { return createWaylandActiveApplication(queue); },
        createX11ActiveApplication,
        [](MainQueue &) {
            return Created<ActiveApplication>{std::make_unique<NoActiveApplication>(), {}};
        });
}

Chosen<KeyboardLayout> openKeyboardLayout(MainQueue &mainQueue) {
    return firstOf<KeyboardLayout>(
        mainQueue, [](MainQueue &queue) { return createWaylandKeyboardLayout(queue); },
        createX11KeyboardLayout,
        [](MainQueue &) {
            return Created<KeyboardLayout>{
                std::make_unique<XkbKeyboardLayout>(xkb::Keymap::fromNames("us")), {}};
        });
}

Chosen<HotKeyService> openHotKeys(MainQueue &mainQueue, const KeyboardLayout &layout,
                                  const std::string &applicationId) {
    return firstOf<HotKeyService>(
        mainQueue,
        [&](MainQueue &queue) -> Created<HotKeyService> {
            // Keys grabbed in Xwayland would be missed whenever a Wayland window has the focus.
            if (!wayland::EventLoop::connect(wayland::EventLoop::defaultDisplay())) {
                return {nullptr, "there is no Wayland compositor"};
            }
            auto portal = createPortalHotKeys(queue, layout, applicationId);
            return portal.backend ? std::move(portal)
                                  : Created<HotKeyService>{std::make_unique<NoHotKeys>(), {}};
        },
        createX11HotKeys,
        [](MainQueue &) {
            return Created<HotKeyService>{std::make_unique<NoHotKeys>(), {}};
        });
}

Chosen<PopupLayer> openPopupLayer(MainQueue &mainQueue) {
    return firstOf<PopupLayer>(mainQueue,
                               [](MainQueue &queue) { return createWaylandPopupLayer(queue); });
}

std::unique_ptr<TaskbarHint> openTaskbarHint() {
    return qtIsOnX11() ? createX11TaskbarHint() : nullptr;
}

std::unique_ptr<TrayWatch> openTrayWatch(MainQueue &mainQueue, std::function<void()> appeared) {
    return qtIsOnX11() ? createX11TrayWatch(mainQueue, std::move(appeared)) : nullptr;
}

bool keyboardCanBeGrabbed() {
    return qtIsOnX11();
}

bool pointerPositionKnown() {
    return qtIsOnX11();
}

} // namespace nerlo::platform
