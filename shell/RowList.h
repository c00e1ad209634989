// A list of rows, each with a text and, behind an arrow, what comes of it.
//
// It tells where rows are dropped and leaves the moving to others. Main thread only.
#pragma once

#include <QListWidget>
#include <optional>

namespace nerlo::shell {

class RowList final : public QListWidget {
    Q_OBJECT

  public:
    static constexpr int resultRole = Qt::UserRole; // what stands behind the arrow

    explicit RowList(QWidget *parent = nullptr);

  signals:
    // `place` is between rows, from 0 to the number of rows.
    void dropped(int row, int place);
    void moveAsked(int by); // -1 up, 1 down
    void removeAsked();

  protected:
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

// What lists and tables of rows have in common: the place between rows, from 0 to their number, at
// which one is dropped, which is taken from the view; nothing when it comes from elsewhere.
std::optional<int> acceptRowDrop(QAbstractItemView &view, QDropEvent &event, bool below);
// Alt+Up and Alt+Down: -1 and 1; else 0.
int movedBy(const QKeyEvent &event);

} // namespace nerlo::shell
