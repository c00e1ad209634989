// The windows of all programs, by foreign-toplevel management, and which of them is in front.
//
// Everything runs on the thread that serves the connection.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include "platform/wayland/Registry.h"

struct wl_array;
struct wl_display;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace nerlo::platform::wayland {

class Toplevels {
  public:
    // Gets the app id, the empty string for a window without one, each time another window comes to
    // the front or the one in front changes its app id.
    using Activated = std::function<void(const std::string &appId)>;

    explicit Toplevels(wl_display *display);
    ~Toplevels();
    Toplevels(const Toplevels &) = delete;
    Toplevels &operator=(const Toplevels &) = delete;

    // After one round trip: whether the compositor has the protocol.
    bool available() const { return manager_ != nullptr; }
    // From now on; not for the window that is in front already.
    void report(Activated activated) { activated_ = std::move(activated); }

  private:
    struct Window {
        std::string appId;
        bool inFront = false;
    };
    using Handle = zwlr_foreign_toplevel_handle_v1;

    void add(Handle *handle);
    void setState(Handle *handle, const wl_array &states);
    void completed(Handle *handle);
    void closed(Handle *handle);

    std::unique_ptr<Registry> registry_;
    zwlr_foreign_toplevel_manager_v1 *manager_ = nullptr;
    std::map<Handle *, Window> windows_;
    Handle *front_ = nullptr;
    std::string frontAppId_;
    Activated activated_;
};

} // namespace nerlo::platform::wayland
