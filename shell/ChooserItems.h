// What the chooser offers, and which of it a search finds.
//
// Main thread only.
#pragma once

#include "clipboard/nrChangePasterboard.h"

#include <QString>
#include <vector>

namespace nerlo::settings {
class nrPreferences;
}

namespace nerlo::shell {

struct ChooserItem {
    QString title;
    QString kind;     // in the user's language: a profile, rules, an operation
    QString keywords; // also found, but not shown: the names on the command line
    clipboard::nrChangePasterboard::Choice choice;
};

// The user's profiles, those that come with the program, the lists of rules, and the operations
// with the options of the selected profile.
std::vector<ChooserItem> chooserItems(const settings::nrPreferences &preferences);

// All operations, without options.
std::vector<ChooserItem> operationItems();

// The places of the items that have all words of `text`, the best first: those that begin with it,
// then those in which each word begins a word. All, in their order, for an empty text.
std::vector<std::size_t> placesOf(const std::vector<ChooserItem> &items, const QString &text);

} // namespace nerlo::shell
