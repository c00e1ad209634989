#include "platform/x11/X11KeyboardLayout.h"

#include "platform/Alive.h"
#include "platform/x11/SharedConnection.h"
#include "platform/xkb/XkbKeyboardLayout.h"

#include <functional>
#include <utility>

#include <xkbcommon/xkbcommon-x11.h>

namespace nerlo::platform {

namespace {

using x11::Connection;
using x11::SharedConnection;
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

// Lives on the I/O thread.
class LayoutListener final : public SharedConnection::Listener {
  public:
    LayoutListener(SharedConnection &shared, XkbEvents events, std::function<void(Layout)> changed)
        : shared_(shared)
        , events_(events)
        , changed_(std::move(changed)) {
        shared_.add(*this);
    }
    ~LayoutListener() { shared_.remove(*this); }
    LayoutListener(const LayoutListener &) = delete;
    LayoutListener &operator=(const LayoutListener &) = delete;

    Layout read() const {
        return {readKeymap(shared_.connection(), events_), events_.group(shared_.connection())};
    }

    void handle(const xcb_generic_event_t &event) override {
        otherMap_ |= events_.isMapChange(event);
        otherGroup_ |= events_.isGroupChange(event);
    }
    void settle() override {
        const bool otherMap = std::exchange(otherMap_, false);
        const bool otherGroup = std::exchange(otherGroup_, false);
        if (otherMap) {
            changed_(read());
        } else if (otherGroup) {
            changed_({nullptr, events_.group(shared_.connection())});
        }
    }

  private:
    SharedConnection &shared_;
    XkbEvents events_;
    std::function<void(Layout)> changed_;
    bool otherMap_ = false;
    bool otherGroup_ = false;
};

class X11KeyboardLayout final : public XkbKeyboardLayout {
  public:
    X11KeyboardLayout(MainQueue &mainQueue, std::shared_ptr<SharedConnection> shared,
                      XkbEvents events)
        : shared_(std::move(shared)) {
        Layout first;
        shared_->run(
            [&, tell = alive_.guardOn(mainQueue, [this](const Layout &layout) { take(layout); })] {
                listener_ = std::make_unique<LayoutListener>(*shared_, events, tell);
                first = listener_->read();
            });
        take(first);
    }
    ~X11KeyboardLayout() override {
        shared_->run([this] { listener_.reset(); });
    }

    std::string description() const override { return "X11, by xkb"; }

  private:
    void take(const Layout &layout) {
        replace(layout.keymap ? layout.keymap : keymap(), layout.group);
    }

    Alive alive_;
    std::shared_ptr<SharedConnection> shared_;
    std::unique_ptr<LayoutListener> listener_; // on the I/O thread
};

} // namespace

Created<KeyboardLayout> createX11KeyboardLayout(MainQueue &mainQueue,
                                                std::shared_ptr<SharedConnection> connection) {
    std::string declined;
    const auto events = SharedConnection::keyboardOf(connection, declined);
    if (!events) {
        return {nullptr, std::move(declined)};
    }
    return {std::make_unique<X11KeyboardLayout>(mainQueue, std::move(connection), *events), {}};
}

} // namespace nerlo::platform
