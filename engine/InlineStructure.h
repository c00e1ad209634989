// What stands inside sentences and is no prose: code, links, tags, addresses. And apostrophes,
// which rules for quotation marks would take for one.
//
// Texts are UTF-16, places count units. Pure, any thread, in time in proportion to the text.
#pragma once

#include "text/Range.h"

#include <string_view>
#include <vector>

namespace nerlo::engine {

// In order, apart from each other. Every unit `sign` is one too. With `tagsGo`, tags are not, nor
// is what stands in them: they are to be removed.
std::vector<text::Range> findInlineStructure(std::u16string_view text, char16_t sign, bool tagsGo);

} // namespace nerlo::engine
