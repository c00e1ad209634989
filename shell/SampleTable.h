// The samples of one rule: a text before and after, and whether the rule does that.
//
// The last row is empty, to be filled in. Main thread only.
#pragma once

#include "settings/RuleList.h"

#include <QTableWidget>
#include <vector>

namespace nerlo::shell {

class SampleTable final : public QTableWidget {
    Q_OBJECT

  public:
    SampleTable();

    // Of another rule, or none.
    void setSamples(const std::vector<settings::RuleSample> &samples);
    // Without empty ones.
    std::vector<settings::RuleSample> samples() const;
    // One for each of samples(); none while they are not known.
    void setResults(const std::vector<settings::SampleResult> &results);
    // Adds one, to be looked over and changed; an empty one is to be filled in.
    void add(const settings::RuleSample &sample);

  signals:
    void edited();

  protected:
    void keyPressEvent(QKeyEvent *event) override;

  private:
    enum Column { before, after, result, columns };
    void nameCell(QTableWidgetItem &cell);
    void setTexts(int row, const settings::RuleSample &sample);
    QString text(int row, int column) const;
    bool isEmpty(int row) const;
    void keepEmptyRow();

    bool loading_ = false; // changes come from the rule, not from the user
};

} // namespace nerlo::shell
