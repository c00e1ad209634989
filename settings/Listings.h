// What there is to choose from, for people and for programs. English, UTF-8. Any thread.
#pragma once

#include "settings/SettingsKeys.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace nerlo::settings {

// The items of each key that is an index into a list.
std::map<std::string, std::vector<std::string>, std::less<>> itemsByKey();

// The value that a first start would give the key now, where `profile` is that of a first start:
// the quote styles follow the user's language. Null where it gives none.
const storage::PropertyValue *firstStartValue(const SettingsKey &row,
                                              const storage::PropertyDictionary &profile);

// JSON arrays of objects, indented, with a line break at the end.
std::string operationsJson();
std::string readyProfilesJson();
std::string keysJson(const storage::PropertyDictionary &firstStart);

} // namespace nerlo::settings
