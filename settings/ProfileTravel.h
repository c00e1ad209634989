// Profiles that go from one list to another: read from a file, written to one.
//
// The file is a property list, XML or binary, of one profile or of a list of them, as the program's
// own file holds it; it may come from anybody. Any thread; errors are English texts.
#pragma once

#include "settings/ProfilesFile.h"
#include "storage/SettingsStore.h"

#include <string>
#include <string_view>
#include <vector>

namespace nerlo::settings {

struct ReadProfiles {
    std::vector<ProfileRecord> records; // each with a name
    std::string error;                  // then there are no records
};
// `source` (UTF-8) is the file's name for messages; without folders and ending, it is the name of
// profiles that have none.
ReadProfiles parseProfiles(std::string_view bytes, const std::string &source);
// The same for a file.
ReadProfiles readProfiles(const std::string &path);

// Writes the profile as XML. Empty when done, else why not; then the file is as it was.
std::string exportProfile(const std::string &path, const ProfileRecord &record);

// What the store says of the profile `from`, it says of `to` from now on: rows of the table of
// copies, and a shortcut, unless `to` has one. `items` are the profiles after the change: while
// another one still has the old name, that one is meant. Main thread.
void renameInStore(storage::SettingsStore &store, const ProfileItems &items,
                   const std::u16string &from, const std::u16string &to);

} // namespace nerlo::settings
