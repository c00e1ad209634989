// The windows of all programs, by KWin's own window management.
//
// KWin shows it only to a program whose desktop file names it (X-KDE-Wayland-Interfaces) and whose
// executable is the one that the file starts.
//
// Everything runs on the thread that serves the connection.
#pragma once

#include "platform/wayland/Registry.h"
#include "platform/wayland/WindowList.h"

#include <memory>
#include <set>

struct org_kde_plasma_window;
struct org_kde_plasma_window_management;
struct wl_display;

namespace nerlo::platform::wayland {

class PlasmaWindows final : public WindowList {
  public:
    explicit PlasmaWindows(wl_display *display);
    ~PlasmaWindows() override;

    bool available() const override { return management_ != nullptr; }
    const char *protocol() const override { return "KWin's window management"; }

  private:
    using Handle = org_kde_plasma_window;

    void add(const char *uuid);
    void changed(Handle *handle);

    std::unique_ptr<Registry> registry_;
    org_kde_plasma_window_management *management_ = nullptr;
    std::set<Handle *> incomplete_; // their initial state is being told
};

} // namespace nerlo::platform::wayland
