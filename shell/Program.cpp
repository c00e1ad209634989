#include "shell/Program.h"

#include "engine/Operations.h"
#include "settings/LinkRulesFile.h"
#include "settings/SettingsKeys.h"
#include "settings/UserLocale.h"
#include "shell/Doctor.h"
#include "shell/HotKeyCommands.h"
#include "shell/PreferencesLayout.h"
#include "shell/Strings.h"
#include "shell/Terminal.h"
#include "shell/Why.h"
#include "shell/nrCountWindowController.h"
#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>
#include <utility>

namespace nerlo::shell {

namespace {

// A row that leaves alone what comes from this program, whatever it is.
bool isNeverIn(const clipboard::CopyRule &rule, const std::string &program) {
    return rule.leavesAlone() && rule.program == program && rule.format.empty() &&
           rule.host.empty() && !rule.looks;
}

// A file that could not be read: which one it is, and what becomes of it. What is wrong with it is
// told on the terminal.
QString damageText(const settings::SettingsPaths &paths, const std::string &damage) {
    std::string file = damage;
    for (const std::string &path : {paths.store, paths.profiles, paths.sharedFindReplace}) {
        if (damage.starts_with(path + ":")) {
            file = path;
        }
    }
    return filled(localized("sFileUnreadable"), {isolated(QString::fromStdString(file))}) + ' ' +
           localized("sFileDamaged");
}

} // namespace

Program::Program(Parts parts)
    : parts_(std::move(parts))
    , locale_(settings::userLocale())
    , store_(parts_.paths.store,
             [&queue = parts_.mainQueue](auto task) { queue.post(std::move(task)); })
    , engine_(*parts_.desktop.clipboard.backend, parts_.mainQueue, parts_.workerQueue, locale_)
    , watcher_(*parts_.desktop.clipboard.backend, parts_.mainQueue,
               *parts_.desktop.activeApplication.backend, engine_)
    , shortcutTexts_(
          *parts_.desktop.keyboardLayout.backend,
          [](std::u16string_view key) { return localizedUtf16(Table::shortcut, key); },
          shortcuts::Spelling::names)
    , globalHotKeys_(*parts_.desktop.hotKeys.backend)
    , hotKeys_(store_, globalHotKeys_)
    , preferences_(
          store_, parts_.mainQueue, parts_.paths,
          [](std::u16string_view key) { return localizedUtf16(Table::standard, key); },
          settings::firstLanguage(store_))
    , windows_(*this)
    , folders_(parts_.desktop.backends->io(), parts_.mainQueue) {
    connect();
    delegate_.emplace(nrAppDelegate::Parts{store_, parts_.mainQueue, preferences_, engine_,
                                           watcher_, *parts_.desktop.loginItem, windows_,
                                           parts_.links});
    preferences_.initProfilesItems();
    tellDamages();
    store_.setDamageHandler([this] { tellDamages(); });
    preferences_.hooks().damaged = [this] { tellDamages(); };
}

Program::~Program() {
    // Also what could not be written before; there is no window any more that could tell.
    if (const auto error = preferences_.savePending(); !error.empty()) {
        complain(error);
    }
    if (!store_.synchronize()) {
        complain(store_.error());
    }
    // The windows, which it tells, go before it.
    store_.setErrorHandler(nullptr);
    store_.setDamageHandler(nullptr);
    preferences_.hooks().damaged = nullptr;
    parts_.desktop.keyboardLayout.backend->setChangedHandler(nullptr);
    parts_.desktop.clipboard.backend->setLostHandler(nullptr);
    delegate_.reset();
}

void Program::connect() {
    engine_.setCountWindowMaker([this] {
        return std::make_unique<nrCountWindowController>(store_, parts_.mainQueue,
                                                         parts_.desktop.popupLayer.backend.get(),
                                                         parts_.desktop.pointerPlace.backend.get());
    });
    engine_.setTooLargeHandler([this] {
        windows_.setProblem(
            ShellWindows::Problem::largeText,
            localized("sTextTooLarge").arg(clipboard::cleanedTextLimit >> 20).toStdString());
    });
    engine_.setCopyTableMaker([this] { return copyTable(); });
    engine_.setRestorableHandler([this] { windows_.updateRestorable(); });
    engine_.setCleanedHandler([this] {
        windows_.setProblem(ShellWindows::Problem::largeText, {});
        if (listener_) {
            listener_->cleaned();
        }
    });
    parts_.desktop.keyboardLayout.backend->setChangedHandler(
        [this] { hotKeys_.keyboardLayoutChanged(); });
    preferences_.hooks().setAllBools = [this](const auto &profile) {
        const auto *const path = profile.find("udCleanLinksRules");
        auto [rules, error] = settings::readLinkRules(path ? path->stringValue() : u"");
        engine_.setAllBools(profile, std::move(rules));
        windows_.setProblem(ShellWindows::Problem::linkRules, error);
    };
    preferences_.hooks().setDefaultShortcut = [this] { setDefaultShortcut(hotKeys_); };
    store_.setErrorHandler([this](const std::string &error) {
        windows_.setProblem(ShellWindows::Problem::settings, error);
    });
    parts_.desktop.clipboard.backend->setLostHandler([] {
        complain("the display is gone");
        QCoreApplication::exit(failed);
    });
}

void Program::tellDamages() {
    auto damages = preferences_.loadErrors();
    if (!store_.loadError().empty()) {
        damages.insert(damages.begin(), store_.loadError());
    }
    QStringList lines;
    for (const auto &damage : damages) {
        lines << damageText(parts_.paths, damage);
        if (toldDamages_.insert(damage).second) {
            complain(damage);
        }
    }
    // Users who miss a setting look at this notice.
    windows_.setProblem(ShellWindows::Problem::damage, lines.join('\n').toStdString());
}

void Program::start() {
    refusals_ = reportRefusedHotKeys(hotKeys_, [](const std::string &line) { complain(line); });
    registerHotKeys();
    delegate_->applicationWillFinishLaunching();
    delegate_->applicationDidFinishLaunching();
    watcher_.setProgramHandler([this] { windows_.updateProgram(); });
    copyTable_ = store_.observe(clipboard::copyTableKey, [this] { windows_.updateProgram(); });
    watcher_.followPrograms();
    windows_.start();
    followOtherProcesses();
}

void Program::registerHotKeys() {
    takesHotKeys_ = true;
    const auto bind = [this](std::string_view key, std::function<void()> run) {
        hotKeys_.registerGlobalShortcutWithUserDefaultsKey(
            std::string(key), std::move(run), localized(commandText(key)).toStdString());
    };
    bind(settings::cleanHotKey, [this] { clean(); });
    bind(settings::chooseHotKey, [this] { choose(); });
    for (const auto &operation : engine::operations()) {
        bind(operation.hotKey, [this, index = operation.index] { runOperation(index); });
    }
    profileShortcuts_ = store_.observeAll([this] { followProfileShortcuts(); });
    followProfileShortcuts();
}

// Those that are stored, of profiles that there are.
void Program::followProfileShortcuts() {
    if (!takesHotKeys_) {
        return;
    }
    std::set<std::string> names;
    for (const settings::ProfileItem &item : preferences_.profilesItems()) {
        names.insert(text::utf16ToUtf8(settings::profileNameOf(item.record)));
    }
    std::vector<std::string> gone;
    for (const auto &[key, hotKey] : hotKeys_.registeredUserDefaultsHotKeys()) {
        if (key.starts_with(settings::profileHotKeyPrefix) &&
            !names.contains(key.substr(settings::profileHotKeyPrefix.size()))) {
            gone.push_back(key);
        }
    }
    for (const std::string &key : gone) {
        hotKeys_.unregisterGlobalShortcutWithUserDefaultsKey(key);
    }
    for (const std::string &name : names) {
        bindProfile(name);
    }
}

void Program::bindProfile(const std::string &name) {
    const std::string key = std::string(settings::profileHotKeyPrefix) + name;
    if (!store_.find(key) || hotKeys_.registeredUserDefaultsHotKeys().contains(key)) {
        return;
    }
    // Later: the profile may turn out to be gone, and its hot key with it.
    hotKeys_.registerGlobalShortcutWithUserDefaultsKey(
        key, [this, name] { parts_.mainQueue.post([this, name] { selectProfile(name); }); },
        selectingTitle(text::utf8ToUtf16(name).text).toStdString());
}

void Program::followOtherProcesses() {
    folders_.add(storage::folderOf(parts_.paths.store), [this] { store_.fileChanged(); });
    folders_.add(storage::folderOf(parts_.paths.profiles),
                 [this] { preferences_.profilesFileChanged(); });
    selectedProfile_ = store_.observe(settings::selectedProfileKey,
                                      [this] { preferences_.selectedPlaceChanged(); });
    automaticMode_ = store_.observe(automaticKey, [this] {
        setAutomatic(store_.boolForKey(automaticKey) ? AutomaticMode::on : AutomaticMode::off);
    });
}

void Program::clean() {
    delegate_->clearFormattingFromClipboard();
}

void Program::runOperation(std::int32_t index) {
    engine_.changePasteboardWithKeys(index);
}

void Program::restore(std::function<void(clipboard::nrChangePasterboard::Restored)> handler) {
    engine_.restore(std::move(handler));
}

bool Program::setAutomatic(AutomaticMode mode) {
    const bool on = mode == AutomaticMode::toggle ? !automatic() : mode == AutomaticMode::on;
    if (on != automatic()) {
        delegate_->automaticallyClearFormatting();
    }
    return on;
}

bool Program::selectProfile(const std::string &nameOrPlace) {
    const auto &items = preferences_.profilesItems();
    const auto *item = settings::findProfile(items, nameOrPlace);
    if (item) {
        switchProfile(static_cast<int>(item - items.data()));
        return true;
    }
    const auto *ready = settings::findReadyProfile(nameOrPlace);
    if (ready) {
        selectReady(*ready);
    }
    return ready != nullptr;
}

// Under its name in the user's language; added where there is none of that name.
void Program::selectReady(const settings::ReadyProfile &ready) {
    const auto name = localized(ready.titleKey).toStdU16String();
    const auto &items = preferences_.profilesItems();
    const auto named = std::ranges::find_if(items, [&](const settings::ProfileItem &item) {
        return settings::profileNameOf(item.record) == name;
    });
    if (named != items.end()) {
        switchProfile(static_cast<int>(named - items.begin()));
    } else {
        preferences_.profilesAdd();
        preferences_.profilesAddingCloseWindow(name, settings::readyRecord(ready, name));
    }
}

void Program::switchProfile(int place) {
    preferences_.profilesSwitch(place);
}

void Program::activate() {
    delegate_->applicationShouldHandleReopen(windows_.hasVisibleWindow());
}

std::string Program::doctor(bool sessionBus) const {
    const auto &desktop = parts_.desktop;
    return doctorReport(desktop, parts_.paths, sessionBus,
                        RunningState{automatic(), desktop.backends->grabGetsAllKeys(),
                                     platform::pointerPositionKnown() &&
                                         (desktop.popupLayer.backend || tellsPointer(desktop)),
                                     hotKeyFindings(hotKeys_, shortcutTexts_.layout())});
}

std::string Program::why() const {
    return whyText(engine_.decided(), profileName());
}

std::vector<clipboard::CopyRule> Program::copyRules() const {
    const auto *stored = store_.find(clipboard::copyTableKey);
    return stored ? clipboard::copyRules(stored) : clipboard::offeredRules();
}

void Program::setCopyRules(const std::vector<clipboard::CopyRule> &rules, std::string_view place) {
    preferences_.copyTableChanged(clipboard::storedRules(rules), place);
}

bool Program::neverInLastProgram() const {
    const auto rules = copyRules();
    return std::ranges::any_of(rules, [this](const clipboard::CopyRule &rule) {
        return rule.on && isNeverIn(rule, lastProgram());
    });
}

void Program::setNeverInLastProgram(bool never) {
    const std::string program = lastProgram();
    if (program.empty()) {
        return;
    }
    auto rules = copyRules();
    std::erase_if(rules, [&](const clipboard::CopyRule &rule) { return isNeverIn(rule, program); });
    if (never) {
        rules.insert(rules.begin(), {.on = true, .program = program});
    }
    setCopyRules(rules);
}

void Program::chooseFirstRules(bool gentle) {
    if (gentle) {
        selectReady(*settings::findReadyProfile(std::string_view("gentle")));
    } else {
        switchProfile(0);
    }
}

std::u16string Program::titleOf(const std::u16string &profile) const {
    const auto &items = preferences_.profilesItems();
    const bool stored = std::ranges::any_of(items, [&](const settings::ProfileItem &item) {
        return settings::profileNameOf(item.record) == profile;
    });
    const auto *ready = settings::findReadyProfile(profile);
    return stored || !ready ? profile : localized(ready->titleKey).toStdU16String();
}

// A row whose profile has gone decides nothing.
clipboard::CopyTable Program::copyTable() const {
    clipboard::CopyTable table;
    std::size_t number = 0;
    auto rules = copyRules();
    for (clipboard::CopyRule &rule : rules) {
        ++number;
        const auto record = rule.on ? preferences_.recordNamed(rule.profile) : std::nullopt;
        if (!rule.on || (!rule.leavesAlone() && !record)) {
            continue;
        }
        clipboard::CopyRow row{std::move(rule), number, {}, nullptr};
        if (!row.rule.leavesAlone()) {
            auto options = std::make_shared<engine::CleaningOptions>();
            options->setAllBools(*record);
            options->linkRules =
                settings::readLinkRules(options->udCleanLinksRules.stringValue()).rules;
            row.options = std::move(options);
            row.title = titleOf(row.rule.profile);
        }
        table.push_back(std::move(row));
    }
    return table;
}

bool Program::perform(const Request &request) {
    switch (request.command) {
    case Command::automatic:
        setAutomatic(*parseAutomaticMode(request.argument.toString().toStdString()));
        break;
    case Command::profile:
        return selectProfile(request.argument.toString().toStdString());
    case Command::preferences:
        showPreferences();
        break;
    case Command::clean:
        clean();
        break;
    case Command::choose:
        choose();
        break;
    case Command::operation:
        runOperation(request.argument.toInt());
        break;
    case Command::restore:
    case Command::why:
    case Command::doctor:
    case Command::quit:
    case Command::activate:
        break;
    }
    return true;
}

std::string Program::profileName() const {
    return text::utf16ToUtf8(preferences_.profileName());
}

std::string Program::backend() const {
    return parts_.desktop.clipboard.backend->description();
}

void Program::stateChanged() {
    if (listener_) {
        listener_->stateChanged();
    }
}

} // namespace nerlo::shell
