// Gives every check box, button and field label of a window a letter to reach it by, in any
// language, so that no two visible ones share a letter.
#pragma once

#include <QString>
#include <QWidget>
#include <set>

namespace nerlo::shell {

// `text` with "&" before the first letter that is not in `used`, which it joins; a text without one
// to spare gets a Latin letter or a digit in brackets, or stays as it is when all are used.
QString withMnemonic(const QString &text, std::set<QChar> &used);

// The check boxes and buttons below `parent`, then its labels with a buddy, in the order in which
// they were made.
void assignMnemonics(QWidget &parent, std::set<QChar> &used);

} // namespace nerlo::shell
