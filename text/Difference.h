// Where two texts differ.
//
// A change is a run of units that gave way to another run: neither is continued by units that were
// kept, and none of the runs cuts a pair of surrogates. Either may be empty, not both. What is kept
// stands in both texts in the same order, so that the changes, applied to the first text, give the
// second.
//
// The comparison is made for long texts with many small changes, and takes time in proportion to
// them. It finds short ways from one text to the other, not always the shortest. Where every line
// of the second text is one of the first, as after sorting, whole lines are compared. The same
// texts always give the same changes. Pure, any thread.
#pragma once

#include "text/Range.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace nerlo::text {

struct Change {
    Range before; // in the first text
    Range after;  // in the second
    bool operator==(const Change &) const = default;
};

struct Difference {
    std::size_t count = 0;       // of all changes
    std::vector<Change> changes; // the first of them, in order
};

// Whether a cut at `at`, which may be the end of the text, parts the halves of a pair.
bool cutsPair(std::u16string_view text, std::size_t at);

// Lists `mostListed` changes at most. Besides that list, memory for a few MiB, and for the lines of
// the texts where these are compared.
Difference differenceOf(std::u16string_view before, std::u16string_view after,
                        std::size_t mostListed);

// From a first text to a third: `first` leads to a second and `second` from there. Both are
// complete. What touches becomes one change, which may come out as it went in.
std::vector<Change> composed(const std::vector<Change> &first, const std::vector<Change> &second);

} // namespace nerlo::text
