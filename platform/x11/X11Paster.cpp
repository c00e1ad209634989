#include "platform/x11/X11Paster.h"

#include "platform/Alive.h"
#include "platform/VirtualKeys.h"
#include "platform/x11/SharedConnection.h"

#include <chrono>
#include <cstdint>
#include <utility>

#include <sys/uio.h>
#include <xcb/xcbext.h>

namespace nerlo::platform {

namespace {

using namespace std::chrono_literals;
using x11::Connection;
using x11::Reply;
using x11::SharedConnection;

constexpr std::uint64_t virtualV = 9;
constexpr std::uint64_t virtualCommand = 55; // the Ctrl key here
constexpr auto looksEvery = 10ms;
// A busy desktop takes its time to close one window and bring back another.
constexpr auto backWithin = 5000ms;
// Who holds a key for longer has changed his mind.
constexpr auto patience = 1500ms;
constexpr std::uint16_t held =
    XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;

// The one request of XTEST that is used here; a library for it would be one more thing to install.
xcb_extension_t xtest = {"XTEST", 0};

bool hasXTest(Connection &connection) {
    const auto *extension = xcb_get_extension_data(connection.get(), &xtest);
    return extension && extension->present;
}

void fakeKey(Connection &connection, std::uint8_t key, bool down) {
    struct {
        std::uint8_t majorOpcode = 0; // filled in on sending, like the two after it
        std::uint8_t minorOpcode = 0;
        std::uint16_t length = 0;
        std::uint8_t type;
        std::uint8_t detail;
        std::uint16_t unused = 0;
        std::uint32_t delay = 0;
        std::uint32_t root = XCB_NONE;
        std::uint8_t pointer[20] = {}; // what only events of the pointer need, and the device
    } request{.type = static_cast<std::uint8_t>(down ? XCB_KEY_PRESS : XCB_KEY_RELEASE),
              .detail = key};
    static_assert(sizeof request == 36);
    constexpr std::uint8_t fakeInput = 2;
    static constexpr xcb_protocol_request_t form{
        .count = 1, .ext = &xtest, .opcode = fakeInput, .isvoid = 1};
    // The library takes the two elements before those that it is given.
    iovec parts[3] = {};
    parts[2] = {&request, sizeof request};
    xcb_send_request(connection.get(), 0, parts + 2, &form);
}

xcb_window_t focusOf(Connection &connection) {
    const Reply<xcb_get_input_focus_reply_t> focus(xcb_get_input_focus_reply(
        connection.get(), xcb_get_input_focus(connection.get()), nullptr));
    return focus ? focus->focus : xcb_window_t{XCB_NONE};
}

bool modifiersHeld(Connection &connection) {
    const Reply<xcb_query_pointer_reply_t> state(xcb_query_pointer_reply(
        connection.get(), xcb_query_pointer(connection.get(), connection.screen().root), nullptr));
    return !state || (state->mask & held) != 0;
}

// Whether no program has grabbed the keyboard: keys would go there.
bool keyboardFree(Connection &connection) {
    auto *xcb = connection.get();
    const auto cookie = xcb_grab_keyboard(xcb, 0, connection.screen().root, XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const Reply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(xcb, cookie, nullptr));
    const bool taken = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    if (taken) {
        xcb_ungrab_keyboard(xcb, XCB_CURRENT_TIME);
    }
    return taken;
}

class X11Paster final : public Paster {
  public:
    X11Paster(MainQueue &mainQueue, const KeyboardLayout &layout,
              std::shared_ptr<SharedConnection> shared)
        : mainQueue_(mainQueue)
        , layout_(layout)
        , shared_(std::move(shared)) {}
    ~X11Paster() override { mainQueue_.cancel(next_); }

    void remember() override {
        shared_->run([this] { target_ = focusOf(shared_->connection()); });
    }

    void paste(std::function<void(bool)> done) override {
        mainQueue_.cancel(next_);
        done_ = std::move(done);
        back_ = false;
        until_ = mainQueue_.now() + backWithin;
        lookAgain();
    }

    std::string description() const override { return "X11, XTEST"; }

  private:
    void lookAgain() {
        next_ = mainQueue_.postAfter(looksEvery, [this] {
            next_ = 0;
            const bool ready = target_ != XCB_NONE && isReady();
            if (ready) {
                press();
            } else if (mainQueue_.now() < until_) {
                lookAgain();
                return;
            }
            const auto done = std::exchange(done_, nullptr);
            done(ready);
        });
    }

    bool isReady() {
        bool inFront = false;
        bool ready = false;
        shared_->run([&, this] {
            auto &connection = shared_->connection();
            inFront = focusOf(connection) == target_ && keyboardFree(connection);
            ready = inFront && !modifiersHeld(connection);
        });
        if (inFront && !std::exchange(back_, true)) {
            until_ = mainQueue_.now() + patience;
        }
        return ready;
    }

    void press() {
        // Programs take Ctrl and the key at its place where the layout writes no Latin letters.
        const auto letter = x11KeyOfVirtualKey(layout_.keyOfSymbol("v").value_or(virtualV));
        const auto control = x11KeyOfVirtualKey(virtualCommand);
        shared_->run([&, this] {
            auto &connection = shared_->connection();
            fakeKey(connection, *control, true);
            fakeKey(connection, *letter, true);
            fakeKey(connection, *letter, false);
            fakeKey(connection, *control, false);
            xcb_flush(connection.get());
        });
    }

    MainQueue &mainQueue_;
    const KeyboardLayout &layout_;
    std::shared_ptr<SharedConnection> shared_;
    xcb_window_t target_ = XCB_NONE;
    std::function<void(bool)> done_;
    bool back_ = false; // the window that was in front has been there again
    MainQueue::Clock::time_point until_;
    MainQueue::TaskId next_ = 0;
};

} // namespace

Created<Paster> createX11Paster(MainQueue &mainQueue, const KeyboardLayout &layout,
                                std::shared_ptr<SharedConnection> connection) {
    if (!connection) {
        return {nullptr, x11::noDisplay};
    }
    bool present = false;
    connection->run([&] { present = hasXTest(connection->connection()); });
    if (!present) {
        return {nullptr, "the X server has no XTEST"};
    }
    return {std::make_unique<X11Paster>(mainQueue, layout, std::move(connection)), {}};
}

} // namespace nerlo::platform
