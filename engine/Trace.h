// Which step of a clean changed what.
//
// Made on demand: the steps that a clean would run are run one by one and each text is compared
// with the one before. What counts as a change is told in text/Difference.h. Texts are UTF-16,
// places count units. Pure, any thread.
#pragma once

#include "engine/Operations.h"
#include "text/Difference.h"

#include <cstddef>
#include <functional>
#include <span>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// A change that a step made.
struct TracedChange {
    text::Change change; // from the text that the step was given to the one that it gave
    // The same place in the text that the clean was given, and in the one that it gave. Where other
    // steps changed the same place, all that they changed there.
    text::Range source;
    text::Range result;
    // What stood there, and what the step put in its place: their beginnings, if they are long.
    std::u16string removed;
    std::u16string added;
};

// Units of `removed` and `added` that are kept; one more where that would cut a character.
inline constexpr std::size_t tracedUnits = 80;

struct TraceStep {
    const Operation *operation = nullptr;
    std::size_t rule = 0; // its number in the list of rules, from 1; 0 where it is no such rule
    std::string_view characters{}; // the name of the class that was cleaned; empty where it is none
    std::size_t changes = 0;       // all of them; where none, the step gave what it was given
    std::vector<TracedChange> places{}; // the first of them, in order
};

struct Trace {
    std::u16string text; // as the clean gives it
    std::vector<TraceStep>
        steps; // all that ran, in order; rules and classes of characters one by one
};

// Enough for a window.
inline constexpr std::size_t fewPlaces = 1000;

// A step that changed something, as long as its texts are at hand: places of the step itself are
// not known yet.
struct ShownStep {
    const TraceStep &step;
    std::u16string_view before;
    std::u16string_view after;
    const text::Difference &difference; // of the two; lists as many changes as places are listed
};

// For those who want more of a trace than what it comes to, or less.
struct Tracing {
    bool characterClasses = true; // each class is a step of its own
    std::stop_token stop{};       // ends it between two steps; then the trace is of no use
    std::function<void(const ShownStep &)> watch{}; // may be empty; must not keep the texts
};

// Lists for each step as many places as `mostPlaces` says, or fewer: none behind a place where an
// earlier step had more to list. The time is that of the steps and of the comparisons, which is in
// proportion to the text; where structure is protected, the first step is run again for each of the
// others, the second for each but one, and so on. Memory: some four times the text, and the places.
Trace tracePipeline(std::u16string text, const CleaningContext &context,
                    std::size_t mostPlaces = fewPlaces, const Tracing &how = {});
// The same for one operation, whether or not its switch is on.
Trace traceOperation(const Operation &operation, std::u16string text,
                     const CleaningContext &context, std::size_t mostPlaces = fewPlaces);

} // namespace nerlo::engine
