// The selected profile as it is being edited. Window, preview, engine and file all read record();
// an edit is in it at once.
//
// A value, without files or delays. Main thread only.
#pragma once

#include "settings/ProfilesFile.h"
#include "storage/PropertyValue.h"

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

namespace nerlo::settings {

class EditedProfile {
  public:
    const ProfileRecord &record() const { return record_; }
    std::u16string name() const { return profileNameOf(record_); }

    // Another profile, or the same as others have changed it. What was edited and not saved is lost
    // but for the one-list box, which belongs to all profiles.
    void load(ProfileRecord record);

    // What the control of a profile key shows: 0 or 1, a text, or an index. A missing or odd value
    // is read as what its kind makes of it.
    storage::PropertyValue state(std::string_view key) const;
    void set(std::string_view key, storage::PropertyValue value);
    // A negative index, no item, counts as 0 until it is saved.
    void choose(std::string_view key, std::int64_t index);
    // Gives every key its value as a save writes it, also those that were missing.
    void complete();

  private:
    ProfileRecord record_;
    std::set<std::string, std::less<>> withoutItem_; // choices of no item
};

} // namespace nerlo::settings
