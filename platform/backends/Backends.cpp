#include "platform/backends/Backends.h"

#include "platform/Created.h"
#include "platform/qt/GnomeActiveApplication.h"
#include "platform/qt/GnomeHotKeys.h"
#include "platform/qt/GnomePasteboard.h"
#include "platform/qt/GnomePaster.h"
#include "platform/qt/GnomePointer.h"
#include "platform/qt/KdeHotKeys.h"
#include "platform/qt/PortalHotKeys.h"
#include "platform/qt/QtWindowSystem.h"
#include "platform/wayland/EventLoop.h"
#include "platform/wayland/WaylandActiveApplication.h"
#include "platform/wayland/WaylandKeyboardLayout.h"
#include "platform/wayland/WaylandPasteboard.h"
#include "platform/wayland/WaylandPaster.h"
#include "platform/wayland/WaylandPopupLayer.h"
#include "platform/x11/SharedConnection.h"
#include "platform/x11/X11ActiveApplication.h"
#include "platform/x11/X11Desktop.h"
#include "platform/x11/X11HotKeys.h"
#include "platform/x11/X11KeyboardLayout.h"
#include "platform/x11/X11Pasteboard.h"
#include "platform/x11/X11Paster.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <utility>

namespace nerlo::platform {

namespace {

class NoActiveApplication final : public ActiveApplication {
  public:
    void setActivatedHandler(Handler) override {}
    std::string description() const override { return "none"; }
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

// Each of `create` gives a Created<Interface>.
template <class Interface, class... Create>
Chosen<Interface> firstOf(Create... create) {
    Chosen<Interface> chosen;
    const auto ask = [&](auto &createOne) {
        if (!chosen.backend) {
            Created<Interface> created = createOne();
            chosen.backend = std::move(created.backend);
            chosen.lacks = std::move(created.lacks);
            if (!chosen.backend) {
                chosen.declined.push_back(std::move(created.declined));
            }
        }
    };
    (ask(create), ...);
    return chosen;
}

// X11 sessions have a better way than GNOME's extension.
template <class Interface, class Create>
Created<Interface> inWayland(Create create) {
    return wayland::EventLoop::defaultDisplay().empty()
               ? Created<Interface>{nullptr, "this is not GNOME on Wayland"}
               : create();
}

// The last resort, which never declines.
template <class Interface, class Backend, class... Arguments>
Created<Interface> always(Arguments... arguments) {
    return {std::make_unique<Backend>(std::move(arguments)...), {}};
}

// A backend for X11 that stands in for one of Wayland, where `lacks` is true of it.
template <class Interface>
Created<Interface> onWayland(Created<Interface> x11, const char *lacks) {
    if (x11.backend && underWayland()) {
        x11.lacks = lacks;
    }
    return x11;
}

} // namespace

Backends::Backends(MainQueue &mainQueue)
    : mainQueue_(mainQueue) {}

Backends::~Backends() = default;

std::shared_ptr<x11::SharedConnection> Backends::x11() {
    auto connection = x11_.lock();
    if (!connection) {
        connection = x11::SharedConnection::open(io_);
        x11_ = connection;
    }
    return connection;
}

std::vector<std::string> Backends::whyNoDisplay() {
    auto chosen = firstOf<Pasteboard>([&] { return createWaylandPasteboard(mainQueue_, io_); },
                                      [&] { return createX11Pasteboard(mainQueue_, io_); });
    const bool gnome = !chosen.backend && underWayland() && gnomeExtensionRuns();
    return chosen.backend || gnome ? std::vector<std::string>() : std::move(chosen.declined);
}

Chosen<Pasteboard> Backends::openPasteboard() {
    const auto x11 = [this] {
        return onWayland(createX11Pasteboard(mainQueue_, io_),
                         "copies come by way of Xwayland, where the compositor passes them on; "
                         "GNOME does");
    };
    return firstOf<Pasteboard>([&] { return createWaylandPasteboard(mainQueue_, io_); },
                               [&] {
                                   return inWayland<Pasteboard>(
                                       [&] { return createGnomePasteboard(mainQueue_, x11); });
                               },
                               x11);
}

Chosen<ActiveApplication> Backends::openActiveApplication() {
    const auto onX11 = [this] {
        return onWayland(createX11ActiveApplication(mainQueue_, x11()),
                         "windows of Wayland programs are not told apart, so rules for a program "
                         "fit only copies from programs on X11");
    };
    return firstOf<ActiveApplication>(
        [&] { return createWaylandActiveApplication(mainQueue_, io_); },
        [&] {
            return inWayland<ActiveApplication>(
                [&] { return createGnomeActiveApplication(onX11()); });
        },
        onX11,
        [] {
            auto none = always<ActiveApplication, NoActiveApplication>();
            none.lacks = "which program is in front cannot be told, so rules for a program fit no "
                         "copy";
            return none;
        });
}

Chosen<KeyboardLayout> Backends::openKeyboardLayout() {
    return firstOf<KeyboardLayout>(
        [&] { return createWaylandKeyboardLayout(mainQueue_, io_); },
        [&] { return createX11KeyboardLayout(mainQueue_, x11()); },
        [] { return always<KeyboardLayout, XkbKeyboardLayout>(xkb::Keymap::fromNames("us")); });
}

Chosen<HotKeyService> Backends::openHotKeys(const KeyboardLayout &layout,
                                            const std::string &applicationId) {
    return firstOf<HotKeyService>(
        [&]() -> Created<HotKeyService> {
            // Keys grabbed in Xwayland would be missed whenever a Wayland window has the focus.
            if (!wayland::EventLoop::connect(io_, wayland::EventLoop::defaultDisplay())) {
                return {nullptr, "there is no Wayland compositor"};
            }
            if (auto kde = createKdeHotKeys(mainQueue_, layout, applicationId, "Nerlo Pro");
                kde.backend) {
                return kde;
            }
            auto portal = createPortalHotKeys(mainQueue_, layout, applicationId);
            if (!portal.backend) {
                portal = always<HotKeyService, NoHotKeys>();
            }
            auto gnome = createGnomeHotKeys(portal.backend);
            return gnome.backend ? std::move(gnome) : std::move(portal);
        },
        [&] { return createX11HotKeys(mainQueue_, x11()); },
        [] { return always<HotKeyService, NoHotKeys>(); });
}

Chosen<PopupLayer> Backends::openPopupLayer() {
    return firstOf<PopupLayer>([&] { return createWaylandPopupLayer(mainQueue_, io_); });
}

Chosen<PointerPlace> Backends::openPointerPlace() {
    return firstOf<PointerPlace>([] { return inWayland<PointerPlace>(createGnomePointer); });
}

Chosen<Paster> Backends::openPaster(const KeyboardLayout &layout) {
    const auto onX11 = [&] {
        return onWayland(createX11Paster(mainQueue_, layout, x11()),
                         "pastes into windows of programs on X11 alone");
    };
    return firstOf<Paster>([&] { return createWaylandPaster(mainQueue_, layout, io_); },
                           [&] {
                               return inWayland<Paster>(
                                   [&] { return createGnomePaster(mainQueue_, layout, onX11()); });
                           },
                           onX11);
}

bool Backends::grabGetsAllKeys() {
    if (!qtIsOnX11()) {
        return false;
    }
    // To a window in Xwayland only the compositor gives keys.
    return !underWayland() || unmanagedWindowsGetKeys(x11());
}

std::unique_ptr<TaskbarHint> Backends::openTaskbarHint() {
    return qtIsOnX11() ? createX11TaskbarHint(x11()) : nullptr;
}

std::unique_ptr<TrayWatch> Backends::openTrayWatch(std::function<void()> appeared) {
    return qtIsOnX11() ? createX11TrayWatch(mainQueue_, x11(), std::move(appeared)) : nullptr;
}

bool Backends::hasXembedTray() {
    return x11TrayThere(x11());
}

bool underWayland() {
    return !wayland::EventLoop::defaultDisplay().empty();
}

bool keyboardCanBeGrabbed() {
    return qtIsOnX11();
}

bool pointerPositionKnown() {
    return qtIsOnX11();
}

} // namespace nerlo::platform
