// Characters written as references of HTML: "&eacute;", "&#233;", "&#xE9;".
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <string>

namespace nerlo::engine {

// References in a text that is no markup to the characters that they stand for, those of references
// to references too, as deep as `mostLayers`. A text with a tag in it comes back as it was given:
// there they are in place. So does what is no reference of HTML 4, or lacks its semicolon.
std::u16string decodeCharacterReferences(std::u16string text, int mostLayers);

} // namespace nerlo::engine
