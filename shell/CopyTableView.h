// The table that says which profile cleans which copy: its rows, and the fields of the selected
// one.
//
// It shows the rules in the settings store and writes each edit there. Main thread only.
#pragma once

#include "clipboard/CopyTable.h"
#include "shell/RowList.h"
#include "storage/SettingsStore.h"

#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <functional>
#include <vector>

class QFormLayout;
class QGridLayout;

namespace nerlo::shell {

class Program;

class CopyTableView final : public QGroupBox {
    Q_OBJECT

  public:
    explicit CopyTableView(Program &program);

    // Offers the profiles that there are now.
    void profilesChanged();
    QString searchTexts() const;

  signals:
    void removed(); // a row has gone

  private:
    void makeButtons(QGridLayout &layout);
    void connectList();
    void load();
    void showRow();
    void describeRow(int row);
    QString conditionsOf(const clipboard::CopyRule &rule) const;
    // `place`: where it is typed, if it is.
    void edit(const std::function<void(clipboard::CopyRule &)> &change,
              const std::string &place = {});
    void store(const std::string &place = {});
    void move(int from, int to);
    QLineEdit *addField(QFormLayout &form, const char *name, const char *key,
                        std::string clipboard::CopyRule::*member);
    QComboBox *addChoice(QFormLayout &form, const char *name, const char *key);

    Program &program_;
    std::vector<clipboard::CopyRule> rules_;
    RowList *list_;
    std::vector<std::pair<QLineEdit *, std::string clipboard::CopyRule::*>> fields_;
    QComboBox *looks_ = nullptr;
    QComboBox *profile_ = nullptr;
    std::vector<QPushButton *> ofRow_; // of use with a selected row
    bool loading_ = false;             // changes come from the store, not from the user
    bool storing_ = false;
    storage::SettingsStore::Observation observation_;
};

} // namespace nerlo::shell
