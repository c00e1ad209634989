// The preferences without their window: the profiles, the one that is edited, its find-and-replace
// list, and when which file is written.
//
// There is one edited profile, profileSelected(): the window shows it and reports edits, the
// preview and the engine read it, and each edit is in it, and told by the hooks, at once. Only the
// files wait. Everything runs on the main thread; no call here waits for longer than a file takes.
#pragma once

#include "platform/MainQueue.h"
#include "settings/EditHistory.h"
#include "settings/EditedProfile.h"
#include "settings/FindReplaceList.h"
#include "settings/OptionLists.h"
#include "settings/ProfilesFile.h"
#include "settings/RuleList.h"
#include "settings/SettingsPaths.h"
#include "storage/SettingsStore.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::settings {

// What happened to the list of rules, for the table that shows it.
enum class RulesUpdate {
    reload = 0,     // another list; its first row is shown
    removed = 1,    // the selected row has gone
    added = 2,      // a row at the end
    emptyField = 3, // no row is selected
    changed = 4,    // rows in other places, or other rows
};

// What the preferences ask of the rest of the program; each may be empty.
struct PreferencesHooks {
    // Refills the engine's options: once for each change of the selected profile.
    std::function<void(const ProfileRecord &)> setAllBools;
    std::function<void()> edited; // goes with it, for the preview
    // Stores the first start's hot key. A failure, also an exception, is dropped.
    std::function<void()> setDefaultShortcut;
    std::function<void()> profilesChanged; // names, their order, or which one is selected
    std::function<void()> controlsLoaded;  // all controls have new states
    std::function<void(RulesUpdate)> updateUI;
    // Goes with the next save that succeeds, which is told by an empty error.
    std::function<void(const std::string &error)> saveFailed;
    std::function<void()> damaged;        // loadErrors() has changed
    std::function<void()> historyChanged; // canUndo() or canRedo()
};

class nrPreferences {
  public:
    static constexpr std::chrono::milliseconds checkBoxDelay{1000};
    static constexpr std::chrono::milliseconds textFieldDelay{2000};

    // The instance that the program made; null while there is none.
    static nrPreferences *sharedInstance();

    // Prepares paths and option lists; reads nothing yet.
    nrPreferences(storage::SettingsStore &store, platform::MainQueue &queue, SettingsPaths paths,
                  Localize localize = {}, std::string language = "en",
                  storage::FileCalls &calls = storage::FileCalls::system());
    ~nrPreferences();
    nrPreferences(const nrPreferences &) = delete;
    nrPreferences &operator=(const nrPreferences &) = delete;

    PreferencesHooks &hooks() { return hooks_; }

    // First start and update.
    void firstRunPreferences();
    void firstRunCombobox();
    void convertAfterUpdate();

    // Profiles.
    void initProfilesItems(); // once, when everything is to be loaded
    const ProfileItems &profilesItems() const { return profilesItems_; }
    // Which of the two files could not be read, at the start or since, and why.
    std::vector<std::string> loadErrors() const;
    const ProfileRecord &profileSelected() const { return edited_.record(); }
    std::u16string profileName() const { return edited_.name(); }
    // The selected profile's place; the same as the tag of its menu item.
    int selectedItem() const { return selectedItem_; }
    // The pop-up's selected item; none when `selectedItem` has no item.
    std::optional<int> popupSelection() const { return popupSelection_; }
    void profilesSelect(std::optional<int> tag = {});
    // The user chose another profile: saves what waits, which may take over profiles of other
    // processes, and selects the one that was at `place`.
    void profilesSwitch(int place);
    // The place in the store may be another one: another process may have chosen a profile.
    void selectedPlaceChanged();
    void profilesAdd();
    // `beginning` is what the new profile holds besides its name.
    void profilesAddingCloseWindow(const std::u16string &name, ProfileRecord beginning = {});
    void profilesAddingCancelWindow();
    // Asks nobody: undo() brings it back, and it is kept among the removed ones. False when there
    // is none to remove, or when it could not be kept.
    bool profilesRemove();
    // Rows of the table of copies go on meaning it. Nothing for an empty name, or when the profile
    // of this id has gone.
    void profilesRename(std::uint64_t id, const std::u16string &name);
    // `place` is between profiles, from 0 to their number.
    void profilesMove(int from, int place);
    // Of the selected one, at the end, and selects it. It has the same name with a number.
    void profilesDuplicate();
    // The selected one holds `beginning` from now on; what it held is kept among the removed ones.
    // False as for profilesRemove().
    bool profilesReset(ProfileRecord beginning);
    ProfileRecord firstProfileRecord() const; // of a first start
    // Adds them at the end and selects none of them. False when they could not be saved yet.
    bool profilesImport(std::vector<ProfileRecord> records);
    // The newest first, as their file has them now.
    ProfileItems removedProfiles();
    // At the end, as profilesImport(); by its id in removedProfiles().
    void profilesRestore(std::uint64_t id);
    // The first profile with this name as it is now, edits and shared rules included; else the
    // ready one with this id.
    std::optional<ProfileRecord> recordNamed(std::u16string_view name) const;
    void saveSelectedProfileInDictionary();
    // False when the file could not be written; the changes go with the next save.
    bool saveChangesInProfiles();
    bool saveProfilesWithArray();
    void saveCurrentState() { profilesSelect(); }
    // Takes over what other processes have written; to be called when the folder has changed.
    void profilesFileChanged();
    // Writes at once what waits for its delay, and what could not be written before; for the
    // program's end. Empty when done, else why it could not be written now either.
    std::string savePending();

    // Controls. See EditedProfile::state().
    storage::PropertyValue state(std::string_view key) const { return edited_.state(key); }
    const std::vector<OptionList> &optionLists() const { return optionLists_; }
    // Any check box but the one-list box.
    void checkBoxChanged(std::string_view key, bool on);
    void controlTextDidChange(std::string_view key, std::u16string text);
    // A negative index: no item is selected.
    void comboBoxSelectionDidChange(std::string_view key, std::int64_t index);
    void sUpdateStatisticksValue(std::u16string text);
    // Whether the custom field beside a separator list ("udSortSeparator" or
    // "udRemoveDuplicateLinesSeparator") can be edited.
    bool customSeparatorEnabled(std::string_view separatorKey) const;
    // The fields beside the list of returns.
    struct ReturnsFields {
        std::u16string label;
        bool dimmed = false;
        bool firstEnabled = false;
        std::u16string firstPlaceholder;
        bool secondShown = false; // then also enabled
        std::u16string secondPlaceholder;
        bool operator==(const ReturnsFields &) const = default;
    };
    ReturnsFields returnsFields() const;

    // The edited profile has changed: the engine gets it now, and the file after 1 and 2 seconds,
    // counted from the last change.
    void setAllBoolsInChangePasteboard();
    void setAllBoolsInChangePasteboardForText();
    void setAllBoolsInChangePasteboardAfterDelay();

    // Find and replace.
    const FindReplaceList &findReplaceList() const { return findReplace_; }
    // The profile at this place as it would be after switching to it: the edited one, or the stored
    // one with the rules that it would use.
    ProfileRecord profileAt(int place) const;
    // The list that all profiles may share, used or not.
    storage::PropertyArray sharedRules() const;
    bool onlyOneProfile() const;
    void onlyOneProfileChanged(bool on); // the one-list box was clicked
    void OnlyOneProfileAction();
    void addNewFindReplace();
    void deleteFindReplace();
    void selectedRow(int row);                                // -1 for none
    void saveCurrentFindReplace(std::u16string find);         // of the selected row
    void controlTextDidChangeReplace(std::u16string replace); // of the selected row
    void saveCurrentFindReplaceCheckbox(int row, bool on);
    void acceptDrop(const std::vector<int> &rows, int dropRow);
    void saveCurrentFindReplaceList();
    void setRuleSamples(int row, const std::vector<RuleSample> &samples);
    // Into the list that is shown, as planImport() tells.
    void importRules(const RuleList &list);
    // Behind the selected rule, whatever else is in the list.
    void pasteRules(const RuleList &list);

    // What `change` does to the stored shortcuts, and nothing else, is one gesture.
    void changeShortcuts(const std::function<void()> &change) { asGesture({}, change); }

    // Stores the table of copies. `typing`: the place where it is typed, if it is.
    void copyTableChanged(storage::PropertyArray rows, std::string_view typing = {});

    // What was done to profiles, options, rules, shortcuts and copies, gesture by gesture; what
    // is typed into one place without a pause is one. A profile that was chosen is none.
    bool canUndo() const { return history_.canUndo(); }
    bool canRedo() const { return history_.canRedo(); }
    void undo();
    void redo();
    // What comes next is another gesture.
    void endTyping() { history_.endTyping(); }

  private:
    void asGesture(std::string_view typing, const std::function<void()> &change);
    EditedState editedState() const;
    static RecordItems carried(const RecordItems &now, const RecordItems &from,
                               const RecordItems &to);
    void carryOut(EditHistory::Change change);
    void carryOutCopyTable(const EditHistory::Change &change);
    void keepRemoved(const ProfileItems &before, const ProfileItems &after);
    bool keepSelected();
    int placeOf(std::uint64_t id) const;
    storage::PropertyDictionary storedShortcuts() const;
    void carryShortcuts(const EditHistory::Change &change);
    void carryProfiles(const EditHistory::Change &change);
    std::string placeOf(std::string_view part) const;
    void switchRulesOn();
    void createDir();
    void refreshProfilesMenu();
    void refreshProfilesMenuItems();
    void schedule(std::chrono::milliseconds delay);
    void fillEngine();
    void showSharedRules();
    void keepRules();
    void sharedFileChanged();
    void adoptRules(RecordItems rules);
    void updateUI(RulesUpdate update);
    std::string save();
    std::string writeSharedList();
    std::string writeProfiles();
    std::string report(std::string error);
    void adopt(ProfileItems items);

    storage::SettingsStore &store_;
    platform::MainQueue &queue_;
    SettingsPaths paths_;
    Localize localize_;
    std::string language_;
    storage::FileCalls &calls_;
    PreferencesHooks hooks_;
    std::vector<OptionList> optionLists_;

    ProfilesFile file_;
    RemovedProfilesFile removed_;
    ProfileItems profilesItems_;
    EditedProfile edited_;
    int selectedItem_ = 0;
    std::optional<int> popupSelection_;
    SharedFindReplaceFile sharedFile_;
    RecordItems sharedRules_;     // of all profiles, also while it is not shown
    FindReplaceList findReplace_; // the list that is shown
    platform::MainQueue::TaskId pending_ = 0;
    bool saveFailed_ = false;

    bool profilesAdding_ = false;
    EditHistory history_;
    bool inGesture_ = false;
};

} // namespace nerlo::settings
