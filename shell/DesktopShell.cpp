#include "shell/DesktopShell.h"

#include "engine/Operations.h"
#include "platform/qt/QtKeys.h"
#include "settings/SettingsKeys.h"
#include "shell/Alerts.h"
#include "shell/ChooserWindow.h"
#include "shell/LeftOutRules.h"
#include "shell/PreferencesWindow.h"
#include "shell/Program.h"
#include "shell/Strings.h"
#include "shell/TextWindow.h"
#include "shell/TipsWindow.h"

#include <QApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QMenuBar>
#include <QMessageBox>
#include <QUrl>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

namespace nerlo::shell {

using namespace std::chrono_literals;

namespace {

// A tray may come later still, but the user is not left without any window until then.
constexpr auto trayExpectedWithin = 2000ms;

// The command that the notice tells users to bind to a key themselves.
const auto cleanCommand = QStringLiteral("nerlo-pro --clean");

// What a problem means to the user, where its text names a file and what the system said; else
// null.
const char *meaningOf(ShellWindows::Problem problem) {
    using Problem = ShellWindows::Problem;
    return problem == Problem::settings    ? "sSettingsNotSaved"
           : problem == Problem::profiles  ? "sProfilesNotSaved"
           : problem == Problem::loginItem ? "sLoginItemNotSet"
           : problem == Problem::linkRules ? "sLinkRulesUnusable"
                                           : nullptr;
}

// What a restore has come to, where it was not done as a whole.
QString textOf(clipboard::nrChangePasterboard::Restored outcome) {
    using Restored = clipboard::nrChangePasterboard::Restored;
    return outcome == Restored::incomplete    ? localized("sRestoreIncomplete")
           : outcome == Restored::nothingKept ? localized("sRestoreNothing")
           : outcome == Restored::tooLarge
               ? localized("sRestoreTooLarge").arg(clipboard::keptOriginalLimit >> 20)
           : outcome == Restored::tooOld
               ? localized("sRestoreTooOld").arg(clipboard::keptOriginalTime.count())
               : localized("sRestoreRefused");
}

} // namespace

DesktopShell::DesktopShell(Program &program)
    : program_(program)
    , recording_{program.shortcutTexts(),
                 *program.parts().desktop.systemHotKeys,
                 program.hotKeys(),
                 &StatusMenu::mainMenu,
                 [](QWidget *parent, const QString &message, const QString &informative) {
                     runAlert({Alert::Style::critical, message, informative, {}}, parent);
                 },
                 {},
                 platform::keyboardCanBeGrabbed(),
                 [&program](const auto &change) { program.preferences().changeShortcuts(change); }}
    , shortcutList_(program)
    , menu_(std::make_unique<StatusMenu>(program))
    , tray_(std::make_unique<TrayIcon>(menu_->menu()))
    , pointer_(program.parts().desktop.popupLayer.backend.get(),
               program.parts().desktop.pointerPlace.backend.get(), program.parts().mainQueue)
    , taskbar_(program.parts().desktop.backends->openTaskbarHint()) {
    QObject::connect(tray_.get(), &TrayIcon::appeared, tray_.get(), [this] {
        menu_->setShownOverBus(tray_->overBus());
        menuAtIcon_ = program_.parts().desktop.backends->grabGetsAllKeys();
        setProblem(Problem::tray, {});
        stateChanged(); // also of the taskbar, to which windows no longer need to have an entry
    });
    QObject::connect(&menu_->menu(), &QMenu::aboutToHide, tray_.get(), [this] {
        pointer_.stop();
        menu_->setShownOverBus(tray_->overBus());
    });
    QObject::connect(tray_.get(), &TrayIcon::activated, tray_.get(), [this] {
        if (menuAtIcon_) {
            menu_->setShownOverBus(false);
            pointer_.start([this](QPoint at) { menu_->menu().popup(at); });
        } else {
            program_.showPreferences();
        }
    });
    cleanShortcut_ =
        program_.store().observe(settings::cleanHotKey, [this] { updateCleanShortcut(); });
    hotKeyStatus_ = program_.hotKeys().observeStatus([this] { updateHotKeys(); });
    program_.parts().desktop.systemHotKeys->setChangedHandler([this] { updateHotKeys(); });
    connectPreferences();
    program_.engine().setReportHandler([this](const auto &report) { showReport(report); });
    updateRestorable();
}

DesktopShell::~DesktopShell() {
    program_.parts().mainQueue.cancel(settle_);
    program_.parts().desktop.systemHotKeys->setChangedHandler(nullptr);
    program_.engine().setReportHandler(nullptr);
    auto &hooks = program_.preferences().hooks();
    hooks.profilesChanged = nullptr;
    hooks.controlsLoaded = nullptr;
    hooks.edited = nullptr;
    hooks.updateUI = nullptr;
    hooks.historyChanged = nullptr;
    hooks.saveFailed = nullptr;
}

void DesktopShell::connectPreferences() {
    auto &hooks = program_.preferences().hooks();
    hooks.profilesChanged = [this] { updateProfiles(); };
    hooks.controlsLoaded = [this] {
        if (window_) {
            window_->controlsLoaded();
        }
    };
    hooks.edited = [this] {
        if (window_) {
            window_->edited();
        }
    };
    hooks.updateUI = [this](settings::RulesUpdate update) {
        if (window_) {
            window_->updateUI(update);
        }
    };
    hooks.historyChanged = [this] {
        if (window_) {
            window_->historyChanged();
        }
    };
    hooks.saveFailed = [this](const std::string &error) { setProblem(Problem::profiles, error); };
    updateProfiles();
}

void DesktopShell::updateProfiles() {
    QStringList names;
    for (const settings::ProfileItem &item : program_.preferences().profilesItems()) {
        names.push_back(QString::fromStdU16String(settings::profileNameOf(item.record)));
    }
    menu_->setProfiles(names, program_.preferences().selectedItem());
    updateProfileShortcuts();
    shortcutList_.followProfiles();
    if (window_) {
        window_->profilesChanged();
    }
    if (program_.complete()) {
        program_.followProfileShortcuts();
        program_.stateChanged();
    }
}

QKeySequence DesktopShell::storedKeys(std::string_view hotKey) const {
    const auto shortcut = shortcuts::storedShortcut(program_.store(), hotKey);
    const auto &layout = program_.shortcutTexts().layout();
    return shortcut ? platform::qtKeyOf(shortcut->keyCode(), shortcut->carbonFlags(), layout) : 0;
}

void DesktopShell::updateCleanShortcut() {
    menu_->setCleanShortcut(storedKeys(settings::cleanHotKey));
}

// Of profiles of one name, the first is the one that it selects.
void DesktopShell::updateProfileShortcuts() {
    std::set<std::u16string> names;
    QList<QKeySequence> keys;
    for (const settings::ProfileItem &item : program_.preferences().profilesItems()) {
        const std::u16string name = settings::profileNameOf(item.record);
        const bool first = names.insert(name).second;
        keys.push_back(first ? storedKeys(settings::profileHotKey(name)) : QKeySequence());
    }
    menu_->setProfileShortcuts(keys);
}

void DesktopShell::updateHotKeys() {
    updateCleanShortcut(); // a new keyboard layout names its key anew
    updateProfileShortcuts();
    QStringList refused;
    for (const ListedCommand &command : shortcutList_.commands()) {
        const auto state = program_.hotKeys().status(command.hotKey).state;
        const bool isRefused = state == platform::HotKeyState::refused;
        if (!isRefused && !window_) {
            continue; // nobody would see it, and to look through all costs time at the start
        }
        const QString conflict = shortcutList_.conflict(command.hotKey);
        if (isRefused) {
            refused.push_back(command.title + ", " + conflict);
        }
        if (window_) {
            window_->setHotKeyProblem(command.hotKey, conflict);
        }
    }
    if (!refused.empty() && !program_.parts().desktop.hotKeys.backend->available()) {
        refused = {filled(localized("sShortcutsUnavailable"), {cleanCommand})};
    }
    setProblem(Problem::shortcuts, refused.join('\n').toStdString());
    if (tipsController_) {
        tipsController_->setNotice(cleanShortcutNotice());
    }
}

QString DesktopShell::cleanShortcutNotice() const {
    const std::string key(settings::cleanHotKey);
    if (program_.hotKeys().status(key).state != platform::HotKeyState::refused) {
        return {};
    }
    const auto &desktop = program_.parts().desktop;
    if (desktop.hotKeys.backend->available()) {
        return shortcutList_.conflict(key) + '\n' +
               filled(localized("sTipShortcutTaken"), {localized("sPageShortcuts")});
    }
    const QString byHand = filled(localized("sShortcutsUnavailable"), {cleanCommand});
    const auto shortcut = shortcuts::storedShortcut(program_.store(), key);
    const auto taken = shortcut ? shortcut->takenBySystem(*desktop.systemHotKeys) : std::nullopt;
    return !taken || taken->owner.empty()
               ? byHand
               : QString::fromStdU16String(shortcut->description(program_.shortcutTexts())) + ": " +
                     QString::fromStdString(taken->owner) + '\n' + byHand;
}

void DesktopShell::start() {
    xembed_ = program_.parts().desktop.backends->openTrayWatch([this] { tray_->trayAppeared(); });
    settle_ = program_.parts().mainQueue.postAfter(trayExpectedWithin, [this] {
        settle_ = 0;
        if (tray_->wanted() && !tray_->shown()) {
            setProblem(Problem::tray, localized("sNoTray").toStdString());
        }
        program_.delegate().traySettled();
    });
}

void DesktopShell::showStatusItem() {
    tray_->show();
}

void DesktopShell::dropStatusItem() {
    tray_->drop();
}

bool DesktopShell::statusItemReachable() const {
    return tray_->shown();
}

void DesktopShell::setTaskbarEntry(bool shown) {
    taskbarEntry_ = shown;
    for (QWidget *window : windows()) {
        applyTaskbarEntry(*window);
    }
}

void DesktopShell::applyTaskbarEntry(QWidget &window) {
    if (taskbar_) {
        // Without an icon to click, the taskbar is the way back to a minimized window.
        taskbar_->setShownInTaskbar(window.winId(), taskbarEntry_ || !tray_->shown());
    }
}

shortcuts::nrShortcutView *DesktopShell::makeRecorder(const std::string &hotKey) {
    program_.parts().desktop.systemHotKeys->refresh(); // known by the time somebody records
    auto *recorder = new shortcuts::nrShortcutView(recording_);
    recorder->setAssociatedUserDefaultsKey(hotKey);
    return recorder;
}

bool DesktopShell::closingMinimizes() const {
    return taskbarEntry_ && !tray_->shown();
}

void DesktopShell::hidePreferences() {
    if (window_) {
        window_->close();
    }
}

void DesktopShell::showChooser() {
    if (chooser_ && chooser_->isOpen()) {
        chooser_->close();
        return;
    }
    chooser_ = std::make_unique<ChooserWindow>(program_);
    chooser_->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    chooser_->open();
}

void DesktopShell::makePreferencesWindow() {
    window_ = std::make_unique<PreferencesWindow>(program_);
    menu_->fillMenuBar(*window_->menuBar());
    window_->assignLetters();
    window_->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    updateNotice();
    window_->setReport(report_);
    updateHotKeys();
}

void DesktopShell::showPreferencesWindow() {
    if (!window_) {
        makePreferencesWindow();
        stateChanged();
    }
    if (window_->isMinimized()) {
        window_->showNormal();
    }
    present(*window_);
    program_.hotKeys().retryRefused();
}

bool DesktopShell::hasVisibleWindow() const {
    const auto windows = QGuiApplication::topLevelWindows();
    return std::ranges::any_of(windows, [](const QWindow *candidate) {
        return candidate->isVisible() && candidate->type() != Qt::Tool &&
               candidate->type() != Qt::Popup && candidate->type() != Qt::ToolTip &&
               !(candidate->windowStates() & Qt::WindowMinimized);
    });
}

std::vector<QWidget *> DesktopShell::windows() const {
    std::vector<QWidget *> made{tipsController_.get(), whatsNewController_.get(), help_.get(),
                                window_.get()};
    std::erase(made, nullptr);
    return made;
}

void DesktopShell::bringToFront() {
    for (QWidget *window : windows()) {
        if (window->isVisible() && !window->isMinimized()) {
            present(*window);
        }
    }
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        present(*dialog);
    }
}

// The taskbar is told before the window appears, and then again: only some desktops look at what is
// there when it does.
void DesktopShell::present(QWidget &window) {
    applyTaskbarEntry(window);
    window.show();
    window.raise();
    window.activateWindow();
    applyTaskbarEntry(window);
}

void DesktopShell::setFloating(bool floating) {
    if (window_ && window_->windowHandle()) {
        // Set on the widget instead, the flag would hide the window.
        window_->windowHandle()->setFlag(Qt::WindowStaysOnTopHint, floating);
    }
}

void DesktopShell::showTips(bool firstStart) {
    if (!tipsController_) {
        tipsController_ = std::make_unique<TipsWindow>(
            program_.store().boolForKey(firstRunTipsKey),
            [this](bool on) { program_.store().set(firstRunTipsKey, on); });
        tipsController_->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
        QObject::connect(tipsController_.get(), &QDialog::finished, tipsController_.get(),
                         [this] { giveBackTheKeyboard(window_.get()); });
    }
    tipsController_->askForRules(firstStart
                                     ? [this](bool gentle) { program_.chooseFirstRules(gentle); }
                                     : std::function<void(bool)>());
    if (firstStart) { // who has the keys is told as soon as it has been read
        program_.parts().desktop.systemHotKeys->refresh();
    }
    tipsController_->setNotice(cleanShortcutNotice());
    tipsController_->setPage(0);
    present(*tipsController_);
}

std::unique_ptr<TextWindow> DesktopShell::makeTextWindow(const char *name, const QString &title,
                                                         const QString &text) {
    auto made = std::make_unique<TextWindow>(name, title, text, [this] { showTips(false); });
    made->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    QObject::connect(made.get(), &QDialog::finished, made.get(),
                     [this] { giveBackTheKeyboard(window_.get()); });
    return made;
}

void DesktopShell::showWhatsNew() {
    if (!whatsNewController_) {
        whatsNewController_ =
            makeTextWindow("whatsNew", localized("sWhatsNewWindow"), localized("sWhatsNewText"));
        QObject::connect(whatsNewController_.get(), &QDialog::finished, whatsNewController_.get(),
                         [this] { program_.store().set(releaseNotesKey, true); });
    }
    present(*whatsNewController_);
}

void DesktopShell::showHelp() {
    if (!help_) {
        help_ = makeTextWindow("help", localized(Table::menu, "Help"),
                               filled(localized("sHelpText"),
                                      {localized(settings::cleanHotKey),
                                       localized(Table::menu, "Automatically clear formatting"),
                                       localized(Table::menu, "Restore the original")}));
    }
    present(*help_);
}

void DesktopShell::showAbout() {
    auto *box = new QMessageBox(window_.get());
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setObjectName("about");
    box->setWindowTitle(localized(Table::menu, "About"));
    box->setWindowIcon(QIcon(":/icons/org.nerlo.NerloPro.svg"));
    box->setText(localized(Table::menu, "Nerlo Pro"));
    box->setInformativeText(localized("sAboutText").arg(QCoreApplication::applicationVersion()));
    box->setIconPixmap(QIcon(":/icons/org.nerlo.NerloPro.svg").pixmap(64, 64));
    box->addButton(localized("sClose"), QMessageBox::RejectRole);
    QObject::connect(box, &QDialog::finished, box, [this] { giveBackTheKeyboard(window_.get()); });
    present(*box);
}

void DesktopShell::showAlert(const char *messageKey, const char *informativeKey) {
    inform(localized(messageKey), localized(informativeKey));
}

void DesktopShell::inform(const QString &message, const QString &informative) {
    runAlert({Alert::Style::informational, message, informative, {localized("OK")}},
             window_ && window_->isVisible() ? window_.get() : nullptr);
}

bool DesktopShell::openUrl(const std::string &url) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(url), QUrl::TolerantMode));
}

void DesktopShell::stateChanged() {
    if (!program_.complete()) {
        return; // its delegate tells again
    }
    const auto &delegate = program_.delegate();
    menu_->setAutomatic(delegate.automatic());
    menu_->setExcelException(delegate.excelException());
    tray_->setState(!problems_.empty()     ? TrayState::problem
                    : delegate.automatic() ? TrayState::automatic
                                           : TrayState::idle);
    if (window_) {
        window_->updateGeneral();
    }
    for (QWidget *window : windows()) {
        applyTaskbarEntry(*window);
    }
    program_.stateChanged();
}

void DesktopShell::quit() {
    program_.parts().mainQueue.post([this] {
        if (window_) {
            window_->hide(); // remembers its page and height
        }
        // Not quit(), which a window that is minimized when it is closed would refuse.
        QCoreApplication::exit();
    });
}

void DesktopShell::setProblem(Problem problem, const std::string &text) {
    const auto known = problems_.find(problem);
    if (text == (known == problems_.end() ? std::string() : known->second)) {
        return;
    }
    if (text.empty()) {
        problems_.erase(known);
    } else {
        problems_[problem] = text;
    }
    updateNotice();
    stateChanged();
}

// The report is shown until the next clean: the same rules may work on another text.
void DesktopShell::showReport(const engine::CleaningReport &report) {
    report_ = report;
    setProblem(Problem::leftOutRules, leftOutText(report).toStdString());
    if (window_) {
        window_->setReport(report);
    }
}

void DesktopShell::updateNotice() {
    if (!window_) {
        return;
    }
    QStringList lines;
    for (const auto &[problem, text] : problems_) {
        if (const char *meaning = meaningOf(problem)) {
            lines.push_back(localized(meaning));
        }
        lines.push_back(QString::fromStdString(text));
    }
    window_->setNotice(lines.join('\n'));
}

void DesktopShell::updateRestorable() {
    using Restored = clipboard::nrChangePasterboard::Restored;
    const auto outcome = program_.engine().restorable();
    const bool restores = outcome == Restored::done || outcome == Restored::incomplete;
    menu_->setRestorable(
        restores ? std::optional(QString::fromStdU16String(program_.engine().restorableWords()))
                 : std::nullopt);
}

void DesktopShell::updateProgram() {
    menu_->setProgram(QString::fromStdString(program_.lastProgram()),
                      program_.neverInLastProgram());
}

void DesktopShell::restore() {
    program_.restore([this](clipboard::nrChangePasterboard::Restored outcome) {
        if (outcome != clipboard::nrChangePasterboard::Restored::done) {
            inform(textOf(outcome), {});
        }
    });
}

} // namespace nerlo::shell
