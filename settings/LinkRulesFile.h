// A file with rules for addresses that somebody else keeps, in the JSON format of ClearURLs.
#pragma once

#include "engine/LinkRules.h"

#include <memory>
#include <string>
#include <string_view>

namespace nerlo::settings {

struct ParsedLinkRules {
    std::shared_ptr<const engine::LinkRules> rules; // null with an error
    std::string error;                              // English, in one line
};
// UTF-8. Members that have nothing to do with the text of an address are passed over.
ParsedLinkRules parseLinkRules(std::string_view json);

// The rules of a file, whose name the errors hold; no rules and no error for an empty name. A file
// that has not changed is not read again. Any thread.
ParsedLinkRules readLinkRules(const std::u16string &path);

} // namespace nerlo::settings
