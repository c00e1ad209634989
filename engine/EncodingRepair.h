// Text that was read in the wrong charset, once or several times: "cafÃ©", "itâ€™s", "ÐŸÑ€Ð¸".
//
// Texts are UTF-16. Pure, any thread, never fails, takes time in proportion to the text.
#pragma once

#include <string>

namespace nerlo::engine {

// How many readings in a wrong charset are undone at most. Below that, a second run changes
// nothing.
inline constexpr int mostEncodingLayers = 16;

// UTF-8 that was taken for windows-1250 to 1254 or 1257, ISO 8859-1 or 8859-2, MacRoman, code page
// 437 or KOI8-R becomes what it was, line by line, whole or in parts. A repair is made only where
// it makes a line clearly more like ordinary text; if parts of the line do not fit it, they must
// not speak against it. A character with a lost byte becomes U+FFFD, or itself if the byte was a
// no-break space that has turned into a blank. C1 controls become what windows-1252 has in their
// place; with `references`, references of HTML become their characters where there are no tags.
std::u16string repairEncoding(std::u16string text, bool references = true);

} // namespace nerlo::engine
