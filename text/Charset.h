// Encodings other than UTF-8, by name.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nerlo::text {

// Whether there is an encoding of this name ("iso-8859-15", "UTF-16"), in any letter case.
bool isCharset(const std::string &name);

// `bytes` as UTF-16. Nothing if there is no such encoding, or if the bytes are not in it.
std::optional<std::u16string> decode(std::string_view bytes, const std::string &charset);

} // namespace nerlo::text
