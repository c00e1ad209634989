// What is said of the changes of a trace: where they are and what they do.
//
// Texts are UTF-16; what is returned is UTF-8. Any thread.
#pragma once

#include "engine/Trace.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace nerlo::cli {

// In one line: what can be seen in quotes, other characters as U+XXXX. A space is seen where it
// stands between two that are.
std::string shown(std::u16string_view text);

// "removes U+0020", "adds "> "", "U+0009 becomes U+0020".
std::string effectOf(const engine::TracedChange &change);
// " after "Some", before "prose"": the characters around a place of the text; empty for a text that
// has nothing else.
std::string surroundingsOf(text::Range place, std::u16string_view text);
// "collapse-spaces", "find-replace-list, rule 3", "clean-characters, blanks".
std::string nameOf(const engine::TraceStep &step);

} // namespace nerlo::cli
