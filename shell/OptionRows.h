// One page of options: for each a check box, what depends on it, and its shortcut.
//
// The controls show the state in nrPreferences and report edits to it. Main thread only.
#pragma once

#include "engine/CleaningReport.h"
#include "settings/nrPreferences.h"
#include "shell/PreferencesLayout.h"
#include "shortcuts/view/nrShortcutView.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

class QGridLayout;
class QVBoxLayout;

namespace nerlo::shell {

// Makes the control that records the shortcut of a settings key.
using RecorderMaker = std::function<shortcuts::nrShortcutView *(const std::string &hotKey)>;

// A recorder with its name, for the row of a command, in which it is quiet; null where the command
// has no settings key.
QWidget *makeRecorder(const RecorderMaker &make, const std::string &hotKey, const QString &command,
                      QWidget &row);

// A line for why a shortcut does not work, hidden at first.
QLabel *makeProblem();
// Shows the line unless it is empty.
void showProblem(QLabel &label, const QString &problem);

class FindReplaceTable;

class OptionPage final : public QWidget {
    Q_OBJECT

  public:
    OptionPage(const PreferencesPage &page, settings::nrPreferences &preferences,
               const RecorderMaker &makeRecorder);

    // Shows the state of the preferences.
    void load();
    // Of the find-and-replace table; see nrPreferences. Nothing on pages without it.
    void updateRules(settings::RulesUpdate update);
    // The table of rules; null on pages without it.
    FindReplaceTable *rules() const { return rules_; }
    // Marks what the last clean left out.
    void setReport(const engine::CleaningReport &report);
    // The fields stand below each other, whatever their labels say.
    void alignFields();
    // Shows only the options whose texts have all the words (in lower case), marked as found;
    // whether there are any.
    bool filter(const QStringList &words);
    // Brings the option of this shortcut into view and lets it flash; false when there is none.
    bool point(std::string_view hotKey);
    // Why the system does not give the program this shortcut; empty when it does.
    void setHotKeyProblem(std::string_view hotKey, const QString &problem);

  private:
    void mark(QWidget &row, bool marked) const;
    struct Row {
        QWidget *widget;
        QString texts; // what a search looks at, in lower case
        std::string hotKey;
        QLabel *problem;
    };

    void addRow(const OptionRow &row, const RecorderMaker &makeRecorder);
    bool labelIsShared(const QString &label) const;
    QWidget *makeControl(const std::string &key, QString &texts);
    QCheckBox *makeCheckBox(const std::string &key, const QString &title);
    QComboBox *makeChoice(const std::string &key, QString &texts);
    QWidget *makeText(const std::string &key);
    void addPatternMark(QLineEdit &field);
    QWidget *withRules(QWidget &row, QString &texts);
    void updateDependents();
    QWidget *control(std::string_view key) const;
    void setEnabledWithLabel(std::string_view key, bool enabled);

    settings::nrPreferences &preferences_;
    const PreferencesPage &page_;
    QVBoxLayout *layout_;
    std::vector<Row> rows_;
    std::map<std::string, QWidget *, std::less<>> controls_;
    std::map<std::string, QLabel *, std::less<>> labels_;
    std::array<std::vector<QLabel *>, 2> columns_;
    FindReplaceTable *rules_ = nullptr;
    std::function<void(const QString &problem)> markPattern_; // none on pages without the pattern
    bool loading_ = false; // changes come from load(), not from the user
};

} // namespace nerlo::shell
