#include "platform/linux/DesktopHotKeys.h"
#include "platform/linux/CommandOutput.h"
#include "platform/xkb/XkbKeyboardLayout.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemoryWorkerQueue.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <random>

namespace nerlo::platform {

namespace {

using HotKeyList = std::vector<std::string>; // "118/2048 GNOME, close"

HotKeyList read(const std::string &desktop, std::map<std::string, std::string> texts) {
    static const XkbKeyboardLayout layout(xkb::Keymap::fromNames("de"));
    const auto join = [](const std::vector<std::string> &words) {
        std::string text;
        for (const auto &word : words) {
            text += (text.empty() ? "" : " ") + word;
        }
        return text;
    };
    test::MemoryWorkerQueue workers;
    test::MemoryMainQueue queue;
    const auto hotKeys =
        createDesktopHotKeys(layout, workers, queue,
                             {desktop, [&](const std::string &name) { return texts[name]; },
                              [&](const auto &command) { return texts[join(command)]; }, "ours"});
    hotKeys->refresh();
    hotKeys->refresh();
    EXPECT_EQ(workers.size(), 1u); // one reading at a time, and none on this thread
    EXPECT_TRUE(hotKeys->symbolicHotKeys().empty());
    int told = 0;
    hotKeys->setChangedHandler([&] { ++told; });
    workers.runAll();
    hotKeys->refresh();
    workers.runAll();
    queue.runPosted();
    HotKeyList list;
    for (const auto &hotKey : hotKeys->symbolicHotKeys()) {
        list.push_back(std::to_string(hotKey.code) + '/' + std::to_string(hotKey.modifiers) + ' ' +
                       hotKey.owner);
    }
    EXPECT_LE(told, 1) << "the second reading has found nothing new";
    EXPECT_TRUE(told == 1 || list.empty());
    return list;
}

TEST(DesktopHotKeys, OfEachDesktop) {
    EXPECT_EQ(
        read("ubuntu:GNOME",
             {{"gsettings list-recursively",
               "org.gnome.desktop.a11y.keyboard enable ['<Alt>F6']\n"
               "org.gnome.desktop.wm.keybindings close ['<Alt>F4']\n"
               "org.gnome.desktop.wm.keybindings maximize @as []\n"
               "org.gnome.desktop.wm.keybindings panel ['<Primary><Shift>z', '<Mod4>F2']\n"
               "org.gnome.desktop.wm.keybindings group ['<Super>Above_Tab', '<Hyper>a']\n"
               "org.gnome.settings-daemon.plugins.media-keys custom-keybindings "
               "['/custom0/', 'no path']\n"},
              {"gsettings list-recursively "
               "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding:/custom0/",
               "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding binding "
               "'<Super>v'\n"
               "org.gnome.settings-daemon.plugins.media-keys.custom-keybinding name 'Notes'"}}),
        // The German layout has Z where others have Y.
        (HotKeyList{"118/2048 GNOME, close", "16/768 GNOME, panel", "120/4096 GNOME, panel",
                    "50/4096 GNOME, group", "9/4096 GNOME, Notes"}));
    EXPECT_EQ(
        read("XFCE", {{"xfconf-query -c xfce4-keyboard-shortcuts -l -v",
                       "/commands/custom/<Alt>F2   xfce4-appfinder --collapsed\n"
                       "/commands/custom/override  true\n"
                       "/commands/default/<Alt>F3  xfce4-appfinder\n"
                       // Xfce marks each owner as custom by itself: commands are, xfwm4 is not.
                       "/xfwm4/default/<Primary>F1       workspace_1_key\n"
                       "/xfwm4/default/<Primary>F1/more  true\n"
                       "/xfwm4/default/<Alt>KP_1         move_window_workspace_1_key\n"}}),
        (HotKeyList{"120/2048 Xfce, xfce4-appfinder --collapsed", "122/256 Xfce, workspace 1",
                    "83/2048 Xfce, move window workspace 1"}));
    EXPECT_EQ(read("KDE", {{"kglobalshortcutsrc", "[kwin]\n"
                                                  "_k_friendly_name=KWin\n"
                                                  "Close=Alt+F4\\tMeta+Q,Alt+F4,Close Window\n"
                                                  "Expose=none,Ctrl+F9,Toggle\n"
                                                  "Zoom=Meta+\\,,none,Zoom\n"
                                                  "Page=Ctrl+PgUp,none,Up\n"
                                                  "_launch=Meta+Ctrl+Esc\n"
                                                  "[ours]\nclean=Meta+V,,\n"}}),
              (HotKeyList{"118/2048 KWin, Close Window", "12/4096 KWin, Close Window",
                          "43/4096 KWin, Zoom", "116/256 KWin, Up", "53/4352 KWin"}));
    EXPECT_TRUE(read("sway", {{"kglobalshortcutsrc", "a=Meta+V,,"}}).empty());
}

TEST(DesktopHotKeys, BrokenFilesGiveWhatTheyCan) {
    for (const std::string text :
         {"", "=", "a=", "a=Ctrl+", "a=Foo+B", "'", "'<", "'<Super'", "'<>a'", "/xfwm4/custom/",
          "/xfwm4/custom/<", "a=Meta+\xff\xfe,"}) {
        for (const char *desktop : {"KDE", "GNOME", "XFCE"}) {
            std::map<std::string, std::string> texts{
                {"kglobalshortcutsrc", text},
                {"xfconf-query -c xfce4-keyboard-shortcuts -l -v", text},
                {"gsettings list-recursively", "org.gnome.shell.keybindings a " + text}};
            EXPECT_TRUE(read(desktop, texts).empty()) << text;
        }
    }
    std::mt19937 random(1);
    const std::string letters = "aA1<>'+=,\\\n/ tMetaCtrl\xff";
    for (int round = 0; round < 3000; ++round) {
        std::string text = "a=";
        for (int n = 0; n < 60; ++n) {
            text += letters[random() % letters.size()];
        }
        read("KDE", {{"kglobalshortcutsrc", text}});
        read("XFCE", {{"xfconf-query -c xfce4-keyboard-shortcuts -l -v", "/xfwm4/custom/" + text}});
        read("GNOME", {{"gsettings list-recursively", "org.gnome.shell.keybindings a '" + text}});
    }
}

TEST(CommandOutput, HasItsLimits) {
    EXPECT_EQ(outputOfCommand({"printf", "a b"}), "a b");
    EXPECT_EQ(outputOfCommand({"sh", "-c", "echo half; exit 3"}), "");
    EXPECT_EQ(outputOfCommand({"no-such-program"}), "");
    EXPECT_EQ(outputOfCommand({"cat"}), "");
    EXPECT_EQ(outputOfCommand({"yes"}, {std::chrono::seconds(20), 100000}), "");
    EXPECT_EQ(outputOfCommand({"sleep", "infinity"}, {std::chrono::milliseconds(50), 10}), "");
}

} // namespace
} // namespace nerlo::platform
