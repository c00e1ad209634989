#include "settings/nrPreferences.h"

#include "settings/Migration.h"
#include "settings/SettingsKeys.h"
#include "storage/PropertyList.h"
#include "storage/SafeFile.h"

#include <algorithm>
#include <utility>

namespace nerlo::settings {

namespace {

using storage::PropertyArray;
using storage::PropertyValue;

constexpr const char *selectedItemKey = "udSelectedProfileItem";
constexpr const char *sharedListKey = "sFindAndReplaceItems";
constexpr const char *ownListKey = "sFindAndReplaceItemsProfile";
constexpr const char *onlyOneKey = "sOnlyOneProfile";

nrPreferences *instance = nullptr;

// Sets a flag for a scope; within it, another scope of the same flag changes nothing.
class ScopedFlag {
  public:
    explicit ScopedFlag(bool &flag)
        : flag_(flag)
        , before_(std::exchange(flag, true)) {}
    ~ScopedFlag() { flag_ = before_; }
    ScopedFlag(const ScopedFlag &) = delete;
    ScopedFlag &operator=(const ScopedFlag &) = delete;

  private:
    bool &flag_;
    bool before_;
};

ProfileRecord firstProfile() {
    return {{"profileName", u"profile 1"}};
}

std::u16string decimal(std::int64_t number) {
    return PropertyValue(number).stringValue();
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
    , findReplace_(localize_) {
    if (!instance) {
        instance = this;
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

bool nrPreferences::report(const std::string &error) {
    const bool failedBefore = std::exchange(saveFailed_, !error.empty());
    if ((saveFailed_ || failedBefore) && hooks_.saveFailed) {
        hooks_.saveFailed(error);
    }
    return error.empty();
}

void nrPreferences::fillEngine() {
    if (hooks_.setAllBools) {
        hooks_.setAllBools(profileSelected_);
    }
}

// --- First start and update ---

void nrPreferences::firstRunPreferences() {
    if (hooks_.setDefaultShortcut) {
        try {
            hooks_.setDefaultShortcut();
        } catch (...) {
            // The profile is made all the same; the hot key can be recorded by hand.
        }
    }
    firstRunCombobox();
}

// Profiles that are there although nothing has been started yet (the store was lost, or the command
// line has imported some) stay behind the new one.
void nrPreferences::firstRunCombobox() {
    profileSelected_ = firstStartProfile(language_);
    profileName_ = profileNameOf(profileSelected_);
    profilesItems_ = file_.load();
    if (std::ranges::find(profilesItems_, profileSelected_, &ProfileItem::record) !=
        profilesItems_.end()) {
        return; // a first start that was ended before it was through has made it
    }
    profilesItems_.insert(profilesItems_.begin(), file_.newItem(profileSelected_));
    if (profilesItems_.size() == 1) {
        saveProfilesWithArray();
    } else {
        report(file_.replace(profilesItems_));
    }
}

void nrPreferences::convertAfterUpdate() {
    selectedItem_ = 0;
    profileSelected_ = migratedProfile(store_);
    profileName_ = profileNameOf(profileSelected_);
    profilesItems_ = {file_.newItem(profileSelected_)};
    report(file_.replace(profilesItems_));
}

// --- Profiles ---

void nrPreferences::initProfilesItems() {
    if (auto items = file_.load(); !items.empty()) {
        profilesItems_ = std::move(items);
    } else if (!profilesItems_.empty()) {
        saveProfilesWithArray(); // of the first start or the update, which could not save them
    } else {
        profilesItems_ = {file_.newItem(firstProfile())};
        profileName_ = profileNameOf(profilesItems_.front().record);
        saveProfilesWithArray();
    }
    const auto shared = readSharedFindReplace(paths_, calls_, &sharedListError_);
    if (!shared || shared->empty()) {
        findReplace_.setItems({});
        findReplace_.append();
        writeSharedList();
    }
    const std::int64_t stored = store_.integerForKey(selectedItemKey);
    selectedItem_ = static_cast<int>(
        std::clamp<std::int64_t>(stored, -1, static_cast<std::int64_t>(profilesItems_.size()) + 1));
    refreshProfilesMenu();
    // The one-list box belongs to all profiles and keeps its state when another is selected; across
    // starts, the selected profile remembers it.
    if (popupSelection_) {
        const auto &record = profilesItems_[static_cast<std::size_t>(*popupSelection_)].record;
        const PropertyValue *onlyOne = record.find(onlyOneKey);
        controls_.set(onlyOneKey, onlyOne && onlyOne->boolValue() ? 1 : 0);
    }
    profilesSelect();
    fillEngine();
}

std::vector<std::string> nrPreferences::loadErrors() const {
    std::vector<std::string> errors{file_.loadError(), sharedListError_};
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
    if (blockReadWhileSaving_) {
        return;
    }
    const ScopedFlag loading(blockSaveProfileToDictionary_);
    if (profilesItems_.empty()) {
        selectedItem_ = 0;
        profileSelected_ = firstProfile();
        popupSelection_.reset();
    } else {
        const int last = static_cast<int>(profilesItems_.size()) - 1;
        selectedItem_ = std::clamp(tag ? *tag : popupSelection_.value_or(0), 0, last);
        profileSelected_ = profilesItems_[static_cast<std::size_t>(selectedItem_)].record;
        popupSelection_ = selectedItem_;
    }
    profileName_ = profileNameOf(profileSelected_);
    loadControls();
    const auto mirror = [this](const char *key, std::int64_t value) { store_.set(key, value); };
    mirror("udStatisticsValue", controls_.find("udStatisticsValue")->integerValue());
    mirror("udStatisticsDelaySwitcher",
           controls_.find("udStatisticsDelaySwitcher")->integerValue());
    mirror("udStatisticsDefaultPosition",
           controls_.find("udStatisticsDefaultPosition")->integerValue());
    OnlyOneProfileAction();
    store_.set(selectedItemKey, selectedItem_);
    store_.synchronize();
    fillEngine();
    refreshProfilesMenuItems();
    if (hooks_.controlsLoaded) {
        hooks_.controlsLoaded();
    }
}

void nrPreferences::profilesSwitch(int place) {
    if (place < 0 || static_cast<std::size_t>(place) >= profilesItems_.size()) {
        return;
    }
    const auto id = profilesItems_[static_cast<std::size_t>(place)].id;
    savePending(); // which may take over profiles of other processes
    const auto now = std::ranges::find(profilesItems_, id, &ProfileItem::id);
    if (now != profilesItems_.end()) {
        profilesSelect(static_cast<int>(now - profilesItems_.begin()));
    }
}

void nrPreferences::loadControls() {
    for (const SettingsKey &row : profileKeys()) {
        const PropertyValue *value = profileSelected_.find(row.key);
        if (row.key == onlyOneKey || row.key == "profileName") {
            continue;
        }
        switch (row.kind) {
        case SettingKind::Switch:
            controls_.set(row.key, value && value->boolValue() ? 1 : 0);
            break;
        case SettingKind::Index:
            controls_.set(row.key, value ? value->integerValue() : 0);
            break;
        case SettingKind::Text:
            if (row.key == "udStatisticsValue" && value) {
                controls_.set(row.key, decimal(value->integerValue()));
            } else {
                controls_.set(row.key, value ? value->stringValue() : std::u16string());
            }
            break;
        default:
            break; // the lists of rules have a table of their own
        }
    }
}

void nrPreferences::saveSelectedProfileInDictionary() {
    if (blockSaveProfileToDictionary_) {
        return;
    }
    const ScopedFlag reading(blockReadWhileSaving_);
    profileSelected_.set("profileName", profileName_);
    for (const SettingsKey &row : profileKeys()) {
        if (const PropertyValue *state = controls_.find(row.key)) {
            profileSelected_.set(row.key, *state);
        }
    }
    saveCurrentFindReplaceList();
}

bool nrPreferences::saveChangesInProfiles() {
    if (profilesAdding_) {
        return true;
    }
    if (profilesItems_.empty()) {
        profilesItems_ = {file_.newItem(firstProfile())};
        profileName_ = profileNameOf(profilesItems_.front().record);
        selectedItem_ = 0;
        refreshProfilesMenu();
    }
    saveSelectedProfileInDictionary();
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    if (place < profilesItems_.size()) {
        profilesItems_[place].record = profileSelected_;
    } else {
        profilesItems_.push_back(file_.newItem(profileSelected_));
    }
    return saveProfilesWithArray();
}

bool nrPreferences::saveProfilesWithArray() {
    if (profilesSaving_) {
        return false;
    }
    ProfileItems items = profilesItems_;
    std::string error;
    {
        const ScopedFlag saving(profilesSaving_);
        error = file_.save(items);
        if (!error.empty()) {
            createDir();
        }
    }
    if (error.empty()) {
        adopt(std::move(items));
    } else if (auto others = file_.refreshed(profilesItems_)) {
        adopt(std::move(*others)); // what other processes have saved is there all the same
    }
    return report(error);
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
        store_.set(selectedItemKey, selectedItem_);
        store_.synchronize();
    }
}

void nrPreferences::profilesFileChanged() {
    if (profilesSaving_ || pending_ != 0) {
        return; // the save that is on its way takes over what others wrote
    }
    if (unsaved()) {
        setAllBoolsInChangePasteboard(); // as above, with what combo boxes have changed
    } else if (auto items = file_.refreshed(profilesItems_)) {
        adopt(std::move(*items));
    }
}

void nrPreferences::profilesAdd() {
    profilesAdding_ = true;
}

void nrPreferences::profilesAddingCloseWindow(const std::u16string &name) {
    profilesAdding_ = false;
    if (name.empty()) {
        return;
    }
    profileName_ = name;
    profilesItems_.push_back(file_.newItem({{"profileName", name}}));
    selectedItem_ = static_cast<int>(profilesItems_.size()) - 1;
    refreshProfilesMenu();
    profilesSelect();
    saveChangesInProfiles();
}

void nrPreferences::profilesAddingCancelWindow() {
    profilesAdding_ = false;
}

void nrPreferences::profilesRemove() {
    const int tag = popupSelection_.value_or(0);
    if (tag < 0 || static_cast<std::size_t>(tag) >= profilesItems_.size()) {
        return;
    }
    const auto [id, record] = profilesItems_[static_cast<std::size_t>(tag)];
    if (hooks_.confirmRemoval && !hooks_.confirmRemoval(profileNameOf(record))) {
        return;
    }
    // While the question stood, the list may have taken over what other processes wrote.
    if (std::erase_if(profilesItems_, [id = id](const auto &item) { return item.id == id; }) == 0) {
        return;
    }
    saveProfilesWithArray();
    refreshProfilesMenu();
    profilesSelect();
}

// --- Controls ---

void nrPreferences::checkBoxChanged(std::string_view key, bool on) {
    controls_.set(key, on ? 1 : 0);
    setAllBoolsInChangePasteboard();
}

void nrPreferences::controlTextDidChange(std::string_view key, std::u16string text) {
    controls_.set(key, std::move(text));
    setAllBoolsInChangePasteboardForText();
}

void nrPreferences::comboBoxSelectionDidChange(std::string_view key, std::int64_t index) {
    controls_.set(key, index);
    profileSelected_.set(key, std::max<std::int64_t>(index, 0));
    if (key == "udStatisticsDefaultPosition") {
        store_.set(key, std::max<std::int64_t>(index, 0));
        store_.synchronize();
    }
    fillEngine();
}

void nrPreferences::sUpdateStatisticksValue(std::u16string text) {
    store_.set("udStatisticsValue", PropertyValue(text).integerValue());
    store_.synchronize();
    controls_.set("udStatisticsValue", std::move(text));
    setAllBoolsInChangePasteboard();
}

bool nrPreferences::customSeparatorEnabled(std::string_view separatorKey) const {
    const PropertyValue *index = controls_.find(separatorKey);
    return index && index->integerValue() == sortCustomSeparatorPosition;
}

nrPreferences::ReturnsFields nrPreferences::returnsFields() const {
    const PropertyValue *index = controls_.find("udChangeReturnsOption");
    switch (index ? index->integerValue() : 0) {
    case returnsWithCustomText:
        return {localize_(u"sIndent"), false, true, localize_(u"Custom"), false, {}};
    case returnsWithTags:
        return {localize_(u"sTag"), false, true, u"[img]", true, u"[/img]"};
    default:
        return {localize_(u"sIndent"), true, false, localize_(u"Custom"), false, {}};
    }
}

void nrPreferences::setAllBoolsInChangePasteboard() {
    schedule(checkBoxDelay);
}

void nrPreferences::setAllBoolsInChangePasteboardForText() {
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
    saveChangesInProfiles();
    fillEngine();
}

bool nrPreferences::unsaved() const {
    const auto place = static_cast<std::size_t>(std::max(selectedItem_, 0));
    return pending_ != 0 ||
           (place < profilesItems_.size() && !(profilesItems_[place].record == profileSelected_));
}

void nrPreferences::savePending() {
    if (unsaved()) {
        queue_.cancel(std::exchange(pending_, 0));
        setAllBoolsInChangePasteboardAfterDelay();
    }
}

// --- Find and replace ---

bool nrPreferences::onlyOneProfile() const {
    const PropertyValue *state = controls_.find(onlyOneKey);
    return state && state->boolValue();
}

void nrPreferences::onlyOneProfileChanged(bool on) {
    controls_.set(onlyOneKey, on ? 1 : 0);
    OnlyOneProfileAction();
}

void nrPreferences::OnlyOneProfileAction() {
    if (onlyOneProfile()) {
        PropertyArray shared = readSharedList();
        const bool empty = shared.empty();
        findReplace_.setItems(std::move(shared));
        if (empty) {
            addNewFindReplace();
        }
    } else {
        const PropertyValue *own = profileSelected_.find(ownListKey);
        const auto *items = own ? own->as<PropertyArray>() : nullptr;
        findReplace_.setItems(items ? *items : PropertyArray());
    }
    findReplace_.select(-1);
    updateUI(0);
    updateUI(3);
    setAllBoolsInChangePasteboard();
}

void nrPreferences::updateUI(int mode) {
    if (hooks_.updateUI) {
        hooks_.updateUI(mode);
    }
}

void nrPreferences::addNewFindReplace() {
    findReplace_.append();
    updateUI(2);
    saveCurrentFindReplaceList();
}

void nrPreferences::deleteFindReplace() {
    if (findReplace_.removeSelected()) {
        updateUI(1);
        findReplace_.select(-1);
        updateUI(3);
        saveCurrentFindReplaceList();
    }
}

void nrPreferences::selectedRow(int row) {
    findReplace_.select(row);
}

void nrPreferences::saveCurrentFindReplace(std::u16string find) {
    findReplace_.setFind(std::move(find));
    setAllBoolsInChangePasteboardForText();
}

void nrPreferences::controlTextDidChangeReplace(std::u16string replace) {
    findReplace_.setReplacement(std::move(replace));
    setAllBoolsInChangePasteboardForText();
}

void nrPreferences::saveCurrentFindReplaceCheckbox(int row, bool on) {
    findReplace_.setCheckbox(row, on);
    setAllBoolsInChangePasteboard();
}

void nrPreferences::acceptDrop(const std::vector<int> &rows, int dropRow) {
    findReplace_.move(rows, dropRow);
    updateUI(4);
    setAllBoolsInChangePasteboard();
}

void nrPreferences::saveCurrentFindReplaceList() {
    if (onlyOneProfile()) {
        if (profilesSaving_) {
            return;
        }
        writeSharedList();
        profileSelected_.set(sharedListKey, findReplace_.items());
    } else {
        profileSelected_.set(ownListKey, findReplace_.items());
    }
    fillEngine();
}

PropertyArray nrPreferences::readSharedList() const {
    return readSharedFindReplace(paths_, calls_).value_or(PropertyArray());
}

bool nrPreferences::writeSharedList() {
    const ScopedFlag saving(profilesSaving_);
    const std::string error = writeSharedFindReplace(paths_, findReplace_.items(), calls_);
    if (!error.empty()) {
        createDir();
    }
    return report(error);
}

} // namespace nerlo::settings
