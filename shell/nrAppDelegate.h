// The application's delegate: what happens at the start, in which order, and what each command of
// the menus does.
//
// It knows no toolkit: windows and the status item are reached through ShellWindows. Main thread
// only.
#pragma once

#include "clipboard/nrChangePasterboard.h"
#include "clipboard/nrPasteboardWatcher.h"
#include "platform/LoginItem.h"
#include "platform/MainQueue.h"
#include "settings/nrPreferences.h"
#include "shell/ShellWindows.h"
#include "storage/SettingsStore.h"

#include <string>

namespace nerlo::shell {

// UTF-8. An address that is not known is empty.
struct ProductLinks {
    std::string supportPage;
    std::string ratePage;
    std::string email; // "name@example.org"
    std::string version;
    std::string systemName; // "Debian GNU/Linux 12 (bookworm)"
};

// Settings of the desktop program.
inline constexpr const char *automaticKey = "automaticallyClearFormatting";
inline constexpr const char *firstRunTipsKey = "firstRunTips";          // at each start
inline constexpr const char *releaseNotesKey = "updateReleaseNotes3_1"; // they have been shown
inline constexpr const char *runInTheBackgroundKey = "runInTheBackground";
inline constexpr const char *disableAutomaticKey = "disableAutomaticallyClearFormatting";

class nrAppDelegate {
  public:
    struct Parts {
        storage::SettingsStore &userDef;
        platform::MainQueue &mainQueue;
        settings::nrPreferences &preferences;
        clipboard::nrChangePasterboard &engine;
        clipboard::nrPasteboardWatcher &watcher;
        platform::LoginItem &loginItem;
        ShellWindows &windows;
        ProductLinks links;
    };

    // Runs the first start's set-up, or the conversion of an older version's settings.
    explicit nrAppDelegate(Parts parts);
    ~nrAppDelegate();
    nrAppDelegate(const nrAppDelegate &) = delete;
    nrAppDelegate &operator=(const nrAppDelegate &) = delete;

    void applicationWillFinishLaunching();
    void applicationDidFinishLaunching();
    // The program was started again. Always yes.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);
    // Called once it is known whether the desktop has a tray.
    void traySettled();

    // The check marks.
    bool automatic() const { return automatic_; }
    bool excelException() const { return excelException_; }
    bool cleanAtOnceChecked() const;
    bool keepNoOriginalChecked() const;
    bool showInMenuBarChecked() const;
    bool runInTheBackgroundChecked() const;
    bool launchOnStartupChecked() const;
    bool stayOnTopChecked() const;

    // The commands of the menus, and the check boxes of the preferences.
    void clearFormattingFromClipboard();
    void automaticallyClearFormatting();
    void disableAutomaticallyClearFormatting();
    // Whether automatic cleaning follows a copy without a delay.
    void cleanAtOnce(bool on);
    // Whether a clean leaves nothing to be restored, and asks the other program for less.
    void keepNoOriginal(bool on);
    void showPreferences();
    void openAboutApp();
    void quitApp();
    // These three do nothing when the address is not known; the menus grey them then.
    void supportWebsite();
    void openEmailToDev();
    void openRateApp();
    void aOpenTips();
    void openReleaseNotesNerloPro();
    void aStayOnTop(bool on);
    void launchOnStartup(bool on);
    // The user ticked or cleared one of the two visibility boxes.
    void setShowInMenuBar(bool on);
    void setRunInTheBackground(bool on);

    void newPreferencesWindow();
    // Empty when done, else what went wrong.
    std::string setStartAtLogin(bool on);

    // The complete link of openEmailToDev().
    static std::string emailLink(const ProductLinks &links);

  private:
    void showInMenuBar();
    void openPreferencesInFirstRun();
    void openTipsInFirstRun();
    void watchPasteboard();
    void stopWatchPasteboard();
    void setStatusBar();

    storage::SettingsStore &userDef_;
    platform::MainQueue &mainQueue_;
    clipboard::nrChangePasterboard &engine_;
    clipboard::nrPasteboardWatcher &watcher_;
    platform::LoginItem &loginItem_;
    ShellWindows &windows_;
    const ProductLinks links_;

    bool appOpened_ = false; // false until the first showInMenuBar() has ended
    bool automatic_ = false;
    bool excelException_ = false;
    bool firstStart_ = false; // until the tips have been shown
    platform::MainQueue::TaskId bringBack_ = 0;
};

} // namespace nerlo::shell
