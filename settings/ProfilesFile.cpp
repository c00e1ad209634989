#include "settings/ProfilesFile.h"

#include "storage/PropertyList.h"
#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <algorithm>
#include <charconv>
#include <deque>
#include <unordered_map>
#include <utility>

namespace nerlo::settings {

namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;

class ById {
  public:
    explicit ById(const RecordItems &items) {
        for (const RecordItem &item : items) {
            places_.emplace(item.id, &item.record);
        }
    }
    const PropertyDictionary *find(std::uint64_t id) const {
        const auto place = places_.find(id);
        return place == places_.end() ? nullptr : place->second;
    }

  private:
    std::unordered_map<std::uint64_t, const PropertyDictionary *> places_;
};

PropertyDictionary mergeKeys(const PropertyDictionary &base, const PropertyDictionary &mine,
                             const PropertyDictionary &theirs) {
    if (theirs == base) {
        return mine;
    }
    PropertyDictionary merged = theirs;
    for (const auto &[key, value] : mine) {
        const PropertyValue *before = base.find(key);
        if (!before || !(*before == value)) {
            merged.set(key, value);
        }
    }
    for (const auto &[key, value] : base) {
        if (!mine.find(key)) {
            merged.remove(key);
        }
    }
    return merged;
}

PropertyArray arrayOf(const RecordItems &items, const PropertyArray &others) {
    PropertyArray array;
    array.reserve(items.size() + others.size());
    for (const RecordItem &item : items) {
        array.emplace_back(item.record);
    }
    array.insert(array.end(), others.begin(), others.end());
    return array;
}

struct ArrayFile {
    bool there = false;
    std::optional<PropertyArray> array; // none when the file is not there or unusable
    std::string error;                  // why it is unusable
};

ArrayFile readArray(const std::string &path, storage::FileCalls &calls) {
    using storage::FileContent;
    const FileContent content = storage::readFile(path, storage::PropertyListLimits::bytes, calls);
    ArrayFile file{content.state != FileContent::State::Missing, std::nullopt, content.error};
    if (content.state == FileContent::State::Read) {
        auto parsed = storage::parsePropertyList(content.bytes);
        if (auto *array = parsed.value ? parsed.value->as<PropertyArray>() : nullptr) {
            file.array = std::move(*array);
        } else {
            file.error = path + ": " + (parsed.value ? "no list" : parsed.error);
        }
    }
    return file;
}

bool sameRecords(const RecordItems &a, const RecordItems &b) {
    return std::ranges::equal(a, b, {}, &RecordItem::record, &RecordItem::record);
}

// Whether the records of `base` that are left do not stand as they did, or not before all new ones.
bool moved(const RecordItems &base, const RecordItems &mine) {
    const ById inBase(base);
    const ById inMine(mine);
    std::vector<std::uint64_t> unmoved;
    for (const RecordItem &item : base) {
        if (inMine.find(item.id)) {
            unmoved.push_back(item.id);
        }
    }
    for (const RecordItem &item : mine) {
        if (!inBase.find(item.id)) {
            unmoved.push_back(item.id);
        }
    }
    return !std::ranges::equal(unmoved, mine, {}, {}, &RecordItem::id);
}

// The records of `mine` in its order; each record of others behind the one that it followed before.
RecordItems inOrderOf(const RecordItems &mine, const RecordItems &merged) {
    const ById inMine(mine);
    const ById inMerged(merged);
    RecordItems ordered;
    for (const RecordItem &item : mine) {
        if (const PropertyDictionary *record = inMerged.find(item.id)) {
            ordered.push_back({item.id, *record});
        }
    }
    auto place = ordered.begin();
    for (const RecordItem &item : merged) {
        place = inMine.find(item.id) ? std::ranges::find(ordered, item.id, &RecordItem::id)
                                     : ordered.insert(place, item);
        ++place;
    }
    return ordered;
}

} // namespace

std::optional<PropertyArray> readSharedFindReplace(const SettingsPaths &paths,
                                                   storage::FileCalls &calls, std::string *error) {
    ArrayFile file = readArray(paths.sharedFindReplace, calls);
    if (error) {
        *error = std::move(file.error);
    }
    return std::move(file.array);
}

std::u16string profileNameOf(const ProfileRecord &record) {
    const PropertyValue *name = record.find("profileName");
    return name ? name->stringValue() : std::u16string();
}

const ProfileItem *findProfile(const ProfileItems &items, std::string_view nameOrIndex) {
    for (const ProfileItem &item : items) {
        if (text::utf16ToUtf8(profileNameOf(item.record)) == nameOrIndex) {
            return &item;
        }
    }
    std::size_t index = 0;
    const char *end = nameOrIndex.data() + nameOrIndex.size();
    const auto parsed = std::from_chars(nameOrIndex.data(), end, index);
    return parsed.ec == std::errc() && parsed.ptr == end && index < items.size() ? &items[index]
                                                                                 : nullptr;
}

std::string RemovedProfilesFile::add(ProfileRecord record) {
    RecordItems items = load();
    items.push_back(newItem(std::move(record)));
    if (items.size() > kept) {
        items.erase(items.begin(), items.end() - kept);
    }
    return save(items);
}

std::string RemovedProfilesFile::take(const ProfileRecord &record) {
    RecordItems items = load();
    const auto found = std::find_if(items.rbegin(), items.rend(),
                                    [&](const RecordItem &item) { return item.record == record; });
    if (found == items.rend()) {
        return {};
    }
    items.erase(std::next(found).base());
    return save(items);
}

int selectedPlace(std::int64_t stored, std::size_t count) {
    const auto size = static_cast<std::int64_t>(count);
    if (stored > size && size > 0) {
        return static_cast<int>(size - 1);
    }
    return stored < 0 || stored >= size ? 0 : static_cast<int>(stored);
}

ProfileRecord withSharedRules(ProfileRecord record, const SettingsPaths &paths,
                              std::string &error) {
    const PropertyValue *onlyOne = record.find("sOnlyOneProfile");
    if (onlyOne && onlyOne->boolValue()) {
        if (auto shared = readSharedFindReplace(paths, storage::FileCalls::system(), &error)) {
            record.set("sFindAndReplaceItems", std::move(*shared));
        }
    }
    return record;
}

RecordItems mergeRecords(const RecordItems &base, const RecordItems &mine,
                         const RecordItems &theirs) {
    const ById inBase(base);
    const ById inMine(mine);
    const ById inTheirs(theirs);
    RecordItems merged;
    for (const RecordItem &item : theirs) {
        const PropertyDictionary *before = inBase.find(item.id);
        const PropertyDictionary *own = inMine.find(item.id);
        if (before && own) {
            merged.push_back({item.id, mergeKeys(*before, *own, item.record)});
        } else if (!before || !(item.record == *before)) {
            merged.push_back(item);
        }
    }
    for (const RecordItem &item : mine) {
        const PropertyDictionary *before = inBase.find(item.id);
        if (!inTheirs.find(item.id) && (!before || !(item.record == *before))) {
            merged.push_back(item);
        }
    }
    return moved(base, mine) ? inOrderOf(mine, merged) : merged;
}

RecordsFile::RecordsFile(std::string path, std::string nameKey, storage::FileCalls &calls)
    : path_(std::move(path))
    , nameKey_(std::move(nameKey))
    , calls_(calls) {}

bool RecordsFile::differs(const RecordItems &items) const {
    return !sameRecords(items, base_);
}

std::u16string RecordsFile::nameOf(const PropertyDictionary &record) const {
    const PropertyValue *name = record.find(nameKey_);
    return name ? name->stringValue() : std::u16string();
}

RecordsFile::OnDisk RecordsFile::read() {
    seen_ = storage::settledStampOf(path_);
    ArrayFile file = readArray(path_, calls_);
    OnDisk disk;
    disk.there = file.there;
    disk.usable = file.array.has_value();
    // The error stays: a later reading would find only the file that replaced the damaged one.
    if (!file.error.empty() && file.error != loadError_) {
        loadError_ = std::move(file.error);
        if (damaged_) {
            damaged_();
        }
    }
    PropertyArray elements = std::move(file.array).value_or(PropertyArray());
    for (PropertyValue &element : elements) {
        if (auto *record = element.as<PropertyDictionary>()) {
            disk.items.push_back({0, std::move(*record)});
        } else {
            disk.others.push_back(std::move(element));
        }
    }
    identify(disk.items);
    return disk;
}

// A record is one that we know if it stands unchanged in its place, or else if it has the name of
// one that does not; all others are new.
void RecordsFile::identify(RecordItems &items) {
    std::unordered_map<std::u16string, std::deque<std::uint64_t>> named;
    for (std::size_t i = 0; i < base_.size(); ++i) {
        if (i < items.size() && items[i].record == base_[i].record) {
            items[i].id = base_[i].id;
        } else {
            named[nameOf(base_[i].record)].push_back(base_[i].id);
        }
    }
    for (RecordItem &item : items) {
        if (item.id != 0) {
            continue;
        }
        auto &ids = named[nameOf(item.record)];
        if (ids.empty()) {
            item.id = ++lastId_;
        } else {
            item.id = ids.front();
            ids.pop_front();
        }
    }
}

RecordItems RecordsFile::load() {
    OnDisk disk = read();
    base_ = std::move(disk.items);
    return base_;
}

std::string RecordsFile::write(const RecordItems &items, const PropertyArray &others) {
    const PropertyValue array(arrayOf(items, others));
    std::string error = storage::replaceWithPropertyList(path_, array, calls_);
    seen_ = storage::stampOf(path_);
    return error;
}

std::string RecordsFile::save(RecordItems &items) {
    const storage::FolderLock lock(storage::folderOf(path_), calls_);
    if (!lock.error().empty()) {
        return lock.error();
    }
    const OnDisk disk = read();
    if (disk.there && !disk.usable && !storage::moveAside(path_, "unreadable", calls_)) {
        return path_ + " cannot be read and cannot be moved aside";
    }
    // A file that has gone or become unusable says nothing about the records: all of ours stay.
    RecordItems merged = disk.usable ? mergeRecords(base_, items, disk.items) : items;
    // The other writer's own form of the same records is left alone.
    std::string error =
        disk.usable && sameRecords(merged, disk.items) ? std::string() : write(merged, disk.others);
    if (error.empty()) {
        base_ = merged;
        items = std::move(merged);
    }
    return error;
}

std::string RecordsFile::replace(RecordItems &items) {
    const storage::FolderLock lock(storage::folderOf(path_), calls_);
    if (!lock.error().empty()) {
        return lock.error();
    }
    const OnDisk disk = read();
    if (disk.there && !storage::moveAside(path_, disk.usable ? "replaced" : "unreadable", calls_)) {
        return path_ + " cannot be moved aside";
    }
    std::string error = write(items, {});
    if (error.empty()) {
        base_ = items;
    }
    return error;
}

std::optional<RecordItems> RecordsFile::refreshed(const RecordItems &items) {
    if (seen_ && storage::stampOf(path_) == seen_) {
        return std::nullopt;
    }
    const OnDisk disk = read();
    if (!disk.usable || sameRecords(disk.items, base_)) {
        return std::nullopt;
    }
    RecordItems merged = mergeRecords(base_, items, disk.items);
    base_ = disk.items;
    return merged;
}

} // namespace nerlo::settings
