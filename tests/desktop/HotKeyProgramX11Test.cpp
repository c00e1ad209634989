// nerlo-pro's hot keys in an X11 session: other programs copy, press, paste and write settings.
#include "HotKeyProgram.h"

#include "platform/memory/MemoryMainQueue.h"
#include "platform/x11/X11HotKeys.h"

namespace nerlo::test {
namespace {

using shortcuts::controlModifier;
using shortcuts::nrShortcut;
using shortcuts::shiftModifier;

constexpr std::uint64_t keyV = 9;
constexpr std::uint64_t keyR = 15;
constexpr std::uint64_t keyT = 17;
constexpr auto removeSpaces = "sRemoveAllSpaces";

class HotKeyProgramX11 : public HotKeyProgram {
  protected:
    static void copy(const std::string &text) {
        ASSERT_TRUE(outputOf({"xclip", "-selection", "clipboard"}, text));
    }
    static std::string paste() {
        return outputOf({"xclip", "-o", "-selection", "clipboard", "-t", "UTF8_STRING"})
            .value_or("");
    }
    // Presses until that has an effect: the program may not have started, or not taken over the
    // settings yet.
    static bool cleansWith(const std::string &keys, const std::string &text,
                           const std::string &clean) {
        return until([&] {
            copy(text);
            outputOf({"xdotool", "key", keys});
            return until([&] { return paste() == clean; }, std::chrono::milliseconds(300));
        });
    }
};

TEST_F(HotKeyProgramX11, FollowsTheSettingsWithoutARestart) {
    start();
    ASSERT_TRUE(until([] { return stored("sClearFormatingFromClipboard").has_value(); }));
    EXPECT_EQ(stored("sClearFormatingFromClipboard"), nrShortcut(keyV, controlModifier));

    store(removeSpaces, nrShortcut(keyR, controlModifier));
    EXPECT_TRUE(cleansWith("super+r", "a b c", "abc"));
    store(removeSpaces, nrShortcut(keyT, controlModifier | shiftModifier));
    EXPECT_TRUE(cleansWith("super+shift+t", "d e f", "def"));
    // The old combination is free for another program.
    platform::MemoryMainQueue queue;
    const auto other = platform::createX11HotKeys(queue).backend;
    const auto free = [&](std::uint32_t key, std::uint32_t modifiers) {
        return other->registerHotKey({key, modifiers, {1, 1}, {}, {}}).handle != 0;
    };
    EXPECT_TRUE(free(keyR, platform::hotKeyControl));
    EXPECT_FALSE(free(keyT, platform::hotKeyControl | platform::hotKeyShift));
    store(removeSpaces, std::nullopt);
    EXPECT_TRUE(until([&] { return free(keyT, platform::hotKeyControl | platform::hotKeyShift); }));
    EXPECT_EQ(output(), "");
}

TEST_F(HotKeyProgramX11, SaysWhatIsRefused) {
    platform::MemoryMainQueue queue;
    auto other = platform::createX11HotKeys(queue).backend;
    ASSERT_NE(other->registerHotKey({keyV, platform::hotKeyControl, {1, 1}, {}, {}}).handle, 0u);
    start();
    EXPECT_TRUE(says("hot key \"sClearFormatingFromClipboard\": another program has taken this key "
                     "combination"));
    // It goes on, and takes the next one that it is given.
    store(removeSpaces, nrShortcut(keyR, controlModifier));
    EXPECT_TRUE(cleansWith("super+r", "a b", "ab"));
}

} // namespace
} // namespace nerlo::test
