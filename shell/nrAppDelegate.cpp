#include "shell/nrAppDelegate.h"

#include "settings/FirstStart.h"

#include <chrono>
#include <string_view>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

constexpr auto automaticKey = "automaticallyClearFormatting";
constexpr auto showInMenuBarKey = "showInMenubar";
constexpr auto stayOnTopKey = "stayOnTop";
constexpr auto launchOnStartupKey = "lunchOnStartup"; // the misspelling is the key
constexpr auto firstRunPreferencesKey = "firstRunPreferences";
constexpr auto firstRunTipsKey = "firstRunTips";
constexpr auto releaseNotesKey = "updateReleaseNotes3_1";

// The taskbar entry takes the focus with it when it goes; then the window comes back.
constexpr auto comesBackAfter = 100ms;

std::string replaced(std::string text, std::string_view find, std::string_view with) {
    for (auto at = text.find(find); at != std::string::npos; at = text.find(find, at)) {
        text.replace(at, find.size(), with);
        at += with.size();
    }
    return text;
}

} // namespace

nrAppDelegate::nrAppDelegate(Parts parts)
    : userDef(parts.userDef)
    , mainQueue_(parts.mainQueue)
    , engine_(parts.engine)
    , watcher_(parts.watcher)
    , loginItem_(parts.loginItem)
    , windows_(parts.windows)
    , links_(std::move(parts.links)) {
    settings::setAllDefaultsInFirstRun(userDef, parts.preferences);
}

nrAppDelegate::~nrAppDelegate() {
    mainQueue_.cancel(bringBack_);
}

void nrAppDelegate::applicationWillFinishLaunching() {
    appOpened = false;
    showInMenuBar();
}

void nrAppDelegate::applicationDidFinishLaunching() {
    excelException_ = userDef.boolForKey(disableAutomaticKey);
    if (userDef.boolForKey(automaticKey)) {
        watchPasteboard();
        automatic_ = true;
    }
    openPreferencesInFirstRun();
    if (userDef.boolForKey(showInMenuBarKey)) {
        setStatusBar();
    }
    openTipsInFirstRun();
    watcher_.toggleEngine(excelException_);
    windows_.stateChanged();
}

bool nrAppDelegate::applicationShouldHandleReopen(bool hasVisibleWindows) {
    // Without an item to click, this is the one way to the program.
    if (!hasVisibleWindows || !windows_.statusItemReachable()) {
        newPreferencesWindow();
    }
    return true;
}

void nrAppDelegate::traySettled() {
    if (!windows_.statusItemReachable() && !windows_.hasVisibleWindow()) {
        newPreferencesWindow();
    }
}

bool nrAppDelegate::showInMenuBarChecked() const {
    return userDef.boolForKey(showInMenuBarKey);
}

bool nrAppDelegate::runInTheBackgroundChecked() const {
    return userDef.boolForKey(runInTheBackgroundKey);
}

void nrAppDelegate::showInMenuBar() {
    if (runInTheBackgroundChecked()) {
        windows_.dropStatusItem();
        windows_.setTaskbarEntry(false);
        if (appOpened) {
            userDef.set(showInMenuBarKey, false);
        }
    } else if (showInMenuBarChecked()) {
        setStatusBar();
        windows_.setTaskbarEntry(false);
        if (appOpened) {
            mainQueue_.cancel(bringBack_);
            bringBack_ = mainQueue_.postAfter(comesBackAfter, [this] {
                bringBack_ = 0;
                newPreferencesWindow();
            });
        }
    } else {
        windows_.dropStatusItem();
        windows_.setTaskbarEntry(true);
    }
    appOpened = true;
    windows_.stateChanged();
}

void nrAppDelegate::setShowInMenuBar(bool on) {
    userDef.set(showInMenuBarKey, on);
    showInMenuBar();
}

void nrAppDelegate::setRunInTheBackground(bool on) {
    userDef.set(runInTheBackgroundKey, on);
    showInMenuBar();
}

void nrAppDelegate::setStatusBar() {
    windows_.showStatusItem();
}

void nrAppDelegate::openPreferencesInFirstRun() {
    if (!userDef.boolForKey(firstRunPreferencesKey)) {
        newPreferencesWindow();
        userDef.set(firstRunPreferencesKey, true);
    }
}

void nrAppDelegate::openTipsInFirstRun() {
    if (userDef.find(firstRunTipsKey) && !userDef.boolForKey(firstRunTipsKey)) {
        if (!userDef.find(releaseNotesKey)) {
            openReleaseNotesNerloPro();
        }
        return;
    }
    aOpenTips();
    userDef.set(releaseNotesKey, true);
}

void nrAppDelegate::watchPasteboard() {
    watcher_.start();
}

void nrAppDelegate::stopWatchPasteboard() {
    watcher_.stop();
}

void nrAppDelegate::clearFormattingFromClipboard() {
    engine_.changePasteboard();
}

void nrAppDelegate::automaticallyClearFormatting() {
    if (automatic_) {
        stopWatchPasteboard();
    } else {
        watchPasteboard();
    }
    automatic_ = !automatic_;
    userDef.set(automaticKey, automatic_);
    windows_.stateChanged();
}

void nrAppDelegate::disableAutomaticallyClearFormatting() {
    excelException_ = !excelException_;
    watcher_.toggleEngine(excelException_);
    userDef.set(disableAutomaticKey, excelException_);
    windows_.stateChanged();
    if (excelException_) {
        windows_.showAlert("Excel disabled", "With option \"Automatically clear formatting\"");
    }
}

void nrAppDelegate::showPreferences() {
    newPreferencesWindow();
}

void nrAppDelegate::newPreferencesWindow() {
    windows_.showPreferencesWindow();
    windows_.stateChanged();
    windows_.setFloating(userDef.boolForKey(stayOnTopKey));
}

void nrAppDelegate::openAboutApp() {
    windows_.showAbout();
}

void nrAppDelegate::quitApp() {
    if (quit_) {
        quit_();
    }
}

void nrAppDelegate::supportWebsite() {
    windows_.openUrl(links_.supportPage);
}

void nrAppDelegate::openEmailToDev() {
    windows_.openUrl(emailLink(links_));
}

std::string nrAppDelegate::emailLink(const ProductLinks &links) {
    return replaced(links.email + " v" + links.version + " - " +
                        replaced(links.systemName, "Version ", ""),
                    " ", "%20");
}

void nrAppDelegate::aOpenTips() {
    windows_.showTips();
}

void nrAppDelegate::openReleaseNotesNerloPro() {
    windows_.showWhatsNew();
}

void nrAppDelegate::aStayOnTop(bool on) {
    userDef.set(stayOnTopKey, on);
    windows_.setFloating(on);
}

void nrAppDelegate::launchOnStartup(bool on) {
    const std::string error = setStartAtLogin(on);
    userDef.set(launchOnStartupKey, error.empty() ? on : loginItem_.enabled());
    windows_.setProblem(ShellWindows::Problem::loginItem, error);
    windows_.stateChanged();
}

std::string nrAppDelegate::setStartAtLogin(bool on) {
    return loginItem_.setEnabled(on);
}

} // namespace nerlo::shell
