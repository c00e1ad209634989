// What every control has besides its title: a name for tests and style sheets, and what a screen
// reader and a tooltip say. Main thread only.
#pragma once

#include <QString>
#include <string_view>

class QTreeWidget;
class QWidget;

namespace nerlo::shell {

// Gives the widget a plain text as its tooltip, whatever is in it, and the same as its description.
// Line breaks and runs of spaces are kept.
void setTip(QWidget &widget, const QString &tip);

// `name` is what a screen reader calls the widget; `tip` is its description and its tooltip.
void describeAs(QWidget &widget, const QString &objectName, const QString &name,
                const QString &tip);
// The same by the keys of the texts.
void describe(QWidget &widget, const char *objectName, std::string_view nameKey,
              std::string_view tipKey);

// A list of names, each with a word behind it: the name has the room that the word leaves.
void setUpPairs(QTreeWidget &list);

} // namespace nerlo::shell
