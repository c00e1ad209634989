// Hot keys on a real X server, with xdotool as the user, and the keyboard of a compositor.
#include "platform/x11/X11HotKeys.h"
#include "platform/wayland/WaylandKeyboardLayout.h"
#include "platform/x11/SharedConnection.h"
#include "tests/Process.h"
#include "tests/fakes/MemoryMainQueue.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>

namespace nerlo::platform {
namespace {

using test::outputOf;
using test::Process;
using test::xdotool;

constexpr std::uint32_t v = 9;
constexpr std::uint32_t f5 = 96;

class X11HotKeys : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(service) << "no X server";
        service->installHandler([this](HotKeyId id) { ++runs[id.id]; });
    }

    // As another program would.
    std::unique_ptr<HotKeyService> create() {
        return createX11HotKeys(queue, x11::SharedConnection::open(io)).backend;
    }

    HotKeyService::Registration take(HotKeyService &from, std::uint32_t key,
                                     std::uint32_t modifiers) {
        return from.registerHotKey({key, modifiers, {1, ++lastId}, {}, {}});
    }

    // Waits until a press of another hot key has come through: what was pressed before has then
    // been dealt with.
    void settle() {
        const auto marker = take(*service, f5, hotKeyShift | hotKeyOption);
        ASSERT_NE(marker.handle, 0u) << marker.refusal;
        const auto id = lastId;
        xdotool({"key", "shift+alt+F5"});
        EXPECT_TRUE(test::until(queue, [&] { return runs[id] == 1; }));
        service->unregisterHotKey(marker.handle);
    }
    void press(const std::string &keys) {
        xdotool({"key", keys});
        settle();
    }

    test::MemoryMainQueue queue;
    IoThread io;
    std::unique_ptr<HotKeyService> service = create();
    std::map<std::uint32_t, int> runs;
    std::uint32_t lastId = 0;
};

TEST_F(X11HotKeys, WhatAnotherProgramHoldsIsRefused) {
    auto other = create();
    ASSERT_TRUE(other);
    const auto theirs = take(*other, v, hotKeyControl);
    ASSERT_NE(theirs.handle, 0u);
    const auto refused = take(*service, v, hotKeyControl);
    EXPECT_EQ(refused.handle, 0u);
    EXPECT_EQ(refused.refusal, "another program has taken this key combination");
    // Nor is a part of it kept.
    other->unregisterHotKey(theirs.handle);
    HotKeyService::Registration mine;
    EXPECT_TRUE(test::until([&] {
        mine = take(*service, v, hotKeyControl);
        return mine.handle != 0;
    }));
    // Two hot keys of one program share it until both are gone.
    EXPECT_NE(take(*service, v, hotKeyControl).handle, 0u);
    service->unregisterHotKey(mine.handle);
    settle();
    EXPECT_EQ(take(*other, v, hotKeyControl).handle, 0u);
    // With the program its grabs end.
    service.reset();
    EXPECT_TRUE(test::until([&] { return take(*other, v, hotKeyControl).handle != 0; }));
    EXPECT_EQ(take(*other, 52, hotKeyControl).refusal, "the keyboard has no such key");
}

TEST_F(X11HotKeys, AConflictOnTheWayBackIsToldAndEnds) {
    const auto mine = take(*service, v, hotKeyControl);
    std::vector<HotKeyStatus> told;
    service->setStatusHandler(
        [&](HotKeyId, const HotKeyStatus &status) { told.push_back(status); });
    service->setSuspended(true);
    const auto other = create();
    HotKeyService::Registration theirs;
    ASSERT_TRUE(test::until([&] {
        theirs = take(*other, v, hotKeyControl);
        return theirs.handle != 0;
    }));
    service->setSuspended(false);
    ASSERT_TRUE(test::until(queue, [&] { return told.size() == 1; }));
    EXPECT_EQ(told[0].state, HotKeyState::refused);
    EXPECT_EQ(service->status(mine.handle), told[0]);
    // Until it is free again.
    other->unregisterHotKey(theirs.handle);
    ASSERT_TRUE(test::until(queue, [&] {
        service->retryRefused();
        return told.size() == 2;
    }));
    EXPECT_EQ(told[1], (HotKeyStatus{HotKeyState::active, {}}));
}

TEST_F(X11HotKeys, FollowModifiersThatMove) {
    ASSERT_NE(take(*service, v, hotKeyControl).handle, 0u);
    press("super+v");
    EXPECT_EQ(runs[1], 1);
    // Super moves to the third modifier and Num Lock to the fifth.
    ASSERT_TRUE(
        outputOf({"xmodmap", "-e", "clear mod4", "-e", "clear mod3", "-e", "clear mod2", "-e",
                  "clear mod5", "-e", "add mod3 = Super_L", "-e", "add mod5 = Num_Lock"}));
    ASSERT_TRUE(test::until([&] {
        const int before = runs[1];
        press("super+v");
        return runs[1] == before + 1;
    }));
    const int before = runs[1];
    xdotool({"key", "Num_Lock"});
    press("super+v");
    EXPECT_EQ(runs[1], before + 1);
}

// A sway that is itself a window of the X server has a keyboard.
TEST(WaylandKeyboard, TheKeymapOfTheCompositorIsFollowed) {
    const std::string folder = std::getenv("NERLO_SESSION_DIR");
    const std::string socket = folder + "/sway";
    std::ofstream(folder + "/sway.config") << "xwayland disable\ninput * xkb_layout de\n"
                                              "exec echo $WAYLAND_DISPLAY >" +
                                                  folder + "/new && mv " + folder + "/new " +
                                                  folder + "/wayland\n";
    test::Arguments command{
        "env",  "WLR_BACKENDS=x11", "WLR_RENDERER=pixman",  "SWAYSOCK=" + socket,
        "sway", "--config",         folder + "/sway.config"};
    if (geteuid() == 0) {
        command.insert(command.begin(),
                       {"unshare", "--user", "--map-user=1000", "--map-group=1000"});
    }
    const Process compositor(command);
    std::string display;
    ASSERT_TRUE(test::until([&] { return !!(std::ifstream(folder + "/wayland") >> display); }));

    test::MemoryMainQueue queue;
    IoThread io;
    const auto created = createWaylandKeyboardLayout(queue, io, display);
    ASSERT_TRUE(created.backend) << created.declined;
    const auto &layout = *created.backend;
    EXPECT_EQ(layout.textOfKey(16), u"z");
    EXPECT_EQ(layout.textOfKey(33), u"ü");
    EXPECT_EQ(layout.textOfKey(24), u"´");
    EXPECT_EQ(layout.keyOfSymbol("y"), 6);
    using Row = std::pair<const char *, const char16_t *>;
    for (const auto &[name, text] : {Row{"ru", u"н"}, Row{"fr", u"y"}, Row{"de", u"z"}}) {
        ASSERT_TRUE(outputOf({"swaymsg", "-s", socket, "input * xkb_layout", name}));
        EXPECT_TRUE(test::until(queue, [&] { return layout.textOfKey(16) == text; })) << name;
    }
}

} // namespace
} // namespace nerlo::platform
