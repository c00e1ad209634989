// The list of find-and-replace rules with its buttons and the field for the replacement.
//
// It shows the list in nrPreferences and reports edits to it. Main thread only.
#pragma once

#include "engine/CleaningReport.h"
#include "settings/nrPreferences.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

namespace nerlo::shell {

// A list that tells where rows are dropped and leaves the moving to others.
class RuleList final : public QListWidget {
    Q_OBJECT

  public:
    explicit RuleList(QWidget *parent = nullptr);

  signals:
    // `place` is between rows, from 0 to the number of rows.
    void dropped(int row, int place);
    void moveAsked(int by); // -1 up, 1 down
    void removeAsked();

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
    QString searchTexts() const;

  private:
    void describeControls();
    void layOut();
    void followList();
    void followButtons();
    void rowChanged(QListWidgetItem &item);
    void replacementChanged(const QString &replacement);
    void removeSelected();
    void reload();
    void showField();
    void addItem(const storage::PropertyValue &rule);
    void describeRow(QListWidgetItem &item);
    void moveSelected(int by);

    settings::nrPreferences &preferences_;
    QCheckBox *onlyOneProfile;
    RuleList *findTableView;
    QLineEdit *replaceTextField;
    QPushButton *add_;
    QPushButton *remove_;
    QPushButton *up_;
    QPushButton *down_;
    QStringList leftOut_;  // patterns
    bool loading_ = false; // changes come from the preferences, not from the user
};

} // namespace nerlo::shell
