// nerlo-pro's hot keys in a Wayland session: the real xdg-desktop-portal in front of a backend of
// ours, or without one.
#include "HotKeyProgram.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace nerlo::test {
namespace {

constexpr auto removeSpaces = "sRemoveAllSpaces";

class HotKeyProgramWayland : public HotKeyProgram {
  protected:
    void startPortal() {
        const std::string folder = std::string(std::getenv("NERLO_SESSION_DIR")) + "/portals";
        std::filesystem::create_directory(folder);
        std::ofstream(folder + "/nerlotest.portal")
            << "[portal]\nDBusName=org.freedesktop.impl.portal.desktop.nerlotest\n"
               "Interfaces=org.freedesktop.impl.portal.GlobalShortcuts;\nUseIn=sway;\n";
        backend_ = std::make_unique<Process>(Arguments{BACKEND, "serve"});
        ASSERT_TRUE(backend_->waitForLine("ready"));
        portal_ = std::make_unique<Process>(Arguments{"env", "XDG_DESKTOP_PORTAL_DIR=" + folder,
                                                      "/usr/libexec/xdg-desktop-portal"});
        // Not asked itself: the bus would start another one.
        ASSERT_TRUE(until([] {
            const auto answer =
                outputOf({"dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
                          "/org/freedesktop/DBus", "org.freedesktop.DBus.NameHasOwner",
                          "string:org.freedesktop.portal.Desktop"});
            return answer && answer->find("boolean true") != std::string::npos;
        })) << portal_->output();
    }
    static std::string backend(const std::string &verb, const std::string &argument = {}) {
        Arguments command{BACKEND, verb};
        if (!argument.empty()) {
            command.push_back(argument);
        }
        return outputOf(command).value_or("(failed)");
    }
    static bool binds(const std::string &list) {
        return until([&] { return backend("list") == list; });
    }
    static std::string paste() { return outputOf({"wl-paste", "--no-newline"}).value_or(""); }
    static bool cleans(const std::function<void()> &press) {
        if (!outputOf({"wl-copy"}, "a b c") || !until([] { return paste() == "a b c"; })) {
            return false;
        }
        press();
        return until([] { return paste() == "abc"; });
    }

    std::unique_ptr<Process> backend_;
    std::unique_ptr<Process> portal_;
};

TEST_F(HotKeyProgramWayland, ThePortalBindsWhatIsStoredAndItsPressesClean) {
    ASSERT_NO_FATAL_FAILURE(startPortal());
    store("remove-all-spaces=Super+Shift+R");
    start();
    const std::string clean =
        "sClearFormatingFromClipboard LOGO+v Clear formating from clipboard\n";
    // Nothing but what the user has set.
    ASSERT_TRUE(until([] { return backend("list").find(removeSpaces) != std::string::npos; }))
        << output();
    const std::string list = backend("list");
    EXPECT_NE(list.find(clean), std::string::npos) << list;
    EXPECT_NE(list.find("sRemoveAllSpaces LOGO+SHIFT+r "), std::string::npos) << list;
    EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), 2) << list;
    // In the portal's own words.
    EXPECT_TRUE(finds("remove-all-spaces=Super+Shift+R: works, with the desktop's keys: "
                      "Press LOGO+SHIFT+r"));
    EXPECT_TRUE(cleans([] { EXPECT_EQ(backend("press", removeSpaces), ""); }));

    store("remove-all-spaces=Ctrl+R");
    EXPECT_TRUE(until(
        [] { return backend("list").find("sRemoveAllSpaces CTRL+r ") != std::string::npos; }));
    EXPECT_TRUE(cleans([] { EXPECT_EQ(backend("press", removeSpaces), ""); }));
    store("remove-all-spaces=");
    EXPECT_TRUE(binds(clean)) << backend("list");
    store("clean=");
    EXPECT_TRUE(binds("\n")) << backend("list");
    EXPECT_EQ(output(), "");
}

TEST_F(HotKeyProgramWayland, ADeclinedDialogIsARefusal) {
    ASSERT_NO_FATAL_FAILURE(startPortal());
    backend("answer", "1");
    start();
    ASSERT_TRUE(says("hot key \"sClearFormatingFromClipboard\": it was declined in the desktop's "
                     "dialog"))
        << output();
    // Asked again only for another shortcut, which may be granted in part.
    backend("answer", "0");
    backend("drop", "sClearFormatingFromClipboard");
    store("remove-all-spaces=Super+R");
    EXPECT_TRUE(until([] { return backend("list").find(removeSpaces) != std::string::npos; }));
    EXPECT_TRUE(says("hot key \"sClearFormatingFromClipboard\": the desktop did not bind this "
                     "shortcut"))
        << output();
    EXPECT_TRUE(cleans([] { EXPECT_EQ(backend("press", removeSpaces), ""); }));
    // The portal ends.
    portal_.reset();
    EXPECT_TRUE(says("the desktop portal has ended")) << output();
}

TEST_F(HotKeyProgramWayland, WithoutAPortalItSaysSoAndWorks) {
    start();
    EXPECT_TRUE(says("this desktop has no GlobalShortcuts portal; bind \"nerlo-pro --operation "
                     "N\""))
        << output();
    EXPECT_TRUE(cleans([] { EXPECT_TRUE(outputOf({program(), "--operation", "1"})); }));
}

} // namespace
} // namespace nerlo::test
