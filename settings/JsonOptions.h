// Settings keys and their values in JSON.
#pragma once

#include "storage/PropertyValue.h"

#include <nlohmann/json_fwd.hpp>

#include <string_view>

namespace nerlo::settings {

struct SettingsKey;

// Takes what suits the key: true, false, 1 or 0 for a switch, a whole number for an index, a string
// for a text, an array of objects with "checkbox", "find" and "replace" for rules. Throws
// OptionsError, with the key and what is wrong, for anything else.
storage::PropertyValue settingFromJson(const SettingsKey &key, const nlohmann::json &value);

// Also throws OptionsError for anything but an object, and for a key that is no settings key.
storage::PropertyDictionary optionsFromJson(const nlohmann::json &object);
// The same for bytes, which may be any; also throws OptionsError, with the place, for what is no
// JSON.
storage::PropertyDictionary parseOptions(std::string_view json);

} // namespace nerlo::settings
