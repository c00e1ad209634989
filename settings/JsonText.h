// Texts in JSON, which may hold unpaired surrogates as escapes ("\ud800"). The library knows only
// UTF-8, which has no form for them: they pass through it as a mark, U+FFFE, and three digits.
#pragma once

#include <string>
#include <string_view>

namespace nerlo::settings {

// `bytes`, or what is put into `room` in its place, for the library to parse.
std::string_view withMarkedSurrogates(std::string_view bytes, std::string &room);

// The text of a string that has been parsed from such bytes, in UTF-16.
std::u16string textOfJson(std::string_view string);

// A JSON string in UTF-8, with quotes; unpaired surrogates are escaped.
std::string jsonOfText(std::u16string_view text);
// The same for bytes, such as a file's name: what is not UTF-8 in them becomes U+FFFD.
std::string jsonOfName(const std::string &bytes);

} // namespace nerlo::settings
