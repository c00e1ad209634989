// The windows of all programs as a compositor tells of them, and which of them is in front.
//
// Everything runs on the thread that serves the connection.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>

namespace nerlo::platform::wayland {

class WindowList {
  public:
    // Gets the app id, the empty string for a window without one, each time another window comes to
    // the front or the one in front changes its app id.
    using Activated = std::function<void(const std::string &appId)>;

    WindowList() = default;
    virtual ~WindowList() = default;
    WindowList(const WindowList &) = delete;
    WindowList &operator=(const WindowList &) = delete;

    // After one round trip: whether the compositor has the protocol, and lets us use it.
    virtual bool available() const = 0;
    // For the user's eyes.
    virtual const char *protocol() const = 0;
    // From now on; not for the window that is in front already.
    void report(Activated activated) { activated_ = std::move(activated); }

  protected:
    struct Window {
        std::string appId;
        bool inFront = false;
    };

    // By the address of its proxy, which outlives its entry here.
    std::map<void *, Window> &windows() { return windows_; }
    // All that the compositor tells of a window at one time has arrived.
    void completed(void *window);
    void closed(void *window);

  private:
    std::map<void *, Window> windows_;
    void *front_ = nullptr;
    std::string frontAppId_;
    Activated activated_;
};

} // namespace nerlo::platform::wayland
