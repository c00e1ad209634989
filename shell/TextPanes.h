// Two texts beside each other, before and after a clean, with what differs marked in both.
//
// Main thread only.
#pragma once

#include "shell/TextDiff.h"

#include <QPlainTextEdit>
#include <QString>
#include <vector>

namespace nerlo::shell {

// Shows white space and line breaks; the Tab key leaves it. The texts by their keys.
QPlainTextEdit *makeTextPane(const char *name, const char *titleKey, const char *tipKey);

// One unit for each line break, as a pane holds a text.
QString asShown(QString text);
// The pane's text as it was set; the pane's own toPlainText() makes spaces of no-break spaces.
QString textOf(const QPlainTextEdit &pane);

// In the colours of the widgets, which may be dark.
void markDifferences(QPlainTextEdit &before, const std::vector<TextSpan> &removed,
                     QPlainTextEdit &after, const std::vector<TextSpan> &added);

} // namespace nerlo::shell
