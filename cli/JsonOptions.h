// Settings keys and their values in JSON.
#pragma once

#include "storage/PropertyValue.h"

#include <nlohmann/json_fwd.hpp>

#include <string>

namespace nerlo::cli {

// Booleans, integers, strings, arrays and objects become what they are in a property list. Throws
// Failure for null, fractions, integers above 63 bits and values nested deeper than any setting.
storage::PropertyValue settingFromJson(const std::string &key, const nlohmann::json &value);

// Also throws Failure for anything but an object, and for a key that is no settings key.
storage::PropertyDictionary optionsFromJson(const nlohmann::json &object);

} // namespace nerlo::cli
