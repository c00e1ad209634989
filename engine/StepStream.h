// Steps of a clean over a text that comes block by block, as the guard of structure finds it.
//
// Texts are UTF-16, places count units. For one thread at a time.
#pragma once

#include "engine/Operations.h"
#include "text/UnitScan.h"

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// Gives the same as the steps on the whole text, while most blocks stay in the processor's nearer
// caches: each stage passes on what the rest of the text cannot change any more.
class StepStream {
  public:
    using Done = std::function<void(std::u16string_view)>;

    // Steps that do not give back the units of `signs` as they were, in their order, are left out.
    // Those that can be cut do not look at them; only with `wary` is that made sure of. The context
    // must outlive the stream. `done` is given the result in order.
    StepStream(std::span<const Operation *const> steps, const CleaningContext &context,
               const text::UnitSet &signs, bool wary, Done done);

    // Takes the text in exchange for an empty one. With `last`, a text ends here: the next block
    // begins another one.
    void put(std::u16string &text, bool last);

  private:
    // The last place at or behind `from` at which a text may be cut for a step; 0 for none.
    using Cut = std::size_t (*)(std::u16string_view text, std::size_t from);

    // Steps next to each other that can be cut at the same places.
    struct Stage {
        Cut cut;
        std::vector<const Operation *> steps{};
        std::u16string waiting{};
        std::size_t searched = 0; // units of it that were searched for a place to cut
    };

    Cut cutOf(const Operation &step) const;
    void pass(std::size_t at, std::u16string &text, bool last);
    std::u16string ran(const Stage &stage, std::u16string text) const;
    std::u16string signsOf(std::u16string_view text) const;

    const CleaningContext &context_;
    const text::UnitSet signs_;
    const bool wary_;
    const Done done_;
    std::vector<Stage> stages_;
};

} // namespace nerlo::engine
