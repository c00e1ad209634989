// nerlo-pro's hot keys in an X11 session: other programs copy, press, paste and store shortcuts.
#include "HotKeyProgram.h"

#include "platform/memory/MemoryMainQueue.h"
#include "platform/x11/Connection.h"
#include "platform/x11/X11HotKeys.h"
#include "platform/x11/XkbEvents.h"
#include "platform/x11/XkbProtocol.h"

#include <algorithm>
#include <thread>

namespace nerlo::test {
namespace {

constexpr std::uint32_t keyV = 9;
constexpr std::uint32_t keyR = 15;
constexpr std::uint32_t keyT = 17;

class HotKeyProgramX11 : public HotKeyProgram {
  protected:
    static void xdotool(Arguments arguments) {
        arguments.insert(arguments.begin(), "xdotool");
        ASSERT_TRUE(outputOf(arguments));
    }
    static void copy(const std::string &text) {
        ASSERT_TRUE(outputOf({"xclip", "-selection", "clipboard"}, text));
    }
    static bool pastes(const std::string &text) {
        return until([&] {
            return outputOf({"xclip", "-o", "-selection", "clipboard", "-t", "UTF8_STRING"}) ==
                   text;
        });
    }
    static bool cleansWith(const std::string &keys) {
        copy("a b");
        xdotool({"key", keys});
        return pastes("ab");
    }

    // Another program that wants keys.
    platform::MemoryMainQueue queue_;
    std::unique_ptr<platform::HotKeyService> other_ = platform::createX11HotKeys(queue_).backend;
    bool othersMayTake(std::uint32_t key, std::uint32_t modifiers) {
        return other_->registerHotKey({key, modifiers, {1, 1}, {}, {}}).handle != 0;
    }
};

std::ptrdiff_t count(const std::string &text, const std::string &what) {
    std::ptrdiff_t found = 0;
    for (auto at = text.find(what); at != text.npos; at = text.find(what, at + 1)) {
        ++found;
    }
    return found;
}

TEST_F(HotKeyProgramX11, RunsOncePerPressWhateverTheLayoutAndTheLocks) {
    // Each clean is told on the bus.
    const Process bus({"dbus-monitor", "interface='org.nerlo.NerloPro',member='Cleaned'"});
    const auto cleans = [&] { return count(bus.output(), "member=Cleaned"); };
    start();
    store("remove-all-spaces=Ctrl+Shift+R");
    ASSERT_TRUE(finds("remove-all-spaces=Ctrl+Shift+R: works"));
    // A slow machine holds each key for long.
    ASSERT_TRUE(outputOf({"xset", "r", "off"}));
    const Process front({"xev", "-event", "keyboard"});
    xdotool({"search", "--sync", "--onlyvisible", "--name", "Event Tester", "windowactivate",
             "--sync"});
    ASSERT_TRUE(until([&] {
        xdotool({"key", "a"});
        return count(front.output(), "keycode 38 ") > 0;
    }));

    const auto connection = platform::x11::Connection::open();
    ASSERT_TRUE(platform::x11::XkbEvents::select(*connection));
    const auto lock = [&](std::uint8_t modifiers, bool on, std::uint8_t group) {
        xcb_xkb_latch_lock_state(connection->get(), XCB_XKB_ID_USE_CORE_KBD, modifiers,
                                 on ? modifiers : std::uint8_t{0}, 1, group, 0, 0, 0);
        const platform::x11::Reply<xcb_get_input_focus_reply_t> done(xcb_get_input_focus_reply(
            connection->get(), xcb_get_input_focus(connection->get()), nullptr));
        ASSERT_TRUE(done);
    };
    std::ptrdiff_t presses = 0;
    const auto pressesOnce = [&] {
        // By place, for a layout may have no R.
        ASSERT_TRUE(cleansWith("ctrl+shift+27")) << cleans();
        ++presses;
        ASSERT_TRUE(until([&] { return cleans() >= presses; }));
        ASSERT_EQ(cleans(), presses);
    };
    for (const char *layout : {"us", "de", "ru", "us,ru"}) {
        ASSERT_TRUE(outputOf({"setxkbmap", layout}));
        ASSERT_TRUE(outputOf({"xmodmap", "-e", "clear mod3", "-e", "add mod3 = Scroll_Lock"}));
        const auto group = static_cast<std::uint8_t>(std::string_view(layout) == "us,ru");
        for (const char *key : {"", "Num_Lock", "Caps_Lock", "Num_Lock", "Caps_Lock"}) {
            SCOPED_TRACE(std::string(layout) + ' ' + key);
            if (*key != 0) {
                xdotool({"key", key});
            }
            lock(0, false, group);
            ASSERT_NO_FATAL_FAILURE(pressesOnce());
        }
        SCOPED_TRACE(std::string(layout) + " Scroll_Lock");
        lock(XCB_MOD_MASK_3, true, group);
        ASSERT_NO_FATAL_FAILURE(pressesOnce());
        lock(XCB_MOD_MASK_3, false, 0);
    }

    // A held key repeats, some twenty times here.
    ASSERT_TRUE(outputOf({"xset", "r", "on", "r", "rate", "100", "50"}));
    copy("a b");
    xdotool({"keydown", "ctrl", "keydown", "shift", "keydown", "27"});
    ++presses;
    EXPECT_TRUE(pastes("ab"));
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    xdotool({"keyup", "27", "keyup", "shift", "keyup", "ctrl"});
    ASSERT_TRUE(outputOf({"xset", "r", "off"}));

    for (const char *other : {"ctrl+27", "shift+27", "super+shift+27", "ctrl+shift+28"}) {
        xdotool({"key", other});
    }
    // What any of these had run would have come before this.
    ASSERT_NO_FATAL_FAILURE(pressesOnce());
    // Of the combination the program in front has seen nothing, of the others each.
    EXPECT_TRUE(until([&] { return count(front.output(), "keycode 28 ") == 2; }));
    EXPECT_EQ(count(front.output(), "keycode 27 "), 2 * 3);
    EXPECT_EQ(output(), "");
}

TEST_F(HotKeyProgramX11, FollowsShortcutsStoredByTheCommandLine) {
    constexpr auto shifted = platform::hotKeyControl | platform::hotKeyShift;
    // Before a first start too, which leaves it alone.
    store("clean=Ctrl+F9");
    start();
    ASSERT_TRUE(finds("clean=Ctrl+F9: works"));
    store("remove-all-spaces=Super+R");
    ASSERT_TRUE(finds("remove-all-spaces=Super+R: works"));
    EXPECT_TRUE(cleansWith("super+r"));
    store("1=super+shift+t");
    ASSERT_TRUE(finds("remove-all-spaces=Super+Shift+T: works"));
    EXPECT_TRUE(cleansWith("super+shift+t"));
    EXPECT_TRUE(othersMayTake(keyR, platform::hotKeyControl));
    EXPECT_FALSE(othersMayTake(keyT, shifted));
    store("remove-all-spaces=");
    EXPECT_TRUE(until([&] { return othersMayTake(keyT, shifted); }));

    for (const char *bad : {"clean", "cleen=Super+V", "clean=Super+", "clean=Hyper+V", "clean=V",
                            "clean=Shift+A", "clean=Ctrl+Q", "clean=Super+Shift_L"}) {
        EXPECT_EQ(Process({program(), "--shortcut", "clean=Super+V", "--shortcut", bad}).wait(), 2)
            << bad;
    }
    EXPECT_TRUE(finds("clean=Ctrl+F9: works"));
    EXPECT_EQ(output(), "");
}

TEST_F(HotKeyProgramX11, SaysWhatIsRefused) {
    store("clean=Super+V");
    ASSERT_TRUE(othersMayTake(keyV, platform::hotKeyControl));
    start();
    EXPECT_TRUE(says("hot key \"sClearFormatingFromClipboard\": another program has taken this key "
                     "combination"));
    EXPECT_TRUE(finds("clean=Super+V: refused, another program has taken this key combination"));
    // It goes on, and takes the next one that it is given.
    store("remove-all-spaces=Super+R");
    ASSERT_TRUE(finds("remove-all-spaces=Super+R: works"));
    EXPECT_TRUE(cleansWith("super+r"));
}

} // namespace
} // namespace nerlo::test
