#include "shell/SampleTable.h"

#include "shell/Controls.h"
#include "shell/RuleCells.h"
#include "shell/RuleModel.h"
#include "shell/Strings.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>

namespace nerlo::shell {

namespace {

constexpr int shownRows = 3;

} // namespace

SampleTable::SampleTable() {
    describe(*this, "ruleSamples", "sRuleSamples", "sRuleSamplesTip");
    setColumnCount(columns);
    setHorizontalHeaderLabels(
        {localized("sPreviewBefore"), localized("sPreviewAfter"), localized("sRuleSampleResult")});
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setHighlightSections(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    setItemDelegate(new EagerDelegate(this));
    setSelectionMode(QAbstractItemView::SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked |
                    QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    setFixedHeight(horizontalHeader()->sizeHint().height() +
                   shownRows * verticalHeader()->defaultSectionSize() + 2 * frameWidth());
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem *cell) {
        if (!loading_) {
            nameCell(*cell);
            keepEmptyRow();
            emit edited();
        }
    });
    setSamples({});
}

QString SampleTable::text(int row, int column) const {
    const QTableWidgetItem *cell = item(row, column);
    return cell ? cell->text() : QString();
}

bool SampleTable::isEmpty(int row) const {
    return text(row, before).isEmpty() && text(row, after).isEmpty();
}

// For a screen reader, which reads a cell without its column.
void SampleTable::nameCell(QTableWidgetItem &cell) {
    const QScopedValueRollback loading(loading_, true);
    const QString title = horizontalHeaderItem(cell.column())->text();
    cell.setData(Qt::AccessibleTextRole,
                 cell.text().isEmpty() ? title : title + ": " + cell.text());
}

void SampleTable::setTexts(int row, const settings::RuleSample &sample) {
    const QScopedValueRollback loading(loading_, true);
    const QString texts[] = {QString::fromStdU16String(sample.before),
                             QString::fromStdU16String(sample.after), QString()};
    for (int column = 0; column < columns; ++column) {
        auto *cell = new QTableWidgetItem(texts[column]);
        if (column == result) {
            cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        }
        setItem(row, column, cell);
        nameCell(*cell);
    }
}

void SampleTable::keepEmptyRow() {
    if (rowCount() == 0 || !isEmpty(rowCount() - 1)) {
        const QScopedValueRollback loading(loading_, true);
        insertRow(rowCount());
        setTexts(rowCount() - 1, {});
    }
}

void SampleTable::setSamples(const std::vector<settings::RuleSample> &given) {
    const QScopedValueRollback loading(loading_, true);
    setRowCount(static_cast<int>(given.size()));
    for (int row = 0; row < rowCount(); ++row) {
        setTexts(row, given[static_cast<std::size_t>(row)]);
    }
    keepEmptyRow();
}

std::vector<settings::RuleSample> SampleTable::samples() const {
    std::vector<settings::RuleSample> samples;
    for (int row = 0; row < rowCount(); ++row) {
        if (!isEmpty(row)) {
            samples.push_back(
                {text(row, before).toStdU16String(), text(row, after).toStdU16String()});
        }
    }
    return samples;
}

void SampleTable::setResults(const std::vector<settings::SampleResult> &results) {
    const QScopedValueRollback loading(loading_, true);
    std::size_t at = 0;
    for (int row = 0; row < rowCount(); ++row) {
        const bool known = !isEmpty(row) && at < results.size();
        const settings::SampleResult *given = known ? &results[at++] : nullptr;
        const bool broken = given && !given->holds;
        const QString told = !given           ? QString()
                             : !broken        ? localized("sRuleSampleHolds")
                             : given->failure ? localized("sRuleSampleFails")
                                              : QString::fromStdU16String(given->given);
        QTableWidgetItem &cell = *item(row, result);
        cell.setText(QString(told).replace('\n', ' '));
        cell.setToolTip(told);
        cell.setIcon(broken ? brokenIcon() : QIcon());
        nameCell(cell);
        if (broken && !given->failure) { // what it gives, and that this is wrong
            cell.setData(Qt::AccessibleTextRole, horizontalHeaderItem(result)->text() + ": " +
                                                     localized("sRuleSampleFails") + ": " + told);
        }
        for (int column = 0; column < columns; ++column) {
            item(row, column)->setBackground(broken ? QBrush(alarmColor(palette())) : QBrush());
        }
    }
}

void SampleTable::add(const settings::RuleSample &sample) {
    const int row = rowCount() - 1;
    const bool given = !sample.before.empty();
    if (given) {
        setTexts(row, sample);
        keepEmptyRow();
        emit edited();
    }
    setFocus();
    setCurrentCell(row, given ? after : before);
    editItem(currentItem());
}

void SampleTable::keyPressEvent(QKeyEvent *event) {
    const bool plain = event->modifiers() == Qt::NoModifier;
    if (plain && event->key() == Qt::Key_Delete && currentRow() >= 0 && !isEmpty(currentRow())) {
        const int row = currentRow();
        removeRow(row);
        keepEmptyRow();
        setCurrentCell(std::min(row, rowCount() - 1), before);
        emit edited();
    } else if (plain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
               state() != EditingState && currentItem() && // an editor passes the key on
               (currentItem()->flags() & Qt::ItemIsEditable)) {
        editItem(currentItem());
    } else {
        QTableWidget::keyPressEvent(event);
    }
}

} // namespace nerlo::shell
