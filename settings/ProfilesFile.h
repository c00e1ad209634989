// The files of all profiles, and of the rules that they may share; both shared with other
// processes.
//
// Each process edits its own list; a save reads the file again under the folder's lock and puts in
// only what was changed here, record by record and key by key. Main thread only.
#pragma once

#include "settings/SettingsPaths.h"
#include "storage/FileCalls.h"
#include "storage/PropertyValue.h"
#include "storage/SafeFile.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nerlo::settings {

using ProfileRecord = storage::PropertyDictionary;

// A record of a list: a profile, or a rule of find and replace.
struct RecordItem {
    std::uint64_t id; // tells records of equal names apart; of this process only
    storage::PropertyDictionary record;
    bool operator==(const RecordItem &) const = default;
};
using RecordItems = std::vector<RecordItem>;
using ProfileItem = RecordItem;
using ProfileItems = RecordItems;

// The text under "profileName".
std::u16string profileNameOf(const ProfileRecord &record);
// By name, the first that has it; else by place, in decimal digits from 0. Null for neither.
const ProfileItem *findProfile(const ProfileItems &items, std::string_view nameOrIndex);

// What `mine` changed of `base`, put into `theirs`. A record removed on one side and changed on the
// other stays; of a key changed on both sides, `mine` wins. The order is theirs, unless records
// have been moved in `mine`.
RecordItems mergeRecords(const RecordItems &base, const RecordItems &mine,
                         const RecordItems &theirs);

// A property list that holds an array of dictionaries.
class RecordsFile {
  public:
    // A record that others have changed is found again by the text under `nameKey`.
    RecordsFile(std::string path, std::string nameKey, storage::FileCalls &calls);

    // The file's records; none where it is missing or unusable. Changes no file.
    RecordItems load();
    // Why the file was unusable when it was last found so; empty if it never was.
    const std::string &loadError() const { return loadError_; }
    // Runs when loadError() changes.
    void setDamageHandler(std::function<void()> damaged) { damaged_ = std::move(damaged); }

    std::uint64_t newId() { return ++lastId_; }
    RecordItem newItem(storage::PropertyDictionary record) { return {newId(), std::move(record)}; }

    // Whether a save of `items` has anything to put into the file.
    bool differs(const RecordItems &items) const;

    // Puts the changes of `items` since the last load or save into the file; `items` then is what
    // the file holds. A file that cannot be read is first kept under a dated name. Empty when done;
    // else what went wrong, and the file and `items` are as they were.
    std::string save(RecordItems &items);

    // As save(), but the records that are in the file go; the file that held them is kept under a
    // dated name.
    std::string replace(RecordItems &items);

    // When another process has written: `items` with its changes. Nothing when there are none; what
    // was written here is not read again.
    std::optional<RecordItems> refreshed(const RecordItems &items);

  private:
    struct OnDisk {
        bool usable = false;
        bool there = false;
        RecordItems items;
        storage::PropertyArray others; // elements that are no records; kept at the end
    };
    OnDisk read();
    void identify(RecordItems &items);
    std::string write(const RecordItems &items, const storage::PropertyArray &others);

    std::u16string nameOf(const storage::PropertyDictionary &record) const;

    std::string path_;
    std::string nameKey_;
    storage::FileCalls &calls_;
    std::optional<storage::FileStamp> seen_; // the file when it was last written or read
    RecordItems base_;                       // the file's records as last seen
    std::uint64_t lastId_ = 0;
    std::string loadError_;
    std::function<void()> damaged_;
};

class ProfilesFile : public RecordsFile {
  public:
    explicit ProfilesFile(std::string path,
                          storage::FileCalls &calls = storage::FileCalls::system())
        : RecordsFile(std::move(path), "profileName", calls) {}
};

// The profiles that were removed last, the newest at the end, so that they can be brought back.
class RemovedProfilesFile : public RecordsFile {
  public:
    static constexpr std::size_t kept = 20;

    explicit RemovedProfilesFile(std::string path,
                                 storage::FileCalls &calls = storage::FileCalls::system())
        : RecordsFile(std::move(path), "profileName", calls) {}

    // Puts the record behind the others, of which the oldest goes when there are too many. Empty
    // when done, else why it could not be written.
    std::string add(ProfileRecord record);
    // Takes out the newest one like this, if there is any. Empty when done.
    std::string take(const ProfileRecord &record);
};

// The list of rules that all profiles may share.
class SharedFindReplaceFile : public RecordsFile {
  public:
    explicit SharedFindReplaceFile(std::string path,
                                   storage::FileCalls &calls = storage::FileCalls::system())
        : RecordsFile(std::move(path), "find", calls) {}
};

// The place of the profile that is selected in a list of `count`, by the stored one: a place beyond
// the list is its last, except the first one beyond, which like a negative one is 0.
int selectedPlace(std::int64_t stored, std::size_t count);

// A profile for programs that clean with it and edit nothing: where one list of rules is used for
// all profiles, the list as it stands in its file. When that file is unusable, `error` says why.
ProfileRecord withSharedRules(ProfileRecord record, const SettingsPaths &paths, std::string &error);

// The list of rules that all profiles may share. Nothing when the file is missing or unusable; of
// the latter, `error` says why.
std::optional<storage::PropertyArray>
readSharedFindReplace(const SettingsPaths &paths,
                      storage::FileCalls &calls = storage::FileCalls::system(),
                      std::string *error = nullptr);

} // namespace nerlo::settings
