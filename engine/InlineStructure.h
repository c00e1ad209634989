// What stands inside sentences and is no prose: code, links, tags, addresses. And apostrophes,
// which rules for quotation marks would take for one.
//
// Texts are UTF-16, places count units. Pure, any thread, in time in proportion to the text.
#pragma once

#include "text/Range.h"
#include "text/UnitScan.h"

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// In order, apart from each other. Every unit of `signs` is one too, or part of one, but for those
// at `breaks`, in order, which end lines. With `tagsGo`, tags without such a unit are not, nor is
// what stands in them: they are to be removed.
std::vector<text::Range> findInlineStructure(std::u16string_view text, const text::UnitSet &signs,
                                             std::span<const std::size_t> breaks, bool tagsGo);

} // namespace nerlo::engine
