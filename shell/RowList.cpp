#include "shell/RowList.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>

namespace nerlo::shell {

namespace {

// The text in the first half of the row, and what comes of it in the second.
class RowDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &given,
               const QModelIndex &index) const override {
        QStyleOptionViewItem option = given;
        initStyleOption(&option, index);
        QRect half = option.rect;
        half.setLeft(half.center().x());
        const QString result = index.data(RowList::resultRole).toString();
        if (!result.isEmpty()) {
            constexpr int boxAndMargins = 32;
            option.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight,
                                                        half.width() - boxAndMargins);
        }
        const QStyle &style = *option.widget->style();
        style.drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
        if (result.isEmpty()) {
            return;
        }
        const bool mirrored = option.direction == Qt::RightToLeft;
        const QString text = (mirrored ? QStringLiteral("\u2190 ") : QStringLiteral("\u2192 ")) +
                             QString(result).replace('\n', ' ');
        const QRect place = QStyle::visualRect(option.direction, option.rect, half);
        const bool selected = option.state & QStyle::State_Selected;
        style.drawItemText(painter, place,
                           int(QStyle::visualAlignment(option.direction, Qt::AlignLeft)) |
                               Qt::AlignVCenter,
                           option.palette, option.state & QStyle::State_Enabled,
                           option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()),
                           selected ? QPalette::HighlightedText : QPalette::Text);
    }
    // As wide as the list: what is longer is cut short.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

} // namespace

std::optional<int> acceptRowDrop(QAbstractItemView &view, QDropEvent &event, bool below) {
    if (event.source() != &view || !view.currentIndex().isValid()) {
        event.ignore();
        return std::nullopt;
    }
    const QModelIndex target = view.indexAt(event.position().toPoint());
    // The view would take the row away itself after a move.
    event.setDropAction(Qt::CopyAction);
    event.accept();
    view.viewport()->update();
    return target.isValid() ? target.row() + (below ? 1 : 0) : view.model()->rowCount();
}

int movedBy(const QKeyEvent &event) {
    const bool up = event.key() == Qt::Key_Up;
    const bool moves = event.modifiers() == Qt::AltModifier && (up || event.key() == Qt::Key_Down);
    return !moves ? 0 : up ? -1 : 1;
}

RowList::RowList(QWidget *parent)
    : QListWidget(parent) {
    setItemDelegate(new RowDelegate(this));
    setDragDropMode(QAbstractItemView::InternalMove);
    setSelectionMode(QAbstractItemView::SingleSelection);
}

void RowList::dropEvent(QDropEvent *event) {
    const bool below = dropIndicatorPosition() == QAbstractItemView::BelowItem;
    if (const auto place = acceptRowDrop(*this, *event, below)) {
        setState(QAbstractItemView::NoState);
        emit dropped(currentRow(), *place);
    }
}

void RowList::keyPressEvent(QKeyEvent *event) {
    if (const int by = movedBy(*event)) {
        emit moveAsked(by);
    } else if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        emit removeAsked();
    } else {
        QListWidget::keyPressEvent(event);
    }
}

} // namespace nerlo::shell
