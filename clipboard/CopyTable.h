// Which profile cleans a copy: an ordered table, of which the first row that fits decides.
//
// A row asks for what is known of a copy on any desktop (the formats that are offered, the page
// that a browser names among them, what the text looks like) and for the program in front, where
// the desktop tells. Values; any thread.
#pragma once

#include "engine/CleaningOptions.h"
#include "storage/PropertyValue.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::clipboard {

enum class Looks { other, link, code, table, terminal };

// What the text looks like, by its beginning. Of a text that could be several things, the one that
// a clean would harm most. What came with a page is no code by its indent alone, which browsers
// give to the items of lists.
Looks looksOf(std::u16string_view text, bool withPage = false);

// What is known of a copy. Names are UTF-8.
struct Copy {
    std::vector<std::string> formats{};
    std::string program{}; // in front; empty where it is not known
    std::optional<std::string>
        host{};                   // of the page; empty for none; nothing as long as it is not read
    std::optional<Looks> looks{}; // nothing as long as the text is not read
};

// Conditions, of which all must hold; an empty one always does. Names are compared without regard
// to the case of ASCII letters, and a "*" at the end stands for any rest.
struct CopyRule {
    bool on = false;
    std::string format{}; // one that is offered; also without its parameters
    std::string host{};   // of the page, or a domain above it; "*" for any page
    std::optional<Looks> looks{};
    std::string program{};
    std::u16string profile{}; // its name, or the id of a ready one; empty: the copy is left alone
    storage::PropertyDictionary stored{}; // as it was read, with keys of newer versions

    bool leavesAlone() const { return profile.empty(); }
    bool operator==(const CopyRule &) const = default;
};

// The store's key of the rules.
inline constexpr auto copyTableKey = "copyTable";

// From and to what is stored, an array of dictionaries. Elements that are none are left out, and a
// rule with a condition that this version does not know is off.
std::vector<CopyRule> copyRules(const storage::PropertyValue *stored);
storage::PropertyArray storedRules(const std::vector<CopyRule> &rules);
// Rules to begin with, all of them off.
std::vector<CopyRule> offeredRules();

// A row as it is used: with the options of its profile.
struct CopyRow {
    CopyRule rule;
    std::size_t number = 0; // from 1, as people see it; 0 for one that is not theirs
    std::u16string title{}; // of the profile
    std::shared_ptr<const engine::CleaningOptions> options{}; // null: left alone
};
using CopyTable = std::vector<CopyRow>;

struct CopyDecision {
    bool open = false;                  // what is known so far does not decide
    std::optional<std::size_t> place{}; // of the row; none: the selected profile
    bool operator==(const CopyDecision &) const = default;
};
// Rows that leave alone are passed over where somebody has asked for the clean.
CopyDecision decide(std::span<const CopyRow> table, const Copy &copy, bool onDemand);

// What became of the last copy that a clean looked at, and why. Holds no text of it.
struct DecidedCopy {
    enum class Outcome {
        none,      // there was no copy yet
        noText,    // no text to be cleaned: empty, files, a picture, a secret
        link,      // an address alone
        leftAlone, // by the row
        cleaned,   // by the row, or with the selected profile
    };
    Outcome outcome = Outcome::none;
    bool onDemand = false; // somebody has asked for the clean
    Copy copy{};
    std::optional<CopyRow> row{};
};

// What a clipboard manager offers again when the program of a copy has gone, which nobody has
// copied.
inline constexpr auto putBackFormat = "application/x-kde-onlyReplaceEmpty";
// The row that leaves it alone.
CopyRow putBackRow();
// The rows of the spreadsheet exception, for the program in front (empty where it is not known).
CopyTable spreadsheetRows(std::string_view program);

} // namespace nerlo::clipboard
