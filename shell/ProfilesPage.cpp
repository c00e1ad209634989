#include "shell/ProfilesPage.h"

#include "settings/ProfileTravel.h"
#include "settings/ReadyProfiles.h"
#include "settings/SettingsKeys.h"
#include "shell/Alerts.h"
#include "shell/Controls.h"
#include "shell/ShortcutList.h"
#include "shell/Strings.h"

#include <QDropEvent>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QUrl>
#include <algorithm>
#include <functional>

namespace nerlo::shell {

namespace {

constexpr auto filePatterns = "*.plist *.nrp";
constexpr int columns = 3;

QString nameOf(const settings::ProfileItem &item) {
    return QString::fromStdU16String(settings::profileNameOf(item.record));
}

QStringList localFiles(const QDropEvent &event) {
    QStringList paths;
    for (const QUrl &url : event.mimeData()->urls()) {
        if (url.isLocalFile()) {
            paths.push_back(url.toLocalFile());
        }
    }
    return paths;
}

} // namespace

ProfilesPage::ProfilesPage(settings::nrPreferences &preferences, const RecorderMaker &makeRecorder)
    : preferences_(preferences)
    , list_(new RowList) {
    describeAs(*list_, "profilesList", localized(Table::menu, "Profiles"),
               localized("sProfilesListTip"));
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    auto *hint = new QLabel(localized("sProfilesListTip"));
    hint->setWordWrap(true);
    layout->addWidget(hint, 0, 0, 1, columns);
    layout->addWidget(list_, 1, 0, 1, columns);
    layout->setRowStretch(1, 1);
    setFocusProxy(list_);
    makeRecorderRow(makeRecorder);
    makeButtons();
    followList();
}

void ProfilesPage::makeRecorderRow(const RecorderMaker &makeRecorder) {
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *label = new QLabel(localized("sProfileShortcut"));
    setTip(*label, localized("sProfileShortcutTip"));
    layout->addWidget(label, 1);
    recorder_ = dynamic_cast<shortcuts::nrShortcutView *>(
        shell::makeRecorder(makeRecorder, std::string(settings::profileHotKeyPrefix),
                            localized("sProfileShortcut"), *row));
    layout->addWidget(recorder_);
    label->setBuddy(recorder_);
    static_cast<QGridLayout *>(QWidget::layout())->addWidget(row, 2, 0, 1, columns);
}

// It belongs to the first profile of the name.
void ProfilesPage::updateRecorder() {
    const auto name = preferences_.profileName();
    const std::string key = settings::profileHotKey(name);
    const bool any = preferences_.popupSelection().has_value() && !name.empty();
    if (recorder_->associatedUserDefaultsKey() != key) {
        recorder_->setRecording(false);
        recorder_->setAssociatedUserDefaultsKey(key);
    }
    recorder_->setEnabled(any);
    recorder_->setAccessibleName(filled(localized("sShortcutOf"), {selectingTitle(name)}));
}

void ProfilesPage::makeButtons() {
    const struct {
        const char *name;
        const char *key;
        const char *tip;
        std::function<void()> run; // none: it opens a menu
    } buttons[] = {
        {"duplicateProfile", "sProfileDuplicate", "sProfileDuplicateTip",
         [this] {
             preferences_.profilesDuplicate();
             editName();
         }},
        {"renameProfile", "sProfileRename", "sProfileRenameTip", [this] { editName(); }},
        {"removeProfile", "sProfileRemove", "sProfileRemoveTip", [this] { remove(); }},
        {"profileUp", "sFindReplaceUp", "sProfileUpTip", [this] { emit list_->moveAsked(-1); }},
        {"profileDown", "sFindReplaceDown", "sProfileDownTip",
         [this] { emit list_->moveAsked(1); }},
        {"resetProfile", "sProfileReset", "sProfileResetTip", {}},
        {"exportProfile", "sProfileExport", "sProfileExportTip", [this] { askForExport(); }},
        {"importProfile", "sProfileImport", "sProfileImportTip", [this] { askForImport(); }},
        {"restoreProfile", "sProfileRestore", "sProfileRestoreTip", {}},
    };
    constexpr std::size_t ofRow = 7; // the others need no selected row
    auto *layout = static_cast<QGridLayout *>(QWidget::layout());
    std::vector<QPushButton *> made;
    for (const auto &row : buttons) {
        auto *button = new QPushButton(localized(row.key));
        describe(*button, row.name, row.key, row.tip);
        if (row.run) {
            connect(button, &QPushButton::clicked, this, row.run);
        }
        const int at = static_cast<int>(made.size());
        layout->addWidget(button, 3 + at / columns, at % columns);
        made.push_back(button);
    }
    ofRow_.assign(made.begin(), made.begin() + ofRow);
    up_ = made[3];
    down_ = made[4];
    restore_ = made.back();
    auto *reset = new QMenu(made[5]);
    fillReset(*reset);
    made[5]->setMenu(reset);
    auto *restore = new QMenu(restore_);
    connect(restore, &QMenu::aboutToShow, this, [this, restore] { fillRestore(*restore); });
    restore_->setMenu(restore);
}

void ProfilesPage::followList() {
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!loading_) {
            preferences_.profilesSwitch(row);
        }
    });
    connect(list_, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (!loading_) {
            renamed(*item);
        }
    });
    connect(list_, &RowList::dropped, this, &ProfilesPage::move);
    connect(list_, &RowList::moveAsked, this, [this](int by) {
        const int row = list_->currentRow();
        move(row, by < 0 ? row - 1 : row + 2);
    });
    connect(list_, &RowList::removeAsked, this, &ProfilesPage::remove);
}

void ProfilesPage::profilesChanged() {
    const QScopedValueRollback loading(loading_, true);
    const auto &items = preferences_.profilesItems();
    if (!std::ranges::equal(items, shown_, {}, &settings::ProfileItem::id)) {
        shown_.clear();
        list_->clear(); // also ends an edit, which was of another row now
        for (const settings::ProfileItem &item : items) {
            shown_.push_back(item.id);
            auto *row = new QListWidgetItem(list_);
            row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable |
                          Qt::ItemIsDragEnabled);
        }
    }
    for (int row = 0; const settings::ProfileItem &item : items) {
        list_->item(row++)->setText(nameOf(item));
    }
    const int selected = preferences_.popupSelection().value_or(-1);
    list_->setCurrentRow(selected);
    for (QPushButton *button : ofRow_) {
        button->setEnabled(selected >= 0);
    }
    up_->setEnabled(selected > 0);
    down_->setEnabled(selected >= 0 && selected + 1 < list_->count());
    updateRecorder();
    restore_->setEnabled(!preferences_.removedProfiles().empty());
}

QString ProfilesPage::searchTexts() const {
    QString texts = list_->accessibleName() + ' ' + list_->accessibleDescription() + ' ' +
                    localized("sProfileShortcut");
    for (const QPushButton *button : findChildren<QPushButton *>()) {
        texts += ' ' + button->accessibleName() + ' ' + button->accessibleDescription();
    }
    return texts;
}

void ProfilesPage::fillReset(QMenu &menu) {
    const auto add = [&](const QString &title,
                         const std::function<settings::ProfileRecord()> &make) {
        connect(menu.addAction(title), &QAction::triggered, this,
                [this, make] { preferences_.profilesReset(make()); });
    };
    add(localized("sProfileFirstStart"), [this] { return preferences_.firstProfileRecord(); });
    for (const settings::ReadyProfile &ready : settings::readyProfiles()) {
        add(filled(localized("sReady"), {localized(ready.titleKey)}),
            [&ready] { return settings::readyRecord(ready, {}); });
    }
}

void ProfilesPage::fillRestore(QMenu &menu) {
    menu.clear();
    for (const settings::ProfileItem &item : preferences_.removedProfiles()) {
        connect(menu.addAction(shortName(nameOf(item)).replace('&', "&&")), &QAction::triggered,
                this, [this, id = item.id] {
                    preferences_.profilesRestore(id);
                    tellAdded(1);
                });
    }
}

void ProfilesPage::editName() {
    if (QListWidgetItem *item = list_->currentItem()) {
        list_->setFocus();
        list_->editItem(item);
    }
}

// Once the editor has gone: the list may be another one afterwards.
void ProfilesPage::renamed(QListWidgetItem &item) {
    const auto id = shown_[static_cast<std::size_t>(list_->row(&item))];
    QMetaObject::invokeMethod(
        this,
        [this, id, name = item.text().toStdU16String()] {
            preferences_.profilesRename(id, name);
            profilesChanged(); // an empty name is none
        },
        Qt::QueuedConnection);
}

void ProfilesPage::move(int from, int place) {
    preferences_.profilesMove(from, place);
}

void ProfilesPage::remove() {
    if (preferences_.profilesRemove()) {
        emit done({});
    }
}

void ProfilesPage::addProfile() {
    preferences_.profilesAdd();
    const QString current = QString::fromStdU16String(preferences_.profileName());
    NameQuestion question{
        localized("Insert new profile name and click OK"),
        localized("sProfileName"),
        localized("sProfileBegin"),
        {{localized("sProfileEmpty"), {}}, {filled(localized("sProfileCopy"), {current}), {}}}};
    const auto firstReady = question.beginnings.size();
    for (const settings::ReadyProfile &ready : settings::readyProfiles()) {
        const QString title = localized(ready.titleKey);
        question.beginnings.push_back({filled(localized("sReady"), {title}), title});
    }
    const auto chosen = askForName(question, window());
    if (!chosen) {
        preferences_.profilesAddingCancelWindow();
        return;
    }
    const auto name = chosen->name.toStdU16String();
    const auto ready = chosen->beginning - firstReady;
    preferences_.profilesAddingCloseWindow(
        name, chosen->beginning == 0 ? settings::ProfileRecord()
              : ready < 0            ? preferences_.profileSelected()
                                     : settings::readyRecord(
                                           settings::readyProfiles()[static_cast<std::size_t>(ready)], name));
}

void ProfilesPage::askForImport() {
    const QStringList paths =
        QFileDialog::getOpenFileNames(window(), localized("sProfileImport"), {}, filePatterns);
    giveBackTheKeyboard(window());
    importFiles(paths);
}

void ProfilesPage::importFiles(const QStringList &paths) {
    std::vector<settings::ProfileRecord> records;
    QStringList errors;
    for (const QString &path : paths) {
        auto read = settings::readProfiles(path.toStdString());
        if (!read.error.empty()) {
            errors.push_back(QString::fromStdString(read.error));
        }
        std::ranges::move(read.records, std::back_inserter(records));
    }
    const std::size_t count = records.size();
    if (count > 0) {
        preferences_.profilesImport(std::move(records));
        tellAdded(count);
    }
    if (!errors.empty()) {
        runAlert({Alert::Style::warning,
                  localized("sProfileUnreadable"),
                  errors.join('\n'),
                  {localized("OK")}},
                 window());
    }
}

// What is added stands at the end.
void ProfilesPage::tellAdded(std::size_t count) {
    QStringList names;
    const auto &items = preferences_.profilesItems();
    for (auto at = items.size() - std::min(count, items.size()); at < items.size(); ++at) {
        names.push_back(shortName(nameOf(items[at])));
    }
    list_->scrollToBottom();
    constexpr int most = 3;
    const bool more = names.size() > most;
    emit done(filled(localized("sProfilesAdded"),
                     {names.mid(0, most).join(", ") + (more ? QStringLiteral(", …") : QString())}));
}

void ProfilesPage::askForExport() {
    QFileDialog dialog(window(), localized("sProfileExport"), {}, filePatterns);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix("plist");
    dialog.selectFile(QString::fromStdU16String(preferences_.profileName()).replace('/', '-') +
                      ".plist");
    const bool accepted = dialog.exec() == QDialog::Accepted;
    giveBackTheKeyboard(window());
    if (accepted) {
        exportTo(dialog.selectedFiles().value(0));
    }
}

void ProfilesPage::exportTo(const QString &path) {
    const std::string error =
        settings::exportProfile(path.toStdString(), preferences_.profileSelected());
    if (!error.empty()) {
        runAlert({Alert::Style::warning,
                  localized("sProfileNotWritten"),
                  QString::fromStdString(error),
                  {localized("OK")}},
                 window());
    }
}

void ProfilesPage::takeDropsOn(QWidget &window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool ProfilesPage::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() != QEvent::DragEnter && event->type() != QEvent::Drop) {
        return QWidget::eventFilter(watched, event);
    }
    auto &drop = static_cast<QDropEvent &>(*event);
    const QStringList paths = localFiles(drop);
    if (paths.isEmpty()) {
        return false;
    }
    // The file stays where it is.
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (event->type() == QEvent::Drop) {
        // Whoever drags waits until this returns; a message may wait for a person.
        QMetaObject::invokeMethod(
            this, [this, paths] { importFiles(paths); }, Qt::QueuedConnection);
    }
    return true;
}

} // namespace nerlo::shell
