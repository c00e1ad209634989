// The user's locale as the environment states it, in ICU's spelling.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace nerlo::settings {

// An ICU locale id for a locale name as POSIX, ICU or BCP 47 write it: the encoding and "@euro" go,
// "@latin", "@cyrillic" and "@devanagari" become scripts, ICU keywords ("@collation=phonebook")
// stay. "C", "POSIX" and the empty name, which order and map letters in no language, are "en_US".
// Empty when no locale has such a name.
std::optional<std::string> localeId(std::string_view name);

// What setlocale() would take for letters and words: the first of LC_ALL, LC_CTYPE and LANG that is
// set and not empty, else "C". An unusable name counts as "C". Reads the environment.
std::string userLocale();

} // namespace nerlo::settings
