#include "settings/nrPreferences.h"

#include "platform/memory/MemorySettingsStore.h"
#include "settings/SettingsKeys.h"
#include "settings/UserLanguages.h"
#include "tests/settings/Program.h"

#include <stdexcept>

namespace nerlo::settings {
namespace {

using namespace std::chrono_literals;
using namespace test;
using platform::FileSettingsStore;
using platform::parsePropertyList;
using platform::PropertyArray;
using platform::PropertyDictionary;
using platform::PropertyValue;
using platform::writeBinary;
using platform::writeXml;

TEST(FirstStart, WritesOneProfileAndTheStore) {
    const TemporaryFolder folder;
    Program program(folder);
    bool shortcut = false;
    program.preferences.hooks().setDefaultShortcut = [&]() -> void {
        shortcut = true;
        throw std::runtime_error("no hot keys here");
    };
    setAllDefaultsInFirstRun(program.store, program.preferences);
    EXPECT_TRUE(shortcut);
    EXPECT_EQ(profilesIn(program.paths), (PropertyArray{firstStartProfile("fr")}));
    const PropertyDictionary expected{{"stayOnTop", false},
                                      {"lunchOnStartup", false},
                                      {"automaticallyClearFormatting", false},
                                      {"showInMenubar", true},
                                      {"firstRunPreferencesProfiles", true}};
    EXPECT_EQ(parsePropertyList(bytesOf(program.paths.store)).value, PropertyValue(expected));
}

TEST(FirstStart, TheSecondStartChangesNoByte) {
    const TemporaryFolder folder;
    std::map<std::string, std::string> before;
    for (const auto wait : {0ms, 5000ms}) {
        for (int start = 0; start < 3; ++start) {
            Program program(folder);
            program.start();
            program.queue.advance(wait);
            if (start > 0) {
                EXPECT_EQ(allFiles(folder), before) << start;
            }
            before = allFiles(folder);
        }
        EXPECT_EQ(before.size(), 5u); // the store, two lists, two locks
    }
}

TEST(FirstStart, EndedBeforeItWasThroughItMakesNoSecondProfile) {
    const TemporaryFolder folder;
    for (int start = 0; start < 2; ++start) {
        Program program(folder);
        setAllDefaultsInFirstRun(program.store, program.preferences);
        EXPECT_EQ(profilesIn(program.paths), (PropertyArray{firstStartProfile("fr")}));
    }
    EXPECT_EQ(folder.count("profiles.nrp."), 0);
}

TEST(FirstStart, AfterTheStoreIsLostTheProfilesStay) {
    const TemporaryFolder folder;
    putBytes(pathsIn(folder).profiles, writeXml(named({u"work", u"home"})));
    putBytes(pathsIn(folder).store, "damaged");
    Program program(folder);
    program.start();
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"default", u"work", u"home"}));
    EXPECT_EQ(folder.count("defaults.plist.unreadable-"), 1);
    EXPECT_TRUE(program.preferences.loadErrors().empty());
}

TEST(FirstStart, EveryFileThatIsDamagedIsTold) {
    const TemporaryFolder folder;
    const SettingsPaths paths = pathsIn(folder);
    for (const auto &path : {paths.store, paths.profiles, paths.sharedFindReplace}) {
        putBytes(path, "damaged");
    }
    for (const std::size_t damages : {2U, 0U}) { // beside the store's own, and at the next start
        Program program(folder);
        program.start();
        EXPECT_EQ(program.store.loadError().empty(), damages == 0);
        EXPECT_EQ(program.preferences.loadErrors().size(), damages);
    }
}

TEST(Files, LaidOutByMacOSLoadAndKeepWhatIsNotUnderstood) {
    // Keys sorted, tabs, as the other system's writer does it; "future" is nobody's key here.
    const std::string profiles = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<array>
	<dict>
		<key>future</key>
		<dict>
			<key>when</key>
			<date>2031-05-06T07:08:09Z</date>
		</dict>
		<key>profileName</key>
		<string>Büro &amp; E-Mail</string>
		<key>sFindAndReplaceItemsProfile</key>
		<array>
			<dict>
				<key>checkbox</key>
				<true/>
				<key>find</key>
				<string>&lt;b&gt;</string>
				<key>note</key>
				<real>0.25</real>
				<key>replace</key>
				<string></string>
			</dict>
		</array>
		<key>udSort</key>
		<integer>1</integer>
		<key>udStatisticsValue</key>
		<string>7</string>
	</dict>
</array>
</plist>
)";
    const PropertyDictionary store{{"NSNavLastRootDirectory", u"~/Desktop"},
                                   {"firstRunPreferences", true},
                                   {"firstRunPreferencesProfiles", true},
                                   {"udSelectedProfileItem", 0}};
    const PropertyValue asValue = *parsePropertyList(profiles).value;
    for (const std::string &form : {profiles, writeBinary(asValue)}) {
        const TemporaryFolder folder;
        putBytes(pathsIn(folder).profiles, form);
        putBytes(pathsIn(folder).store, form == profiles ? writeXml(store) : writeBinary(store));
        Program program(folder);
        program.start();
        EXPECT_EQ(program.preferences.profileName(), u"Büro & E-Mail");
        EXPECT_EQ(program.control("udSort"), PropertyValue(1));
        EXPECT_EQ(program.control("udStatisticsValue"), PropertyValue(u"7"));
        EXPECT_EQ(program.store.integerForKey("udStatisticsValue"), 7);
        EXPECT_EQ(FindReplaceList::textOf(program.preferences.findReplaceList().items()[0], "find"),
                  u"<b>");
        program.preferences.checkBoxChanged("udRemoveAllTabs", true);
        program.queue.advance(1s);
        const PropertyArray after = profilesIn(program.paths);
        EXPECT_EQ(valueIn(after[0], "udRemoveAllTabs"), PropertyValue(1));
        EXPECT_EQ(valueIn(after[0], "future"),
                  valueIn((*asValue.as<PropertyArray>())[0], "future"));
        EXPECT_EQ(valueIn(after[0], "sFindAndReplaceItemsProfile"),
                  valueIn((*asValue.as<PropertyArray>())[0], "sFindAndReplaceItemsProfile"));
        EXPECT_EQ(program.store.stringForKey("NSNavLastRootDirectory"), u"~/Desktop");
        EXPECT_EQ(FileSettingsStore(program.paths.store).values().size(), store.size() + 3);
    }
}

TEST(Saving, ThreeClicksAndATextEditGiveOneSaveTwoSecondsAfterTheEdit) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    program.queue.advance(5s);
    const std::string before = bytesOf(program.paths.profiles);
    program.fills = 0;
    for (const char *key : {"udSort", "udAddPrefix", "udRemoveAllTabs"}) {
        program.preferences.checkBoxChanged(key, true);
        program.queue.advance(300ms);
    }
    program.queue.advance(200ms);
    program.preferences.controlTextDidChange("udPrefixTextField", u"> ");
    program.queue.advance(1999ms);
    EXPECT_EQ(bytesOf(program.paths.profiles), before);
    EXPECT_EQ(program.fills, 0);
    program.queue.advance(1ms);
    EXPECT_NE(bytesOf(program.paths.profiles), before);
    EXPECT_EQ(program.fills, 2); // with the list of rules, and with the profile
    EXPECT_EQ(*program.engine.find("udPrefixTextField"), PropertyValue(u"> "));
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udRemoveAllTabs"), PropertyValue(1));
    EXPECT_EQ(program.queue.delayedCount(), 0u);
}

TEST(Saving, AClickAfterATextEditShortensTheWait) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    program.preferences.controlTextDidChange("udPrefixTextField", u"x");
    program.queue.advance(500ms);
    program.preferences.checkBoxChanged("udAddPrefix", true);
    program.queue.advance(1s);
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udPrefixTextField"), PropertyValue(u"x"));
}

TEST(Saving, ComboBoxesReachTheEngineAtOnceAndTheFileWithTheNextSave) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    program.queue.advance(5s);
    const std::string before = bytesOf(program.paths.profiles);
    program.preferences.comboBoxSelectionDidChange("udSortOption", 4);
    EXPECT_EQ(*program.engine.find("udSortOption"), PropertyValue(4));
    program.preferences.comboBoxSelectionDidChange("udStatisticsDefaultPosition", 2);
    EXPECT_EQ(program.store.integerForKey("udStatisticsDefaultPosition"), 2);
    program.queue.advance(5s);
    EXPECT_EQ(bytesOf(program.paths.profiles), before);
    // No item selected: 0 for the engine, and -1 in the file once it is saved.
    program.preferences.comboBoxSelectionDidChange("udChangeCaseOption", -1);
    EXPECT_EQ(*program.engine.find("udChangeCaseOption"), PropertyValue(0));
    program.preferences.savePending();
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udChangeCaseOption"), PropertyValue(-1));
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udSortOption"), PropertyValue(4));
}

TEST(Saving, FieldsFollowTheLists) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    nrPreferences &preferences = program.preferences;
    EXPECT_FALSE(preferences.customSeparatorEnabled("udSortSeparator"));
    preferences.comboBoxSelectionDidChange("udSortSeparator", 8);
    EXPECT_TRUE(preferences.customSeparatorEnabled("udSortSeparator"));
    preferences.comboBoxSelectionDidChange("udSortSeparator", -1);
    EXPECT_FALSE(preferences.customSeparatorEnabled("udSortSeparator"));
    using Fields = nrPreferences::ReturnsFields;
    preferences.comboBoxSelectionDidChange("udChangeReturnsOption", 6);
    EXPECT_EQ(preferences.returnsFields(),
              (Fields{u"sIndent", false, true, u"Custom", false, u""}));
    preferences.comboBoxSelectionDidChange("udChangeReturnsOption", 9);
    EXPECT_EQ(preferences.returnsFields(),
              (Fields{u"sTag", false, true, u"[img]", true, u"[/img]"}));
    preferences.comboBoxSelectionDidChange("udChangeReturnsOption", -1);
    EXPECT_EQ(preferences.returnsFields(),
              (Fields{u"sIndent", true, false, u"Custom", false, u""}));
    preferences.sUpdateStatisticksValue(u"12 s");
    EXPECT_EQ(program.store.integerForKey("udStatisticsValue"), 12);
}

TEST(Profiles, SelectedPlaceBeyondTheListIsPulledBack) {
    struct Row {
        int stored;
        int selected;
    };
    for (const Row &row : {Row{0, 0}, Row{2, 2}, Row{3, 0}, Row{4, 2}, Row{7, 2}, Row{-5, 0}}) {
        const TemporaryFolder folder;
        Program program(folder);
        putBytes(program.paths.profiles, writeXml(named({u"A", u"A", u"B"})));
        program.store.set("udSelectedProfileItem", row.stored);
        program.preferences.initProfilesItems();
        EXPECT_EQ(program.preferences.selectedItem(), row.selected) << row.stored;
        EXPECT_EQ(program.store.integerForKey("udSelectedProfileItem"), row.selected);
        EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"A", u"A", u"B"}));
    }
}

TEST(Profiles, AddSelectAndRemove) {
    const TemporaryFolder folder;
    Program program(folder);
    nrPreferences &preferences = program.preferences;
    program.start();
    preferences.profilesAdd();
    preferences.checkBoxChanged("udSort", true);
    program.queue.advance(2s);
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udSort"), PropertyValue(u"(absent)"))
        << "nothing is saved while the name is asked for";
    preferences.profilesAddingCloseWindow(u"");
    EXPECT_EQ(program.names().size(), 1u);
    preferences.profilesAdd();
    preferences.profilesAddingCloseWindow(u"default");
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"default", u"default"}));
    EXPECT_EQ(preferences.selectedItem(), 1);
    const PropertyArray saved = profilesIn(program.paths);
    ASSERT_EQ(saved.size(), 2u);
    // Every key but the list that all profiles share.
    EXPECT_EQ(saved[1].as<PropertyDictionary>()->size(), profileKeys().size() - 1);
    EXPECT_EQ(program.control("udChangeQuotes"), PropertyValue(0));
    preferences.profilesSelect(0);
    EXPECT_EQ(program.control("udChangeQuotes"), PropertyValue(1));
    EXPECT_EQ(program.store.integerForKey("udStatisticsValue"), 3);
    EXPECT_EQ(program.store.integerForKey("udStatisticsDelaySwitcher"), 1);
    EXPECT_EQ(program.store.integerForKey("udStatisticsDefaultPosition"), 5);

    preferences.hooks().confirmRemoval = [](const std::u16string &) { return false; };
    preferences.profilesRemove();
    EXPECT_EQ(program.names().size(), 2u);
    preferences.hooks().confirmRemoval = {};
    preferences.profilesRemove();
    preferences.profilesRemove();
    EXPECT_EQ(profilesIn(program.paths), PropertyArray());
    EXPECT_EQ(preferences.profileName(), u"profile 1");
    preferences.checkBoxChanged("udSort", true);
    program.queue.advance(1s);
    const PropertyArray again = profilesIn(program.paths);
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(valueIn(again[0], "profileName"), PropertyValue(u"profile 1"));
    EXPECT_EQ(valueIn(again[0], "udSort"), PropertyValue(1));
    EXPECT_EQ(again[0].as<PropertyDictionary>()->size(), profileKeys().size() - 1);
}

TEST(Profiles, GuardsStopWhatHooksCallBack) {
    const TemporaryFolder folder;
    Program program(folder);
    nrPreferences &preferences = program.preferences;
    program.start();
    preferences.profilesAdd();
    preferences.profilesAddingCloseWindow(u"second");
    // Reading the controls while a profile is half loaded must not change it.
    preferences.hooks().controlsLoaded = [&] { preferences.saveSelectedProfileInDictionary(); };
    preferences.profilesSelect(0);
    EXPECT_EQ(preferences.profileSelected(), preferences.profilesItems()[0].record);
    preferences.hooks().controlsLoaded = {};
    // A selection while the controls are read is ignored, also after it has come twice.
    preferences.hooks().setAllBools = [&](const ProfileRecord &) { preferences.profilesSelect(1); };
    preferences.saveSelectedProfileInDictionary();
    preferences.hooks().setAllBools = {};
    EXPECT_EQ(preferences.selectedItem(), 0);
    preferences.profilesSelect(1);
    EXPECT_EQ(preferences.selectedItem(), 1);
}

TEST(Profiles, AnotherProcessesProfileAppearsAndIsNotOverwritten) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    program.queue.advance(5s);
    ProfilesFile other(program.paths.profiles);
    ProfileItems items = other.load();
    items.insert(items.begin(), other.newItem({{"profileName", u"imported"}}));
    EXPECT_EQ(other.save(items), "");
    // An edit was under way: its save takes both.
    program.preferences.checkBoxChanged("udSort", true);
    program.preferences.profilesFileChanged();
    program.queue.advance(1s);
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"default", u"imported"}));
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udSort"), PropertyValue(1));

    // The selected profile is changed from outside: the controls follow.
    items = other.load();
    items[0].record.set("udAddPrefix", 1);
    EXPECT_EQ(other.save(items), "");
    program.preferences.profilesFileChanged();
    EXPECT_EQ(program.control("udAddPrefix"), PropertyValue(1));
    EXPECT_EQ(*program.engine.find("udAddPrefix"), PropertyValue(1));

    // A combo box was used meanwhile, which no save follows by itself.
    program.queue.advance(5s);
    program.preferences.comboBoxSelectionDidChange("udSortOption", 4);
    items = other.load();
    items[0].record.set("udAddSuffix", 1);
    EXPECT_EQ(other.save(items), "");
    program.preferences.profilesFileChanged();
    program.queue.advance(1s);
    EXPECT_EQ(program.control("udAddSuffix"), PropertyValue(1));
    EXPECT_EQ(program.control("udSortOption"), PropertyValue(4));
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udSortOption"), PropertyValue(4));

    // It is removed from outside.
    items = other.load();
    items.erase(items.begin());
    EXPECT_EQ(other.save(items), "");
    program.queue.advance(5s);
    program.preferences.profilesFileChanged();
    EXPECT_EQ(program.preferences.profileName(), u"imported");
}

TEST(Profiles, TheOneThatWasMeantIsSelectedAndRemovedWhateverOthersRemoveMeanwhile) {
    const TemporaryFolder folder;
    putBytes(pathsIn(folder).profiles, writeXml(named({u"A", u"B", u"C", u"D"})));
    Program program(folder);
    nrPreferences &preferences = program.preferences;
    preferences.initProfilesItems();
    program.queue.advance(5s);
    const auto removeFirst = [&] {
        ProfilesFile other(program.paths.profiles);
        ProfileItems items = other.load();
        items.erase(items.begin());
        EXPECT_EQ(other.save(items), "");
    };
    preferences.profilesSwitch(1);
    preferences.checkBoxChanged("udSort", true);
    removeFirst();
    preferences.profilesSwitch(2);
    EXPECT_EQ(preferences.profileName(), u"C");
    program.queue.advance(5s);

    preferences.hooks().confirmRemoval = [&](const std::u16string &) {
        removeFirst();
        preferences.profilesFileChanged();
        return true;
    };
    preferences.profilesRemove();
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"D"}));
    preferences.profilesRemove(); // the other process was faster
    EXPECT_EQ(profilesIn(program.paths), PropertyArray());
}

TEST(Profiles, AFailedWriteIsReportedAndGoesWithTheNextSave) {
    const TemporaryFolder folder;
    Program program(folder);
    program.start();
    program.queue.advance(5s);
    const std::string data = folder / "data";
    std::filesystem::rename(data, folder / "elsewhere");
    putBytes(data, "a file in the way");
    program.preferences.checkBoxChanged("udSort", true);
    EXPECT_FALSE(program.preferences.saveChangesInProfiles());
    EXPECT_NE(program.failure, "");
    std::filesystem::remove(data);
    EXPECT_TRUE(program.preferences.saveChangesInProfiles());
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "udSort"), PropertyValue(1));
}

TEST(Profiles, WhatCannotBeSavedStaysAndWhatOthersHaveSavedAppears) {
    const TemporaryFolder folder;
    const std::string lock = folder / "data/nerlo-pro/Data/.lock";
    std::filesystem::create_directories(lock); // cannot be held
    Program program(folder);
    program.start();
    EXPECT_NE(program.failure, "");
    EXPECT_EQ(program.preferences.profileSelected(), firstStartProfile("fr"));
    putBytes(program.paths.profiles, writeXml(named({u"imported"})));
    program.preferences.checkBoxChanged("udSort", true);
    program.queue.advance(1s);
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"imported", u"default"}));
    std::filesystem::remove(lock);
    program.preferences.checkBoxChanged("udAddPrefix", true);
    program.queue.advance(1s);
    EXPECT_EQ(program.failure, "");
    const PropertyArray saved = profilesIn(program.paths);
    ASSERT_EQ(saved.size(), 2U);
    EXPECT_EQ(valueIn(saved[1], "udSort"), PropertyValue(1));
}

TEST(FindReplace, TheSharedListAndTheProfilesOwn) {
    const TemporaryFolder folder;
    Program program(folder);
    nrPreferences &preferences = program.preferences;
    std::vector<int> told;
    preferences.hooks().updateUI = [&](int mode) { told.push_back(mode); };
    program.start();
    const auto shared = [&] {
        return *parsePropertyList(bytesOf(program.paths.sharedFindReplace)).value;
    };
    const PropertyDictionary rule{
        {"checkbox", true}, {"find", u"sFindReplaceNewItem"}, {"replace", u""}};
    EXPECT_EQ(shared(), PropertyValue(PropertyArray{rule}));
    EXPECT_TRUE(preferences.findReplaceList().items().empty());
    EXPECT_EQ(told, (std::vector<int>{0, 3}));

    preferences.addNewFindReplace();
    preferences.saveCurrentFindReplace(u"mine");
    preferences.controlTextDidChangeReplace(u"yours");
    preferences.saveCurrentFindReplaceCheckbox(0, false);
    program.queue.advance(2s);
    const PropertyDictionary own{{"checkbox", 0}, {"find", u"mine"}, {"replace", u"yours"}};
    EXPECT_EQ(valueIn(profilesIn(program.paths)[0], "sFindAndReplaceItemsProfile"),
              PropertyValue(PropertyArray{own}));

    preferences.onlyOneProfileChanged(true);
    EXPECT_EQ(preferences.findReplaceList().items(), PropertyArray{rule});
    preferences.selectedRow(0);
    preferences.saveCurrentFindReplace(u"ours");
    program.queue.advance(2s);
    EXPECT_EQ(FindReplaceList::textOf((*shared().as<PropertyArray>())[0], "find"), u"ours");
    EXPECT_EQ(*program.engine.find("sFindAndReplaceItems"), shared());
    EXPECT_EQ(*program.engine.find("sOnlyOneProfile"), PropertyValue(1));

    // The box keeps its state when another profile is selected, and at the next start.
    preferences.profilesAdd();
    preferences.profilesAddingCloseWindow(u"second");
    EXPECT_TRUE(preferences.onlyOneProfile());
    Program next(folder);
    next.start();
    EXPECT_TRUE(next.preferences.onlyOneProfile());
    EXPECT_EQ(next.preferences.findReplaceList().items(), *shared().as<PropertyArray>());

    told.clear();
    preferences.deleteFindReplace();
    EXPECT_EQ(preferences.findReplaceList().field().text, u"sFindReplaceDelete");
    EXPECT_TRUE(told.empty());
    preferences.selectedRow(0);
    preferences.deleteFindReplace();
    EXPECT_EQ(told, (std::vector<int>{1, 3}));
    EXPECT_EQ(shared(), PropertyValue(PropertyArray{}));
    // Switched on with an empty shared list: it gets one rule.
    preferences.onlyOneProfileChanged(false);
    preferences.onlyOneProfileChanged(true);
    EXPECT_EQ(shared(), PropertyValue(PropertyArray{rule}));
}

TEST(FindReplace, RowsMoveAsTheyAreDropped) {
    struct Row {
        std::vector<int> rows;
        int drop;
        std::vector<std::u16string> order;
    };
    const Row rows[] = {
        {{0}, 3, {u"b", u"c", u"a"}},  {{0}, 2, {u"b", u"c", u"a"}},  {{2}, 0, {u"c", u"a", u"b"}},
        {{1}, 1, {u"a", u"b", u"c"}},  {{9}, 0, {u"a", u"b", u"c"}},  {{}, 0, {u"a", u"b", u"c"}},
        {{0}, 99, {u"b", u"c", u"a"}}, {{0}, -1, {u"a", u"b", u"c"}},
    };
    for (const Row &row : rows) {
        FindReplaceList list([](std::u16string_view key) { return std::u16string(key); });
        PropertyArray items;
        for (const char16_t *find : {u"a", u"b", u"c"}) {
            items.emplace_back(PropertyDictionary{{"find", find}});
        }
        list.setItems(items);
        list.select(1);
        list.move(row.rows, row.drop);
        std::vector<std::u16string> order;
        for (const PropertyValue &rule : list.items()) {
            order.push_back(FindReplaceList::textOf(rule, "find"));
        }
        EXPECT_EQ(order, row.order) << row.drop;
    }
}

TEST(FindReplace, HostileRulesAreEditedWithoutHarm) {
    FindReplaceList list([](std::u16string_view key) { return std::u16string(key); });
    list.setItems({7, u"text", PropertyDictionary{{"find", 3}, {"extra", true}}});
    EXPECT_EQ(FindReplaceList::textOf(list.items()[0], "find"), u"");
    list.select(0);
    list.setFind(u"x");
    list.setCheckbox(2, true);
    list.setCheckbox(9, true);
    EXPECT_EQ(list.items()[0], PropertyValue(PropertyDictionary{{"find", u"x"}}));
    EXPECT_EQ(list.items()[2],
              PropertyValue(PropertyDictionary{{"find", 3}, {"extra", true}, {"checkbox", 1}}));
}

TEST(Migration, MovesTheOldOptionsIntoOneProfileOnce) {
    const TemporaryFolder folder;
    const SettingsPaths paths = pathsIn(folder);
    const PropertyDictionary old{{"firstRunPreferences", true},
                                 {"udSort", true},
                                 {"udSortOption", 3},
                                 {"udPrefixTextField", u"p"},
                                 {"udStatisticsValue", 9},
                                 {"udAddPrefix", true},
                                 {"udChangeProperty10ToTextField", u"x"}};
    putBytes(paths.store, writeBinary(old));
    putBytes(paths.profiles, writeXml(named({u"older"})));
    std::map<std::string, std::string> before;
    {
        Program program(folder);
        setAllDefaultsInFirstRun(program.store, program.preferences);
        const PropertyArray profiles = profilesIn(paths);
        ASSERT_EQ(profiles.size(), 1u);
        const auto &record = *profiles[0].as<PropertyDictionary>();
        EXPECT_EQ(record.begin()->second, PropertyValue(u"profile 1"));
        EXPECT_EQ((record.begin() + 1)->first, "udSort");
        EXPECT_EQ((record.begin() + 1)->second, PropertyValue(true));
        EXPECT_EQ(*record.find("udRemoveDuplicateLines"), PropertyValue(false));
        EXPECT_EQ(*record.find("udSortOption"), PropertyValue(3));
        EXPECT_EQ(*record.find("udStatisticsValue"), PropertyValue(u"9"));
        EXPECT_EQ(*record.find("udChangeProperty1ToTextField"), PropertyValue(u""));
        EXPECT_EQ(*record.find("udChangeProperty10ToTextField"), PropertyValue(u"x"));
        for (const char *key : {"udAddPrefix", "udPrefixTextField", "udRemoveHyphens",
                                "sFindReplaceBool", "sOnlyOneProfile"}) {
            EXPECT_EQ(record.find(key), nullptr) << key;
        }
        EXPECT_EQ(record.size(), 1u + 39 + 26 + 13);
        EXPECT_EQ(folder.count("profiles.nrp.replaced-"), 1) << "the file before is kept";
        EXPECT_EQ(program.store.find("stayOnTop"), nullptr);
        before = allFiles(folder);
    }
    Program program(folder);
    setAllDefaultsInFirstRun(program.store, program.preferences);
    EXPECT_EQ(allFiles(folder), before);
}

TEST(Language, TheKeyOfTheStoreComesBeforeTheDesktop) {
    platform::MemorySettingsStore store;
    EXPECT_EQ(firstLanguage(store), userLanguages().front());
    store.set("AppleLanguages", PropertyArray{});
    EXPECT_EQ(firstLanguage(store), userLanguages().front());
    store.set("AppleLanguages", PropertyArray{u"zh-Hant", u"en"});
    EXPECT_EQ(firstLanguage(store), "zh-Hant");
}

} // namespace
} // namespace nerlo::settings
