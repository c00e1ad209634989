#include "shell/PreferencesWindow.h"

#include "settings/SettingsKeys.h"
#include "shell/Alerts.h"
#include "shell/Controls.h"
#include "shell/CopyTableView.h"
#include "shell/FieldHistory.h"
#include "shell/FindReplaceTable.h"
#include "shell/Mnemonics.h"
#include "shell/ProfilesPage.h"
#include "shell/Program.h"
#include "shell/ScreenRoom.h"
#include "shell/ShortcutPage.h"
#include "shell/Strings.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace nerlo::shell {

namespace {

constexpr QSize firstSize{1080, 660};
constexpr int shortest = 360;
constexpr int narrowestPreview = 240;

// The check boxes of the first page.
struct GeneralBox {
    const char *name;
    const char *titleKey;
    const char *tipKey;
    bool (nrAppDelegate::*checked)() const;
    void (*change)(nrAppDelegate &delegate, bool on);
    bool aboutCleaning; // then the menu has it too, under the same title; else about the window
};
using Delegate = nrAppDelegate;
constexpr GeneralBox generalBoxes[] = {
    {"automatic", "Automatically clear formatting", "sAutomaticTip", &Delegate::automatic,
     [](Delegate &delegate, bool) { delegate.automaticallyClearFormatting(); }, true},
    {"cleanAtOnce", "Clean right after the copy", "sCleanAtOnceTip", &Delegate::cleanAtOnceChecked,
     [](Delegate &delegate, bool on) { delegate.cleanAtOnce(on); }, true},
    {"keepNoOriginal", "Keep no original", "sKeepNoOriginalTip", &Delegate::keepNoOriginalChecked,
     [](Delegate &delegate, bool on) { delegate.keepNoOriginal(on); }, true},
    {"excelException", "Except copies from Excel", "sExceptSpreadsheetTip",
     &Delegate::excelException,
     [](Delegate &delegate, bool) { delegate.disableAutomaticallyClearFormatting(); }, true},
    {"showInMenuBar", "sShowInMenuBar", "sShowInMenuBarTip", &Delegate::showInMenuBarChecked,
     [](Delegate &delegate, bool on) { delegate.setShowInMenuBar(on); }, false},
    {"runInTheBackground", "sRunInTheBackground", "sRunInTheBackgroundTip",
     &Delegate::runInTheBackgroundChecked,
     [](Delegate &delegate, bool on) { delegate.setRunInTheBackground(on); }, false},
    {"launchOnStartup", "sLaunchOnStartup", "sLaunchOnStartupTip",
     &Delegate::launchOnStartupChecked,
     [](Delegate &delegate, bool on) { delegate.launchOnStartup(on); }, false},
    {"stayOnTop", "sStayOnTop", "sStayOnTopTip", &Delegate::stayOnTopChecked,
     [](Delegate &delegate, bool on) { delegate.aStayOnTop(on); }, false},
};
constexpr std::size_t showInMenuBarBox = 4; // dimmed while the program runs in the background

QCheckBox *makeBox(const char *name, const QString &title, const char *tipKey) {
    auto *box = new QCheckBox(title);
    describeAs(*box, name, title, localized(tipKey));
    return box;
}

QStringList wordsOf(const QString &text) {
    return text.toLower().split(' ', Qt::SkipEmptyParts);
}

// For a page that is found as a whole.
PreferencesWindow::Filter filterOf(const QString &texts) {
    return [texts = texts.toLower()](const QStringList &words) {
        return std::ranges::all_of(words,
                                   [&](const QString &word) { return texts.contains(word); });
    };
}

} // namespace

PreferencesWindow::PreferencesWindow(Program &program)
    : program_(program)
    , preferences_(program.preferences())
    , store_(program.store())
    , pageList_(new QListWidget)
    , pages_(new QStackedWidget)
    , nothingFound_(new QLabel)
    , notice_(new QLabel)
    , preview_(new PreviewPane(program))
    , profilesPage_(new ProfilesPage(
          preferences_,
          [&program](const std::string &hotKey) { return program.windows().makeRecorder(hotKey); }))
    , splitter_(new QSplitter) {
    setObjectName("preferencesWindow");
    setWindowTitle(localized("sPreferencesWindowName"));
    describeParts();
    layOut();
    makePages();
    fitPages();
    connectKeys();
    openAsRemembered();
    profilesChanged();
    controlsLoaded();
    edited();
}

PreferencesWindow::~PreferencesWindow() = default;

void PreferencesWindow::describeParts() {
    pageList_->setObjectName("pageList");
    pageList_->setAccessibleName(localized("sPages"));
    pageList_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    pages_->setObjectName("pages");
    pages_->setAccessibleName(localized("sOptions"));
    splitter_->setObjectName("splitter");
    nothingFound_->setObjectName("nothingFound");
    nothingFound_->setAlignment(Qt::AlignCenter);
    nothingFound_->setWordWrap(true);
    nothingFound_->setTextFormat(Qt::PlainText);
    nothingFound_->hide();
    notice_->setObjectName("notice");
    notice_->setWordWrap(true);
    notice_->setTextFormat(Qt::PlainText);
    notice_->setMargin(6);
    notice_->hide();
}

void PreferencesWindow::layOut() {
    auto *middle = new QWidget;
    auto *middleLayout = new QVBoxLayout(middle);
    middleLayout->setContentsMargins(0, 0, 0, 0);
    middleLayout->addWidget(nothingFound_, 1);
    middleLayout->addWidget(pages_, 1);
    splitter_->addWidget(middle);

    auto *content = new QWidget;
    auto *layout = new QVBoxLayout(content);
    layout->addWidget(makeTop());
    auto *below = new QHBoxLayout;
    below->addWidget(pageList_);
    below->addWidget(splitter_, 1);
    layout->addLayout(below, 1);
    layout->addWidget(makeDeletedBar());
    layout->addWidget(notice_);
    setCentralWidget(content);
}

void PreferencesWindow::makePages() {
    const RecorderMaker makeRecorder = [this](const std::string &hotKey) {
        return program_.windows().makeRecorder(hotKey);
    };
    QWidget *general = makeGeneralPage(makeRecorder);
    addPage(localized("sPageGeneral"), general, filterOf(generalTexts_));
    for (const PreferencesPage &page : preferencesPages()) {
        auto *widget = new OptionPage(page, preferences_, makeRecorder);
        optionPages_.push_back(widget);
        addPage(localized(page.title), widget,
                [widget](const QStringList &words) { return widget->filter(words); });
        if (FindReplaceTable *rules = widget->rules()) {
            followRules(*rules);
        }
    }
    const QString profiles = localized(Table::menu, "Profiles");
    connect(profilesPage_, &ProfilesPage::done, this, &PreferencesWindow::tellDone);
    profilesPage_->takeDropsOn(*this);
    addPage(profiles, profilesPage_, filterOf(profiles + ' ' + profilesPage_->searchTexts()));
    shortcutPage_ = new ShortcutPage(program_.windows().shortcutList(), makeRecorder);
    connect(shortcutPage_, &ShortcutPage::resetDone, this,
            [this] { tellDone(localized("sShortcutsAreReset")); });
    addPage(localized("sPageShortcuts"), shortcutPage_,
            [this](const QStringList &words) { return shortcutPage_->filter(words); });
    splitter_->addWidget(preview_); // now, because the Tab key goes on to what came last
    splitter_->setStretchFactor(0, 3);
    splitter_->setStretchFactor(1, 2);
    splitter_->setCollapsible(0, false);
    preview_->setMinimumWidth(narrowestPreview);
    connect(preview_, &PreviewPane::optionAsked, this, &PreferencesWindow::showOption);
    pageList_->setSpacing(2);
    pageList_->setFixedWidth(pageList_->sizeHintForColumn(0) + 2 * pageList_->frameWidth() + 24);
    connect(pageList_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0) {
            pages_->setCurrentIndex(row);
        }
    });
}

void PreferencesWindow::followRules(FindReplaceTable &rules) {
    connect(preview_, &PreviewPane::rulesTried, &rules, &FindReplaceTable::setTrials);
    connect(&rules, &FindReplaceTable::removed, this, [this] { tellDone({}); });
    connect(&rules, &FindReplaceTable::copyAsked, this, [this](const QString &text) {
        program_.engine().putText(text.toStdU16String(), [](bool) {});
    });
    connect(&rules, &FindReplaceTable::pasteAsked, this, [this, &rules] {
        program_.engine().readClipboardText(
            alive_.guard([&rules](const std::optional<std::u16string> &text) {
                rules.pasteText(QString::fromStdU16String(text.value_or(std::u16string())));
            }));
    });
}

QWidget *PreferencesWindow::makeDeletedBar() {
    deleted_ = new QWidget;
    deleted_->setObjectName("deleted");
    auto *layout = new QHBoxLayout(deleted_);
    layout->setContentsMargins(6, 0, 6, 0);
    whatWasDone_ = new QLabel;
    whatWasDone_->setTextFormat(Qt::PlainText);
    layout->addWidget(whatWasDone_);
    auto *undo = new QPushButton(localized(Table::menu, "Undo"));
    undo->setObjectName("undoDeletion");
    setTip(*undo, localized("sDeletedTip"));
    connect(undo, &QPushButton::clicked, this, [this] { preferences_.undo(); });
    layout->addWidget(undo);
    layout->addStretch();
    deleted_->hide();
    return deleted_;
}

// Until something else is done. Empty: something has gone.
void PreferencesWindow::tellDone(const QString &what) {
    beforeDone_ = QApplication::focusWidget();
    whatWasDone_->setText(what.isEmpty() ? localized("sDeleted") : what);
    deleted_->setAccessibleName(whatWasDone_->text());
    deleted_->show();
    QAccessibleEvent event(deleted_, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

// Who has pressed "Undo" there goes on where the thing was done.
void PreferencesWindow::historyChanged() {
    if (beforeDone_ && deleted_->isAncestorOf(QApplication::focusWidget())) {
        beforeDone_->setFocus();
    }
    deleted_->hide();
}

// A text field keeps Ctrl+Z for itself, but is of no use where nothing was typed into it.
bool PreferencesWindow::eventFilter(QObject *watched, QEvent *event) {
    const auto *field =
        event->type() == QEvent::ShortcutOverride ? qobject_cast<QWidget *>(watched) : nullptr;
    if (isTextField(field) && field->window() == this) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        if ((key.matches(QKeySequence::Undo) && !fieldCan(true, field)) ||
            (key.matches(QKeySequence::Redo) && !fieldCan(false, field))) {
            event->ignore();
            return true;
        }
    }
    if (watched == search_ && event->type() == QEvent::KeyPress) {
        return searchKey(static_cast<QKeyEvent *>(event)->key());
    }
    return QMainWindow::eventFilter(watched, event);
}

// Not as shortcuts, which would also take the keys of a menu that is open.
bool PreferencesWindow::searchKey(int key) {
    if (key == Qt::Key_Escape) {
        search_->clear();
    } else if (key == Qt::Key_Down) {
        enterPage();
    }
    return key == Qt::Key_Escape || key == Qt::Key_Down;
}

void PreferencesWindow::connectKeys() {
    qApp->installEventFilter(this);
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, search_, [this] {
        search_->setFocus(Qt::ShortcutFocusReason);
        search_->selectAll();
    });
    connect(search_, &QLineEdit::returnPressed, this, &PreferencesWindow::enterPage);
    connect(new QShortcut(QKeySequence::Close, this), &QShortcut::activated, this, &QWidget::close);
}

void PreferencesWindow::openAsRemembered() {
    const auto height = store_.integerForKey(heightKey);
    const QSize size(firstSize.width(),
                     height >= shortest ? static_cast<int>(std::min<std::int64_t>(height, 10'000))
                                        : firstSize.height());
    resize(size.boundedTo(screenRoom(*this)));
    const auto page = store_.integerForKey(pageKey);
    pageList_->setCurrentRow(page >= 0 && page < pages_->count() ? static_cast<int>(page) : 0);
}

void PreferencesWindow::assignLetters() {
    // Letters of what is always there are not used again on any page.
    std::set<QChar> used;
    for (const QAction *menu : menuBar()->actions()) {
        const auto at = menu->text().indexOf('&');
        if (at >= 0 && at + 1 < menu->text().size()) {
            used.insert(menu->text()[at + 1].toLower());
        }
    }
    assignMnemonics(*centralWidget()->findChild<QWidget *>("top"), used);
    assignMnemonics(*preview_, used);
    for (int i = 0; i < pages_->count(); ++i) {
        auto ofPage = used;
        assignMnemonics(*pages_->widget(i), ofPage);
    }
    fitPages();
}

// The options are never cut off at the side; a short window scrolls them.
void PreferencesWindow::fitPages() {
    for (OptionPage *page : optionPages_) {
        page->alignFields();
    }
    int widest = 0;
    for (int i = 0; i < pages_->count(); ++i) {
        const auto *page = static_cast<QScrollArea *>(pages_->widget(i))->widget();
        widest = std::max(widest, page->minimumSizeHint().width());
    }
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int options = widest + bar + 4;
    pages_->parentWidget()->setMinimumWidth(options);
    QLayout &layout = *centralWidget()->layout();
    const int around = layout.contentsMargins().left() + layout.contentsMargins().right();
    const int narrowest = around + pageList_->width() + layout.spacing() + options;
    centralWidget()->setMinimumWidth(
        std::max(narrowest, around + layout.itemAt(0)->minimumSize().width()));
    previewBesideFrom_ = narrowest + splitter_->handleWidth() + narrowestPreview;
    placePreview();
}

// Beside the options where there is room for both, else below them.
void PreferencesWindow::placePreview() {
    const bool below = width() < previewBesideFrom_;
    if (below != (splitter_->orientation() == Qt::Vertical)) {
        splitter_->setOrientation(below ? Qt::Vertical : Qt::Horizontal);
        preview_->setSideBySide(below);
        // What can be scrolled gets no more than it needs at the side, and all that there is above.
        const int options = pages_->parentWidget()->minimumWidth();
        splitter_->setSizes(below ? QList{firstSize.height(), 1}
                                  : QList{options, firstSize.width()});
    }
}

void PreferencesWindow::resizeEvent(QResizeEvent *event) {
    QMainWindow::resizeEvent(event);
    placePreview();
}

QWidget *PreferencesWindow::makeTop() {
    auto *top = new QWidget;
    top->setObjectName("top");
    auto *layout = new QHBoxLayout(top);
    layout->setContentsMargins(0, 0, 0, 0);
    search_ = new QLineEdit;
    describe(*search_, "search", "sSearch", "sSearchTip");
    search_->setPlaceholderText(localized("sSearch"));
    search_->setClearButtonEnabled(true);
    search_->findChild<QToolButton *>()->setAccessibleName(localized(Table::menu, "Delete"));
    connect(search_, &QLineEdit::textChanged, this, &PreferencesWindow::search);
    layout->addWidget(search_, 1);
    layout->addSpacing(24);

    auto *label = new QLabel(localized("sProfile"));
    profilesPopupButton_ = new QComboBox;
    describe(*profilesPopupButton_, "profilesPopupButton", "sProfile", "sProfileTip");
    profilesPopupButton_->setMinimumContentsLength(14);
    label->setBuddy(profilesPopupButton_);
    connect(profilesPopupButton_, &QComboBox::activated, this,
            [this](int index) { preferences_.profilesSwitch(index); });
    // Whatever their names are, they leave room for the search.
    profilesPopupButton_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    const auto addButton = [&](const char *name, const char *titleKey, const char *tipKey) {
        auto *button = new QPushButton(localized(titleKey));
        describe(*button, name, titleKey, tipKey);
        layout->addWidget(button);
        return button;
    };
    layout->addWidget(label);
    layout->addWidget(profilesPopupButton_);
    connect(addButton("addProfile", "sProfileAdd", "sProfileAddTip"), &QPushButton::clicked,
            profilesPage_, &ProfilesPage::addProfile);
    connect(addButton("manageProfiles", "sProfilesManage", "sProfilesManageTip"),
            &QPushButton::clicked, this, [this] {
                showPage(*profilesPage_);
                profilesPage_->setFocus();
            });
    return top;
}

QWidget *PreferencesWindow::makeGeneralPage(const RecorderMaker &makeRecorder) {
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(12, 8, 12, 12);

    const auto addGroup = [&](const char *titleKey) {
        auto *group = new QGroupBox(localized(titleKey));
        layout->addWidget(group);
        return new QVBoxLayout(group);
    };

    QVBoxLayout *cleaning = addGroup("sGroupCleaning");
    generalTexts_ = localized("sPageGeneral");
    for (const auto &row : settings::commandHotKeys) {
        auto *widget = new QWidget;
        auto *line = new QHBoxLayout(widget);
        line->setContentsMargins(0, 0, 0, 0);
        const QString command = localized(row.key);
        widget->setAccessibleName(command); // without one it would have that of the group
        auto *label = new QLabel(command);
        setTip(*label, localized(std::string(row.key) + "Tip"));
        line->addWidget(label, 1);
        QWidget *recorder =
            shell::makeRecorder(makeRecorder, std::string(row.key), command, *widget);
        label->setBuddy(recorder);
        line->addWidget(recorder);
        cleaning->addWidget(widget);
        auto *problem = makeProblem();
        cleaning->addWidget(problem);
        commandProblems_[row.key] = problem;
        generalTexts_ += ' ' + command;
    }
    QVBoxLayout *window = addGroup("sGroupWindow");
    for (const GeneralBox &row : generalBoxes) {
        const Table table = row.aboutCleaning ? Table::menu : Table::standard;
        auto *box = makeBox(row.name, localized(table, row.titleKey), row.tipKey);
        (row.aboutCleaning ? cleaning : window)->addWidget(box);
        general_.push_back(box);
        connect(box, &QCheckBox::toggled, this, [this, change = row.change](bool on) {
            if (!loading_) {
                change(program_.delegate(), on);
            }
        });
    }
    copyTable_ = new CopyTableView(program_);
    connect(copyTable_, &CopyTableView::removed, this, [this] { tellDone({}); });
    layout->addWidget(copyTable_);
    layout->addStretch();

    generalTexts_ += ' ' + copyTable_->searchTexts();
    for (const QCheckBox *box : page->findChildren<QCheckBox *>()) {
        generalTexts_ += ' ' + box->text() + ' ' + box->accessibleDescription();
    }
    return page;
}

void PreferencesWindow::addPage(const QString &title, QWidget *page, Filter filter) {
    auto *scroll = new QScrollArea;
    scroll->setWidget(page);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Not a stop of the Tab key: its controls are.
    scroll->setFocusPolicy(Qt::NoFocus);
    page->setAccessibleName(title);
    pages_->addWidget(scroll);
    pageList_->addItem(title);
    filters_.push_back(std::move(filter));
}

void PreferencesWindow::showPage(const QWidget &page) {
    search_->clear(); // it may hide the page
    for (int i = 0; i < pages_->count(); ++i) {
        if (static_cast<QScrollArea *>(pages_->widget(i))->widget() == &page) {
            pageList_->setCurrentRow(i);
        }
    }
}

void PreferencesWindow::search(const QString &text) {
    const QStringList words = wordsOf(text);
    if (!words.isEmpty() && pageBeforeSearch_ < 0) {
        pageBeforeSearch_ = pageList_->currentRow();
    }
    int firstHit = -1;
    for (int i = 0; i < pageList_->count(); ++i) {
        const bool hit = filters_[static_cast<std::size_t>(i)](words);
        pageList_->item(i)->setHidden(!hit);
        if (hit && firstHit < 0) {
            firstHit = i;
        }
    }
    nothingFound_->setText(filled(localized("sSearchNothing"), {text}));
    nothingFound_->setVisible(firstHit < 0);
    pages_->setVisible(firstHit >= 0);
    if (words.isEmpty()) {
        pageList_->setCurrentRow(std::max(0, std::exchange(pageBeforeSearch_, -1)));
    } else if (firstHit >= 0 && pageList_->currentItem()->isHidden()) {
        pageList_->setCurrentRow(firstHit);
    }
}

// To the first control that the search has left on the page.
void PreferencesWindow::enterPage() {
    auto *scroll = static_cast<QScrollArea *>(pages_->currentWidget());
    const QWidget *page = scroll->widget();
    for (QWidget *next = page->nextInFocusChain(); page->isAncestorOf(next);
         next = next->nextInFocusChain()) {
        if (next->isVisible() && next->isEnabled() && (next->focusPolicy() & Qt::TabFocus)) {
            next->setFocus(Qt::TabFocusReason);
            scroll->ensureWidgetVisible(next);
            return;
        }
    }
}

void PreferencesWindow::showOption(std::string_view hotKey) {
    search_->clear(); // it may hide the option
    for (OptionPage *page : optionPages_) {
        if (page->point(hotKey)) {
            showPage(*page);
            return;
        }
    }
}

void PreferencesWindow::updateGeneral() {
    const QScopedValueRollback loading(loading_, true);
    const auto &delegate = program_.delegate();
    for (std::size_t i = 0; i < general_.size(); ++i) {
        general_[i]->setChecked((delegate.*generalBoxes[i].checked)());
    }
    general_[showInMenuBarBox]->setEnabled(!delegate.runInTheBackgroundChecked());
}

void PreferencesWindow::setHotKeyProblem(std::string_view hotKey, const QString &problem) {
    if (const auto found = commandProblems_.find(hotKey); found != commandProblems_.end()) {
        showProblem(*found->second, problem);
    }
    for (OptionPage *page : optionPages_) {
        page->setHotKeyProblem(hotKey, problem);
    }
    shortcutPage_->update(hotKey);
}

void PreferencesWindow::setNotice(const QString &notice) {
    notice_->setText(notice);
    notice_->setVisible(!notice.isEmpty());
}

void PreferencesWindow::setReport(const engine::CleaningReport &report) {
    for (OptionPage *page : optionPages_) {
        page->setReport(report);
    }
}

void PreferencesWindow::profilesChanged() {
    const QSignalBlocker blocker(profilesPopupButton_);
    profilesPopupButton_->clear();
    for (const settings::ProfileItem &item : preferences_.profilesItems()) {
        profilesPopupButton_->addItem(
            shortName(QString::fromStdU16String(settings::profileNameOf(item.record))));
    }
    profilesPopupButton_->setCurrentIndex(preferences_.popupSelection().value_or(-1));
    copyTable_->profilesChanged();
    profilesPage_->profilesChanged();
    shortcutPage_->profilesChanged();
}

void PreferencesWindow::controlsLoaded() {
    for (OptionPage *page : optionPages_) {
        page->load();
    }
}

void PreferencesWindow::updateUI(settings::RulesUpdate update) {
    for (OptionPage *page : optionPages_) {
        page->updateRules(update);
    }
}

void PreferencesWindow::edited() {
    preview_->setOptions(preferences_.profileSelected());
}

void PreferencesWindow::remember() {
    store_.set(heightKey, height());
    const int page = pageBeforeSearch_ >= 0 ? pageBeforeSearch_ : pageList_->currentRow();
    store_.set(pageKey, page);
}

void PreferencesWindow::closeEvent(QCloseEvent *event) {
    remember();
    if (program_.windows().closingMinimizes()) {
        showMinimized();
        event->ignore();
    } else {
        QMainWindow::closeEvent(event);
    }
}

void PreferencesWindow::hideEvent(QHideEvent *event) {
    QMainWindow::hideEvent(event);
    if (!event->spontaneous()) {
        remember();
    }
}

} // namespace nerlo::shell
