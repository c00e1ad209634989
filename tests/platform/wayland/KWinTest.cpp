// KWin's own protocols for windows and keys: the others are tried on a real compositor, by the
// desktop tests.
#include "platform/wayland/WaylandActiveApplication.h"
#include "platform/wayland/WaylandPaster.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "tests/Until.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/platform/wayland/FakeCompositor.h"

#include <gtest/gtest.h>

#include <fake-input-server.h>
#include <plasma-window-management-server.h>
#include <wayland-server.h>

namespace nerlo::platform {
namespace {

TEST(WaylandActiveApplication, KWinTellsOfEachWindowThatComesToTheFront) {
    constexpr std::uint32_t active = ORG_KDE_PLASMA_WINDOW_MANAGEMENT_STATE_ACTIVE | 1 << 8;
    std::vector<wl_resource *> windows; // of the last connection, on the compositor's thread
    wl_resource *management = nullptr;
    const auto tellWindow = [](wl_resource *window, const char *id, std::uint32_t state) {
        org_kde_plasma_window_send_virtual_desktop_entered(window, "desktop");
        org_kde_plasma_window_send_state_changed(window, state);
        org_kde_plasma_window_send_app_id_changed(window, id);
        org_kde_plasma_window_send_initial_state(window);
    };
    test::FakeCompositor compositor(
        &org_kde_plasma_window_management_interface, 1,
        {{}, [&](const std::string &request, wl_resource *object, wl_resource *made) {
             if (request == "org_kde_plasma_window_management.bind") {
                 windows.clear();
                 management = object;
                 org_kde_plasma_window_management_send_window_with_uuid(object, 1, "first");
             } else if (request == "org_kde_plasma_window_management.get_window_by_uuid") {
                 windows.push_back(made);
                 tellWindow(made, windows.size() == 1 ? "first" : "second", active);
             }
         }});
    test::MemoryMainQueue queue;
    IoThread io;
    const auto created = createWaylandActiveApplication(queue, io, compositor.display());
    ASSERT_TRUE(created.backend) << created.declined;
    std::vector<std::string> told;
    created.backend->setActivatedHandler([&](const std::string &id) { told.push_back(id); });
    const struct {
        const char *happens;
        std::function<void()> act;
        std::string told; // empty for nothing
    } rows[] = {
        {"a new window",
         [&] { org_kde_plasma_window_management_send_window_with_uuid(management, 2, "2"); },
         "second"},
        {"a title", [&] { org_kde_plasma_window_send_title_changed(windows[1], "new"); }, {}},
        {"another id", [&] { org_kde_plasma_window_send_app_id_changed(windows[1], "third"); },
         "third"},
        {"the first, before the other is told to be behind it",
         [&] {
             org_kde_plasma_window_send_state_changed(windows[0], active);
             org_kde_plasma_window_send_state_changed(windows[1], 0);
         },
         "first"},
        {"the first one ends", [&] { org_kde_plasma_window_send_unmapped(windows[0]); }, {}},
        {"the other again", [&] { org_kde_plasma_window_send_state_changed(windows[1], active); },
         "third"},
    };
    std::size_t expected = 0;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.happens);
        compositor.run(row.act);
        if (!row.told.empty()) {
            ++expected;
            ASSERT_TRUE(test::until(queue, [&] { return told.size() >= expected; }));
            EXPECT_EQ(told.back(), row.told);
        }
        EXPECT_EQ(told.size(), expected);
    }
}

TEST(WaylandPaster, AsksKWinBeforeItPressesKeysAndNotBeforeSomebodyPastes) {
    std::mutex mutex;
    std::vector<std::string> requests;
    test::FakeCompositor compositor(
        &org_kde_kwin_fake_input_interface, 0,
        {{}, [&](const std::string &request, wl_resource *, wl_resource *) {
             const std::lock_guard lock(mutex);
             if (!request.ends_with(".bind")) {
                 requests.push_back(request.substr(request.find('.')));
             }
         }});
    test::MemoryMainQueue queue;
    IoThread io;
    const XkbKeyboardLayout layout(xkb::Keymap::fromNames("us"));
    const auto created = createWaylandPaster(queue, layout, io, compositor.display());
    ASSERT_TRUE(created.backend) << created.declined;
    EXPECT_EQ(created.backend->description(), "KWin, fake input");
    bool pasted = false;
    created.backend->paste([&](bool done) { pasted = done; });
    queue.advance(std::chrono::seconds(1));
    EXPECT_TRUE(pasted);
    const std::lock_guard lock(mutex);
    EXPECT_EQ(requests, (std::vector<std::string>{".authenticate", ".keyboard_key", ".keyboard_key",
                                                  ".keyboard_key", ".keyboard_key"}));
}

} // namespace
} // namespace nerlo::platform
