// The windows, the menu and the status item of the running program, for its delegate.
//
// Windows are made when they are first shown. Main thread only.
#pragma once

#include "platform/MainQueue.h"
#include "platform/TaskbarHint.h"
#include "platform/TrayWatch.h"
#include "platform/WorkerQueue.h"
#include "settings/nrPreferences.h"
#include "shell/OptionRows.h"
#include "shell/ShellWindows.h"
#include "shell/StatusMenu.h"
#include "shell/TrayIcon.h"
#include "shell/nrAppDelegate.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "storage/SettingsStore.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

namespace nerlo::shell {

class PreferencesWindow;
class TipsWindow;
class WhatsNewWindow;

class DesktopShell final : public ShellWindows {
  public:
    struct Parts {
        storage::SettingsStore &store;
        platform::MainQueue &mainQueue;
        platform::WorkerQueue &workerQueue;
        settings::nrPreferences &preferences;
        clipboard::nrChangePasterboard &engine;
        shortcuts::UserDefaultsHotKeys &hotKeys;
        const shortcuts::ShortcutTexts &shortcutTexts;
        std::string locale; // an ICU locale id
        std::string version;
        // What the desktop offers; all but the first may be missing.
        bool pointerPositionKnown = false;
        bool hotKeysAvailable = true;
        std::unique_ptr<platform::TaskbarHint> taskbar;
        std::function<std::unique_ptr<platform::TrayWatch>(std::function<void()> appeared)>
            watchTray;
    };
    // All must outlive this. Takes the hooks of the preferences that the windows need.
    explicit DesktopShell(Parts parts);
    ~DesktopShell() override;

    void setDelegate(nrAppDelegate *delegate) { delegate_ = delegate; }
    void setRecorderMaker(RecorderMaker maker) { makeRecorder_ = std::move(maker); }
    // Runs after each change of the automatic mode or of the profiles.
    void setChangedHandler(std::function<void()> changed) { changed_ = std::move(changed); }
    // The menu bar's items, with which a shortcut may collide.
    StatusMenu &menu() { return *menu_; }
    // Once the event loop runs: looks for trays, and tells the delegate whether there is one.
    void start();

    void showStatusItem() override;
    void dropStatusItem() override;
    bool statusItemReachable() const override;
    void setTaskbarEntry(bool shown) override;
    void showPreferencesWindow() override;
    bool hasVisibleWindow() const override;
    void setFloating(bool floating) override;
    void showTips() override;
    void showWhatsNew() override;
    void showAbout() override;
    void showAlert(const char *messageKey, const char *informativeKey) override;
    bool openUrl(const std::string &url) override;
    void setProblem(Problem problem, const std::string &text) override;
    void stateChanged() override;

  private:
    MenuCommands menuCommands();
    void makePreferencesWindow();
    void connectPreferences();
    void updateProfiles();
    void updateCleanShortcut();
    void updateHotKeys();
    void updateNotice();
    void restore();
    void applyTaskbarEntry();

    Parts parts_;
    nrAppDelegate *delegate_ = nullptr;
    RecorderMaker makeRecorder_;
    std::function<void()> changed_;
    std::unique_ptr<StatusMenu> menu_;
    std::unique_ptr<TrayIcon> tray_;
    std::unique_ptr<platform::TrayWatch> xembed_;
    std::map<Problem, std::string> problems_; // none is empty
    std::unique_ptr<PreferencesWindow> window;
    std::unique_ptr<TipsWindow> tipsController;
    std::unique_ptr<WhatsNewWindow> whatsNewController;
    bool taskbarEntry_ = true;
    platform::MainQueue::TaskId settle_ = 0;
    storage::SettingsStore::Observation cleanShortcut_;
    shortcuts::UserDefaultsHotKeys::Observation hotKeyStatus_;
};

} // namespace nerlo::shell
