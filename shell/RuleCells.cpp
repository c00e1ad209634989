#include "shell/RuleCells.h"

#include "shell/RuleModel.h"
#include "shell/Strings.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QRegularExpression>
#include <QStringListModel>

namespace nerlo::shell {

namespace {

constexpr auto valueBefore = "valueBefore"; // property of an editor

// "$" before the cursor offers the groups of the pattern.
class GroupCompleter final : public QCompleter {
  public:
    GroupCompleter(QLineEdit &field, const QModelIndex &index)
        : QCompleter(&field)
        , field_(field) {
        QStringList groups;
        for (qulonglong group = 0; group <= index.data(RuleModel::groupsRole).toULongLong();
             ++group) {
            groups << "$" + QString::number(group);
        }
        setModel(new QStringListModel(groups, this));
        setWidget(&field);
        popup()->setLayoutDirection(Qt::LeftToRight); // as a replacement is read
        connect(&field, &QLineEdit::textEdited, this, &GroupCompleter::offer);
        connect(this, qOverload<const QString &>(&QCompleter::activated), this,
                &GroupCompleter::insert);
    }

  private:
    QString begun() const {
        static const QRegularExpression group("\\$[0-9]*$");
        return group.match(field_.text().left(field_.cursorPosition())).captured();
    }
    void offer() {
        setCompletionPrefix(begun());
        if (completionPrefix().isEmpty() || completionCount() == 0 ||
            (completionCount() == 1 && currentCompletion() == completionPrefix())) {
            popup()->hide();
            return;
        }
        popup()->setCurrentIndex(completionModel()->index(0, 0));
        complete();
    }
    void insert(const QString &group) {
        const QString prefix = begun();
        field_.setSelection(field_.cursorPosition() - static_cast<int>(prefix.size()),
                            static_cast<int>(prefix.size()));
        field_.insert(group);
    }

    QLineEdit &field_;
};

} // namespace

void EagerDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    QStyledItemDelegate::initStyleOption(option, index);
    // Brackets of a pattern would change places in a line from right to left.
    if (!option->text.isEmpty() && !(option->features & QStyleOptionViewItem::HasDecoration)) {
        const bool alignsRight =
            QStyle::visualAlignment(option->direction, option->displayAlignment) & Qt::AlignRight;
        const bool mirrored =
            !index.data(RuleModel::leftToRightRole).toBool() && option->text.isRightToLeft();
        option->direction = mirrored ? Qt::RightToLeft : Qt::LeftToRight;
        option->displayAlignment =
            Qt::AlignVCenter | Qt::AlignAbsolute | (alignsRight ? Qt::AlignRight : Qt::AlignLeft);
    } else if (option->direction == Qt::RightToLeft && !option->text.isRightToLeft()) {
        // Beside a picture that stands where a line from right to left begins.
        constexpr QChar isolate(0x2066);
        constexpr QChar end(0x2069);
        option->text = isolate + option->text + end;
    }
}

QWidget *EagerDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const {
    QWidget *editor = QStyledItemDelegate::createEditor(parent, option, index);
    auto *field = qobject_cast<QLineEdit *>(editor);
    field->setProperty(valueBefore, index.data(Qt::EditRole));
    field->setAccessibleName(index.model()->headerData(index.column(), Qt::Horizontal).toString());
    field->setFrame(true);
    if (index.data(RuleModel::leftToRightRole).toBool()) {
        field->setLayoutDirection(Qt::LeftToRight);
        if (parent->isRightToLeft()) { // where the cell shows it
            field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        }
    }
    // Not textEdited(), which is silent when an accessibility tool sets the text.
    connect(field, &QLineEdit::textChanged, this,
            [this, field, cell = QPersistentModelIndex(index)](const QString &text) {
                commitNow(field, cell, text);
            });
    return editor;
}

void EagerDelegate::commitNow(QWidget *editor, const QModelIndex &index,
                              const QVariant &value) const {
    if (index.isValid() && value != index.data(Qt::EditRole)) {
        emit const_cast<EagerDelegate *>(this)->commitData(editor);
    }
}

void EagerDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    // Setting an equal text would still move the cursor to its end.
    if (qobject_cast<QLineEdit *>(editor)->text() != index.data(Qt::EditRole)) {
        QStyledItemDelegate::setEditorData(editor, index);
    }
}

bool EagerDelegate::eventFilter(QObject *watched, QEvent *event) {
    auto *editor = qobject_cast<QLineEdit *>(watched);
    if (editor && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        editor->setText(editor->property(valueBefore).toString());
    }
    return QStyledItemDelegate::eventFilter(watched, event);
}

void RuleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                         const QModelIndex &index) const {
    EagerDelegate::paint(painter, option, index);
    const int trouble =
        index.column() == RuleModel::find ? index.data(RuleModel::troubleRole).toInt() : 0;
    if (trouble == 0) {
        return;
    }
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const int margin = QApplication::style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QRect place = shown.rect.adjusted(margin, 0, -margin, 0);
    const bool atRight = shown.displayAlignment & Qt::AlignRight;
    const int whole = shown.fontMetrics.horizontalAdvance(shown.text);
    const int begin = atRight ? std::max(place.left(), place.right() - whole) : place.left();
    const int before = shown.fontMetrics.horizontalAdvance(shown.text.left(trouble - 1));
    const int width =
        std::max(shown.fontMetrics.horizontalAdvance(shown.text.mid(trouble - 1, 1)), 4);
    const int x = std::min(begin + before, place.right() - width);
    const int y = (shown.rect.center().y() + shown.fontMetrics.height() / 2);
    const bool selected = shown.state & QStyle::State_Selected;
    painter->fillRect(QRect(x, y - 1, width, 2),
                      selected ? shown.palette.color(QPalette::HighlightedText) : QColor(Qt::red));
}

QWidget *RuleDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const {
    if (index.column() != RuleModel::kind) {
        QWidget *editor = EagerDelegate::createEditor(parent, option, index);
        if (index.column() == RuleModel::replace) {
            auto *field = qobject_cast<QLineEdit *>(editor);
            field->setPlaceholderText(localized("sFindReplacePlaceholderString"));
            if (index.data(RuleModel::leftToRightRole).toBool()) {
                new GroupCompleter(*field, index);
            }
        }
        return editor;
    }
    auto *choice = new QComboBox(parent);
    choice->setAccessibleName(localized("sRuleColumnKind"));
    for (const RuleKindRow &row : ruleKinds) {
        choice->addItem(localized(row.titleKey), static_cast<int>(row.kind));
    }
    choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    choice->view()->setMinimumWidth(choice->view()->sizeHintForColumn(0) + 24);
    choice->setProperty(valueBefore, index.data(Qt::EditRole));
    setEditorData(choice, index);
    connect(choice, &QComboBox::currentIndexChanged, this,
            [this, choice, cell = QPersistentModelIndex(index)] {
                commitNow(choice, cell, choice->currentData());
            });
    return choice;
}

void RuleDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const {
    if (auto *choice = qobject_cast<QComboBox *>(editor)) {
        choice->setCurrentIndex(choice->findData(index.data(Qt::EditRole)));
    } else {
        EagerDelegate::setEditorData(editor, index);
    }
}

void RuleDelegate::setModelData(QWidget *editor, QAbstractItemModel *model,
                                const QModelIndex &index) const {
    if (const auto *choice = qobject_cast<QComboBox *>(editor)) {
        model->setData(index, choice->currentData(), Qt::EditRole);
    } else {
        EagerDelegate::setModelData(editor, model, index);
    }
}

// Kinds differ at both ends of their names.
void RuleDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const {
    EagerDelegate::initStyleOption(option, index);
    if (index.column() == RuleModel::kind) {
        option->textElideMode = Qt::ElideMiddle;
    }
}

bool RuleDelegate::eventFilter(QObject *watched, QEvent *event) {
    auto *choice = qobject_cast<QComboBox *>(watched);
    if (choice && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape) {
        choice->setCurrentIndex(choice->findData(choice->property(valueBefore)));
    }
    return EagerDelegate::eventFilter(watched, event);
}

} // namespace nerlo::shell
