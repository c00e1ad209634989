// The running program: what it consists of, and one function for each thing that it can be told to
// do. The menu, the windows, the hot keys, the bus and the command line all call these.
//
// Main thread only.
#pragma once

#include "clipboard/nrChangePasterboard.h"
#include "clipboard/nrPasteboardWatcher.h"
#include "platform/MainQueue.h"
#include "platform/WorkerQueue.h"
#include "platform/linux/FolderWatch.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsPaths.h"
#include "settings/nrPreferences.h"
#include "shell/Desktop.h"
#include "shell/DesktopShell.h"
#include "shell/Requests.h"
#include "shell/nrAppDelegate.h"
#include "shortcuts/GlobalHotKeys.h"
#include "shortcuts/ShortcutTexts.h"
#include "shortcuts/UserDefaultsHotKeys.h"
#include "storage/FileSettingsStore.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace nerlo::shell {

// Who is told of what happens.
class ProgramListener {
  public:
    virtual ~ProgramListener() = default;
    virtual void cleaned() = 0;      // a cleaned text has reached the clipboard
    virtual void stateChanged() = 0; // perhaps automatic() or profileName()
};

class Program final {
  public:
    struct Parts {
        platform::MainQueue &mainQueue;
        platform::WorkerQueue &workerQueue;
        const Desktop &desktop; // with a clipboard
        settings::SettingsPaths paths;
        ProductLinks links;
    };

    // Makes everything, and reads the settings. All parts must outlive the program.
    explicit Program(Parts parts);
    // Saves what is not yet saved.
    ~Program();
    Program(const Program &) = delete;
    Program &operator=(const Program &) = delete;

    // Once, just before the event loop runs: shows what is to be seen, takes the hot keys, and
    // follows what other processes do with the settings.
    void start();
    // Not owned; null for none.
    void setListener(ProgramListener *listener) { listener_ = listener; }

    // The commands.
    void clean();
    // By the operation's index, switched on or not.
    void runOperation(std::int32_t index);
    void restore(std::function<void(clipboard::nrChangePasterboard::Restored)> handler);
    // Returns whether it is on now.
    bool setAutomatic(AutomaticMode mode);
    // By name, or by place in decimal digits, else a ready one by its id; UTF-8. False when there
    // is none.
    bool selectProfile(const std::string &nameOrPlace);
    // The one at this place in the list, counted from 0.
    void switchProfile(int place);
    void showPreferences() { delegate_->showPreferences(); }
    // Lets the user choose what is done to the text on the clipboard.
    void choose() { windows_.showChooser(); }
    // The program was started again.
    void activate();
    // English, UTF-8. `sessionBus`: others can reach the program over the bus.
    std::string doctor(bool sessionBus) const;
    // The same; nothing of the copied text.
    std::string why() const;
    void quit() { delegate_->quitApp(); }
    // One of these, as the command line of this start asks for it; false when there is no such
    // profile. What only a running program is asked for does nothing.
    bool perform(const Request &request);

    // Which profile cleans which copy: what is stored, or else the rows that are offered.
    std::vector<clipboard::CopyRule> copyRules() const;
    // As a gesture that can be taken back; `place` is where it is typed, if it is.
    void setCopyRules(const std::vector<clipboard::CopyRule> &rules, std::string_view place = {});
    // Whether copies from the program of the last copy are left alone, by a row that says nothing
    // else. It does nothing where the program is not known.
    std::string lastProgram() const { return watcher_.lastProgram(); } // empty: not known; UTF-8
    bool neverInLastProgram() const;
    void setNeverInLastProgram(bool never);
    // The answer to the question of a first start: adds and selects the ready profile "gentle", or
    // goes back to the first one.
    void chooseFirstRules(bool gentle);
    // What a profile's name in a rule is called: a ready one has a name in the user's language.
    std::u16string titleOf(const std::u16string &profile) const;

    bool automatic() const { return delegate_->automatic(); }
    std::string profileName() const; // of the selected one, UTF-8
    std::string backend() const;     // of the clipboard, for people; UTF-8

    // For the windows and the menu. The delegate is made last: false until it is there.
    bool complete() const { return delegate_.has_value(); }
    nrAppDelegate &delegate() { return *delegate_; }
    DesktopShell &windows() { return windows_; }
    settings::nrPreferences &preferences() { return preferences_; }
    storage::SettingsStore &store() { return store_; }
    clipboard::nrChangePasterboard &engine() { return engine_; }
    shortcuts::UserDefaultsHotKeys &hotKeys() { return hotKeys_; }
    const shortcuts::ShortcutTexts &shortcutTexts() const { return shortcutTexts_; }
    const Parts &parts() const { return parts_; }
    // An ICU locale id.
    const std::string &locale() const { return locale_; }
    // Tells the listener.
    void stateChanged();
    // The profiles have changed, or their shortcuts.
    void followProfileShortcuts();

  private:
    void connect();
    void selectReady(const settings::ReadyProfile &ready);
    clipboard::CopyTable copyTable() const;
    void tellDamages(); // those of the start, and again when there is a new one
    void registerHotKeys();
    void bindProfile(const std::string &name); // to the shortcut that is stored for it, if one is
    void followOtherProcesses();

    Parts parts_;
    const std::string locale_;
    ProgramListener *listener_ = nullptr;
    storage::FileSettingsStore store_;
    clipboard::nrChangePasterboard engine_;
    clipboard::nrPasteboardWatcher watcher_;
    shortcuts::ShortcutTexts shortcutTexts_;
    shortcuts::GlobalHotKeys globalHotKeys_;
    shortcuts::UserDefaultsHotKeys hotKeys_;
    settings::nrPreferences preferences_;
    // Before the windows, which ask in their constructor whether it is there; made last, ended
    // first.
    std::optional<nrAppDelegate> delegate_;
    DesktopShell windows_;
    platform::FolderWatch folders_;
    storage::SettingsStore::Observation automaticMode_;
    storage::SettingsStore::Observation selectedProfile_;
    storage::SettingsStore::Observation copyTable_;
    storage::SettingsStore::Observation profileShortcuts_;
    bool takesHotKeys_ = false;
    std::shared_ptr<void> refusals_;
    std::set<std::string> toldDamages_; // on the terminal
};

} // namespace nerlo::shell
