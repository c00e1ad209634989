// Two texts beside each other, before and after a clean, with what differs marked in both.
//
// Main thread only.
#pragma once

#include "shell/ShownChanges.h"

#include <QPlainTextEdit>
#include <QString>

namespace nerlo::shell {

// Shows white space and line breaks; the Tab key leaves it. The texts by their keys.
void setUpTextPane(QPlainTextEdit &pane, const char *name, const char *titleKey,
                   const char *tipKey);
// One that is not typed into, but read and copied, also without a mouse.
QPlainTextEdit *makeShownPane(const char *name, const char *titleKey, const char *tipKey);

// The pane's text as it was set; the pane's own toPlainText() makes spaces of no-break spaces.
QString textOf(const QPlainTextEdit &pane);

// Where it shows another text now; what is in view stays there if it can.
void setShownText(QPlainTextEdit &pane, const QString &text);

// Marks what the pane shows: on its colours, which may be dark.
enum class TextSide { before, after };
void markChanges(QPlainTextEdit &pane, TextSide side, const ShownText &shown);

// For shownChanges().
LeftOutWords leftOutWords();

} // namespace nerlo::shell
