// The windows of all programs, by foreign-toplevel management, which sway and others have.
//
// Everything runs on the thread that serves the connection.
#pragma once

#include "platform/wayland/Registry.h"
#include "platform/wayland/WindowList.h"

#include <memory>

struct wl_array;
struct wl_display;
struct zwlr_foreign_toplevel_handle_v1;
struct zwlr_foreign_toplevel_manager_v1;

namespace nerlo::platform::wayland {

class Toplevels final : public WindowList {
  public:
    explicit Toplevels(wl_display *display);
    ~Toplevels() override;

    bool available() const override { return manager_ != nullptr; }
    const char *protocol() const override { return "foreign-toplevel management"; }

  private:
    using Handle = zwlr_foreign_toplevel_handle_v1;

    void add(Handle *handle);
    void setState(Handle *handle, const wl_array &states);

    std::unique_ptr<Registry> registry_;
    zwlr_foreign_toplevel_manager_v1 *manager_ = nullptr;
};

} // namespace nerlo::platform::wayland
