// The connection to the X server that a program's backends have in common, run on the I/O thread.
//
// The clipboard has one of its own: it takes events off its connection in the middle of its work,
// to know what happened up to a certain moment, and what it reads and serves can be large.
#pragma once

#include "platform/linux/IoThread.h"
#include "platform/x11/Connection.h"
#include "platform/x11/EventPump.h"
#include "platform/x11/XkbEvents.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace nerlo::platform::x11 {

class SharedConnection final : private EventSource {
  public:
    // Sees all events; on the I/O thread.
    class Listener {
      public:
        // The mask of what it wants to be told of the root window; never changes.
        virtual std::uint32_t rootEvents() const { return XCB_EVENT_MASK_NO_EVENT; }
        virtual void handle(const xcb_generic_event_t &event) = 0;
        // After some events: does at once what they call for, such as asking the server.
        virtual void settle() {}

      protected:
        ~Listener() = default;
    };

    // The display in $DISPLAY; null if there is none that answers. `io` must outlive it.
    static std::shared_ptr<SharedConnection> open(IoThread &io);

    // The keyboard of a connection that may be null; nothing, and why in `declined`, if there is
    // none. Any other thread than the I/O thread.
    static std::optional<XkbEvents> keyboardOf(const std::shared_ptr<SharedConnection> &connection,
                                               std::string &declined);

    // Runs `task` on the I/O thread. Any thread.
    void submit(std::function<void()> task);
    // The same, and waits until it has run. Any other thread.
    void run(const std::function<void()> &task);

    // The rest is for the I/O thread.

    Connection &connection() { return *connection_; }
    void add(Listener &listener);
    void remove(Listener &listener);

  private:
    SharedConnection(IoThread &io, std::unique_ptr<Connection> connection);

    int fileDescriptor() const override;
    std::optional<Clock::time_point> deadline() const override;
    void process() override;
    void selectRootEvents();

    IoThread &io_;
    std::unique_ptr<Connection> connection_;
    std::optional<XkbEvents> keyboard_; // once it was asked for
    std::vector<Listener *> listeners_;
    bool more_ = false; // there may be events that were read together with an answer
    EventPump pump_;
};

} // namespace nerlo::platform::x11
