// The list of what a compositor offers.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

struct wl_display;
struct wl_interface;
struct wl_proxy;
struct wl_registry;

namespace nerlo::platform::wayland {

class Registry {
  public:
    using Added =
        std::function<void(std::uint32_t name, std::string_view interface, std::uint32_t version)>;
    using Removed = std::function<void(std::uint32_t name)>;

    // The handlers run on the thread that serves the connection; the first list is complete after
    // one round trip.
    Registry(wl_display *display, Added added, Removed removed);
    ~Registry();
    Registry(const Registry &) = delete;
    Registry &operator=(const Registry &) = delete;

    wl_proxy *bind(std::uint32_t name, const wl_interface &interface, std::uint32_t version);

  private:
    wl_registry *registry_;
    Added added_;
    Removed removed_;
};

} // namespace nerlo::platform::wayland
