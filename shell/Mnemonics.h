// Gives every check box, button and field label of a window a letter to reach it by, in any
// language, so that no two visible ones share a letter.
#pragma once

#include <QStringList>
#include <QWidget>
#include <set>

namespace nerlo::shell {

// The texts with "&" before letters that are not in `used`, which they join: the first of a word
// where possible. A text without one to spare gets a Latin letter or a digit in brackets, or stays
// as it is when all are used.
QStringList withMnemonics(const QStringList &texts, std::set<QChar> &used);

// The check boxes and buttons below `parent`, then its labels with a buddy, in the order in which
// they were made.
void assignMnemonics(QWidget &parent, std::set<QChar> &used);

} // namespace nerlo::shell
