// The popup against a compositor that answers what a real one should not.
#include "platform/wayland/WaylandPopupLayer.h"

#include "platform/memory/MemoryMainQueue.h"
#include "tests/platform/wayland/FakeCompositor.h"

#include <atomic>
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

#include <viewporter-server.h>
#include <wayland-server.h>
#include <wlr-layer-shell-unstable-v1-server.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;

// What the compositor does; on its thread.
struct LayerShell {
    std::function<void(wl_resource *role)> answer; // to the first commit of a surface
    std::atomic<bool> shown = false;
    wl_resource *role = nullptr; // of the surface made last

    static LayerShell &of(wl_resource *resource) {
        return *static_cast<LayerShell *>(wl_resource_get_user_data(resource));
    }
    static void destroy(wl_client *, wl_resource *resource) { wl_resource_destroy(resource); }

    static void createSurface(wl_client *client, wl_resource *compositor, std::uint32_t id) {
        static const struct wl_surface_interface requests {
            .destroy = destroy,
            .attach = [](wl_client *, wl_resource *surface, wl_resource *, std::int32_t,
                         std::int32_t) { of(surface).shown = true; },
            .damage = [](wl_client *, wl_resource *, std::int32_t, std::int32_t, std::int32_t,
                         std::int32_t) {},
            .frame = nullptr, .set_opaque_region = nullptr, .set_input_region = nullptr,
            .commit =
                [](wl_client *, wl_resource *surface) {
                    auto &self = of(surface);
                    if (wl_resource *committed = std::exchange(self.role, nullptr)) {
                        self.answer(committed);
                    }
                },
            .set_buffer_transform = nullptr,
            .set_buffer_scale = [](wl_client *, wl_resource *, std::int32_t) {},
            .damage_buffer = nullptr, .offset = nullptr
        };
        wl_resource_set_implementation(wl_resource_create(client, &wl_surface_interface, 3, id),
                                       &requests, &of(compositor), nullptr);
    }

    static void getLayerSurface(wl_client *client, wl_resource *shell, std::uint32_t id,
                                wl_resource *, wl_resource *, std::uint32_t, const char *) {
        static const struct zwlr_layer_surface_v1_interface requests {
            .set_size = [](wl_client *, wl_resource *, std::uint32_t, std::uint32_t) {},
            .set_anchor = [](wl_client *, wl_resource *, std::uint32_t) {},
            .set_exclusive_zone = [](wl_client *, wl_resource *, std::int32_t) {},
            .set_margin = [](wl_client *, wl_resource *, std::int32_t, std::int32_t, std::int32_t,
                             std::int32_t) {},
            .set_keyboard_interactivity = [](wl_client *, wl_resource *, std::uint32_t) {},
            .get_popup = nullptr, .ack_configure = [](wl_client *, wl_resource *, std::uint32_t) {},
            .destroy = destroy, .set_layer = nullptr
        };
        auto &self = of(shell);
        self.role = wl_resource_create(client, &zwlr_layer_surface_v1_interface, 1, id);
        wl_resource_set_implementation(self.role, &requests, &self, nullptr);
    }

    void offer(wl_display *server) {
        wl_display_init_shm(server);
        wl_global_create(server, &wl_compositor_interface, 3, this,
                         [](wl_client *client, void *self, std::uint32_t, std::uint32_t id) {
                             static const struct wl_compositor_interface requests {
                                 .create_surface = createSurface, .create_region = nullptr
                             };
                             wl_resource_set_implementation(
                                 wl_resource_create(client, &wl_compositor_interface, 3, id),
                                 &requests, self, nullptr);
                         });
        wl_global_create(server, &zwlr_layer_shell_v1_interface, 1, this,
                         [](wl_client *client, void *self, std::uint32_t, std::uint32_t id) {
                             static const struct zwlr_layer_shell_v1_interface requests {
                                 .get_layer_surface = getLayerSurface, .destroy = nullptr
                             };
                             wl_resource_set_implementation(
                                 wl_resource_create(client, &zwlr_layer_shell_v1_interface, 1, id),
                                 &requests, self, nullptr);
                         });
    }

    // Also a screen, and a pointer that is nowhere.
    static void offerPointer(wl_display *server) {
        wl_global_create(server, &wl_output_interface, 1, nullptr,
                         [](wl_client *client, void *, std::uint32_t, std::uint32_t id) {
                             wl_resource_create(client, &wl_output_interface, 1, id);
                         });
        wl_global_create(server, &wl_seat_interface, 1, nullptr,
                         [](wl_client *client, void *, std::uint32_t, std::uint32_t id) {
                             static const struct wl_seat_interface requests {
                                 .get_pointer =
                                     [](wl_client *of, wl_resource *, std::uint32_t pointer) {
                                         wl_resource_create(of, &wl_pointer_interface, 1, pointer);
                                     },
                                 .get_keyboard = nullptr, .get_touch = nullptr, .release = nullptr
                             };
                             wl_resource *seat =
                                 wl_resource_create(client, &wl_seat_interface, 1, id);
                             wl_resource_set_implementation(seat, &requests, nullptr, nullptr);
                             wl_seat_send_capabilities(seat, WL_SEAT_CAPABILITY_POINTER);
                         });
        wl_global_create(
            server, &wp_viewporter_interface, 1, nullptr,
            [](wl_client *client, void *, std::uint32_t, std::uint32_t id) {
                static const struct wp_viewport_interface viewport {
                    .destroy = destroy, .set_source = nullptr,
                    .set_destination = [](wl_client *, wl_resource *, std::int32_t, std::int32_t) {}
                };
                static const struct wp_viewporter_interface requests {
                    .destroy = nullptr, .get_viewport = [](wl_client *of, wl_resource *,
                                                           std::uint32_t made, wl_resource *) {
                        wl_resource_set_implementation(
                            wl_resource_create(of, &wp_viewport_interface, 1, made), &viewport,
                            nullptr, nullptr);
                    }
                };
                wl_resource_set_implementation(
                    wl_resource_create(client, &wp_viewporter_interface, 1, id), &requests, nullptr,
                    nullptr);
            });
    }
};

bool until(MemoryMainQueue &queue, const std::function<bool()> &done) {
    const auto end = std::chrono::steady_clock::now() + 10s;
    while (!done()) {
        if (std::chrono::steady_clock::now() > end) {
            return false;
        }
        queue.runPosted();
        std::this_thread::sleep_for(200us);
    }
    return true;
}

TEST(WaylandPopupLayer, IsShownOrSaysThatItIsGoneWhateverTheCompositorAnswers) {
    using Role = wl_resource *;
    const auto size = zwlr_layer_surface_v1_send_configure;
    const auto closed = zwlr_layer_surface_v1_send_closed;
    const struct {
        const char *answers;
        std::function<void(Role)> answer;
        bool shown;
        bool gone;
    } rows[] = {
        {"a size", [=](Role role) { size(role, 1, 1280, 800); }, true, false},
        {"no size", [=](Role role) { size(role, 1, 0, 0); }, true, false},
        {"an absurd size", [=](Role role) { size(role, 1, ~0u, 1u << 31); }, true, false},
        {"a hundred sizes",
         [=](Role role) {
             for (std::uint32_t i = 0; i < 100; ++i) {
                 size(role, i, i, 100 - i);
             }
         },
         true, false},
        {"no", closed, false, true},
        {"a size, and then no",
         [=](Role role) {
             size(role, 1, 1280, 800);
             closed(role);
             closed(role);
         },
         false, true},
        {"an error", [](Role role) { wl_resource_post_error(role, 0, "no"); }, false, true},
        {"nothing", [](Role) {}, false, false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.answers);
        LayerShell shell;
        shell.answer = row.answer;
        const test::FakeCompositor compositor(nullptr, 1,
                                              [&](wl_display *server) { shell.offer(server); });
        MemoryMainQueue queue;
        const auto created = createWaylandPopupLayer(queue, compositor.display());
        ASSERT_TRUE(created.backend) << created.declined;
        int gone = 0;
        Popup popup;
        popup.width = 4;
        popup.height = 2;
        popup.place = [](const PopupScreen &screen, std::optional<PopupPoint>) {
            EXPECT_GE(screen.width, screen.freeWidth);
            EXPECT_GE(screen.freeWidth, 0);
            EXPECT_GE(screen.height, screen.freeHeight);
            return PopupPoint{screen.width - 4, screen.height - 2};
        };
        popup.draw = [](int scale) {
            return PopupPicture{4, 2, scale, std::vector<std::uint32_t>(8, 0xbf000000)};
        };
        popup.closed = [&] { ++gone; };
        const auto shown = created.backend->show(std::move(popup));
        ASSERT_TRUE(until(queue, [&] { return shell.shown == row.shown && gone == row.gone; }));
    }
}

TEST(WaylandPopupLayer, APointerThatIsNotFoundInTimeIsDoneWithout) {
    for (const bool searched : {true, false}) {
        LayerShell shell;
        shell.answer = [](wl_resource *role) {
            zwlr_layer_surface_v1_send_configure(role, 1, 1280, 800);
        };
        const test::FakeCompositor compositor(nullptr, 0, [&](wl_display *server) {
            shell.offer(server);
            LayerShell::offerPointer(server);
        });
        MemoryMainQueue queue;
        const auto created = createWaylandPopupLayer(queue, compositor.display());
        std::atomic<bool> placed = false;
        Popup popup;
        popup.atPointer = true;
        popup.place = [&](const PopupScreen &, std::optional<PopupPoint> pointer) {
            EXPECT_FALSE(pointer);
            placed = true;
            return PopupPoint();
        };
        popup.draw = [](int) { return PopupPicture(); };
        const auto shown = created.backend->show(std::move(popup));
        if (searched) { // by what covers the screen
            ASSERT_TRUE(until(queue, [&] { return shell.shown.load(); }));
        }
        queue.advance(1s);
        EXPECT_TRUE(until(queue, [&] { return placed.load(); })) << searched;
    }
}

TEST(WaylandPopupLayer, DeclinesWhereThereIsNoLayerShellOrNoAnswer) {
    MemoryMainQueue queue;
    EXPECT_EQ(createWaylandPopupLayer(queue, "/no/such").declined,
              "there is no Wayland compositor");
    test::FakeCompositor compositor(nullptr);
    EXPECT_EQ(createWaylandPopupLayer(queue, compositor.display()).declined,
              "the Wayland compositor has no layer shell");
    compositor.freeze();
    EXPECT_EQ(createWaylandPopupLayer(queue, compositor.display()).declined,
              "the Wayland compositor does not answer");
}

} // namespace
} // namespace nerlo::platform
