#include "storage/FileSettingsStore.h"

#include "platform/linux/FolderWatch.h"
#include "storage/PropertyList.h"
#include "storage/SafeFile.h"
#include "tests/TemporaryFolder.h"
#include "tests/Until.h"
#include "tests/fakes/MemoryMainQueue.h"
#include "tests/fakes/MemorySettingsStore.h"
#include "tests/storage/FaultyFileCalls.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace nerlo::storage {
namespace {

using test::bytesOf;
using test::FaultyFileCalls;
using test::putBytes;
using test::TemporaryFolder;
using Fault = FaultyFileCalls::Fault;

TEST(SettingsStore, ConvertsAsItReads) {
    test::MemorySettingsStore store(PropertyDictionary{
        {"number", 7}, {"text", u"12 seconds"}, {"data", PropertyData{std::byte{1}}}});
    EXPECT_TRUE(store.boolForKey("text"));
    EXPECT_EQ(store.integerForKey("text"), 12);
    EXPECT_EQ(store.stringForKey("number"), u"7");
    EXPECT_EQ(store.dataForKey("text"), nullptr);
    EXPECT_EQ(store.dataForKey("data")->size(), 1u);
    EXPECT_FALSE(store.boolForKey("absent"));
    EXPECT_EQ(store.integerForKey("absent"), 0);
    EXPECT_EQ(store.stringForKey("absent"), u"");
}

TEST(SettingsStore, TellsObserversAtOnceAndOfRealChanges) {
    test::MemorySettingsStore store;
    int told = 0;
    int toldOfAll = 0;
    auto one = store.observe("a", [&] { ++told; });
    auto all = store.observeAll([&] { ++toldOfAll; });
    EXPECT_EQ(told, 1);
    EXPECT_EQ(toldOfAll, 0);
    store.set("a", 1);
    store.set("a", 1);
    store.set("b", 1);
    store.remove("a");
    store.remove("a");
    EXPECT_EQ(told, 3);
    EXPECT_EQ(toldOfAll, 3);
    one = {};
    store.set("a", 2);
    EXPECT_EQ(told, 3);
}

TEST(SettingsStore, ObserversMaySetValuesAndEndObservationsWhileTheyAreTold) {
    test::MemorySettingsStore store;
    SettingsStore::Observation second;
    int secondTold = 0;
    const auto first = store.observe("a", [&] {
        if (store.integerForKey("a") == 1) {
            second = {};
            store.set("a", 2);
        }
    });
    second = store.observe("a", [&] { ++secondTold; });
    store.set("a", 1);
    EXPECT_EQ(store.integerForKey("a"), 2);
    EXPECT_EQ(secondTold, 1); // the initial one
}

TEST(FileSettingsStore, KeepsWhatItDoesNotKnowAndWritesOnlyChanges) {
    const TemporaryFolder folder;
    const std::string path = folder / "config/defaults.plist";
    const PropertyDictionary foreign{{"NSWindow Frame", u"0 0 1 1"},
                                     {"nested", PropertyDictionary{{"date", PropertyDate{5}}}}};
    putBytes(path, writeBinary(foreign));
    FileSettingsStore store(path);
    EXPECT_EQ(store.values(), foreign);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(bytesOf(path), writeBinary(foreign)) << "nothing changed, nothing written";
    store.set("stayOnTop", true);
    EXPECT_TRUE(store.synchronize());
    PropertyDictionary expected = foreign;
    expected.set("stayOnTop", true);
    EXPECT_EQ(bytesOf(path), writeXml(expected));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
}

TEST(FileSettingsStore, TwoStoresOfOneFileLoseNoKey) {
    const TemporaryFolder folder;
    FileSettingsStore first(folder / "defaults.plist");
    FileSettingsStore second(folder / "defaults.plist");
    std::u16string seen;
    const auto observation = second.observe("a", [&] { seen = second.stringForKey("a"); });
    first.set("a", u"first");
    first.set("shared", 1);
    EXPECT_TRUE(first.synchronize());
    second.set("b", u"second");
    second.set("shared", 2);
    EXPECT_EQ(seen, u"");
    EXPECT_TRUE(second.synchronize());
    EXPECT_EQ(seen, u"first");
    first.fileChanged();
    const PropertyDictionary expected{{"a", u"first"}, {"shared", 2}, {"b", u"second"}};
    EXPECT_EQ(first.values(), expected);
    EXPECT_EQ(second.values(), expected);
    first.remove("a");
    EXPECT_TRUE(first.synchronize());
    second.fileChanged();
    EXPECT_EQ(second.find("a"), nullptr);
    EXPECT_EQ(seen, u"");
}

TEST(FileSettingsStore, AFileThatIsDamagedOrRemovedLaterGetsAllValuesAgain) {
    const TemporaryFolder folder;
    const std::string path = folder / "defaults.plist";
    FileSettingsStore store(path);
    store.set("a", 1);
    EXPECT_TRUE(store.synchronize());
    putBytes(path, "damaged");
    store.fileChanged();
    EXPECT_EQ(store.integerForKey("a"), 1);
    EXPECT_EQ(bytesOf(path), "damaged") << "not touched by reading";
    store.set("b", 2);
    EXPECT_TRUE(store.synchronize());
    std::filesystem::remove(path);
    store.set("c", 3);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(FileSettingsStore(path).values(), (PropertyDictionary{{"a", 1}, {"b", 2}, {"c", 3}}));
    EXPECT_EQ(folder.count("defaults.plist.unreadable-"), 1);
}

TEST(FileSettingsStore, WritesByItselfOnceTheTaskIsOver) {
    const TemporaryFolder folder;
    test::MemoryMainQueue queue;
    FaultyFileCalls counting(Fault::None, 0);
    FileSettingsStore store(
        folder / "defaults.plist", [&](auto task) { queue.post(std::move(task)); }, counting);
    store.set("a", 1);
    store.set("b", 1);
    EXPECT_FALSE(std::filesystem::exists(store.path()));
    queue.runPosted();
    EXPECT_EQ(FileSettingsStore(store.path()).values().size(), 2u);
    const int calls = counting.count();
    store.fileChanged();
    EXPECT_EQ(counting.count(), calls) << "its own write is not read again";
}

TEST(FileSettingsStore, FailedWriteIsReportedAndGoesWithTheNext) {
    const TemporaryFolder folder;
    const std::string path = folder / "defaults.plist";
    FaultyFileCalls counting(Fault::None, 0);
    FileSettingsStore(path, nullptr, counting).set("a", 0); // written by the destructor
    const int calls = counting.count();
    ASSERT_GT(calls, 10);
    int failures = 0;
    for (int at = 1; at <= calls; ++at) {
        const std::string before = bytesOf(path);
        FaultyFileCalls faulty(Fault::Error, at);
        FileSettingsStore store(path, nullptr, faulty);
        std::vector<std::string> told;
        store.setErrorHandler([&](const std::string &error) { told.push_back(error); });
        store.set("a", at);
        if (!store.synchronize()) {
            ++failures;
            EXPECT_FALSE(store.error().empty());
            EXPECT_EQ(told, std::vector{store.error()});
            if (folder.count("defaults.plist.unreadable-") == 0) {
                EXPECT_EQ(bytesOf(path), before) << at;
            }
            EXPECT_TRUE(store.synchronize()) << at;
            EXPECT_EQ(told.back(), "") << "over";
        }
        EXPECT_EQ(FileSettingsStore(path).integerForKey("a"), at);
        EXPECT_EQ(folder.count(".defaults.plist."), 0);
    }
    EXPECT_GT(failures, 4);
}

TEST(SafeFile, ASymbolicLinkStaysOne) {
    const TemporaryFolder folder;
    putBytes(folder / "real/file", "old");
    std::filesystem::create_symlink(folder / "real/file", folder / "link");
    EXPECT_EQ(replaceFile(folder / "link", "new"), "");
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(bytesOf(folder / "real/file"), "new");
    std::filesystem::remove(folder / "real/file");
    EXPECT_NE(replaceFile(folder / "link", "new").find(folder / "link"), std::string::npos);
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
}

TEST(SafeFile, SaysWhatFailedAndWhere) {
    const TemporaryFolder folder;
    EXPECT_NE(replaceFile(folder / "no/file", "x").find("no/.file."), std::string::npos);
    EXPECT_EQ(readFile(folder / "nothing", 10).state, FileContent::State::Missing);
    EXPECT_EQ(readFile(folder.path(), 10).state, FileContent::State::Failed);
    putBytes(folder / "large", std::string(100, 'x'));
    EXPECT_EQ(readFile(folder / "large", 10).state, FileContent::State::Failed);
    putBytes(folder / "file", "x");
    EXPECT_FALSE(makeFolder(folder / "file"));
    EXPECT_NE(FolderLock(folder / "file/below").error(), "");
}

TEST(FolderWatch, TellsOfAnotherStoresWriteOnTheMainQueue) {
    const TemporaryFolder folder;
    test::MemoryMainQueue queue;
    FileSettingsStore mine(folder / "defaults.plist");
    platform::IoThread io;
    platform::FolderWatch watch(io, queue);
    int others = 0;
    ASSERT_TRUE(watch.add(folder / "new", [&] { ++others; }));
    ASSERT_TRUE(watch.add(folder.path(), [&] { mine.fileChanged(); }));
    {
        FileSettingsStore other(folder / "defaults.plist");
        other.set("a", 1);
    }
    EXPECT_TRUE(test::until(queue, [&] { return mine.integerForKey("a") == 1; }));
    EXPECT_EQ(others, 0);
    putBytes(folder / "new/file", "x");
    EXPECT_TRUE(test::until(queue, [&] { return others > 0; }));
}

} // namespace
} // namespace nerlo::storage
