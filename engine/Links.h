// Addresses in a text without what follows those who open them.
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text. Nothing is
// ever looked up or opened.
#pragma once

#include "engine/LinkRules.h"

#include <string>

namespace nerlo::engine {

// Takes tracking parameters out of the web addresses of a text, be they in prose, in Markdown or in
// markup, and replaces the address of a page that only sends its visitors on by the address that
// they are sent to. Every other unit stays as it is, in its order and its encoding. An address that
// cannot be told apart from what is around it stays whole, and so does one of more than 8,192
// units. After our own list the rules of `rules` apply, unless null.
std::u16string cleanLinks(std::u16string text, const LinkRules *rules = nullptr);

} // namespace nerlo::engine
