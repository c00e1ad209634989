// The program's settings in a folder of their own, without windows.
#pragma once

#include "settings/FirstStart.h"
#include "settings/nrPreferences.h"
#include "storage/FileSettingsStore.h"
#include "storage/PropertyList.h"
#include "tests/TemporaryFolder.h"
#include "tests/fakes/MemoryMainQueue.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace nerlo::settings::test {

using namespace nerlo::test;
using storage::FileSettingsStore;
using storage::parsePropertyList;
using storage::PropertyArray;
using storage::PropertyDictionary;
using storage::PropertyValue;
using test::MemoryMainQueue;

inline SettingsPaths pathsIn(const TemporaryFolder &folder) {
    return {folder / "config/nerlo-pro/defaults.plist", folder / "data/nerlo-pro/Data/profiles.nrp",
            folder / "data/nerlo-pro/Data/profilesFR.nrp",
            folder / "data/nerlo-pro/Data/removedProfiles.nrp"};
}

// The program's settings, as a start makes them; the destructor is the program's end.
struct Program {
    explicit Program(const TemporaryFolder &folder)
        : paths(pathsIn(folder))
        , store(paths.store)
        , preferences(store, queue, paths, {}, "fr") {
        preferences.hooks().setAllBools = [this](const ProfileRecord &record) {
            engine = record;
            ++fills;
        };
        preferences.hooks().saveFailed = [this](const std::string &error) { failure = error; };
    }
    void start() {
        setAllDefaultsInFirstRun(store, preferences);
        preferences.initProfilesItems();
        store.set("firstRunPreferences", true);
        store.synchronize();
    }
    std::vector<std::u16string> names() const {
        std::vector<std::u16string> names;
        for (const ProfileItem &item : preferences.profilesItems()) {
            names.push_back(profileNameOf(item.record));
        }
        return names;
    }

    SettingsPaths paths;
    test::MemoryMainQueue queue;
    FileSettingsStore store;
    nrPreferences preferences;
    ProfileRecord engine;
    int fills = 0;
    std::string failure;
};

inline PropertyArray profilesIn(const SettingsPaths &paths) {
    const auto parsed = parsePropertyList(bytesOf(paths.profiles));
    EXPECT_TRUE(parsed.value) << parsed.error;
    const auto *array = parsed.value ? parsed.value->as<PropertyArray>() : nullptr;
    return array ? *array : PropertyArray();
}

inline PropertyValue valueIn(const PropertyValue &record, std::string_view key) {
    const PropertyValue *value = record.as<PropertyDictionary>()->find(key);
    return value ? *value : PropertyValue(u"(absent)");
}

// A program in a folder of its own.
struct OwnFolder {
    TemporaryFolder folder;
};
class RunningProgram : public testing::Test, protected OwnFolder, protected Program {
  protected:
    RunningProgram()
        : Program(folder) {}

    // The value of a profile in the file.
    PropertyValue saved(std::string_view key, std::size_t place = 0) const {
        const PropertyArray profiles = profilesIn(paths);
        return place < profiles.size() ? valueIn(profiles[place], key) : u"(absent)";
    }
    // Another process changes the file.
    void elsewhere(const std::function<void(ProfilesFile &, ProfileItems &)> &change) const {
        ProfilesFile other(paths.profiles);
        ProfileItems items = other.load();
        change(other, items);
        EXPECT_EQ(other.save(items), "");
    }
    void othersRemoveTheFirst() const {
        elsewhere([](ProfilesFile &, ProfileItems &items) { items.erase(items.begin()); });
    }
};

inline std::map<std::string, std::string> allFiles(const TemporaryFolder &folder) {
    std::map<std::string, std::string> files;
    for (const auto &entry : std::filesystem::recursive_directory_iterator(folder.path())) {
        if (entry.is_regular_file()) {
            files[entry.path().string()] = bytesOf(entry.path().string());
        }
    }
    return files;
}

inline PropertyArray named(std::initializer_list<const char16_t *> names) {
    PropertyArray array;
    for (const char16_t *name : names) {
        array.emplace_back(PropertyDictionary{{"profileName", name}});
    }
    return array;
}

} // namespace nerlo::settings::test
