// Gives the check boxes, buttons and field labels of a window letters to reach them by, in any
// language, so that no two visible ones share a letter.
#pragma once

#include <QStringList>
#include <QWidget>
#include <set>

namespace nerlo::shell {

// The texts with "&" before letters that are not in `used`, which they join: the first of a word
// where possible. A text in a script whose letters are on no key gets a Latin letter or a digit in
// brackets, as is usual there. One whose letters are all taken stays as it is.
QStringList withMnemonics(const QStringList &texts, std::set<QChar> &used);

// The check boxes and buttons below `parent`, then its labels with a buddy, in the order in which
// they were made.
void assignMnemonics(QWidget &parent, std::set<QChar> &used);

} // namespace nerlo::shell
