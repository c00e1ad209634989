// The popup against a compositor that answers what a real one should not.
#include "platform/wayland/WaylandPopupLayer.h"

#include "tests/Until.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/platform/wayland/FakeCompositor.h"

#include <atomic>
#include <chrono>

#include <gtest/gtest.h>

#include <viewporter-server.h>
#include <wayland-server.h>
#include <wlr-layer-shell-unstable-v1-server.h>

namespace nerlo::platform {
namespace {

using namespace std::chrono_literals;

// How the compositor behaves. Used on its thread.
struct LayerShell {
    std::function<void(wl_resource *role)> answer; // to the first commit of a surface
    bool pointer = false;                          // there is a pointer, but over no surface
    std::atomic<bool> shown = false;
    wl_resource *role = nullptr; // of the surface made last

    test::FakeCompositor::More offer() {
        return {{&wl_compositor_interface, &zwlr_layer_shell_v1_interface, &wl_output_interface,
                 &wp_viewporter_interface},
                [this](const std::string &request, wl_resource *object, wl_resource *made) {
                    if (request == "zwlr_layer_shell_v1.get_layer_surface") {
                        role = made;
                    } else if (request == "wl_surface.attach") {
                        shown = true;
                    } else if (request == "wl_surface.commit" && role) {
                        answer(std::exchange(role, nullptr));
                    } else if (request == "wl_seat.bind" && pointer) {
                        wl_seat_send_capabilities(object, WL_SEAT_CAPABILITY_POINTER);
                    }
                }};
    }
};

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
        const test::FakeCompositor compositor(nullptr, 1, shell.offer());
        test::MemoryMainQueue queue;
        IoThread io;
        const auto created = createWaylandPopupLayer(queue, io, compositor.display());
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
        ASSERT_TRUE(
            test::until(queue, [&] { return shell.shown == row.shown && gone == row.gone; }));
    }
}

TEST(WaylandPopupLayer, APointerThatIsNotFoundInTimeIsDoneWithout) {
    for (const bool searched : {true, false}) {
        LayerShell shell;
        shell.answer = [](wl_resource *role) {
            zwlr_layer_surface_v1_send_configure(role, 1, 1280, 800);
        };
        shell.pointer = true;
        const test::FakeCompositor compositor(nullptr, 1, shell.offer());
        test::MemoryMainQueue queue;
        IoThread io;
        const auto created = createWaylandPopupLayer(queue, io, compositor.display());
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
        if (searched) { // by a surface that covers the screen
            ASSERT_TRUE(test::until(queue, [&] { return shell.shown.load(); }));
        }
        queue.advance(1s);
        EXPECT_TRUE(test::until(queue, [&] { return placed.load(); })) << searched;
    }
}

TEST(WaylandPopupLayer, DeclinesWhereThereIsNoLayerShellOrNoAnswer) {
    test::MemoryMainQueue queue;
    IoThread io;
    EXPECT_EQ(createWaylandPopupLayer(queue, io, "/no/such").declined,
              "there is no Wayland compositor");
    test::FakeCompositor compositor(nullptr);
    EXPECT_EQ(createWaylandPopupLayer(queue, io, compositor.display()).declined,
              "the Wayland compositor has no layer shell");
    compositor.freeze();
    EXPECT_EQ(createWaylandPopupLayer(queue, io, compositor.display()).declined,
              "the Wayland compositor does not answer");
}

} // namespace
} // namespace nerlo::platform
