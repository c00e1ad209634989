// The page of the preferences on which every command has its shortcut, in one list.
//
// By keyboard the list is one stop of the Tab key; Up, Down, Home and End go from row to row, and
// the control of the row does the rest. Main thread only.
#pragma once

#include "shell/OptionRows.h"
#include "shell/ShortcutList.h"

#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <span>
#include <string_view>
#include <vector>

namespace nerlo::shell {

class ShortcutPage final : public QWidget {
    Q_OBJECT

  public:
    // `list` must outlive the page.
    ShortcutPage(ShortcutList &list, const RecorderMaker &makeRecorder);

    // Shows only the commands of which all the words (in lower case) are said; whether there are
    // any.
    bool filter(const QStringList &words);
    // Shows anew whom the keys of this command collide with.
    void update(std::string_view hotKey);
    // Shows the profiles that the list has now.
    void profilesChanged();

  signals:
    void resetDone();

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    struct Row {
        ListedCommand command;
        QLabel *heading; // of the rows that follow each other with the same page
        QWidget *widget;
        QLabel *conflict;
        QToolButton *reset;
        QWidget *recorder;
    };
    void addRows(std::span<const ListedCommand> commands);
    void addRow(const ListedCommand &command, QLabel *heading);
    void show(const Row &row);
    std::vector<const Row *> shownRows() const;
    void makeStop(const QWidget *recorder);

    ShortcutList &list_;
    RecorderMaker makeRecorder_;
    QPushButton *resetAll_;
    QVBoxLayout *layout_; // of the rows
    std::vector<Row> rows_;
    QStringList words_; // of the filter
};

} // namespace nerlo::shell
