// The rules of find and replace as a table: whether a rule is on, what it finds, of which kind it
// is, what takes the place of that, and how often it finds something in the text of the preview.
//
// It shows the list in nrPreferences and reports each edit to it. Main thread only.
#pragma once

#include "engine/CleaningReport.h"
#include "engine/FindReplace.h"
#include "settings/RuleTrials.h"
#include "settings/nrPreferences.h"

#include <QAbstractTableModel>
#include <QIcon>
#include <QStringList>
#include <vector>

namespace nerlo::shell {

// The kinds in the order in which they are offered, with the keys of their names.
struct RuleKindRow {
    engine::RuleKind kind;
    const char *titleKey;
};
inline constexpr RuleKindRow ruleKinds[] = {
    {engine::RuleKind::text, "sRuleKindText"},
    {engine::RuleKind::replaceMatches, "sRuleKindReplace"},
    {engine::RuleKind::keepMatches, "sRuleKindKeep"},
    {engine::RuleKind::replaceMatchesUntested, "sRuleKindReplaceUntested"},
    {engine::RuleKind::keepMatchesUntested, "sRuleKindKeepUntested"},
};

class RuleModel final : public QAbstractTableModel {
    Q_OBJECT

  public:
    enum Column { on, find, kind, replace, found, columns };
    // Of a row: where its pattern stops to make sense, from 1; 0 where it does.
    static constexpr int troubleRole = Qt::UserRole;
    // Of a row: how many groups its pattern has.
    static constexpr int groupsRole = Qt::UserRole + 1;
    // Whether a cell holds a pattern or a template, which are read from left to right.
    static constexpr int leftToRightRole = Qt::UserRole + 2;

    RuleModel(settings::nrPreferences &preferences, QObject *parent);

    // The list of rules is another one, or has other rows.
    void reload();
    // What the preview found out; what no longer fits a rule is left out.
    void setTrials(const std::vector<settings::RuleTrial> &trials);
    // Marks the rules that the last clean left out, until their patterns change.
    void setReport(const engine::CleaningReport &report);

    // Of the rule as it is now; null until it has been tried.
    const settings::RuleTrial *trial(int row) const;
    // Why the rule does nothing; empty where there is no such reason.
    QString problem(int row) const;
    // Which sample it breaks, and what it makes of it; empty where they hold.
    QString brokenSample(int row) const;
    settings::TravelRule rule(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }

  signals:
    // A cell has another value, or something else is known of it.
    void rowChanged(int row);

  private:
    bool findsNothing(int row) const;
    QString text(const QModelIndex &index) const;
    QString spoken(const QModelIndex &index) const;
    QVariant mark(const QModelIndex &index) const;
    void tellChanged(int row);

    settings::nrPreferences &preferences_;
    std::vector<settings::RuleTrial> trials_;
    QStringList leftOut_; // patterns
};

// Of a sample that does not hold: the sign, and what is red in these colours, to stand behind text.
QIcon brokenIcon();
QColor alarmColor(const QPalette &palette);

} // namespace nerlo::shell
