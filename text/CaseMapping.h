// Letter case.
//
// Texts are UTF-16; `locale` is an ICU locale id, and the empty id is the locale-free root. All
// functions may run on any thread and never fail.
#pragma once

#include <string>
#include <string_view>

namespace nerlo::text {

std::u16string toLowercase(std::u16string text, const std::string &locale);
std::u16string toUppercase(std::u16string text, const std::string &locale);
// The first letter of every word, by the locale's word rules, in title case, the others in lower.
std::u16string toTitlecase(std::u16string text, const std::string &locale);

enum class LetterCase {
    Upper,    // its upper-case form is itself, its lower-case form is not
    Caseless, // both forms are itself: digits, punctuation, scripts without case
    Other,
};

// Locale-free, of one code unit; a surrogate is caseless.
LetterCase letterCase(char16_t unit);

// Whether the unit has no case and nothing looks past it to find out the case of another: no mark
// and nothing that words hold between letters.
bool isCaseNeutral(char16_t unit);

} // namespace nerlo::text
