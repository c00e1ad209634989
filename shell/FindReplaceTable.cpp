#include "shell/FindReplaceTable.h"

#include "engine/FindReplace.h"
#include "shell/Controls.h"
#include "shell/LeftOutRules.h"
#include "shell/Strings.h"
#include "shortcuts/view/WarningMark.h"

#include <QDropEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

namespace nerlo::shell {

namespace {

constexpr int replacementRole = Qt::UserRole;
constexpr auto textBefore = "textBefore"; // property of an editor

// Why a rule does nothing; empty for one that works.
QString problemOf(const QString &find, const QString &replacement, const QStringList &leftOut) {
    if (!engine::ruleIsUsable(find.toStdU16String(), replacement.toStdU16String())) {
        return localized("sPatternUnusable");
    }
    return leftOut.contains(find) ? localized("sRuleLeftOut") : QString();
}

// What is sought in the first half of the row, and behind an arrow what takes its place.
class RuleDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &given,
               const QModelIndex &index) const override {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        QRect half = option.rect;
        half.setLeft(half.center().x());
        const QString replacement = index.data(replacementRole).toString();
        if (!replacement.isEmpty()) {
            constexpr int boxAndMargins = 32;
            const int mark = option.icon.isNull() ? 0 : option.decorationSize.width() + 4;
            option.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight,
                                                        half.width() - boxAndMargins - mark);
        }
        const QStyle &style = *option.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        if (replacement.isEmpty()) {
            return;
        }
        const bool mirrored = option.direction == Qt::RightToLeft;
        const QString text = (mirrored ? QStringLiteral("\u2190 ") : QStringLiteral("\u2192 ")) +
                             QString(replacement).replace('\n', ' ');
        const QRect place = QStyle::visualRect(option.direction, option.rect, half);
        const bool selected = option.state & QStyle::State_Selected;
        style.drawItemText(painter, place,
                           int(QStyle::visualAlignment(option.direction, Qt::AlignLeft)) |
                               Qt::AlignVCenter,
                           option.palette, option.state & QStyle::State_Enabled,
                           option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()),
                           selected ? QPalette::HighlightedText : QPalette::Text);
    }
    // Each keystroke counts, as in other fields: the profile may be switched, or the program ended,
    // while the editor is open.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override {
        QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
        editor->setProperty(textBefore, index.data(Qt::EditRole));
        // Not textEdited(), which is silent when an accessibility tool sets the text.
        connect(qobject_cast<QLineEdit *>(editor), &QLineEdit::textChanged, this,
                [this, editor, rule = QPersistentModelIndex(index)](const QString &text) {
                    if (text != rule.data(Qt::EditRole)) {
                        emit const_cast<RuleDelegate *>(this)->commitData(editor);
                    }
                });
        return editor;
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override {
        // Setting an equal text would still move the cursor to its end.
        if (qobject_cast<QLineEdit *>(editor)->text() != index.data(Qt::EditRole)) {
            QStyledItemDelegate::setEditorData(editor, index);
        }
    }
    bool eventFilter(QObject *watched, QEvent *event) override {
        auto *editor = qobject_cast<QLineEdit *>(watched);
        if (editor && event->type() == QEvent::KeyPress &&
            static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
            editor->setText(editor->property(textBefore).toString());
        }
        return QStyledItemDelegate::eventFilter(watched, event);
    }
    // As wide as the list: what is longer is cut short, and shown whole by the editor.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

} // namespace

RuleList::RuleList(QWidget *parent)
    : QListWidget(parent) {
    setItemDelegate(new RuleDelegate(this));
    setIconSize(QSize(1, 1) * fontMetrics().height()); // no row is higher for its mark
    setDragDropMode(QAbstractItemView::InternalMove);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed);
}

void RuleList::dropEvent(QDropEvent *event) {
    if (event->source() != this || !currentItem()) {
        event->ignore();
        return;
    }
    const QModelIndex target = indexAt(event->position().toPoint());
    int place = target.isValid() ? target.row() : count();
    if (target.isValid() && (dropIndicatorPosition() == QAbstractItemView::BelowItem)) {
        ++place;
    }
    const int row = currentRow();
    // The view would take the row away itself after a move.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setState(QAbstractItemView::NoState);
    viewport()->update();
    emit dropped(row, place);
}

void RuleList::keyPressEvent(QKeyEvent *event) {
    const bool alt = event->modifiers() == Qt::AltModifier;
    if (alt && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
        emit moveAsked(event->key() == Qt::Key_Up ? -1 : 1);
    } else if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit removeAsked();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

// What the row shows beside its text; a screen reader gets it as the description.
void FindReplaceTable::describeRow(QListWidgetItem &item) {
    const QString replacement = item.data(replacementRole).toString();
    const QString problem = problemOf(item.text(), replacement, leftOut_);
    item.setIcon(problem.isEmpty() ? QIcon() : shortcuts::warningIcon());
    item.setToolTip(problem);
    QStringList description{problem};
    if (!replacement.isEmpty()) {
        description << localized("sFindReplaceWith") + ": " + replacement;
    }
    description.removeAll(QString());
    item.setData(Qt::AccessibleDescriptionRole, description.join('\n'));
}

void FindReplaceTable::setReport(const engine::CleaningReport &report) {
    leftOut_.clear();
    for (const std::size_t rule : leftOutRules(report)) {
        const auto *item = rule == engine::PatternFailure::ownPattern
                               ? nullptr
                               : findTableView->item(static_cast<int>(rule) - 1);
        if (item) {
            leftOut_ << item->text();
        }
    }
    const QScopedValueRollback loading(loading_, true);
    for (int row = 0; row < findTableView->count(); ++row) {
        describeRow(*findTableView->item(row));
    }
}

FindReplaceTable::FindReplaceTable(settings::nrPreferences &preferences)
    : preferences_(preferences)
    , onlyOneProfile(new QCheckBox(localized("sOnlyOneProfile")))
    , findTableView(new RuleList)
    , replaceTextField(new QLineEdit)
    , add_(new QPushButton(localized("sFindReplaceAdd")))
    , remove_(new QPushButton(localized("sFindReplaceRemove")))
    , up_(new QPushButton(localized("sFindReplaceUp")))
    , down_(new QPushButton(localized("sFindReplaceDown"))) {
    describeControls();
    layOut();
    followList();
    followButtons();
    connect(onlyOneProfile, &QCheckBox::toggled, this, [this](bool on) {
        if (!loading_) {
            preferences_.onlyOneProfileChanged(on);
            load();
        }
    });
    // Not textEdited(), which is silent when an accessibility tool sets the text.
    connect(replaceTextField, &QLineEdit::textChanged, this, [this](const QString &text) {
        if (!loading_) {
            replacementChanged(text);
        }
    });
}

void FindReplaceTable::describeControls() {
    describe(*onlyOneProfile, "sOnlyOneProfile", "sOnlyOneProfile", "sOnlyOneProfileTip");
    describe(*findTableView, "findTableView", "sFindReplaceList", "sFindReplaceListTip");
    describe(*replaceTextField, "replaceTextField", "sFindReplaceWith", "sFindReplaceWithTip");
    describe(*add_, "addRule", "sFindReplaceAdd", "sFindReplaceAddTip");
    describe(*remove_, "removeRule", "sFindReplaceRemove", "sFindReplaceRemoveTip");
    describe(*up_, "ruleUp", "sFindReplaceUp", "sFindReplaceUpTip");
    describe(*down_, "ruleDown", "sFindReplaceDown", "sFindReplaceDownTip");
}

void FindReplaceTable::layOut() {
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 4, 0, 0);
    layout->addWidget(onlyOneProfile, 0, 0, 1, 2);
    auto *title = new QLabel(localized("sFindReplaceList"));
    title->setBuddy(findTableView);
    layout->addWidget(title, 1, 0, 1, 2);
    layout->addWidget(findTableView, 2, 0, 1, 2);
    layout->setRowStretch(2, 1);
    auto *with = new QLabel(localized("sFindReplaceWith"));
    with->setBuddy(replaceTextField);
    layout->addWidget(with, 3, 0);
    layout->addWidget(replaceTextField, 3, 1);
    layout->setColumnStretch(1, 1);
    auto *buttons = new QGridLayout;
    buttons->addWidget(add_, 0, 0);
    buttons->addWidget(remove_, 0, 1);
    buttons->addWidget(up_, 1, 0);
    buttons->addWidget(down_, 1, 1);
    layout->addLayout(buttons, 4, 0, 1, 2);
}

void FindReplaceTable::followList() {
    connect(findTableView, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!loading_) {
            preferences_.selectedRow(row);
            showField();
        }
    });
    connect(findTableView, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (!loading_) {
            rowChanged(*item);
        }
    });
    connect(findTableView, &RuleList::dropped, this,
            [this](int row, int place) { preferences_.acceptDrop({row}, place); });
    connect(findTableView, &RuleList::moveAsked, this, &FindReplaceTable::moveSelected);
    connect(findTableView, &RuleList::removeAsked, this, &FindReplaceTable::removeSelected);
}

void FindReplaceTable::followButtons() {
    connect(up_, &QPushButton::clicked, this, [this] { moveSelected(-1); });
    connect(down_, &QPushButton::clicked, this, [this] { moveSelected(1); });
    connect(remove_, &QPushButton::clicked, this, &FindReplaceTable::removeSelected);
    connect(add_, &QPushButton::clicked, this, [this] {
        preferences_.addNewFindReplace();
        findTableView->setFocus();
        if (auto *item = findTableView->currentItem()) {
            findTableView->editItem(item);
        }
    });
}

void FindReplaceTable::rowChanged(QListWidgetItem &item) {
    const int row = findTableView->row(&item);
    const auto &rule = preferences_.findReplaceList().items().at(static_cast<std::size_t>(row));
    const bool on = item.checkState() == Qt::Checked;
    if (on != settings::FindReplaceList::isOn(rule)) {
        preferences_.saveCurrentFindReplaceCheckbox(row, on);
    }
    const std::u16string find = item.text().toStdU16String();
    if (find != settings::FindReplaceList::textOf(rule, "find")) {
        preferences_.selectedRow(row);
        preferences_.saveCurrentFindReplace(find);
        const QScopedValueRollback loading(loading_, true);
        describeRow(item);
        showField();
    }
}

void FindReplaceTable::replacementChanged(const QString &replacement) {
    preferences_.controlTextDidChangeReplace(replacement.toStdU16String());
    if (auto *item = findTableView->currentItem()) {
        const QScopedValueRollback loading(loading_, true);
        item->setData(replacementRole, replacement);
        describeRow(*item);
    }
    replaceTextField->setPlaceholderText(
        QString::fromStdU16String(preferences_.findReplaceList().field().placeholder));
}

void FindReplaceTable::removeSelected() {
    preferences_.deleteFindReplace();
    showField(); // says so if no row is selected
}

QString FindReplaceTable::searchTexts() const {
    QString texts;
    for (const auto *key :
         {"sOnlyOneProfile", "sOnlyOneProfileTip", "sFindReplaceList", "sFindReplaceListTip",
          "sFindReplaceWith", "sFindReplaceWithTip", "sFindReplaceAdd", "sFindReplaceRemove"}) {
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
    findTableView->clear();
    for (const storage::PropertyValue &rule : preferences_.findReplaceList().items()) {
        addItem(rule);
    }
    findTableView->setCurrentRow(preferences_.findReplaceList().lastClickedRow());
    showField();
}

void FindReplaceTable::addItem(const storage::PropertyValue &rule) {
    auto *item = new QListWidgetItem(
        QString::fromStdU16String(settings::FindReplaceList::textOf(rule, "find")));
    item->setData(replacementRole,
                  QString::fromStdU16String(settings::FindReplaceList::textOf(rule, "replace")));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable |
                   Qt::ItemIsUserCheckable | Qt::ItemIsDragEnabled);
    item->setCheckState(settings::FindReplaceList::isOn(rule) ? Qt::Checked : Qt::Unchecked);
    describeRow(*item);
    findTableView->addItem(item);
}

void FindReplaceTable::showField() {
    const QScopedValueRollback loading(loading_, true);
    const auto &list = preferences_.findReplaceList();
    const auto &field = list.field();
    const QString text = QString::fromStdU16String(field.text);
    if (replaceTextField->text() != text) {
        replaceTextField->setText(text);
    }
    replaceTextField->setPlaceholderText(QString::fromStdU16String(field.placeholder));
    replaceTextField->setEnabled(field.enabled);
    const int row = list.lastClickedRow();
    const int count = static_cast<int>(list.items().size());
    up_->setEnabled(row > 0);
    down_->setEnabled(row >= 0 && row + 1 < count);
}

void FindReplaceTable::updateUI(settings::RulesUpdate update) {
    if (update == settings::RulesUpdate::emptyField) {
        showField();
    } else {
        reload();
    }
    if (update == settings::RulesUpdate::reload && findTableView->count() > 0) {
        findTableView->scrollToItem(findTableView->item(0));
    } else if (update == settings::RulesUpdate::added) {
        findTableView->scrollToBottom();
    }
}

void FindReplaceTable::moveSelected(int by) {
    const auto &list = preferences_.findReplaceList();
    const int row = list.lastClickedRow();
    const int place = row + by;
    if (row < 0 || place < 0 || place >= static_cast<int>(list.items().size())) {
        return;
    }
    preferences_.acceptDrop({row}, place);
    preferences_.selectedRow(place);
    reload();
}

} // namespace nerlo::shell
