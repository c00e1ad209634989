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
// The text is an address and nothing else: "scheme://" and more, without white space. Browsers
// offer a copied link in this way.
bool isUrl(std::u16string_view text);

// The content was marked as a secret by the mere presence of a format.
bool marksSecret(const std::vector<std::string> &formats);
// The format, if offered, whose value tells whether the content is a secret; null otherwise.
const std::string *secrecyFormat(const std::vector<std::string> &formats);
// Whether that value says secret.
bool saysSecret(std::string_view value);

// "text/html" of "text/html;charset=utf-8"; any other name as it is.
std::string_view withoutParameters(std::string_view format);

// Those of `formats` that tell the page which the content was copied from, best first.
std::vector<std::string> pageFormats(const std::vector<std::string> &formats);
// The host of that page, in lower case; empty if `data`, of such a format, does not tell it.
std::string pageHost(const PasteboardData &data);

// Those of `formats` in which the plain text can be read, best first, as they are spelt there.
std::vector<std::string> textFormats(const std::vector<std::string> &formats);
// Whether all of them are plain text, in an encoding that is known here or not.
bool onlyPlainText(const std::vector<std::string> &formats);
// The order in which they are worth reading: text and its like, other data, pictures.
std::vector<std::string> readingOrder(std::vector<std::string> formats);

// The text of plain-text `data`, as UTF-16. The type that the owner has declared counts for more
// than the format that it was asked for. Nothing if the bytes are not in that encoding.
std::optional<std::u16string> decodeText(const PasteboardData &data);

// Content that offers `utf8` in every common plain-text format and in no other.
PasteboardContent plainTextContent(std::string utf8);

} // namespace nerlo::clipboard
