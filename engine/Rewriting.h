// Changing a text at some of its places, in one pass.
#pragma once

#include "text/UnitScan.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace nerlo::engine {

// What becomes of the units from `from` to `to`; nothing where they stay.
struct Edit {
    std::size_t from = 0;
    std::size_t to = 0;
    std::optional<std::u16string_view> by;

    static Edit keep(std::size_t from, std::size_t to) { return {from, to, {}}; }
    static Edit remove(std::size_t from, std::size_t to) { return {from, to, u""}; }
};

// Asks decide(text, at) for an edit at each unit of the set that no edit before has covered. Its
// `to` lies behind `at`; its `from` may lie before it, but then counts no further than to the last
// change. What it puts in must live until it is asked again. Adds the number of changes to `count`.
template <class Decide>
std::u16string rewrite(std::u16string text, const text::UnitSet &units, std::size_t &count,
                       Decide decide) {
    const std::u16string_view view = text;
    text::UnitCursor cursor(view, units);
    std::u16string result;
    std::size_t done = 0;
    for (std::size_t at = cursor.next(); at < view.size();) {
        const Edit edit = decide(view, at);
        const std::size_t from = std::max(edit.from, done);
        if (edit.by && view.substr(from, edit.to - from) != *edit.by) {
            result.append(view, done, from - done).append(*edit.by);
            done = edit.to;
            ++count;
        }
        at = cursor.nextFrom(edit.to);
    }
    if (done == 0) {
        return text;
    }
    return result.append(view, done);
}

} // namespace nerlo::engine
