// Dialogs with which lists of rules come in and go out.
//
// Main thread only.
#pragma once

#include "settings/RuleList.h"
#include "storage/PropertyValue.h"

#include <QString>
#include <optional>
#include <utility>
#include <vector>

class QWidget;

namespace nerlo::shell {

// Shows what the list would do to the rules that are there; whether the user wants it.
bool confirmImport(const settings::RuleList &list, const storage::PropertyArray &stored,
                   QWidget *parent);

// Of a file, or of a list that comes along, whose title is then the user's language's; says so
// where there is none in it.
std::optional<settings::RuleList> readRuleFile(const QString &path, QWidget *parent);
// Asks for a file, and writes the list there under the file's name as its title.
void exportRuleFile(settings::RuleList list, QWidget *parent);
// Nothing when the user wants none.
std::optional<QString> askForRuleFile(QWidget *parent);

// The lists that come along: title and resource, in the order of the titles.
std::vector<std::pair<QString, QString>> starterLists();

} // namespace nerlo::shell
