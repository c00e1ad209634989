#include "platform/wayland/Toplevels.h"

#include <algorithm>
#include <span>
#include <string_view>

#include <wayland-client.h>
#include <wlr-foreign-toplevel-management-unstable-v1-client.h>

namespace nerlo::platform::wayland {

Toplevels::Toplevels(wl_display *display) {
    registry_ = std::make_unique<Registry>(
        display,
        [this](std::uint32_t name, std::string_view interface, std::uint32_t) {
            if (manager_ || interface != zwlr_foreign_toplevel_manager_v1_interface.name) {
                return;
            }
            static const zwlr_foreign_toplevel_manager_v1_listener listener{
                [](void *self, zwlr_foreign_toplevel_manager_v1 *, Handle *handle) {
                    static_cast<Toplevels *>(self)->add(handle);
                },
                [](void *, zwlr_foreign_toplevel_manager_v1 *) {}};
            manager_ = reinterpret_cast<zwlr_foreign_toplevel_manager_v1 *>(
                registry_->bind(name, zwlr_foreign_toplevel_manager_v1_interface, 1));
            zwlr_foreign_toplevel_manager_v1_add_listener(manager_, &listener, this);
        },
        [](std::uint32_t) {});
}

Toplevels::~Toplevels() {
    for (const auto &[handle, window] : windows()) {
        zwlr_foreign_toplevel_handle_v1_destroy(static_cast<Handle *>(handle));
    }
    if (manager_) {
        zwlr_foreign_toplevel_manager_v1_destroy(manager_);
    }
}

void Toplevels::add(Handle *handle) {
    static const zwlr_foreign_toplevel_handle_v1_listener listener{
        .title = [](void *, Handle *, const char *) {},
        .app_id =
            [](void *self, Handle *of, const char *appId) {
                static_cast<Toplevels *>(self)->windows()[of].appId = appId;
            },
        .output_enter = [](void *, Handle *, wl_output *) {},
        .output_leave = [](void *, Handle *, wl_output *) {},
        .state = [](void *self, Handle *of,
                    wl_array *states) { static_cast<Toplevels *>(self)->setState(of, *states); },
        .done = [](void *self, Handle *of) { static_cast<Toplevels *>(self)->completed(of); },
        .closed =
            [](void *self, Handle *of) {
                static_cast<Toplevels *>(self)->closed(of);
                zwlr_foreign_toplevel_handle_v1_destroy(of);
            },
        .parent = [](void *, Handle *, Handle *) {},
    };
    windows()[handle];
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &listener, this);
}

void Toplevels::setState(Handle *handle, const wl_array &states) {
    const std::span values(static_cast<const std::uint32_t *>(states.data),
                           states.size / sizeof(std::uint32_t));
    windows()[handle].inFront =
        std::ranges::find(values, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) != values.end();
}

} // namespace nerlo::platform::wayland
