// Texts in JSON, which may hold unpaired surrogates as escapes ("\ud800"). The library that parses
// options knows only UTF-8, which has no form for them: they pass through it as a mark, U+FFFE, and
// three digits.
#pragma once

#include "engine/Statistics.h"

#include <optional>
#include <string>
#include <string_view>

namespace nerlo::settings {

// `bytes`, or what is put into `room` in its place, for the library to parse.
std::string_view withMarkedSurrogates(std::string_view bytes, std::string &room);

// The text of a string that has been parsed from such bytes, in UTF-16.
std::u16string textOfJson(std::string_view string);

// The text of a string as JsonCursor gives it, with its quotes and escapes; nothing if it is not
// UTF-8.
std::optional<std::u16string> textOfLiteral(std::string_view literal);

// A JSON string in UTF-8, with quotes. Unpaired surrogates are escaped, and the line breaks U+0085,
// U+2028 and U+2029, which JSON allows in a line and many readers of lines do not.
void appendJson(std::string &to, std::u16string_view text);
std::string jsonOfText(std::u16string_view text);
// The same for bytes, such as a file's name: what is not UTF-8 in them becomes U+FFFD.
std::string jsonOfName(const std::string &bytes);

// The counts as members of an object, without braces.
std::string jsonMembers(const engine::TextStatistics &counts);

} // namespace nerlo::settings
