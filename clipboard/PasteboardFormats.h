// What the names of clipboard formats mean: which are plain text, which say that the content is not
// ours to touch. Names are compared without regard to letter case, MIME types also without their
// parameters unless said otherwise.
#pragma once

#include "platform/Pasteboard.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace nerlo::clipboard {

using platform::PasteboardContent;
using platform::PasteboardData;

// A link or files were copied, whatever text comes with them.
bool offersUrl(const std::vector<std::string> &formats);

// A password manager marked the content as a secret by the mere presence of a format.
bool marksSecret(const std::vector<std::string> &formats);
// The format, if offered, whose value tells whether the content is a secret; null otherwise.
const std::string *secrecyFormat(const std::vector<std::string> &formats);
// Whether that value says secret.
bool saysSecret(std::string_view value);

// The best plain-text format among `formats`, as it is spelt there; null if there is none.
const std::string *bestTextFormat(const std::vector<std::string> &formats);

// The text of plain-text `data`, as UTF-16. Nothing if the bytes are not in the encoding that the
// format stands for.
std::optional<std::u16string> decodeText(const PasteboardData &data);

// Content that offers `utf8` in every common plain-text format and in no other.
PasteboardContent plainTextContent(std::string utf8);

} // namespace nerlo::clipboard
