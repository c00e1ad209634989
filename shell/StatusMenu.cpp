#include "shell/StatusMenu.h"

#include "engine/Operations.h"
#include "settings/SettingsKeys.h"
#include "shell/FieldHistory.h"
#include "shell/Mnemonics.h"
#include "shell/PreferencesLayout.h"
#include "shell/Program.h"
#include "shell/Strings.h"
#include "shortcuts/nrShortcut.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <algorithm>
#include <utility>

namespace nerlo::shell {

namespace {

QString title(const char *key) {
    return localized(Table::menu, key);
}

// A title is shown as it is, whatever letters it has.
QString escaped(QString text) {
    return text.replace('&', "&&");
}

// As escaped(), for a panel: there "_" marks a letter, and the toolkit makes one of the first "&"
// and leaves the others.
QString escapedForBus(QString text) {
    text.replace('_', "__");
    const auto first = text.indexOf('&');
    return first < 0 ? text : text.insert(first, '&');
}

struct EditCommand {
    const char *title;
    const char *slot; // of the toolkit's text fields; null for the Delete key
    const char *keys;
};
// Keys by name: --shortcut refuses these too, and the toolkit knows its standard keys only in a
// program with windows.
constexpr EditCommand editCommands[] = {
    {"Undo", "undo", "Ctrl+Z"},
    {"Redo", "redo", "Ctrl+Shift+Z"},
    {"Cut", "cut", "Ctrl+X"},
    {"Copy", "copy", "Ctrl+C"},
    {"Paste", "paste", "Ctrl+V"},
    {"Delete", nullptr, ""},
    {"Select All", "selectAll", "Ctrl+A"},
};
constexpr auto preferencesKeys = "Ctrl+,";
constexpr auto quitKeys = "Ctrl+Q";

void sendDelete(QWidget *widget) {
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Delete, Qt::NoModifier);
        QApplication::sendEvent(widget, &event);
    }
}

void greyWithout(const std::string &address, QAction &action) {
    if (address.empty()) {
        action.setEnabled(false);
        action.setToolTip(localized("sNoAddressTip"));
    }
}

shortcuts::MenuItem itemOf(const char *titleKey, const char *keyNames) {
    shortcuts::MenuItem item;
    item.title = title(titleKey).toStdU16String();
    const QKeySequence keys(keyNames);
    if (!keys.isEmpty()) {
        const QKeyCombination first = keys[0];
        const int key = first.key();
        if (key < 0x10000) {
            item.keyEquivalent = std::u16string(1, QChar(key).toLower().unicode());
        }
        const std::pair<Qt::KeyboardModifier, std::uint64_t> modifiers[] = {
            {Qt::ControlModifier, shortcuts::commandModifier},
            {Qt::MetaModifier, shortcuts::controlModifier},
            {Qt::AltModifier, shortcuts::optionModifier},
            {Qt::ShiftModifier, shortcuts::shiftModifier},
        };
        for (const auto &[toolkits, ours] : modifiers) {
            if (first.keyboardModifiers() & toolkits) {
                item.modifierMask |= ours;
            }
        }
    }
    return item;
}

} // namespace

StatusMenu::StatusMenu(Program &program)
    : program_(program)
    , statusMenu_(std::make_unique<QMenu>())
    , operations_(std::make_unique<QMenu>(title("Single operations")))
    , profiles_(std::make_unique<QMenu>(title("Profiles")))
    , trayProfiles_(std::make_unique<QMenu>(title("Profiles")))
    , clean_(add("clean", localized(settings::cleanHotKey), [](Program &p) { p.clean(); }))
    , choose_(add("choose", localized(settings::chooseHotKey), [](Program &p) { p.choose(); }))
    , automatic_(add("automatic", title("Automatically clear formatting"),
                     [](Program &p) { p.setAutomatic(AutomaticMode::toggle); }))
    , excelException_(add("excelException", title("Except copies from Excel"),
                          [](Program &p) { p.delegate().disableAutomaticallyClearFormatting(); }))
    , never_(add("never", title("Never in this program"),
                 [](Program &p) { p.setNeverInLastProgram(!p.neverInLastProgram()); }))
    , restore_(
          add("restore", title("Restore the original"), [](Program &p) { p.windows().restore(); }))
    , preferences_(
          add("preferences", title("Preferences…"), [](Program &p) { p.showPreferences(); }))
    , help_(add("help", title("Help"), [](Program &p) { p.windows().showHelp(); }))
    , tips_(add("tips", title("Tips"), [](Program &p) { p.delegate().aOpenTips(); }))
    , whatsNew_(add("whatsNew", title("What's new"),
                    [](Program &p) { p.delegate().openReleaseNotesNerloPro(); }))
    , rate_(add("rate", title("Rate Nerlo Pro"), [](Program &p) { p.delegate().openRateApp(); }))
    , support_(add("support", title("Support"), [](Program &p) { p.delegate().supportWebsite(); }))
    , email_(add("email", title("E-mail to the developer"),
                 [](Program &p) { p.delegate().openEmailToDev(); }))
    , about_(add("about", title("About"), [](Program &p) { p.delegate().openAboutApp(); }))
    , hide_(add("hide", title("Hide Nerlo Pro"), [](Program &p) { p.windows().hidePreferences(); }))
    , quit_(add("quit", title("Quit Nerlo Pro"), [](Program &p) { p.quit(); })) {
    automatic_->setCheckable(true);
    excelException_->setCheckable(true);
    never_->setCheckable(true);
    never_->setEnabled(false);
    preferences_->setShortcut(QKeySequence(preferencesKeys));
    help_->setShortcut(QKeySequence(Qt::Key_F1));
    quit_->setShortcut(QKeySequence(quitKeys));
    quit_->setMenuRole(QAction::NoRole);
    // The hot key itself works everywhere; in the menu it is only shown.
    clean_->setShortcutContext(Qt::WidgetShortcut);

    statusMenu_->setObjectName("statusMenu");
    operations_->setObjectName("operationsMenu");
    trayProfiles_->setObjectName("profilesMenu");
    makeOperations();
    makeEditActions();

    const ProductLinks &links = program_.parts().links;
    greyWithout(links.ratePage, *rate_);
    greyWithout(links.supportPage, *support_);
    greyWithout(links.email, *email_);
    fillStatusMenu();
}

StatusMenu::~StatusMenu() = default;

void StatusMenu::fillStatusMenu() {
    statusMenu_->setToolTipsVisible(true);
    statusMenu_->addActions({clean_, choose_, automatic_, excelException_, never_, restore_});
    statusMenu_->addSeparator();
    statusMenu_->addMenu(operations_.get());
    statusMenu_->addMenu(trayProfiles_.get());
    statusMenu_->addSeparator();
    statusMenu_->addActions({preferences_, help_, tips_, whatsNew_});
    statusMenu_->addSeparator();
    statusMenu_->addActions({rate_, support_, email_, about_});
    statusMenu_->addSeparator();
    statusMenu_->addAction(quit_);
}

QAction *StatusMenu::add(const char *name, const QString &text, void (*run)(Program &)) {
    auto *action = new QAction(text, this);
    action->setObjectName(name);
    connect(action, &QAction::triggered, this, [this, run] { run(program_); });
    return action;
}

// Where their options stand in the preferences; all in one list would be too many to read.
void StatusMenu::makeOperations() {
    for (const PreferencesPage &page : preferencesPages()) {
        const bool single = page.rows.size() == 1;
        QMenu *menu =
            single ? operations_.get() : operations_->addMenu(escaped(localized(page.title)));
        for (const OptionRow &row : page.rows) {
            const auto operation =
                std::ranges::find(engine::operations(), row.hotKey, &engine::Operation::hotKey);
            if (operation == engine::operations().end()) {
                continue;
            }
            auto *action = menu->addAction(escaped(localized(commandText(operation->hotKey))));
            action->setObjectName("operation" + QString::number(operation->index));
            connect(action, &QAction::triggered, this,
                    [this, index = operation->index] { program_.runOperation(index); });
        }
    }
}

void StatusMenu::makeEditActions() {
    for (const EditCommand &command : editCommands) {
        auto *action = new QAction(title(command.title), this);
        action->setShortcut(QKeySequence(command.keys));
        connect(action, &QAction::triggered, this, [this, slot = command.slot] { edit(slot); });
        edit_.push_back(action);
    }
}

// In what has the keyboard; what cannot be undone there is undone in the profiles.
void StatusMenu::edit(const char *slot) {
    QWidget *widget = QApplication::focusWidget();
    const QByteArray name(slot);
    const bool undoes = name == "undo" && !fieldCan(true, widget);
    const bool redoes = name == "redo" && !fieldCan(false, widget);
    if (undoes) {
        program_.preferences().undo();
    } else if (redoes) {
        program_.preferences().redo();
    } else if (widget && !slot) {
        sendDelete(widget);
    } else if (widget && widget->metaObject()->indexOfSlot(name + "()") >= 0) {
        QMetaObject::invokeMethod(widget, slot);
    }
}

void StatusMenu::fillMenuBar(QMenuBar &bar) {
    std::set<QChar> used;
    const QStringList titles =
        withMnemonics({title("Nerlo Pro"), title("Clear"), title("Edit"), title("Help")}, used);
    QMenu *program = bar.addMenu(titles[0]);
    program->setToolTipsVisible(true);
    program->addActions({about_, preferences_, rate_, hide_, quit_});
    QMenu *clear = bar.addMenu(titles[1]);
    clear->addActions({clean_, choose_, automatic_, excelException_, never_, restore_});
    clear->addSeparator();
    clear->addMenu(operations_.get());
    clear->addMenu(profiles_.get());
    bar.addMenu(titles[2])->addActions(QList<QAction *>(edit_.begin(), edit_.end()));
    QMenu *help = bar.addMenu(titles[3]);
    help->setToolTipsVisible(true);
    help->addActions({help_, tips_, whatsNew_, support_, email_});
}

void StatusMenu::setAutomatic(bool on) {
    automatic_->setChecked(on);
}

void StatusMenu::setExcelException(bool on) {
    excelException_->setChecked(on);
}

void StatusMenu::setProgram(const QString &name, bool never) {
    never_->setEnabled(!name.isEmpty());
    never_->setChecked(never);
    programName_ = name;
    nameProgram();
}

void StatusMenu::nameProgram() {
    const auto name = overBus_ ? escapedForBus(programName_) : escaped(programName_);
    never_->setText(name.isEmpty() ? title("Never in this program")
                                   : title("Never in “%1”").arg(isolated(name)));
}

void StatusMenu::setRestorable(const std::optional<QString> &words) {
    restore_->setEnabled(words.has_value());
    restorable_ = words.value_or(QString());
    nameRestorable();
}

// The menu bar of the preferences has the same item; what is right in the tray counts more.
void StatusMenu::nameRestorable() {
    const auto words = overBus_ ? escapedForBus(restorable_) : escaped(restorable_);
    restore_->setText(words.isEmpty() ? title("Restore the original")
                                      : title("Restore “%1”").arg(isolated(words)));
}

void StatusMenu::setProfiles(const QStringList &names, int selected) {
    profileNames_.clear();
    for (const QString &name : names) {
        profileNames_.push_back(shortName(name));
    }
    fillProfiles(*profiles_, selected);
    fillProfiles(*trayProfiles_, selected);
    setShownOverBus(overBus_);
}

void StatusMenu::setProfileShortcuts(const QList<QKeySequence> &keys) {
    for (QMenu *menu : {profiles_.get(), trayProfiles_.get()}) {
        const auto actions = menu->actions();
        for (int place = 0; place < actions.size(); ++place) {
            actions[place]->setShortcut(keys.value(place));
            actions[place]->setShortcutVisibleInContextMenu(true);
        }
    }
}

void StatusMenu::setShownOverBus(bool overBus) {
    overBus_ = overBus;
    nameRestorable();
    nameProgram();
    const auto actions = trayProfiles_->actions();
    for (int place = 0; place < actions.size(); ++place) {
        const QString &name = profileNames_[place];
        actions[place]->setText(overBus ? escapedForBus(name) : escaped(name));
    }
}

void StatusMenu::fillProfiles(QMenu &menu, int selected) {
    menu.clear();
    for (int place = 0; place < profileNames_.size(); ++place) {
        auto *action = menu.addAction(escaped(profileNames_[place]));
        action->setCheckable(true);
        action->setChecked(place == selected);
        // The hot key itself works everywhere; in the menu it is only shown.
        action->setShortcutContext(Qt::WidgetShortcut);
        connect(action, &QAction::triggered, this,
                [this, place] { program_.switchProfile(place); });
    }
}

void StatusMenu::setCleanShortcut(const QKeySequence &keys) {
    clean_->setShortcut(keys);
    clean_->setShortcutVisibleInContextMenu(true);
}

std::vector<shortcuts::MenuItem> StatusMenu::mainMenu() {
    std::vector<shortcuts::MenuItem> items{itemOf("Preferences…", preferencesKeys),
                                           itemOf("Quit Nerlo Pro", quitKeys)};
    shortcuts::MenuItem edit;
    edit.title = title("Edit").toStdU16String();
    for (const EditCommand &command : editCommands) {
        edit.submenu.push_back(itemOf(command.title, command.keys));
    }
    items.push_back(std::move(edit));
    return items;
}

} // namespace nerlo::shell
