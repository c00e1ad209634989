// The windows, the menu and the status item of the running program, for its delegate.
//
// Windows are made when they are first shown. Main thread only.
#pragma once

#include "engine/CleaningReport.h"
#include "platform/MainQueue.h"
#include "platform/TaskbarHint.h"
#include "platform/TrayWatch.h"
#include "shell/PointerSearch.h"
#include "shell/ShellWindows.h"
#include "shell/ShortcutList.h"
#include "shell/StatusMenu.h"
#include "shell/TrayIcon.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "shortcuts/view/nrShortcutView.h"
#include "storage/SettingsStore.h"

#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace nerlo::shell {

class ChooserWindow;
class PreferencesWindow;
class Program;
class TextWindow;
class TipsWindow;

class DesktopShell final : public ShellWindows {
  public:
    // `program` owns this. Takes the hooks of the preferences that the windows need.
    explicit DesktopShell(Program &program);
    ~DesktopShell() override;

    // The menu bar's items, with which a shortcut may collide.
    StatusMenu &menu() { return *menu_; }
    // A control that records the shortcut of a settings key.
    shortcuts::nrShortcutView *makeRecorder(const std::string &hotKey);
    ShortcutList &shortcutList() { return shortcutList_; }
    // Puts the original back, and says so when that cannot be.
    void restore();
    // Names in the menu what a restore would bring back.
    void updateRestorable();
    // And which program the last copy came from.
    void updateProgram();
    void hidePreferences();
    void showHelp();
    // Closes it where it is open.
    void showChooser();
    // Whether the preferences, when they are closed, must stay as an entry in the taskbar, because
    // there is no other way back to them.
    bool closingMinimizes() const;
    // Just before the event loop runs: looks for trays, and tells the delegate whether there is
    // one.
    void start();

    void showStatusItem() override;
    void dropStatusItem() override;
    bool statusItemReachable() const override;
    void setTaskbarEntry(bool shown) override;
    void showPreferencesWindow() override;
    bool hasVisibleWindow() const override;
    void bringToFront() override;
    void setFloating(bool floating) override;
    void showTips(bool firstStart) override;
    void showWhatsNew() override;
    void showAbout() override;
    void showAlert(const char *messageKey, const char *informativeKey) override;
    bool openUrl(const std::string &url) override;
    void setProblem(Problem problem, const std::string &text) override;
    void stateChanged() override;
    void quit() override;

  private:
    std::unique_ptr<TextWindow> makeTextWindow(const char *name, const QString &title,
                                               const QString &text);
    void inform(const QString &message, const QString &informative);
    void makePreferencesWindow();
    void connectPreferences();
    void updateProfiles();
    QKeySequence storedKeys(std::string_view hotKey) const;
    void updateCleanShortcut();
    void updateProfileShortcuts();
    void updateHotKeys();
    // Who has the keys of the clean, or why it has none; empty where they work.
    QString cleanShortcutNotice() const;
    void updateNotice();
    void showReport(const engine::CleaningReport &report);
    void present(QWidget &window);
    void applyTaskbarEntry(QWidget &window);
    // Those that are made, the preferences last.
    std::vector<QWidget *> windows() const;

    Program &program_;
    const shortcuts::ShortcutViewContext recording_;
    ShortcutList shortcutList_;
    std::unique_ptr<StatusMenu> menu_;
    std::unique_ptr<TrayIcon> tray_;
    PointerSearch pointer_;                                // for a menu at the icon
    const std::unique_ptr<platform::TaskbarHint> taskbar_; // null where there is none
    std::unique_ptr<platform::TrayWatch> xembed_;
    std::map<Problem, std::string> problems_; // none is empty
    engine::CleaningReport report_;           // of the last clean
    std::unique_ptr<PreferencesWindow> window_;
    std::unique_ptr<ChooserWindow> chooser_; // the last one
    std::unique_ptr<TipsWindow> tipsController_;
    std::unique_ptr<TextWindow> whatsNewController_;
    std::unique_ptr<TextWindow> help_;
    // Whether a click on the icon opens the menu there: one that gets no keys, as under KWin, is
    // not closed by a press elsewhere either.
    bool menuAtIcon_ = false;
    bool taskbarEntry_ = true;
    platform::MainQueue::TaskId settle_ = 0;
    storage::SettingsStore::Observation cleanShortcut_;
    shortcuts::UserDefaultsHotKeys::Observation hotKeyStatus_;
};

} // namespace nerlo::shell
