#include "settings/ProfileTravel.h"

#include "settings/SettingsKeys.h"
#include "storage/PropertyList.h"
#include "storage/SafeFile.h"
#include "text/Utf.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace nerlo::settings {

namespace {

using storage::PropertyArray;
using storage::PropertyValue;

bool holdsSettings(const ProfileRecord &record) {
    return std::ranges::any_of(record, [](const auto &entry) {
        return findKey(entry.first, SettingScope::Profile) != nullptr;
    });
}

void renameInCopyTable(storage::SettingsStore &store, const std::u16string &from,
                       const std::u16string &to) {
    const PropertyValue *stored = store.find(copyTableKey);
    const auto *rows = stored ? stored->as<PropertyArray>() : nullptr;
    if (!rows) {
        return;
    }
    PropertyArray renamed = *rows;
    for (PropertyValue &value : renamed) {
        auto *row = value.as<storage::PropertyDictionary>();
        const PropertyValue *profile = row ? row->find("profile") : nullptr;
        if (profile && profile->stringValue() == from) {
            row->set("profile", to);
        }
    }
    store.set(copyTableKey, std::move(renamed));
}

void moveShortcut(storage::SettingsStore &store, const std::string &from, const std::string &to) {
    const PropertyValue *stored = store.find(from);
    if (!stored) {
        return;
    }
    const PropertyValue shortcut = *stored;
    store.remove(from); // first, so that the keys are free
    if (!store.find(to)) {
        store.set(to, shortcut);
    }
}

} // namespace

ReadProfiles parseProfiles(std::string_view bytes, const std::string &source) {
    auto parsed = storage::parsePropertyList(bytes);
    if (!parsed.value) {
        return {{}, source + ": " + parsed.error};
    }
    auto *array = parsed.value->as<PropertyArray>();
    PropertyArray values = array ? std::move(*array) : PropertyArray{std::move(*parsed.value)};
    ReadProfiles read;
    for (PropertyValue &value : values) {
        auto *record = value.as<ProfileRecord>();
        if (!record || !holdsSettings(*record)) {
            read.records.clear();
            break;
        }
        if (profileNameOf(*record).empty()) {
            const std::string name = std::filesystem::path(source).stem().string();
            record->set("profileName", text::utf8ToUtf16(name).text);
        }
        read.records.push_back(std::move(*record));
    }
    if (read.records.empty()) {
        read.error = source + ": no profile of settings keys";
    }
    return read;
}

ReadProfiles readProfiles(const std::string &path) {
    using storage::FileContent;
    const FileContent content = storage::readFile(path, storage::PropertyListLimits::bytes);
    if (content.state != FileContent::State::Read) {
        return {{}, content.error.empty() ? path + ": not there" : content.error};
    }
    return parseProfiles(content.bytes, path);
}

std::string exportProfile(const std::string &path, const ProfileRecord &record) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path, ignored);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        return path + ": not a regular file";
    }
    return storage::replaceWithPropertyList(path, record);
}

void renameInStore(storage::SettingsStore &store, const ProfileItems &items,
                   const std::u16string &from, const std::u16string &to) {
    const bool stillMeant = std::ranges::any_of(
        items, [&](const ProfileItem &item) { return profileNameOf(item.record) == from; });
    if (!stillMeant) {
        renameInCopyTable(store, from, to);
        moveShortcut(store, profileHotKey(from), profileHotKey(to));
    }
}

} // namespace nerlo::settings
