// The languages that the user's desktop asks for, in the codes of the quote table.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace nerlo::settings {

// "pt_BR.UTF-8" is "pt-BR", "de_AT" is "de": the code with its region where the quote table has it,
// else the bare language. zh_TW and zh_HK are zh-Hant, other zh is zh-Hans; no and nn are nb. Empty
// for "C", "POSIX" and the empty name.
std::string quoteLanguage(std::string_view locale);

// Best first, never empty: the locale of messages (the first of LC_ALL, LC_MESSAGES and LANG that
// is set) and before it, unless it is "C", the list in LANGUAGE; "en" where nothing is set. Reads
// the environment.
std::vector<std::string> userLanguages();

} // namespace nerlo::settings
