#include "shell/FindReplaceTable.h"

#include "shell/Controls.h"
#include "shell/RowList.h"
#include "shell/RuleCells.h"
#include "shell/RuleModel.h"
#include "shell/RuleTravel.h"
#include "shell/SampleTable.h"
#include "shell/Strings.h"

#include <QAccessible>
#include <QDropEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>

namespace nerlo::shell {

namespace {

constexpr int shownRules = 6; // at least

} // namespace

RuleTable::RuleTable() {
    setItemDelegate(new RuleDelegate(this));
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                    QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    setDragDropMode(QAbstractItemView::InternalMove);
    setDragDropOverwriteMode(false);
    // The Tab key goes on to the next control; between cells it goes while one is edited.
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    verticalHeader()->setHighlightSections(false);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(fontMetrics().height());
}

void RuleTable::dropEvent(QDropEvent *event) {
    const int row = currentIndex().row();
    const bool below = dropIndicatorPosition() == QAbstractItemView::BelowItem;
    if (const auto place = acceptRowDrop(*this, *event, below)) {
        setState(QAbstractItemView::NoState);
        emit dropped(row, *place);
    }
}

void RuleTable::keyPressEvent(QKeyEvent *event) {
    const bool plain = event->modifiers() == Qt::NoModifier;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (const int by = movedBy(*event)) {
        emit moveAsked(by);
    } else if (plain && event->key() == Qt::Key_Delete) {
        emit removeAsked();
    } else if (plain && enter && state() != EditingState && // an editor passes the key on
               (currentIndex().flags() & Qt::ItemIsEditable)) {
        edit(currentIndex());
    } else {
        QTableView::keyPressEvent(event);
    }
}

FindReplaceTable::FindReplaceTable(settings::nrPreferences &preferences)
    : preferences_(preferences)
    , onlyOneProfile(new QCheckBox(localized("sOnlyOneProfile")))
    , findTableView(new RuleTable)
    , model_(new RuleModel(preferences, findTableView))
    , state_(new QLabel)
    , samples_(new SampleTable)
    , add_(new QPushButton(localized("sFindReplaceAdd")))
    , remove_(new QPushButton(localized("sFindReplaceRemove")))
    , lists_(new QPushButton(localized("sRuleLists")))
    , up_(new QPushButton(localized("sFindReplaceUp")))
    , down_(new QPushButton(localized("sFindReplaceDown")))
    , addSample_(new QPushButton(localized("sRuleSampleAdd"))) {
    findTableView->setModel(model_);
    describeControls();
    layOut();
    followTable();
    followButtons();
    connect(onlyOneProfile, &QCheckBox::toggled, this, [this](bool on) {
        if (!loading_) {
            preferences_.onlyOneProfileChanged(on);
            load();
        }
    });
}

void FindReplaceTable::describeControls() {
    describe(*onlyOneProfile, "sOnlyOneProfile", "sOnlyOneProfile", "sOnlyOneProfileTip");
    describe(*findTableView, "findTableView", "sFindReplaceList", "sFindReplaceListTip");
    describe(*add_, "addRule", "sFindReplaceAdd", "sFindReplaceAddTip");
    describe(*remove_, "removeRule", "sFindReplaceRemove", "sFindReplaceRemoveTip");
    describe(*lists_, "ruleLists", "sRuleLists", "sRuleListsTip");
    describe(*up_, "ruleUp", "sFindReplaceUp", "sFindReplaceUpTip");
    describe(*down_, "ruleDown", "sFindReplaceDown", "sFindReplaceDownTip");
    describe(*addSample_, "addSample", "sRuleSampleAdd", "sRuleSampleAddTip");
    state_->setObjectName("ruleState");
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    // Two lines, so that nothing moves while something is typed.
    state_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    state_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
    auto *menu = new QMenu(lists_);
    menu->setObjectName("ruleListsMenu");
    fillLists(*menu);
    lists_->setMenu(menu);
}

void FindReplaceTable::layOut() {
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->addWidget(onlyOneProfile, 0, 0, 1, 3);
    auto *title = new QLabel(localized("sFindReplaceList"));
    title->setBuddy(findTableView);
    layout->addWidget(title, 1, 0, 1, 3);
    layout->addWidget(findTableView, 2, 0, 1, 3);
    layout->setRowStretch(2, 1);
    layout->addWidget(state_, 3, 0, 1, 3);
    QPushButton *const buttons[] = {add_, remove_, lists_, up_, down_, addSample_};
    for (int i = 0; QPushButton * button : buttons) {
        layout->addWidget(button, 4 + i / 3, i % 3);
        ++i;
    }
    auto *samplesTitle = new QLabel(localized("sRuleSamples"));
    samplesTitle->setBuddy(samples_);
    layout->addWidget(samplesTitle, 6, 0, 1, 3);
    layout->addWidget(samples_, 7, 0, 1, 3);

    QHeaderView &header = *findTableView->horizontalHeader();
    header.setSectionResizeMode(QHeaderView::Stretch);
    for (const int narrow : {RuleModel::on, RuleModel::found}) {
        header.setSectionResizeMode(narrow, QHeaderView::ResizeToContents);
    }
    const int row = findTableView->verticalHeader()->defaultSectionSize();
    findTableView->setMinimumHeight(header.sizeHint().height() + shownRules * row);
    findTableView->setMinimumWidth(26 * findTableView->fontMetrics().averageCharWidth() * 2);
}

void FindReplaceTable::followTable() {
    connect(findTableView->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (!loading_) {
                    rowSelected(current.row());
                }
            });
    connect(model_, &RuleModel::rowChanged, this, [this](int changed) {
        if (changed == row()) {
            showRule();
        }
    });
    connect(findTableView, &RuleTable::dropped, this,
            [this](int dropped, int place) { preferences_.acceptDrop({dropped}, place); });
    connect(findTableView, &RuleTable::moveAsked, this, &FindReplaceTable::moveSelected);
    connect(findTableView, &RuleTable::removeAsked, this, &FindReplaceTable::removeSelected);
    connect(findTableView, &RuleTable::copyAsked, this, &FindReplaceTable::copyRule);
    connect(findTableView, &RuleTable::pasteAsked, this, &FindReplaceTable::pasteAsked);
    connect(samples_, &SampleTable::edited, this,
            [this] { preferences_.setRuleSamples(row(), samples_->samples()); });
}

void FindReplaceTable::followButtons() {
    connect(up_, &QPushButton::clicked, this, [this] { moveSelected(-1); });
    connect(down_, &QPushButton::clicked, this, [this] { moveSelected(1); });
    connect(remove_, &QPushButton::clicked, this, &FindReplaceTable::removeSelected);
    connect(add_, &QPushButton::clicked, this, &FindReplaceTable::addRule);
    connect(addSample_, &QPushButton::clicked, this, &FindReplaceTable::addSample);
}

void FindReplaceTable::addRule() {
    preferences_.addNewFindReplace();
    findTableView->setFocus();
    const QModelIndex cell = model_->index(row(), RuleModel::find);
    findTableView->setCurrentIndex(cell); // from which the Tab key goes on
    findTableView->edit(cell);
}

// The first place of the preview that the rule finds, with what it makes of that: to be looked
// over.
void FindReplaceTable::addSample() {
    const settings::RuleTrial *trial = model_->trial(row());
    settings::RuleSample sample;
    if (trial) {
        sample = {trial->finds.example, trial->exampleAfter};
    }
    const auto there = samples_->samples();
    samples_->add(std::ranges::find(there, sample) == there.end() ? sample
                                                                  : settings::RuleSample());
}

void FindReplaceTable::fillLists(QMenu &menu) {
    const auto add = [this](QMenu &to, const QString &title, const char *name, auto run) {
        QAction *action = to.addAction(title);
        action->setObjectName(name);
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    add(menu, localized("sRuleCopy"), "copyRule", [this] { copyRule(); });
    add(menu, localized("sRulePaste"), "pasteRule", [this] { emit pasteAsked(); });
    menu.addSeparator();
    add(menu, localized("sRulesImport"), "importRules", [this] {
        if (const auto path = askForRuleFile(window())) {
            importFile(*path);
        }
    });
    add(menu, localized("sRulesExport"), "exportRules", [this] { exportRules(); });
    menu.addSeparator();
    for (const auto &[title, path] : starterLists()) {
        add(menu, QString(title).replace('&', "&&"), "starterList",
            [this, path = path] { importFile(path); });
    }
}

void FindReplaceTable::importFile(const QString &path) {
    const auto list = readRuleFile(path, window());
    if (list && confirmImport(*list, preferences_.findReplaceList().items(), window())) {
        preferences_.importRules(*list);
    }
}

void FindReplaceTable::exportRules() {
    exportRuleFile(settings::travelRules(preferences_.findReplaceList().items()), window());
}

void FindReplaceTable::copyRule() {
    if (row() >= 0) {
        emit copyAsked(
            QString::fromStdString(settings::writeRuleList({u"", {model_->rule(row())}})));
    }
}

void FindReplaceTable::pasteText(const QString &text) {
    const auto parsed = settings::parseRuleList(text.toStdString());
    if (parsed.list && !parsed.list->rules.empty()) {
        preferences_.pasteRules(*parsed.list);
        findTableView->setFocus();
    } else {
        state_->setText(localized("sRulePasteNothing"));
    }
}

void FindReplaceTable::removeSelected() {
    const int place = row();
    preferences_.deleteFindReplace();
    if (place >= 0) {
        const int last = model_->rowCount() - 1;
        findTableView->setCurrentIndex(
            model_->index(std::min(place, last), RuleModel::find)); // none in an empty list
        rowSelected(findTableView->currentIndex().row());
        emit removed();
    }
    showRule(); // says so if no row is selected
}

QString FindReplaceTable::searchTexts() const {
    QString texts;
    for (const auto *key : {"sOnlyOneProfile", "sOnlyOneProfileTip", "sFindReplaceList",
                            "sFindReplaceListTip", "sFindReplaceWith", "sFindReplaceWithTip",
                            "sFindReplaceAdd", "sFindReplaceRemove", "sRuleSamples", "sRuleLists",
                            "sRulesImport", "sRulesExport", "sRuleKindReplace", "sRuleKindKeep"}) {
        texts += localized(key) + ' ';
    }
    return texts;
}

void FindReplaceTable::load() {
    const QScopedValueRollback loading(loading_, true);
    onlyOneProfile->setChecked(preferences_.onlyOneProfile());
    reload();
}

void FindReplaceTable::reload() {
    const QScopedValueRollback loading(loading_, true);
    const int column = std::max(findTableView->currentIndex().column(), int(RuleModel::find));
    model_->reload();
    if (row() >= 0) {
        findTableView->setCurrentIndex(model_->index(row(), column));
    }
    rowSelected(row());
}

void FindReplaceTable::rowSelected(int selected) {
    preferences_.selectedRow(selected);
    samples_->setSamples(row() < 0 ? std::vector<settings::RuleSample>()
                                   : model_->rule(row()).samples);
    showRule();
}

QString FindReplaceTable::stateOf(int selected) const {
    if (const QString problem = model_->problem(selected); !problem.isEmpty()) {
        return problem;
    }
    if (const QString broken = model_->brokenSample(selected); !broken.isEmpty()) {
        return broken;
    }
    const settings::RuleTrial *trial = model_->trial(selected);
    const std::size_t matches = trial ? trial->finds.matches.value_or(0) : 0;
    return !trial ? QString()
           : matches == 0
               ? localized("sRuleFindsNothing")
               : filled(localized("sRuleFinds"), {QLocale().toString(qulonglong(matches))});
}

void FindReplaceTable::showRule() {
    const auto &list = preferences_.findReplaceList();
    const int count = static_cast<int>(list.items().size());
    const bool any = row() >= 0;
    state_->setText(any ? stateOf(row()) : QString::fromStdU16String(list.field().text));
    if (!any && samples_->hasFocus()) {
        findTableView->setFocus(); // not to whatever comes next
    }
    samples_->setEnabled(any);
    addSample_->setEnabled(any);
    const settings::RuleTrial *trial = any ? model_->trial(row()) : nullptr;
    samples_->setResults(trial ? trial->samples : std::vector<settings::SampleResult>());
    up_->setEnabled(row() > 0);
    down_->setEnabled(any && row() + 1 < count);
}

void FindReplaceTable::setReport(const engine::CleaningReport &report) {
    model_->setReport(report);
}

void FindReplaceTable::setTrials(const std::vector<settings::RuleTrial> &trials) {
    model_->setTrials(trials);
}

void FindReplaceTable::updateUI(settings::RulesUpdate update) {
    if (update == settings::RulesUpdate::emptyField) {
        showRule();
    } else {
        reload();
    }
    if (update == settings::RulesUpdate::reload) {
        findTableView->scrollToTop();
    } else if (update == settings::RulesUpdate::added) {
        findTableView->scrollToBottom();
    }
}

void FindReplaceTable::moveSelected(int by) {
    const int from = row();
    const int place = from + by;
    if (from < 0 || place < 0 || place >= model_->rowCount()) {
        return;
    }
    preferences_.acceptDrop({from}, place);
    findTableView->setCurrentIndex(model_->index(place, RuleModel::find));
}

} // namespace nerlo::shell
