// Finds the matches of a pattern as ICU does, in less time, for the patterns that parsePattern()
// knows.
//
// Positions count UTF-16 code units. A search belongs to one thread at a time.
#pragma once

#include "text/PatternAutomaton.h"
#include "text/PatternBacktracker.h"
#include "text/PatternNeed.h"
#include "text/PatternTree.h"
#include "text/Range.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <string_view>

namespace nerlo::text {

class PatternSearch {
  public:
    // Null for a pattern that it does not know, which must be one that ICU compiles.
    static std::unique_ptr<PatternSearch> make(std::u16string_view pattern, bool ignoresCase);

    // The text of the searches that follow, which it must outlive; the work on it is counted anew.
    void setText(std::u16string_view text);

    // The first match that begins at or after `from`, which must not be within a pair of
    // surrogates. Given up where that takes too much work; pattern and text alone decide it.
    Found find(std::size_t from, Range &match);
    // Finds the groups of the match that was found last: Yes, or GivenUp.
    Found findGroups();
    // The empty range at 0 for a group that has no part in the match.
    Range group(std::size_t number) const { return backtracker_.group(number); }

  private:
    PatternSearch(const PatternTree &tree, PatternNeed need, std::unique_ptr<PatternReader> reader);
    Found findUntil(std::size_t from, std::size_t until, Range &match);
    bool toLiteral(std::size_t from);

    std::unique_ptr<PatternReader> reader_;
    std::optional<PatternAutomaton> automaton_; // none for "\1" and the like
    PatternBacktracker backtracker_;
    PatternNeed need_; // no literal if looking for it is not worth it
    bool hasStretches_;
    std::optional<std::size_t> literalAt_; // where it is next
    std::size_t stretchEnd_ = 0;           // of the stretch looked at last
    Range match_;
};

} // namespace nerlo::text
