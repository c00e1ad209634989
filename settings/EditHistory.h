// What a person did to profiles, options, rules, shortcuts and the table of copies, to be taken
// back and done again.
//
// States are kept as values; to take one back, only what the gesture changed is put back into the
// state of then, so that what other processes have changed meanwhile stays. Main thread only.
#pragma once

#include "settings/ProfilesFile.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::settings {

struct EditedState {
    ProfileItems profiles; // the selected one as it is edited
    RecordItems sharedRules;
    std::uint64_t selected = 0; // the id of the selected profile
    bool onlyOne = false;       // one list of rules for all profiles
    // Of the commands and profiles that have one, as they are stored.
    storage::PropertyDictionary shortcuts{};
    // Which profile cleans which copy, as it is stored; nothing where it is not.
    std::optional<storage::PropertyValue> copyTable{};
    bool operator==(const EditedState &) const = default;
};

class EditHistory {
  public:
    static constexpr std::size_t mostGestures = 100;
    // Of all states together, in rules and keys of profiles; the last gesture is kept whatever its
    // size.
    static constexpr std::size_t mostValues = 400'000;

    // What changed nothing is no gesture. Gestures of the same `typing` that follow each other
    // become one, until endTyping(); with an empty one they do not.
    void add(EditedState before, EditedState after, std::string_view typing = {});
    void endTyping() { typing_.clear(); }

    bool canUndo() const { return done_ > 0; }
    bool canRedo() const { return done_ < gestures_.size(); }
    struct Change {
        const EditedState &from;
        const EditedState &to;
    };
    // To be carried out by the caller, before the next call. Only where there is one.
    Change undo();
    Change redo();

  private:
    struct Gesture {
        EditedState before;
        EditedState after;
        std::size_t values;
    };
    void forget();

    std::deque<Gesture> gestures_;
    std::size_t done_ = 0; // those behind are to be done again
    std::string typing_;
};

} // namespace nerlo::settings
