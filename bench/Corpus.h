// Seeded texts to measure on: the same on every machine.
#pragma once

#include <cstddef>
#include <string>

namespace nerlo::bench {

enum class Kind { Prose, Mixed, Html };

// About `bytes` of UTF-8. Prose: hard-wrapped CR LF lines with quotes, bullets, reply marks, tabs,
// doubled spaces and few characters outside ASCII. Mixed: several scripts, emoji, typographic
// quotes. Html: tags with attributes, scripts, comments.
std::u16string makeText(Kind kind, std::size_t bytes);

} // namespace nerlo::bench
