// The page of profiles: their list, and what can be done with them.
//
// The selected row is the selected profile. The page shows the state in nrPreferences and reports
// edits to it; all of them can be taken back. Main thread only.
#pragma once

#include "settings/nrPreferences.h"
#include "shell/OptionRows.h"
#include "shell/RowList.h"
#include "shortcuts/view/nrShortcutView.h"

#include <QPushButton>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace nerlo::shell {

class ProfilesPage final : public QWidget {
    Q_OBJECT

  public:
    ProfilesPage(settings::nrPreferences &preferences, const RecorderMaker &makeRecorder);

    // Shows the profiles that there are now.
    void profilesChanged();
    QString searchTexts() const;
    // Asks, and adds.
    void addProfile();
    // Adds the profiles of the files; says which of them hold none.
    void importFiles(const QStringList &paths);
    // Writes the selected profile; says why if that fails.
    void exportTo(const QString &path);
    // Files that are dropped anywhere on `window` are imported.
    void takeDropsOn(QWidget &window);

  signals:
    // Something was done that undo() takes back; empty: a profile has gone.
    void done(const QString &what);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void makeRecorderRow(const RecorderMaker &makeRecorder);
    void makeButtons();
    void updateRecorder();
    void followList();
    void fillReset(QMenu &menu);
    void fillRestore(QMenu &menu);
    void editName();
    void renamed(QListWidgetItem &item);
    void move(int from, int place);
    void remove();
    void askForImport();
    void askForExport();
    void tellAdded(std::size_t count);

    settings::nrPreferences &preferences_;
    RowList *list_;
    std::vector<std::uint64_t> shown_; // the ids of the rows
    std::vector<QPushButton *> ofRow_; // of use with a selected row
    shortcuts::nrShortcutView *recorder_ = nullptr;
    QPushButton *up_ = nullptr;
    QPushButton *down_ = nullptr;
    QPushButton *restore_ = nullptr;
    bool loading_ = false; // changes come from profilesChanged(), not from the user
};

} // namespace nerlo::shell
