#include "platform/wayland/Registry.h"

#include <utility>

#include <wayland-client.h>

namespace nerlo::platform::wayland {

Registry::Registry(wl_display *display, Added added, Removed removed)
    : registry_(wl_display_get_registry(display))
    , added_(std::move(added))
    , removed_(std::move(removed)) {
    static const wl_registry_listener listener{[](void *self, wl_registry *, std::uint32_t name,
                                                  const char *interface, std::uint32_t version) {
                                                   static_cast<Registry *>(self)->added_(
                                                       name, interface, version);
                                               },
                                               [](void *self, wl_registry *, std::uint32_t name) {
                                                   static_cast<Registry *>(self)->removed_(name);
                                               }};
    wl_registry_add_listener(registry_, &listener, this);
}

Registry::~Registry() {
    wl_registry_destroy(registry_);
}

wl_proxy *Registry::bind(std::uint32_t name, const wl_interface &interface, std::uint32_t version) {
    return static_cast<wl_proxy *>(wl_registry_bind(registry_, name, &interface, version));
}

} // namespace nerlo::platform::wayland
