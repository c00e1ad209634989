#include "platform/x11/X11KeyboardLayout.h"

#include "platform/Alive.h"
#include "platform/x11/EventThread.h"
#include "platform/x11/XkbEvents.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <functional>
#include <utility>

#include <xkbcommon/xkbcommon-x11.h>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::XkbEvents;

struct Layout {
    std::shared_ptr<const xkb::Keymap> keymap; // null: as before
    std::uint32_t group = 0;
};

std::shared_ptr<const xkb::Keymap> readKeymap(Connection &connection, const XkbEvents &events) {
    auto *context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    if (!context) {
        return nullptr;
    }
    auto keymap = xkb::Keymap::adopt(xkb_x11_keymap_new_from_device(
        context, connection.get(), events.device(), XKB_KEYMAP_COMPILE_NO_FLAGS));
    xkb_context_unref(context);
    return keymap;
}

// Lives on the event thread once that has started.
class LayoutSource final : public x11::EventSource {
  public:
    LayoutSource(std::unique_ptr<Connection> connection, XkbEvents events,
                 std::function<void(Layout)> changed)
        : connection_(std::move(connection))
        , events_(events)
        , changed_(std::move(changed)) {}

    int fileDescriptor() const override {
        return connection_->broken() ? -1 : xcb_get_file_descriptor(connection_->get());
    }
    std::optional<Clock::time_point> deadline() const override { return std::nullopt; }
    void process() override {
        // Reading the new layout may bring further events along.
        for (;;) {
            bool otherMap = false;
            bool otherGroup = false;
            while (const auto event = x11::Event(xcb_poll_for_event(connection_->get()))) {
                otherMap |= events_.isMapChange(*event);
                otherGroup |= events_.isGroupChange(*event);
            }
            if (!otherMap && !otherGroup) {
                return;
            }
            Layout layout;
            if (otherMap) {
                layout.keymap = readKeymap(*connection_, events_);
            }
            layout.group = events_.group(*connection_);
            changed_(std::move(layout));
        }
    }

  private:
    std::unique_ptr<Connection> connection_;
    XkbEvents events_;
    std::function<void(Layout)> changed_;
};

class X11KeyboardLayout final : public KeyboardLayout {
  public:
    X11KeyboardLayout(MainQueue &mainQueue, std::unique_ptr<Connection> connection,
                      XkbEvents events)
        : keymap_(readKeymap(*connection, events))
        , layout_(keymap_, events.group(*connection)) {
        source_ = std::make_unique<LayoutSource>(
            std::move(connection), events, alive_.guardOn(mainQueue, [this](const Layout &layout) {
                if (layout.keymap) {
                    keymap_ = layout.keymap;
                }
                layout_.replace(keymap_, layout.group);
            }));
        thread_ = std::make_unique<x11::EventThread>(*source_);
    }

    std::u16string textOfKey(std::uint64_t virtualKey) const override {
        return layout_.textOfKey(virtualKey);
    }
    std::string symbolOfKey(std::uint64_t virtualKey) const override {
        return layout_.symbolOfKey(virtualKey);
    }
    std::optional<std::uint16_t> keyOfSymbol(std::string_view name) const override {
        return layout_.keyOfSymbol(name);
    }
    void setChangedHandler(std::function<void()> changed) override {
        layout_.setChangedHandler(std::move(changed));
    }
    std::string description() const override { return "X11, by xkb"; }

  private:
    std::shared_ptr<const xkb::Keymap> keymap_;
    XkbKeyboardLayout layout_;
    Alive alive_;
    std::unique_ptr<LayoutSource> source_;
    std::unique_ptr<x11::EventThread> thread_;
};

} // namespace

Created<KeyboardLayout> createX11KeyboardLayout(MainQueue &mainQueue) {
    auto connection = Connection::open();
    if (!connection) {
        return {nullptr, "no X display"};
    }
    const auto events = XkbEvents::select(*connection);
    if (!events) {
        return {nullptr, "the X server has no keyboard extension"};
    }
    return {std::make_unique<X11KeyboardLayout>(mainQueue, std::move(connection), *events), {}};
}

} // namespace nerlo::platform
