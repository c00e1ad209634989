#include "storage/FileSettingsStore.h"

#include "storage/PropertyList.h"

namespace nerlo::storage {

FileSettingsStore::FileSettingsStore(std::string path, Later later, FileCalls &calls)
    : path_(std::move(path))
    , later_(std::move(later))
    , calls_(calls) {
    seen_ = settledStampOf(path_);
    if (auto values = read(loadError_)) {
        replaceAll(std::move(*values));
    }
}

FileSettingsStore::~FileSettingsStore() {
    if (!dirty_.empty()) {
        synchronize();
    }
}

std::optional<PropertyDictionary> FileSettingsStore::read(std::string &unusable) const {
    const FileContent content = readFile(path_, PropertyListLimits::bytes, calls_);
    unusable = content.error;
    if (content.state != FileContent::State::Read) {
        return std::nullopt;
    }
    ParsedPropertyList parsed = parsePropertyList(content.bytes);
    auto *dictionary = parsed.value ? parsed.value->as<PropertyDictionary>() : nullptr;
    if (!dictionary) {
        unusable = path_ + ": " + (parsed.value ? "no dictionary" : parsed.error);
        return std::nullopt;
    }
    return std::move(*dictionary);
}

void FileSettingsStore::noticeDamage(const std::string &why) {
    if (!why.empty() && why != loadError_) {
        loadError_ = why;
        if (damaged_) {
            damaged_();
        }
    }
}

// A file that has gone or become unusable says nothing about our values: they all stay.
PropertyDictionary FileSettingsStore::withOwnChanges(PropertyDictionary theirs) const {
    for (const std::string &key : dirty_) {
        if (const PropertyValue *value = find(key)) {
            theirs.set(key, *value);
        } else {
            theirs.remove(key);
        }
    }
    return theirs;
}

bool FileSettingsStore::synchronize() {
    PropertyDictionary merged;
    std::string before;
    std::string unusable;
    {
        const FolderLock lock(folderOf(path_), calls_);
        const auto theirs = read(unusable);
        merged = theirs ? withOwnChanges(*theirs) : values();
        before = std::exchange(error_, {});
        const bool differs = theirs ? !(merged == *theirs) : !dirty_.empty();
        if (differs) {
            error_ = lock.error();
            if (error_.empty() && !unusable.empty() && !moveAside(path_, "unreadable", calls_)) {
                error_ = path_ + " cannot be read and cannot be moved aside";
            }
            if (error_.empty()) {
                error_ = replaceWithPropertyList(path_, merged, calls_);
                seen_ = stampOf(path_);
            }
        }
        if (error_.empty()) {
            dirty_.clear();
        }
    }
    replaceAll(std::move(merged));
    noticeDamage(unusable);
    if (error_ != before && errorChanged_) {
        errorChanged_(error_);
    }
    return error_.empty();
}

void FileSettingsStore::fileChanged() {
    if (seen_ && stampOf(path_) == seen_) {
        return;
    }
    seen_ = settledStampOf(path_);
    std::string unusable;
    if (auto theirs = read(unusable)) {
        replaceAll(withOwnChanges(std::move(*theirs)));
    }
    noticeDamage(unusable);
}

void FileSettingsStore::changed(std::string_view key) {
    dirty_.emplace(key);
    if (later_ && !*posted_) {
        *posted_ = true;
        later_([this, posted = std::weak_ptr(posted_)] {
            if (const auto alive = posted.lock()) {
                *alive = false;
                synchronize();
            }
        });
    }
}

} // namespace nerlo::storage
