// Changing letter case.
//
// Texts are UTF-16; `locale` is an ICU locale id, empty for locale-free mapping. Every function may
// run on any thread and never fails.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nerlo::engine {

std::u16string changeToCapitalized(std::u16string text, const std::string &locale);
std::u16string changeToLowercase(std::u16string text, const std::string &locale);
std::u16string changeToUppercase(std::u16string text, const std::string &locale);

// Only the very first code unit, even when it is a space or a quote.
std::u16string changeFirstLetterToCapitalized(std::u16string text, const std::string &locale);

// The first letter after each separator, and of the sentence itself. Nothing when the separator
// does not occur, or nothing stands between its first occurrence and the next one or the end.
std::optional<std::u16string> changeToCapitalizedFirstWordOfSentenceSeparated(
    std::u16string_view sentence, std::u16string_view separator, const std::string &locale);

// The first letter of every sentence. Inside a sentence only the first separator that applies, of
// the ellipsis, three dots and the full stop, each with a space, begins further ones.
std::u16string changeToCapitalizedFirstWordOfSentence(std::u16string text,
                                                      const std::string &locale);

} // namespace nerlo::engine
