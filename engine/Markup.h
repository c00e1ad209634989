// Removing what lists, mail replies and web pages leave in copied text.
//
// Texts are UTF-16. Every function is pure, may run on any thread, never fails and takes time in
// proportion to its text.
#pragma once

#include "text/Range.h"

#include <string>
#include <string_view>
#include <vector>

namespace nerlo::engine {

// Bullet characters wherever they stand, and the "o" that word processors use as a bullet.
std::u16string removeBullets(std::u16string text);

// Every ">".
std::u16string removeReplyQuotes(std::u16string text);
// The same for UTF-8.
std::string removeReplyQuotes(std::string text);

// Everything from a "<" to the next ">". With `withScripts`, only what looks like a tag, a comment
// or a processing instruction, and what stands between script tags.
std::u16string removeHTMLTags(std::u16string text, bool withScripts);

// What the pattern
//   (?s:<!--.*?-->)|<\?.*\?>|(?:<[/!$]?[-a-zA-Z0-9:]+\b(?>[^"'>]+|"[^"]*"|'[^']*')*>)
// matches, letter case ignored; found without a matcher that could run out of stack or time.
std::vector<text::Range> findTags(std::u16string_view text);

} // namespace nerlo::engine
