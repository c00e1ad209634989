// How the cells of a table of rules are shown and edited.
//
// Main thread only.
#pragma once

#include <QStyledItemDelegate>

namespace nerlo::shell {

// Each keystroke counts, as in other fields: the profile may be switched, or the program ended,
// while the editor is open. Escape takes back what was typed.
class EagerDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  protected:
    // Commits whatever the editor holds now, if the cell holds something else.
    void commitNow(QWidget *editor, const QModelIndex &index, const QVariant &value) const;
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

// The cells of RuleModel: kinds are chosen, groups are offered in a replacement, and the place at
// which a pattern stops to make sense is underlined.
class RuleDelegate final : public EagerDelegate {
    Q_OBJECT

  public:
    using EagerDelegate::EagerDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    bool eventFilter(QObject *watched, QEvent *event) override;

  protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
};

} // namespace nerlo::shell
