#include "platform/wayland/PlasmaWindows.h"

#include <string_view>

#include <plasma-window-management-client.h>
#include <wayland-client.h>

namespace nerlo::platform::wayland {

namespace {

// The first one that names windows by UUID; the numbers of older ones are on their way out.
constexpr std::uint32_t version = 13;

} // namespace

PlasmaWindows::PlasmaWindows(wl_display *display) {
    registry_ = std::make_unique<Registry>(
        display,
        [this](std::uint32_t name, std::string_view interface, std::uint32_t offered) {
            if (management_ || offered < version ||
                interface != org_kde_plasma_window_management_interface.name) {
                return;
            }
            static const org_kde_plasma_window_management_listener listener{
                .show_desktop_changed = [](void *, org_kde_plasma_window_management *,
                                           std::uint32_t) {},
                .window = [](void *, org_kde_plasma_window_management *, std::uint32_t) {},
                .stacking_order_changed = [](void *, org_kde_plasma_window_management *,
                                             wl_array *) {},
                .stacking_order_uuid_changed = [](void *, org_kde_plasma_window_management *,
                                                  const char *) {},
                .window_with_uuid =
                    [](void *self, org_kde_plasma_window_management *, std::uint32_t,
                       const char *uuid) { static_cast<PlasmaWindows *>(self)->add(uuid); },
            };
            management_ = reinterpret_cast<org_kde_plasma_window_management *>(
                registry_->bind(name, org_kde_plasma_window_management_interface, version));
            org_kde_plasma_window_management_add_listener(management_, &listener, this);
        },
        [](std::uint32_t) {});
}

PlasmaWindows::~PlasmaWindows() {
    for (const auto &[handle, window] : windows()) {
        org_kde_plasma_window_destroy(static_cast<Handle *>(handle));
    }
    if (management_) {
        org_kde_plasma_window_management_destroy(management_);
    }
}

// After the initial state, each change stands for itself.
void PlasmaWindows::changed(Handle *handle) {
    if (!incomplete_.contains(handle)) {
        completed(handle);
    }
}

void PlasmaWindows::add(const char *uuid) {
    static const org_kde_plasma_window_listener listener{
        .title_changed = [](void *, Handle *, const char *) {},
        .app_id_changed =
            [](void *self, Handle *of, const char *appId) {
                auto &list = *static_cast<PlasmaWindows *>(self);
                list.windows()[of].appId = appId;
                list.changed(of);
            },
        .state_changed =
            [](void *self, Handle *of, std::uint32_t flags) {
                auto &list = *static_cast<PlasmaWindows *>(self);
                list.windows()[of].inFront =
                    (flags & ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE) != 0;
                list.changed(of);
            },
        .virtual_desktop_changed = [](void *, Handle *, std::int32_t) {},
        .themed_icon_name_changed = [](void *, Handle *, const char *) {},
        .unmapped =
            [](void *self, Handle *of) {
                auto &list = *static_cast<PlasmaWindows *>(self);
                list.incomplete_.erase(of);
                list.closed(of);
                org_kde_plasma_window_destroy(of);
            },
        .initial_state =
            [](void *self, Handle *of) {
                auto &list = *static_cast<PlasmaWindows *>(self);
                list.incomplete_.erase(of);
                list.completed(of);
            },
        .parent_window = [](void *, Handle *, Handle *) {},
        .geometry = [](void *, Handle *, std::int32_t, std::int32_t, std::uint32_t,
                       std::uint32_t) {},
        .icon_changed = [](void *, Handle *) {},
        .pid_changed = [](void *, Handle *, std::uint32_t) {},
        .virtual_desktop_entered = [](void *, Handle *, const char *) {},
        .virtual_desktop_left = [](void *, Handle *, const char *) {},
        .application_menu = [](void *, Handle *, const char *, const char *) {},
    };
    Handle *handle = org_kde_plasma_window_management_get_window_by_uuid(management_, uuid);
    windows()[handle];
    incomplete_.insert(handle);
    org_kde_plasma_window_add_listener(handle, &listener, this);
}

} // namespace nerlo::platform::wayland
