#include "shell/nrAppDelegate.h"

#include "settings/FirstStart.h"

#include <chrono>
#include <string_view>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

constexpr auto cleanAtOnceKey = "cleanAtOnce";
constexpr auto keepNoOriginalKey = "keepNoOriginal";
constexpr auto showInMenuBarKey = "showInMenubar";
constexpr auto stayOnTopKey = "stayOnTop";
constexpr auto launchOnStartupKey = "lunchOnStartup"; // the misspelling is the key
constexpr auto firstRunPreferencesKey = "firstRunPreferences";

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
    : userDef_(parts.userDef)
    , mainQueue_(parts.mainQueue)
    , engine_(parts.engine)
    , watcher_(parts.watcher)
    , loginItem_(parts.loginItem)
    , windows_(parts.windows)
    , links_(std::move(parts.links)) {
    settings::setAllDefaultsInFirstRun(userDef_, parts.preferences);
}

nrAppDelegate::~nrAppDelegate() {
    mainQueue_.cancel(bringBack_);
}

void nrAppDelegate::applicationWillFinishLaunching() {
    appOpened_ = false;
    showInMenuBar();
}

void nrAppDelegate::applicationDidFinishLaunching() {
    excelException_ = userDef_.boolForKey(disableAutomaticKey);
    watcher_.setAtOnce(cleanAtOnceChecked());
    if (keepNoOriginalChecked()) {
        engine_.keepOriginalsUpTo(0);
    }
    if (userDef_.boolForKey(automaticKey)) {
        watchPasteboard();
        automatic_ = true;
    }
    openPreferencesInFirstRun();
    if (userDef_.boolForKey(showInMenuBarKey)) {
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
    } else {
        windows_.bringToFront();
    }
    return true;
}

void nrAppDelegate::traySettled() {
    if (!windows_.statusItemReachable() && !windows_.hasVisibleWindow()) {
        newPreferencesWindow();
    }
}

bool nrAppDelegate::showInMenuBarChecked() const {
    return userDef_.boolForKey(showInMenuBarKey);
}

bool nrAppDelegate::runInTheBackgroundChecked() const {
    return userDef_.boolForKey(runInTheBackgroundKey);
}

bool nrAppDelegate::launchOnStartupChecked() const {
    return userDef_.boolForKey(launchOnStartupKey);
}

bool nrAppDelegate::stayOnTopChecked() const {
    return userDef_.boolForKey(stayOnTopKey);
}

void nrAppDelegate::showInMenuBar() {
    if (runInTheBackgroundChecked()) {
        windows_.dropStatusItem();
        windows_.setTaskbarEntry(false);
        if (appOpened_) {
            userDef_.set(showInMenuBarKey, false);
        }
    } else if (showInMenuBarChecked()) {
        setStatusBar();
        windows_.setTaskbarEntry(false);
        if (appOpened_) {
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
    appOpened_ = true;
    windows_.stateChanged();
}

void nrAppDelegate::setShowInMenuBar(bool on) {
    userDef_.set(showInMenuBarKey, on);
    showInMenuBar();
}

void nrAppDelegate::setRunInTheBackground(bool on) {
    userDef_.set(runInTheBackgroundKey, on);
    showInMenuBar();
}

void nrAppDelegate::setStatusBar() {
    windows_.showStatusItem();
}

void nrAppDelegate::openPreferencesInFirstRun() {
    if (!userDef_.boolForKey(firstRunPreferencesKey)) {
        firstStart_ = true;
        newPreferencesWindow();
        userDef_.set(firstRunPreferencesKey, true);
    }
}

void nrAppDelegate::openTipsInFirstRun() {
    if (userDef_.find(firstRunTipsKey) && !userDef_.boolForKey(firstRunTipsKey)) {
        if (!userDef_.find(releaseNotesKey)) {
            openReleaseNotesNerloPro();
        }
        return;
    }
    aOpenTips();
    userDef_.set(releaseNotesKey, true);
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
    userDef_.set(automaticKey, automatic_);
    windows_.stateChanged();
}

void nrAppDelegate::disableAutomaticallyClearFormatting() {
    excelException_ = !excelException_;
    watcher_.toggleEngine(excelException_);
    userDef_.set(disableAutomaticKey, excelException_);
    windows_.stateChanged();
    if (excelException_) {
        windows_.showAlert("Excel disabled", "With option \"Automatically clear formatting\"");
    }
}

bool nrAppDelegate::cleanAtOnceChecked() const {
    return userDef_.boolForKey(cleanAtOnceKey);
}

void nrAppDelegate::cleanAtOnce(bool on) {
    userDef_.set(cleanAtOnceKey, on);
    watcher_.setAtOnce(on);
}

bool nrAppDelegate::keepNoOriginalChecked() const {
    return userDef_.boolForKey(keepNoOriginalKey);
}

void nrAppDelegate::keepNoOriginal(bool on) {
    userDef_.set(keepNoOriginalKey, on);
    engine_.keepOriginalsUpTo(on ? 0 : clipboard::keptOriginalLimit);
}

void nrAppDelegate::showPreferences() {
    newPreferencesWindow();
}

void nrAppDelegate::newPreferencesWindow() {
    windows_.showPreferencesWindow();
    windows_.stateChanged();
    windows_.setFloating(stayOnTopChecked());
}

void nrAppDelegate::openAboutApp() {
    windows_.showAbout();
}

void nrAppDelegate::quitApp() {
    windows_.quit();
}

void nrAppDelegate::supportWebsite() {
    if (!links_.supportPage.empty()) {
        windows_.openUrl(links_.supportPage);
    }
}

void nrAppDelegate::openRateApp() {
    if (!links_.ratePage.empty()) {
        windows_.openUrl(links_.ratePage);
    }
}

void nrAppDelegate::openEmailToDev() {
    if (!links_.email.empty()) {
        windows_.openUrl(emailLink(links_));
    }
}

std::string nrAppDelegate::emailLink(const ProductLinks &links) {
    return replaced("mailto:" + links.email + "?subject=Nerlo Pro v" + links.version + " - " +
                        replaced(links.systemName, "Version ", ""),
                    " ", "%20");
}

void nrAppDelegate::aOpenTips() {
    windows_.showTips(std::exchange(firstStart_, false));
}

void nrAppDelegate::openReleaseNotesNerloPro() {
    windows_.showWhatsNew();
}

void nrAppDelegate::aStayOnTop(bool on) {
    userDef_.set(stayOnTopKey, on);
    windows_.setFloating(on);
}

void nrAppDelegate::launchOnStartup(bool on) {
    const std::string error = setStartAtLogin(on);
    userDef_.set(launchOnStartupKey, error.empty() ? on : loginItem_.enabled());
    windows_.setProblem(ShellWindows::Problem::loginItem, error);
    windows_.stateChanged();
}

std::string nrAppDelegate::setStartAtLogin(bool on) {
    return loginItem_.setEnabled(on);
}

} // namespace nerlo::shell
