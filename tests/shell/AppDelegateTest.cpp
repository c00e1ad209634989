#include "shell/nrAppDelegate.h"

#include "engine/Operations.h"
#include "settings/SettingsKeys.h"
#include "shell/PreferencesLayout.h"
#include "tests/shell/ShellFixture.h"

#include <algorithm>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nerlo::shell {
namespace {

using namespace std::chrono_literals;
using Calls = std::vector<std::string>;

// Keeps a line for each call but stateChanged.
class RecordedWindows final : public ShellWindows {
  public:
    Calls calls;
    bool reachable = true;
    bool visible = false;

    void showStatusItem() override { calls.push_back("item"); }
    void dropStatusItem() override { calls.push_back("no item"); }
    bool statusItemReachable() const override { return reachable; }
    void setTaskbarEntry(bool shown) override { calls.push_back(shown ? "entry" : "no entry"); }
    void showPreferencesWindow() override { calls.push_back("preferences"); }
    bool hasVisibleWindow() const override { return visible; }
    void bringToFront() override { calls.push_back("front"); }
    void setFloating(bool on) override { calls.push_back(on ? "floats" : "does not float"); }
    void showTips(bool first) override { calls.push_back(first ? "tips, asking" : "tips"); }
    void showWhatsNew() override { calls.push_back("what's new"); }
    void showAbout() override { calls.push_back("about"); }
    void showAlert(const char *message, const char *informative) override {
        calls.push_back(std::string(message) + " / " + informative);
    }
    bool openUrl(const std::string &url) override {
        calls.push_back(url);
        return true;
    }
    void setProblem(Problem, const std::string &text) override {
        if (!text.empty()) {
            calls.push_back("problem " + text);
        }
    }
    void stateChanged() override {}
    void quit() override { calls.push_back("quit"); }
    Calls take() { return std::exchange(calls, {}); }
};

struct NoLoginItem final : platform::LoginItem {
    std::string setEnabled(bool) override { return {}; }
    bool enabled() const override { return false; }
};

class AppDelegate : public ShellFixture {
  protected:
    RecordedWindows windows;
    NoLoginItem loginItem;
    std::unique_ptr<nrAppDelegate> delegate;

    void start() {
        delegate = std::make_unique<nrAppDelegate>(
            nrAppDelegate::Parts{store,
                                 queue,
                                 preferences,
                                 engine,
                                 watcher,
                                 loginItem,
                                 windows,
                                 {"https://page", "", "a@b", "1.2", "Debian 12"}});
        delegate->applicationWillFinishLaunching();
        delegate->applicationDidFinishLaunching();
    }
    // A start that is not the first, with nothing to tell.
    void startAgain() {
        store.set("firstRunPreferences", true);
        store.set("firstRunPreferencesProfiles", true);
        store.set("firstRunTips", false);
        store.set("updateReleaseNotes3_1", true);
        start();
    }
};

TEST_F(AppDelegate, TheFirstStartShowsItselfInOrder) {
    start();
    EXPECT_EQ(windows.take(),
              (Calls{"item", "no entry", "preferences", "does not float", "item", "tips, asking"}));
    delegate->aOpenTips();
    EXPECT_EQ(windows.take(), Calls{"tips"}) << "it asks once";
    EXPECT_TRUE(store.boolForKey("firstRunPreferences"));
    EXPECT_TRUE(store.boolForKey("updateReleaseNotes3_1"));
    EXPECT_TRUE(store.boolForKey("showInMenubar"));
    EXPECT_FALSE(watcher.running());
    ASSERT_TRUE(std::filesystem::exists(folder / "Data/profiles.nrp"));
}

TEST_F(AppDelegate, LaterStartsFollowTheSettings) {
    const struct {
        const char *shows;
        std::vector<std::pair<const char *, bool>> settings;
        Calls calls;
    } rows[] = {
        {"an item", {{"showInMenubar", true}}, {"item", "no entry", "item"}},
        {"no item: an entry in the taskbar", {{"showInMenubar", false}}, {"no item", "entry"}},
        {"the background: neither, and the other setting stays",
         {{"showInMenubar", true}, {"runInTheBackground", true}},
         {"no item", "no entry", "item"}},
    };
    for (const auto &row : rows) {
        for (const auto &[key, on] : row.settings) {
            store.set(key, on);
        }
        startAgain();
        EXPECT_EQ(windows.take(), row.calls) << row.shows;
        EXPECT_EQ(store.boolForKey("showInMenubar"), row.settings.front().second) << row.shows;
    }
}

TEST_F(AppDelegate, ReleaseNotesOnceAfterAnUpdateAndTipsWhenAsked) {
    store.set("firstRunPreferences", true);
    store.set("firstRunPreferencesProfiles", true);
    store.set("firstRunTips", false);
    start();
    EXPECT_EQ(windows.take().back(), "what's new");
    store.set("firstRunTips", true);
    start();
    EXPECT_EQ(windows.take().back(), "tips");
}

TEST_F(AppDelegate, TheVisibilityBoxes) {
    store.set("showInMenubar", true);
    startAgain();
    windows.take();
    delegate->setRunInTheBackground(true);
    EXPECT_EQ(windows.take(), (Calls{"no item", "no entry"}));
    EXPECT_FALSE(store.boolForKey("showInMenubar"));
    delegate->setRunInTheBackground(false);
    EXPECT_EQ(windows.take(), (Calls{"no item", "entry"}));
    delegate->setShowInMenuBar(true);
    EXPECT_EQ(windows.take(), (Calls{"item", "no entry"}));
    queue.advance(99ms);
    EXPECT_EQ(windows.take(), Calls{});
    queue.advance(1ms);
    EXPECT_EQ(windows.take(), (Calls{"preferences", "does not float"}));
}

TEST_F(AppDelegate, TheSpreadsheetExceptionSaysSoWhenItIsSwitchedOn) {
    startAgain();
    windows.take();
    delegate->disableAutomaticallyClearFormatting();
    EXPECT_EQ(windows.take(),
              Calls{"Excel disabled / With option \"Automatically clear formatting\""});
    EXPECT_TRUE(delegate->excelException());
    const int subscriptions = activeApplication.subscriptions;
    delegate->disableAutomaticallyClearFormatting();
    EXPECT_EQ(windows.take(), Calls{});
    EXPECT_GT(activeApplication.subscriptions, subscriptions);
    delegate->disableAutomaticallyClearFormatting();
    windows.take();
    startAgain();
    EXPECT_TRUE(delegate->excelException());
}

TEST_F(AppDelegate, IsNeverUnreachable) {
    const struct {
        const char *shows;
        bool item;
        bool window;
        bool opensWhenSettled;
        const char *startedAgain;
    } rows[] = {
        {"item, no window", true, false, false, "preferences"},
        {"item and window", true, true, false, "front"},
        {"neither", false, false, true, "preferences"},
        {"a window without an item", false, true, false, "preferences"},
    };
    startAgain();
    for (const auto &row : rows) {
        windows.reachable = row.item;
        windows.visible = row.window;
        windows.take();
        delegate->traySettled();
        EXPECT_EQ(!windows.take().empty(), row.opensWhenSettled) << row.shows;
        EXPECT_TRUE(delegate->applicationShouldHandleReopen(row.window));
        EXPECT_EQ(windows.take().front(), row.startedAgain) << row.shows;
    }
}

TEST_F(AppDelegate, TheMailNamesVersionAndSystemAndTheWindowFloatsAsStored) {
    startAgain();
    windows.take();
    delegate->supportWebsite();
    EXPECT_EQ(windows.take(), Calls{"https://page"});
    delegate->openEmailToDev();
    delegate->aStayOnTop(true);
    delegate->showPreferences();
    EXPECT_EQ(windows.take(), (Calls{"mailto:a@b?subject=Nerlo%20Pro%20v1.2%20-%20Debian%2012",
                                     "floats", "preferences", "floats"}));
    EXPECT_EQ(nrAppDelegate::emailLink({"", "", "m", "1", "Version 14 (Version B)"}),
              "mailto:m?subject=Nerlo%20Pro%20v1%20-%2014%20(B)");
}

TEST(PreferencesLayout, EveryOptionHasOnePlaceAndEveryOperationOneShortcut) {
    std::map<std::string, int> options;
    std::map<std::string, int> hotKeys;
    for (const PreferencesPage &page : preferencesPages()) {
        for (const OptionRow &row : page.rows) {
            ++options[row.key];
            ++hotKeys[row.hotKey];
            for (const std::string &key : row.dependents) {
                ++options[key];
            }
        }
    }
    for (const settings::SettingsKey &key : settings::profileKeys()) {
        // The profile's name stands in the selector; the box of the one list beside its list.
        const bool elsewhere = key.kind == settings::SettingKind::List ||
                               key.key == "profileName" || key.key == "sOnlyOneProfile";
        EXPECT_EQ(options[key.key], elsewhere ? 0 : 1) << key.key;
    }
    for (const engine::Operation &operation : engine::operations()) {
        EXPECT_EQ(hotKeys[std::string(operation.hotKey)], 1) << operation.hotKey;
    }
}

} // namespace
} // namespace nerlo::shell
