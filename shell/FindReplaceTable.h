// The list of find-and-replace rules: a table in which they are edited, the samples of the selected
// one, and what brings rules in and out.
//
// It shows the list in nrPreferences and reports edits to it. Main thread only.
#pragma once

#include "engine/CleaningReport.h"
#include "settings/RuleTrials.h"
#include "settings/nrPreferences.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QWidget>
#include <vector>

class QMenu;

namespace nerlo::shell {

class RuleModel;
class SampleTable;

// A table that tells what is done to its rows and leaves the doing to others. The slots are those
// that the menu "Edit" looks for in what has the keyboard.
class RuleTable final : public QTableView {
    Q_OBJECT

  public:
    RuleTable();

  public slots:
    void copy() { emit copyAsked(); }
    void paste() { emit pasteAsked(); }

  signals:
    // `place` is between rows, from 0 to the number of rows.
    void dropped(int row, int place);
    void moveAsked(int by); // -1 up, 1 down
    void removeAsked();
    void copyAsked();
    void pasteAsked();

  protected:
    void dropEvent(QDropEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
};

class FindReplaceTable final : public QWidget {
    Q_OBJECT

  public:
    explicit FindReplaceTable(settings::nrPreferences &preferences);

    // Shows the state of the preferences.
    void load();
    // See nrPreferences.
    void updateUI(settings::RulesUpdate update);
    // Marks the rules that the last clean left out, until their patterns change.
    void setReport(const engine::CleaningReport &report);
    // What the preview found out of the rules.
    void setTrials(const std::vector<settings::RuleTrial> &trials);
    QString searchTexts() const;

    // The clipboard's text, for pasteAsked(). Rules in the format of lists are put behind the
    // selected one.
    void pasteText(const QString &text);

  signals:
    void copyAsked(const QString &text); // is to be put on the clipboard
    void pasteAsked();
    void removed(); // a rule, which undoing brings back

  private:
    void describeControls();
    void layOut();
    void followTable();
    void followButtons();
    void addRule();
    void addSample();
    void removeSelected();
    void reload();
    void rowSelected(int row);
    void showRule();
    QString stateOf(int row) const;
    void moveSelected(int by);
    void fillLists(QMenu &menu);
    void importFile(const QString &path);
    void exportRules();
    void copyRule();
    int row() const { return preferences_.findReplaceList().lastClickedRow(); }

    settings::nrPreferences &preferences_;
    QCheckBox *onlyOneProfile;
    RuleTable *findTableView;
    RuleModel *model_;
    QLabel *state_;
    SampleTable *samples_;
    QPushButton *add_;
    QPushButton *remove_;
    QPushButton *lists_;
    QPushButton *up_;
    QPushButton *down_;
    QPushButton *addSample_;
    bool loading_ = false; // changes come from the preferences, not from the user
};

} // namespace nerlo::shell
