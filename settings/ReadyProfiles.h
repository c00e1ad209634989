// Profiles that come with the program: for a kind of text each, what is on.
//
// They are never stored by themselves: "Add profile" makes a copy, and the command line takes one
// by its id. Any thread.
#pragma once

#include "settings/ProfilesFile.h"

#include <span>
#include <string>
#include <string_view>

namespace nerlo::settings {

struct ReadyProfile {
    std::string_view id;       // "gentle"; fixed, for the command line and for stored settings
    std::string_view titleKey; // of the name in the user's language
    std::string_view summary;  // one English line
};

// In the order in which they are offered.
std::span<const ReadyProfile> readyProfiles();
// Null when there is none.
const ReadyProfile *findReadyProfile(std::string_view id);
// The same for a name in UTF-16.
const ReadyProfile *findReadyProfile(std::u16string_view id);

// The profile under this name. All that it does not hold is off.
ProfileRecord readyRecord(const ReadyProfile &ready, std::u16string name);

} // namespace nerlo::settings
