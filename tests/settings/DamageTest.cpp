// Files that were damaged, saves that were ended, and two processes that save at once.
#include "storage/SafeFile.h"
#include "tests/Until.h"
#include "tests/settings/Program.h"
#include "tests/storage/FaultyFileCalls.h"

#include <chrono>
#include <random>
#include <thread>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace nerlo::settings {
namespace {

using namespace std::chrono_literals;
using namespace test;
using storage::writeBinary;
using storage::writeXml;

TEST(Files, DamagedAnywhereGiveAUsableStartAndAreNotLost) {
    const PropertyArray profiles{PropertyDictionary{{"profileName", u"work"}, {"udSort", 1}}};
    const PropertyDictionary store{{"firstRunPreferences", true}, {"showInMenubar", true}};
    struct Target {
        std::string SettingsPaths::*path;
        std::string bytes;
    };
    const Target targets[] = {
        {&SettingsPaths::profiles, writeXml(profiles)},
        {&SettingsPaths::profiles, writeBinary(profiles)},
        {&SettingsPaths::store, writeXml(store)},
        {&SettingsPaths::sharedFindReplace, writeBinary(named({u"a rule"}))},
    };
    const TemporaryFolder folder;
    int damaged = 0;
    const auto startWith = [&](const Target &target, const std::string &bytes) {
        std::filesystem::remove_all(folder / "config");
        std::filesystem::remove_all(folder / "data");
        const SettingsPaths paths = pathsIn(folder);
        putBytes(paths.store, writeXml(PropertyDictionary{{"firstRunPreferences", true},
                                                          {"firstRunPreferencesProfiles", true}}));
        putBytes(paths.*target.path, bytes);
        Program program(folder);
        program.start();
        program.preferences.checkBoxChanged("udSort", true);
        program.queue.advance(1s);
        ASSERT_FALSE(program.names().empty());
        ASSERT_EQ(program.failure, "");
        ASSERT_FALSE(profilesIn(paths).empty());
        if (!parsePropertyList(bytes).value) {
            ++damaged;
            bool kept = false;
            for (const auto &[path, content] : allFiles(folder)) {
                kept |= content == bytes;
            }
            ASSERT_TRUE(kept) << bytes;
        }
    };
    for (const Target &target : targets) {
        for (std::size_t size = 0; size < target.bytes.size(); ++size) {
            startWith(target, target.bytes.substr(0, size));
        }
        for (std::size_t place = 0; place < target.bytes.size(); ++place) {
            std::string flipped = target.bytes;
            flipped[place] = static_cast<char>(~flipped[place]);
            startWith(target, flipped);
        }
    }
    EXPECT_GT(damaged, 1000);
}

TEST(Files, DamagedWhileTheProgramRunsAreToldAndReplacedByTheNextSave) {
    for (auto path :
         {&SettingsPaths::store, &SettingsPaths::profiles, &SettingsPaths::sharedFindReplace}) {
        const TemporaryFolder folder;
        Program program(folder);
        program.start();
        program.preferences.onlyOneProfileChanged(true);
        program.queue.advance(5s);
        int told = 0;
        program.store.setDamageHandler([&] { ++told; });
        program.preferences.hooks().damaged = [&] { ++told; };
        const std::string file = program.paths.*path;
        putBytes(file, "damaged");
        program.store.fileChanged();
        program.preferences.profilesFileChanged();
        EXPECT_EQ(told, 1) << file;
        auto errors = program.preferences.loadErrors();
        errors.push_back(program.store.loadError());
        EXPECT_TRUE(std::ranges::any_of(
            errors, [&](const std::string &error) { return error.starts_with(file); }));
        program.store.set("showInMenubar", false);
        program.preferences.checkBoxChanged("udSort", true);
        program.preferences.addNewFindReplace();
        program.queue.advance(5s);
        program.store.synchronize();
        EXPECT_TRUE(parsePropertyList(bytesOf(file)).value) << file;
        EXPECT_EQ(told, 1) << file;
    }
}

// What a later start could not read is not written over what it can.
TEST(Files, BeyondTheLimitsAreNotWritten) {
    const TemporaryFolder folder;
    const std::string file = folder / "file";
    PropertyValue deep(1);
    for (int i = 0; i <= storage::PropertyListLimits::depth; ++i) {
        deep = PropertyArray{deep};
    }
    FileSettingsStore store(file);
    store.set("good", 1);
    EXPECT_TRUE(store.synchronize());
    const std::string before = bytesOf(file);
    store.set("deep", deep);
    EXPECT_FALSE(store.synchronize());
    EXPECT_TRUE(store.error().starts_with(file)) << store.error();
    EXPECT_EQ(bytesOf(file), before);
}

// Two profiles, large enough for a save to take several writes.
PropertyArray twoProfiles(int count) {
    PropertyArray profiles = named({u"first", u"second"});
    for (PropertyValue &profile : profiles) {
        profile.as<PropertyDictionary>()->set("count", count);
        profile.as<PropertyDictionary>()->set("udPrefixTextField", std::u16string(3000, u'x'));
    }
    return profiles;
}

// Sets both counts, which only a whole file has alike.
bool saveCount(const std::string &path, int count, storage::FileCalls &calls) {
    ProfilesFile file(path, calls);
    ProfileItems items = file.load();
    for (ProfileItem &item : items) {
        item.record.set("count", count);
    }
    return file.save(items).empty();
}

// The count of both; -1 when the file is not a whole one.
std::int64_t wholeCount(const SettingsPaths &paths) {
    const PropertyArray profiles = profilesIn(paths);
    if (profiles.size() != 2 || !(valueIn(profiles[0], "count") == valueIn(profiles[1], "count"))) {
        return -1;
    }
    return valueIn(profiles[0], "count").integerValue();
}

TEST(Ended, AtAnySystemCallOfAProfileSaveTheFileIsOldOrNew) {
    const TemporaryFolder folder;
    const SettingsPaths paths = pathsIn(folder);
    putBytes(paths.profiles, writeXml(twoProfiles(0)));
    std::int64_t before = 0;
    const int deaths = nerlo::test::endAtEachCall(
        [&](storage::FileCalls &calls, int at) { return saveCount(paths.profiles, at, calls); },
        [&](int at, bool last) {
            const auto after = wholeCount(paths);
            EXPECT_TRUE(after == at || (after == before && !last)) << at << ": " << after;
            before = after;
        });
    EXPECT_GT(deaths, 20);
    EXPECT_EQ(folder.count("profiles.nrp.unreadable-"), 0);
}

TEST(Ended, KilledTwoHundredTimesInTheMiddleOfSavingTheFileIsWhole) {
    const TemporaryFolder folder;
    const SettingsPaths paths = pathsIn(folder);
    putBytes(paths.profiles, writeXml(twoProfiles(0)));
    std::mt19937 random(20240501);
    std::int64_t last = 0;
    for (int round = 0; round < 200; ++round) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (auto count = static_cast<int>(last) + 1;; ++count) {
                if (!saveCount(paths.profiles, count, storage::FileCalls::system())) {
                    ::_exit(1);
                }
            }
        }
        // A whole save, and then any moment of the next ones. Meanwhile each look finds a whole
        // file.
        ASSERT_TRUE(nerlo::test::until([&] { return wholeCount(paths) > last; }));
        std::this_thread::sleep_for(std::chrono::microseconds(random() % 4000));
        ASSERT_EQ(::kill(child, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFSIGNALED(status)) << "a save failed";
        const auto count = wholeCount(paths);
        ASSERT_GT(count, last) << round;
        last = count;
    }
    EXPECT_EQ(folder.count("profiles.nrp.unreadable-"), 0);
}

TEST(TwoProcesses, SavingDifferentProfilesAtOnceLoseNone) {
    const TemporaryFolder folder;
    const SettingsPaths paths = pathsIn(folder);
    putBytes(paths.profiles, writeXml(named({u"first", u"second"})));
    constexpr int rounds = 500;
    // Each keeps its list in memory, as a running program does, changes its own profile in every
    // round, and in every tenth adds one.
    const auto work = [&](std::size_t own, const char16_t *prefix) {
        ProfilesFile file(paths.profiles);
        ProfileItems items = file.load();
        const std::uint64_t id = items.at(own).id;
        for (int round = 1; round <= rounds; ++round) {
            std::ranges::find(items, id, &ProfileItem::id)->record.set("count", round);
            if (round % 10 == 0) {
                items.push_back(
                    file.newItem({{"profileName", prefix + PropertyValue(round).stringValue()}}));
            }
            // A save that did not get its turn is repeated with the next one, as the program does;
            // on a busy machine the other process can hold the lock whenever this one looks.
            int attempts = 1;
            while (!file.save(items).empty()) {
                if (++attempts > 20) {
                    return 1;
                }
            }
        }
        return 0;
    };
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        ::_exit(work(0, u"a"));
    }
    const int mine = work(1, u"b");
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(mine, 0);
    const PropertyArray profiles = profilesIn(paths);
    EXPECT_EQ(profiles.size(), 2u + 2 * rounds / 10);
    EXPECT_EQ(valueIn(profiles[0], "count"), PropertyValue(rounds));
    EXPECT_EQ(valueIn(profiles[1], "count"), PropertyValue(rounds));
}

} // namespace
} // namespace nerlo::settings
