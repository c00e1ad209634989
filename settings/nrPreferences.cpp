#include "settings/nrPreferences.h"

#include "settings/Migration.h"
#include "settings/ProfileTravel.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsKeys.h"
#include "storage/PropertyList.h"
#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

constexpr const char *sharedListKey = "sFindAndReplaceItems";
constexpr const char *ownListKey = "sFindAndReplaceItemsProfile";
constexpr const char *rulesSwitchKey = "sFindReplaceBool";
constexpr const char *onlyOneKey = "sOnlyOneProfile";

nrPreferences *instance = nullptr;

ProfileRecord firstProfile() {
    return {{"profileName", u"profile 1"}};
}

bool isIn(const RecordItems &items, std::uint64_t id) {
    return std::ranges::find(items, id, &RecordItem::id) != items.end();
}

// "Mail" of "Mail 2".
std::u16string_view withoutNumber(std::u16string_view name) {
    const auto last = name.find_last_not_of(u"0123456789");
    const bool numbered = last != name.npos && last > 0 && name[last] == u' ';
    return numbered && last + 1 < name.size() ? name.substr(0, last) : name;
}

} // namespace

nrPreferences *nrPreferences::sharedInstance() {
    return instance;
}

nrPreferences::nrPreferences(storage::SettingsStore &store, platform::MainQueue &queue,
                             SettingsPaths paths, Localize localize, std::string language,
                             storage::FileCalls &calls)
    : store_(store)
    , queue_(queue)
    , paths_(std::move(paths))
    , localize_(localize ? std::move(localize)
                         : [](std::u16string_view key) { return std::u16string(key); })
    , language_(std::move(language))
    , calls_(calls)
    , optionLists_(settings::optionLists(localize_))
    , file_(paths_.profiles, calls)
    , removed_(paths_.removedProfiles, calls)
    , sharedFile_(paths_.sharedFindReplace, calls)
    , findReplace_(localize_) {
    if (!instance) {
        instance = this;
    }
    for (RecordsFile *file :
         {static_cast<RecordsFile *>(&file_), static_cast<RecordsFile *>(&sharedFile_)}) {
        file->setDamageHandler([this] {
            if (hooks_.damaged) {
                hooks_.damaged();
            }
        });
    }
    createDir();
}

nrPreferences::~nrPreferences() {
    queue_.cancel(pending_);
    if (instance == this) {
        instance = nullptr;
    }
}

void nrPreferences::createDir() {
    storage::makeFolder(storage::folderOf(paths_.profiles), calls_);
}

// Reports a failed save, and the first successful one after it.
std::string nrPreferences::report(std::string error) {
    const bool failedBefore = std::exchange(saveFailed_, !error.empty());
    if ((saveFailed_ || failedBefore) && hooks_.saveFailed) {
        hooks_.saveFailed(error);
    }
    return error;
}

void nrPreferences::fillEngine() {
    if (hooks_.setAllBools) {
        hooks_.setAllBools(profileSelected());
    }
    if (hooks_.edited) {
        hooks_.edited();
    }
}

// --- First start and update ---

void nrPreferences::firstRunPreferences() {
    if (hooks_.setDefaultShortcut) {
        try {
            hooks_.setDefaultShortcut();
        } catch (...) {
            // The profile is made in any case: the user can still record the hot key.
        }
    }
    firstRunCombobox();
}

// Profiles that are there although nothing has been started yet (the store was lost, or the command
// line has imported some) stay behind the new one.
void nrPreferences::firstRunCombobox() {
    const ProfileRecord first = firstStartProfile(language_);
    profilesItems_ = file_.load();
    if (std::ranges::find(profilesItems_, first, &ProfileItem::record) != profilesItems_.end()) {
        return; // a first start that was interrupted has made it already
    }
    profilesItems_.insert(profilesItems_.begin(), file_.newItem(first));
    if (profilesItems_.size() == 1) {
        saveProfilesWithArray();
    } else {
        report(file_.replace(profilesItems_));
    }
}

void nrPreferences::convertAfterUpdate() {
    selectedItem_ = 0;
    profilesItems_ = {file_.newItem(migratedProfile(store_))};
    report(file_.replace(profilesItems_));
}

// --- Profiles ---

void nrPreferences::initProfilesItems() {
    if (auto items = file_.load(); !items.empty()) {
        profilesItems_ = std::move(items);
    } else if (!profilesItems_.empty()) {
        saveProfilesWithArray(); // the first start or the update may have failed to save them
    } else {
        profilesItems_ = {file_.newItem(firstProfile())};
        saveProfilesWithArray();
    }
    sharedRules_ = sharedFile_.load();
    if (sharedRules_.empty()) {
        showSharedRules(); // which adds a first rule if there is none
    }
    const std::int64_t stored = store_.integerForKey(selectedProfileKey);
    selectedItem_ = static_cast<int>(
        std::clamp<std::int64_t>(stored, -1, static_cast<std::int64_t>(profilesItems_.size()) + 1));
    refreshProfilesMenu();
    // The one-list box belongs to all profiles and keeps its state when another is selected; across
    // starts, the selected profile remembers it.
    if (popupSelection_) {
        const auto &record = profilesItems_[static_cast<std::size_t>(*popupSelection_)].record;
        const PropertyValue *onlyOne = record.find(onlyOneKey);
        edited_.set(onlyOneKey, onlyOne && onlyOne->boolValue() ? 1 : 0);
    }
    profilesSelect();
}

std::vector<std::string> nrPreferences::loadErrors() const {
    std::vector<std::string> errors{file_.loadError(), sharedFile_.loadError()};
    std::erase(errors, std::string());
    return errors;
}

void nrPreferences::refreshProfilesMenu() {
    const int count = static_cast<int>(profilesItems_.size());
    if (selectedItem_ > count) {
        selectedItem_ = count - 1;
    }
    popupSelection_ =
        selectedItem_ >= 0 && selectedItem_ < count ? std::optional(selectedItem_) : std::nullopt;
    refreshProfilesMenuItems();
}

void nrPreferences::refreshProfilesMenuItems() {
    if (hooks_.profilesChanged) {
        hooks_.profilesChanged();
    }
}

void nrPreferences::profilesSelect(std::optional<int> tag) {
    if (profilesItems_.empty()) {
        selectedItem_ = 0;
        popupSelection_.reset();
        edited_.load(firstProfile());
    } else {
        const int last = static_cast<int>(profilesItems_.size()) - 1;
        selectedItem_ = std::clamp(tag ? *tag : popupSelection_.value_or(0), 0, last);
        popupSelection_ = selectedItem_;
        edited_.load(profilesItems_[static_cast<std::size_t>(selectedItem_)].record);
    }
    for (const char *mirrored :
         {"udStatisticsValue", "udStatisticsDelaySwitcher", "udStatisticsDefaultPosition"}) {
        store_.set(mirrored, state(mirrored).integerValue());
    }
    store_.set(selectedProfileKey, selectedItem_);
    OnlyOneProfileAction();
    refreshProfilesMenuItems();
    if (hooks_.controlsLoaded) {
        hooks_.controlsLoaded();
    }
}

storage::PropertyArray nrPreferences::sharedRules() const {
    PropertyArray rules;
    for (const RecordItem &rule : sharedRules_) {
        rules.emplace_back(rule.record);
    }
    return rules;
}

ProfileRecord nrPreferences::profileAt(int place) const {
    if (place == selectedItem_) {
        return profileSelected();
    }
    ProfileRecord record = profilesItems_.at(static_cast<std::size_t>(place)).record;
    record.set(onlyOneKey, onlyOneProfile() ? 1 : 0);
    if (onlyOneProfile()) {
        record.set(sharedListKey, sharedRules());
    }
    return record;
}

void nrPreferences::profilesSwitch(int place) {
    if (place < 0 || static_cast<std::size_t>(place) >= profilesItems_.size()) {
        return;
    }
    const auto id = profilesItems_[static_cast<std::size_t>(place)].id;
    savePending();
    const auto now = std::ranges::find(profilesItems_, id, &ProfileItem::id);
    if (now != profilesItems_.end()) {
        profilesSelect(static_cast<int>(now - profilesItems_.begin()));
    }
}

// The list is looked at first: the place may be one in a list that we have not read yet.
void nrPreferences::selectedPlaceChanged() {
    const auto stored = store_.integerForKey(selectedProfileKey);
    profilesFileChanged();
    if (stored != selectedItem_) {
        profilesSwitch(selectedPlace(stored, profilesItems_.size()));
    }
}

void nrPreferences::saveSelectedProfileInDictionary() {
    edited_.complete();
    keepRules();
}

bool nrPreferences::saveChangesInProfiles() {
    return save().empty();
}

std::string nrPreferences::save() {
    if (profilesAdding_) {
        return {};
    }
    if (profilesItems_.empty()) {
        profilesItems_ = {file_.newItem(firstProfile())};
        edited_.set("profileName", firstProfile().begin()->second);
        selectedItem_ = 0;
        refreshProfilesMenu();
    }
    saveSelectedProfileInDictionary();
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    if (place < profilesItems_.size()) {
        profilesItems_[place].record = profileSelected();
    } else {
        profilesItems_.push_back(file_.newItem(profileSelected()));
    }
    const std::string rulesError = writeSharedList();
    const std::string error = writeProfiles();
    return report(error.empty() ? rulesError : error);
}

bool nrPreferences::saveProfilesWithArray() {
    return report(writeProfiles()).empty();
}

std::string nrPreferences::writeProfiles() {
    ProfileItems items = profilesItems_;
    std::string error = file_.save(items);
    if (error.empty()) {
        adopt(std::move(items));
    } else {
        createDir();
        if (auto others = file_.refreshed(profilesItems_)) {
            // Our own save failed; what other processes have saved is taken over all the same.
            adopt(std::move(*others));
        }
    }
    return error;
}

// Takes the list over from the file, where other processes may have written; the selected profile
// is followed to its new place, and loaded again where they have changed it.
void nrPreferences::adopt(ProfileItems items) {
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    const std::uint64_t id = place < profilesItems_.size() ? profilesItems_[place].id : 0;
    const auto sameNames = std::ranges::equal(
        items, profilesItems_, {},
        [](const ProfileItem &item) { return std::pair(item.id, profileNameOf(item.record)); },
        [](const ProfileItem &item) { return std::pair(item.id, profileNameOf(item.record)); });
    const auto now = std::ranges::find(items, id, &ProfileItem::id);
    const bool gone = id != 0 && now == items.end();
    const bool other = id != 0 && !gone && !(now->record == profilesItems_[place].record);
    if (id != 0 && !gone) {
        selectedItem_ = static_cast<int>(now - items.begin());
    }
    profilesItems_ = std::move(items);
    if (!sameNames) {
        refreshProfilesMenu();
    }
    if (gone || other) {
        profilesSelect(gone ? std::optional<int>() : std::optional(selectedItem_));
    } else if (!sameNames && id != 0) {
        store_.set(selectedProfileKey, selectedItem_);
    }
}

void nrPreferences::profilesFileChanged() {
    if (pending_ != 0) {
        return; // the save that is scheduled takes over what others wrote
    }
    if (auto items = file_.refreshed(profilesItems_)) {
        adopt(std::move(*items));
    }
    sharedFileChanged();
}

void nrPreferences::profilesAdd() {
    savePending();
    profilesAdding_ = true;
}

void nrPreferences::profilesAddingCloseWindow(const std::u16string &name, ProfileRecord beginning) {
    profilesAdding_ = false;
    if (name.empty()) {
        return;
    }
    asGesture({}, [&] {
        beginning.set("profileName", name);
        profilesItems_.push_back(file_.newItem(std::move(beginning)));
        selectedItem_ = static_cast<int>(profilesItems_.size()) - 1;
        refreshProfilesMenu();
        profilesSelect();
        saveChangesInProfiles();
    });
}

void nrPreferences::profilesAddingCancelWindow() {
    profilesAdding_ = false;
}

bool nrPreferences::profilesRemove() {
    const int tag = popupSelection_.value_or(0);
    if (tag < 0 || static_cast<std::size_t>(tag) >= profilesItems_.size()) {
        return false;
    }
    if (!keepSelected()) {
        return false;
    }
    asGesture({}, [&] {
        profilesItems_.erase(profilesItems_.begin() + tag);
        saveProfilesWithArray();
        refreshProfilesMenu();
        profilesSelect();
    });
    return true;
}

// Among the removed ones, as it is edited.
bool nrPreferences::keepSelected() {
    return report(removed_.add(profileSelected())).empty();
}

int nrPreferences::placeOf(std::uint64_t id) const {
    const auto item = std::ranges::find(profilesItems_, id, &ProfileItem::id);
    return item == profilesItems_.end() ? -1 : static_cast<int>(item - profilesItems_.begin());
}

void nrPreferences::profilesRename(std::uint64_t id, const std::u16string &name) {
    const int place = placeOf(id);
    if (place < 0 || name.empty()) {
        return;
    }
    ProfileRecord &record = profilesItems_[static_cast<std::size_t>(place)].record;
    const std::u16string before = profileNameOf(record);
    if (before == name) {
        return;
    }
    asGesture({}, [&] {
        record.set("profileName", name);
        if (place == selectedItem_) {
            edited_.set("profileName", name);
        }
        renameInStore(store_, profilesItems_, before, name);
        refreshProfilesMenu();
        saveChangesInProfiles();
    });
}

void nrPreferences::profilesMove(int from, int place) {
    const int count = static_cast<int>(profilesItems_.size());
    if (from < 0 || from >= count || place < 0 || place > count) {
        return;
    }
    asGesture({}, [&] {
        const std::uint64_t selected = editedState().selected;
        const auto begin = profilesItems_.begin();
        if (place > from) {
            std::rotate(begin + from, begin + from + 1, begin + place);
        } else {
            std::rotate(begin + place, begin + from, begin + from + 1);
        }
        selectedItem_ = placeOf(selected);
        refreshProfilesMenu();
        saveChangesInProfiles();
        store_.set(selectedProfileKey, selectedItem_);
    });
}

void nrPreferences::profilesDuplicate() {
    const auto isThere = [&](const std::u16string &name) {
        return std::ranges::any_of(profilesItems_, [&](const ProfileItem &item) {
            return profileNameOf(item.record) == name;
        });
    };
    const std::u16string current = profileName();
    std::u16string name;
    for (int number = 2; name.empty() || isThere(name); ++number) {
        name = std::u16string(withoutNumber(current)) + u' ' +
               text::utf8ToUtf16(std::to_string(number)).text;
    }
    profilesAdd();
    profilesAddingCloseWindow(name, profileSelected());
}

ProfileRecord nrPreferences::firstProfileRecord() const {
    return firstStartProfile(language_);
}

bool nrPreferences::profilesReset(ProfileRecord beginning) {
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    if (place >= profilesItems_.size() || !keepSelected()) {
        return false;
    }
    asGesture({}, [&] {
        beginning.set("profileName", profileName());
        profilesItems_[place].record = std::move(beginning);
        profilesSelect();
        saveChangesInProfiles();
    });
    return true;
}

bool nrPreferences::profilesImport(std::vector<ProfileRecord> records) {
    bool saved = false;
    asGesture({}, [&] {
        const bool first = profilesItems_.empty();
        for (ProfileRecord &record : records) {
            profilesItems_.push_back(file_.newItem(std::move(record)));
        }
        refreshProfilesMenu();
        if (first) {
            profilesSelect(0); // else what stands for no profile would be saved in its place
        }
        saved = saveChangesInProfiles();
    });
    return saved;
}

ProfileItems nrPreferences::removedProfiles() {
    ProfileItems items = removed_.load();
    std::ranges::reverse(items);
    return items;
}

void nrPreferences::profilesRestore(std::uint64_t id) {
    const ProfileItems items = removed_.load();
    const auto found = std::ranges::find(items, id, &ProfileItem::id);
    if (found != items.end() && profilesImport({found->record})) {
        report(removed_.take(found->record));
    }
}

std::optional<ProfileRecord> nrPreferences::recordNamed(std::u16string_view name) const {
    const auto item = std::ranges::find_if(profilesItems_, [&](const ProfileItem &candidate) {
        return profileNameOf(candidate.record) == name;
    });
    if (item == profilesItems_.end()) {
        const ReadyProfile *ready = findReadyProfile(name);
        return ready ? std::optional(readyRecord(*ready, std::u16string(name))) : std::nullopt;
    }
    if (item - profilesItems_.begin() == selectedItem_) {
        return profileSelected();
    }
    ProfileRecord record = item->record;
    const PropertyValue *onlyOne = record.find(onlyOneKey);
    if (onlyOne && onlyOne->boolValue()) {
        record.set(sharedListKey, sharedRules());
    }
    return record;
}

// --- Controls ---

void nrPreferences::checkBoxChanged(std::string_view key, bool on) {
    asGesture({}, [&] {
        edited_.set(key, on ? 1 : 0);
        setAllBoolsInChangePasteboard();
    });
}

void nrPreferences::controlTextDidChange(std::string_view key, std::u16string text) {
    asGesture(key, [&] {
        edited_.set(key, std::move(text));
        setAllBoolsInChangePasteboardForText();
    });
}

void nrPreferences::comboBoxSelectionDidChange(std::string_view key, std::int64_t index) {
    asGesture({}, [&] {
        edited_.choose(key, index);
        if (key == "udStatisticsDefaultPosition") {
            store_.set(key, state(key));
        }
        setAllBoolsInChangePasteboard();
    });
}

void nrPreferences::sUpdateStatisticksValue(std::u16string text) {
    constexpr auto key = "udStatisticsValue";
    asGesture(key, [&] {
        store_.set(key, PropertyValue(text).integerValue());
        edited_.set(key, std::move(text));
        setAllBoolsInChangePasteboard();
    });
}

bool nrPreferences::customSeparatorEnabled(std::string_view separatorKey) const {
    return state(separatorKey) == PropertyValue(sortCustomSeparatorPosition);
}

nrPreferences::ReturnsFields nrPreferences::returnsFields() const {
    switch (state("udChangeReturnsOption").integerValue()) {
    case returnsWithCustomText:
        return {localize_(u"sIndent"), false, true, localize_(u"Custom"), false, {}};
    case returnsWithTags:
        return {localize_(u"sTag"), false, true, u"[img]", true, u"[/img]"};
    default:
        return {localize_(u"sIndent"), true, false, localize_(u"Custom"), false, {}};
    }
}

void nrPreferences::setAllBoolsInChangePasteboard() {
    fillEngine();
    schedule(checkBoxDelay);
}

void nrPreferences::setAllBoolsInChangePasteboardForText() {
    fillEngine();
    schedule(textFieldDelay);
}

void nrPreferences::schedule(std::chrono::milliseconds delay) {
    queue_.cancel(pending_);
    pending_ = queue_.postAfter(delay, [this] {
        pending_ = 0;
        setAllBoolsInChangePasteboardAfterDelay();
    });
}

void nrPreferences::setAllBoolsInChangePasteboardAfterDelay() {
    endTyping(); // after a pause
    saveChangesInProfiles();
}

std::string nrPreferences::savePending() {
    if (pending_ == 0 && !saveFailed_) {
        return {};
    }
    queue_.cancel(std::exchange(pending_, 0));
    return save();
}

// --- Find and replace ---

bool nrPreferences::onlyOneProfile() const {
    return state(onlyOneKey).boolValue();
}

void nrPreferences::onlyOneProfileChanged(bool on) {
    asGesture({}, [&] {
        edited_.set(onlyOneKey, on ? 1 : 0);
        OnlyOneProfileAction();
    });
}

void nrPreferences::OnlyOneProfileAction() {
    if (onlyOneProfile()) {
        if (auto rules = sharedFile_.refreshed(sharedRules_)) {
            sharedRules_ = std::move(*rules);
        }
        showSharedRules();
        keepRules();
    } else {
        const PropertyValue *own = profileSelected().find(ownListKey);
        const auto *items = own ? own->as<PropertyArray>() : nullptr;
        findReplace_.setItems(items ? *items : PropertyArray());
    }
    findReplace_.select(-1);
    updateUI(RulesUpdate::reload);
    updateUI(RulesUpdate::emptyField);
    setAllBoolsInChangePasteboard();
}

// A list without rules gets one to start from.
void nrPreferences::showSharedRules() {
    PropertyArray items;
    std::vector<std::uint64_t> ids;
    for (const RecordItem &rule : sharedRules_) {
        items.emplace_back(rule.record);
        ids.push_back(rule.id);
    }
    findReplace_.setItems(std::move(items), std::move(ids));
    if (sharedRules_.empty()) {
        findReplace_.append(sharedFile_.newId());
        sharedRules_ = {{findReplace_.ids()[0], *findReplace_.items()[0].as<PropertyDictionary>()}};
        report(writeSharedList());
    }
}

// The edits belong to the edited profile, so the shared list is copied into it.
void nrPreferences::keepRules() {
    const PropertyArray &items = findReplace_.items();
    edited_.set(onlyOneProfile() ? sharedListKey : ownListKey, items);
    if (onlyOneProfile()) {
        sharedRules_.clear();
        for (std::size_t row = 0; row < items.size(); ++row) {
            sharedRules_.push_back({findReplace_.ids()[row], *items[row].as<PropertyDictionary>()});
        }
    }
}

void nrPreferences::sharedFileChanged() {
    if (auto rules = sharedFile_.refreshed(sharedRules_)) {
        adoptRules(std::move(*rules));
    }
}

// Takes the list over from the file; the selected rule is followed to its new place.
void nrPreferences::adoptRules(RecordItems rules) {
    const bool same =
        std::ranges::equal(rules, sharedRules_, {}, &RecordItem::record, &RecordItem::record);
    sharedRules_ = std::move(rules);
    if (same || !onlyOneProfile()) {
        return;
    }
    const int row = findReplace_.lastClickedRow();
    const std::uint64_t id = row < 0 ? 0 : findReplace_.ids()[static_cast<std::size_t>(row)];
    showSharedRules();
    const auto &ids = findReplace_.ids();
    const auto place = std::ranges::find(ids, id);
    findReplace_.select(place == ids.end() ? -1 : static_cast<int>(place - ids.begin()));
    keepRules();
    updateUI(RulesUpdate::changed);
    setAllBoolsInChangePasteboard();
}

void nrPreferences::updateUI(RulesUpdate update) {
    if (hooks_.updateUI) {
        hooks_.updateUI(update);
    }
}

// Who makes a first rule wants it applied.
void nrPreferences::switchRulesOn() {
    if (findReplace_.items().empty()) {
        checkBoxChanged(rulesSwitchKey, true);
        if (hooks_.controlsLoaded) {
            hooks_.controlsLoaded();
        }
    }
}

void nrPreferences::addNewFindReplace() {
    asGesture({}, [&] {
        switchRulesOn();
        findReplace_.append(sharedFile_.newId());
        updateUI(RulesUpdate::added);
        saveCurrentFindReplaceList();
    });
}

void nrPreferences::deleteFindReplace() {
    if (findReplace_.removeSelected()) {
        asGesture({}, [&] {
            updateUI(RulesUpdate::removed);
            findReplace_.select(-1);
            updateUI(RulesUpdate::emptyField);
            saveCurrentFindReplaceList();
        });
    }
}

void nrPreferences::selectedRow(int row) {
    findReplace_.select(row);
}

// A place in the list, for what is typed there.
std::string nrPreferences::placeOf(std::string_view part) const {
    return std::string(part) + std::to_string(findReplace_.lastClickedRow());
}

void nrPreferences::saveCurrentFindReplace(std::u16string find) {
    asGesture(placeOf("find"), [&] {
        findReplace_.setFind(std::move(find));
        keepRules();
        setAllBoolsInChangePasteboardForText();
    });
}

void nrPreferences::controlTextDidChangeReplace(std::u16string replace) {
    asGesture(placeOf("replace"), [&] {
        findReplace_.setReplacement(std::move(replace));
        keepRules();
        setAllBoolsInChangePasteboardForText();
    });
}

void nrPreferences::setRuleSamples(int row, const std::vector<RuleSample> &samples) {
    asGesture(placeOf("samples"), [&] {
        findReplace_.setSamples(row, storedSamples(samples));
        keepRules();
        setAllBoolsInChangePasteboardForText();
    });
}

void nrPreferences::saveCurrentFindReplaceCheckbox(int row, bool on) {
    asGesture({}, [&] {
        findReplace_.setCheckbox(row, on);
        keepRules();
        setAllBoolsInChangePasteboard();
    });
}

void nrPreferences::acceptDrop(const std::vector<int> &rows, int dropRow) {
    asGesture({}, [&] {
        findReplace_.move(rows, dropRow);
        updateUI(RulesUpdate::changed);
        keepRules();
        setAllBoolsInChangePasteboard();
    });
}

void nrPreferences::importRules(const RuleList &list) {
    asGesture({}, [&] {
        switchRulesOn();
        std::vector<std::uint64_t> ids = findReplace_.ids();
        PropertyArray items = imported(list, findReplace_.items());
        while (ids.size() < items.size()) {
            ids.push_back(sharedFile_.newId());
        }
        findReplace_.setItems(std::move(items), std::move(ids));
        updateUI(RulesUpdate::changed);
        saveCurrentFindReplaceList();
    });
}

void nrPreferences::pasteRules(const RuleList &list) {
    asGesture({}, [&] {
        switchRulesOn();
        std::vector<std::uint64_t> ids;
        for (std::size_t rule = 0; rule < list.rules.size(); ++rule) {
            ids.push_back(sharedFile_.newId());
        }
        findReplace_.insert(storedRules(list), ids);
        updateUI(RulesUpdate::changed);
        saveCurrentFindReplaceList();
    });
}

void nrPreferences::saveCurrentFindReplaceList() {
    keepRules();
    if (onlyOneProfile()) {
        report(writeSharedList());
    }
    setAllBoolsInChangePasteboard();
}

void nrPreferences::copyTableChanged(storage::PropertyArray rows, std::string_view typing) {
    asGesture(typing, [&] {
        store_.set(copyTableKey, std::move(rows));
        schedule(textFieldDelay); // after which what is typed is another gesture
    });
}

// --- History ---

EditedState nrPreferences::editedState() const {
    EditedState state{profilesItems_, sharedRules_, 0, onlyOneProfile(), storedShortcuts()};
    if (const PropertyValue *rows = store_.find(copyTableKey)) {
        state.copyTable = *rows;
    }
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    if (place < state.profiles.size()) {
        state.profiles[place].record = profileSelected();
        state.selected = state.profiles[place].id;
    }
    return state;
}

storage::PropertyDictionary nrPreferences::storedShortcuts() const {
    storage::PropertyDictionary shortcuts;
    for (const SettingsKey &key : settingsKeys()) {
        const auto *value = key.kind == SettingKind::HotKey ? store_.find(key.key) : nullptr;
        if (value) {
            shortcuts.set(key.key, *value);
        }
    }
    for (const auto &[key, value] : store_.values()) {
        if (key.starts_with(profileHotKeyPrefix)) {
            shortcuts.set(key, value);
        }
    }
    return shortcuts;
}

void nrPreferences::asGesture(std::string_view typing, const std::function<void()> &change) {
    if (inGesture_) {
        change();
        return;
    }
    EditedState before = editedState();
    inGesture_ = true;
    try {
        change();
    } catch (...) {
        inGesture_ = false;
        throw;
    }
    inGesture_ = false;
    history_.add(std::move(before), editedState(), typing);
    if (hooks_.historyChanged) {
        hooks_.historyChanged();
    }
}

void nrPreferences::undo() {
    if (canUndo()) {
        carryOut(history_.undo());
    }
}

void nrPreferences::redo() {
    if (canRedo()) {
        carryOut(history_.redo());
    }
}

// What a gesture had added goes, also where a save or others have completed it since.
RecordItems nrPreferences::carried(const RecordItems &now, const RecordItems &from,
                                   const RecordItems &to) {
    RecordItems items = mergeRecords(from, to, now);
    std::erase_if(
        items, [&](const RecordItem &item) { return isIn(from, item.id) && !isIn(to, item.id); });
    return items;
}

// A gesture of shortcuts alone leaves alone which profile is selected.
void nrPreferences::carryOut(EditHistory::Change change) {
    const EditedState &from = change.from;
    const EditedState &to = change.to;
    carryShortcuts(change);
    if (!(from.profiles == to.profiles && from.sharedRules == to.sharedRules &&
          from.onlyOne == to.onlyOne && from.copyTable == to.copyTable)) {
        carryProfiles(change);
    }
    if (hooks_.historyChanged) {
        hooks_.historyChanged();
    }
}

// One that others have changed meanwhile stays.
void nrPreferences::carryShortcuts(const EditHistory::Change &change) {
    const auto same = [](const PropertyValue *one, const PropertyValue *other) {
        return one && other ? *one == *other : one == other;
    };
    const auto carry = [&](const std::string &key) {
        const auto *from = change.from.shortcuts.find(key);
        const auto *to = change.to.shortcuts.find(key);
        if (same(from, to) || !same(from, store_.find(key))) {
            return;
        }
        if (to) {
            store_.set(key, *to);
        } else {
            store_.remove(key);
        }
    };
    // Those that go are first, so that their keys are free for those that come.
    for (const auto &[key, value] : change.from.shortcuts) {
        carry(key);
    }
    for (const auto &[key, value] : change.to.shortcuts) {
        carry(key);
    }
}

namespace {

// A rule that has come is selected, else the place stays.
int rowAfter(const PropertyArray &before, const PropertyArray &after, int row) {
    return after.size() > before.size()
               ? static_cast<int>(std::ranges::mismatch(before, after).in2 - after.begin())
               : std::min(row, static_cast<int>(after.size()) - 1);
}

} // namespace

void nrPreferences::carryProfiles(const EditHistory::Change &change) {
    const EditedState now = editedState();
    const PropertyArray rules = findReplace_.items();
    const int row = findReplace_.lastClickedRow();
    profilesItems_ = carried(now.profiles, change.from.profiles, change.to.profiles);
    keepRemoved(now.profiles, profilesItems_);
    sharedRules_ = carried(now.sharedRules, change.from.sharedRules, change.to.sharedRules);
    carryOutCopyTable(change);
    edited_.set(onlyOneKey, change.to.onlyOne ? 1 : 0);
    const auto selected = std::ranges::find(profilesItems_, change.to.selected, &ProfileItem::id);
    if (selected != profilesItems_.end()) {
        selectedItem_ = static_cast<int>(selected - profilesItems_.begin());
    }
    refreshProfilesMenu();
    profilesSelect();
    const bool sameList = now.selected == change.to.selected && now.onlyOne == change.to.onlyOne;
    const PropertyArray &shown = findReplace_.items();
    findReplace_.select(rowAfter(sameList ? rules : shown, shown, row));
    updateUI(RulesUpdate::changed);
}

// Its rows have no ids: what others have made of the table meanwhile stays as a whole.
void nrPreferences::carryOutCopyTable(const EditHistory::Change &change) {
    if (change.from.copyTable == change.to.copyTable ||
        !(editedState().copyTable == change.from.copyTable)) {
        return;
    }
    if (change.to.copyTable) {
        store_.set(copyTableKey, *change.to.copyTable);
    } else {
        store_.remove(copyTableKey);
    }
}

// Whatever way a profile goes, it can be restored; one that is back need not be.
void nrPreferences::keepRemoved(const ProfileItems &before, const ProfileItems &after) {
    for (const ProfileItem &item : before) {
        if (!isIn(after, item.id)) {
            report(removed_.add(item.record));
        }
    }
    for (const ProfileItem &item : after) {
        if (!isIn(before, item.id)) {
            report(removed_.take(item.record));
        }
    }
}

std::string nrPreferences::writeSharedList() {
    if (!sharedFile_.differs(sharedRules_)) {
        sharedFileChanged();
        return {};
    }
    RecordItems rules = sharedRules_;
    std::string error = sharedFile_.save(rules);
    if (error.empty()) {
        adoptRules(std::move(rules));
    } else {
        createDir();
    }
    return error;
}

} // namespace nerlo::settings
