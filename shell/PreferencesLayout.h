// Which option stands on which page of the preferences, beside which others.
//
// What a key's control is follows from its kind in the table of settings keys; here is only the
// place. Any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nerlo::shell {

struct OptionRow {
    std::string key;    // of the check box
    std::string hotKey; // settings key of its shortcut; empty for none
    // Switches, texts and choices that only count while the check box is on.
    std::vector<std::string> dependents;
    bool ruleList = false;   // the find-and-replace list stands below
    bool sideBySide = false; // the dependents stand on one line
};

struct PreferencesPage {
    std::string title; // key of the standard string table, and the page's lasting name
    std::vector<OptionRow> rows;
};

// The pages of the options, in order. The first page of the window, on the program itself, is not
// among them.
const std::vector<PreferencesPage> &preferencesPages();

// The key of a check box's title: for an operation the one that its shortcut has.
std::string titleKey(const OptionRow &row);

// The key of the text that says what a command does, by its shortcut's key. For most it is the
// option's title; that of the statistics says what the option is switched on for.
std::string commandText(std::string_view hotKey);

// The keys of an option's texts in the standard string table. Options that come in tens share their
// tooltips, and the names of their text fields.
std::string labelKey(std::string_view settingsKey);
std::string tooltipKey(std::string_view settingsKey);

} // namespace nerlo::shell
