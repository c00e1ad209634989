#include "settings/nrPreferences.h"

#include "settings/SettingsKeys.h"
#include "settings/UserLanguages.h"
#include "tests/fakes/MemorySettingsStore.h"
#include "tests/settings/Program.h"

#include <stdexcept>

namespace nerlo::settings {
namespace {

using namespace std::chrono_literals;
using namespace test;
using storage::writeBinary;
using storage::writeXml;

using FirstStart = RunningProgram;
using Saving = RunningProgram;
using Profiles = RunningProgram;
using FindReplace = RunningProgram;

TEST_F(FirstStart, WritesOneProfileAndTheStore) {
    bool shortcut = false;
    preferences.hooks().setDefaultShortcut = [&]() -> void {
        shortcut = true;
        throw std::runtime_error("no hot keys here");
    };
    setAllDefaultsInFirstRun(store, preferences);
    store.synchronize();
    EXPECT_TRUE(shortcut);
    EXPECT_EQ(profilesIn(paths), (PropertyArray{firstStartProfile("fr")}));
    store.remove(settingsVersionKey); // there once there is a second migration
    store.synchronize();
    const PropertyDictionary expected{{"stayOnTop", false},
                                      {"lunchOnStartup", false},
                                      {"automaticallyClearFormatting", false},
                                      {"showInMenubar", true},
                                      {"firstRunPreferencesProfiles", true}};
    EXPECT_EQ(parsePropertyList(bytesOf(paths.store)).value, PropertyValue(expected));
}

TEST(Starts, TheSecondStartChangesNoByte) {
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

TEST(Starts, EndedBeforeItWasThroughItMakesNoSecondProfile) {
    const TemporaryFolder folder;
    for (int start = 0; start < 2; ++start) {
        Program program(folder);
        setAllDefaultsInFirstRun(program.store, program.preferences);
        EXPECT_EQ(profilesIn(program.paths), (PropertyArray{firstStartProfile("fr")}));
    }
    EXPECT_EQ(folder.count("profiles.nrp."), 0);
}

TEST(Starts, AfterTheStoreIsLostTheProfilesStay) {
    const TemporaryFolder folder;
    putBytes(pathsIn(folder).profiles, writeXml(named({u"work", u"home"})));
    putBytes(pathsIn(folder).store, "damaged");
    Program program(folder);
    program.start();
    EXPECT_EQ(program.names(), (std::vector<std::u16string>{u"default", u"work", u"home"}));
    EXPECT_EQ(folder.count("defaults.plist.unreadable-"), 1);
    EXPECT_TRUE(program.preferences.loadErrors().empty());
}

TEST(Starts, EveryFileThatIsDamagedIsTold) {
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

TEST(Files, OfTheOtherSystemLoadAndKeepWhatIsNotUnderstood) {
    // Keys sorted, as the other system's writer does it; "future" and "note" are nobody's keys
    // here.
    const PropertyDictionary rule{
        {"checkbox", true}, {"find", u"<b>"}, {"note", 0.25}, {"replace", u""}};
    const PropertyArray profiles{
        PropertyDictionary{{"future", PropertyDictionary{{"when", storage::PropertyDate{5}}}},
                           {"profileName", u"Büro & E-Mail"},
                           {"sFindAndReplaceItemsProfile", PropertyArray{rule}},
                           {"udSort", 1},
                           {"udStatisticsValue", u"7"}}};
    const PropertyDictionary store{{"NSNavLastRootDirectory", u"~/Desktop"},
                                   {"firstRunPreferences", true},
                                   {"firstRunPreferencesProfiles", true},
                                   {"udSelectedProfileItem", 0}};
    for (const auto write : {writeXml, writeBinary}) {
        const TemporaryFolder folder;
        putBytes(pathsIn(folder).profiles, write(profiles));
        putBytes(pathsIn(folder).store, write(store));
        Program program(folder);
        program.start();
        EXPECT_EQ(program.preferences.profileName(), u"Büro & E-Mail");
        EXPECT_EQ(program.preferences.state("udSort"), PropertyValue(1));
        EXPECT_EQ(program.preferences.state("udStatisticsValue"), PropertyValue(u"7"));
        EXPECT_EQ(program.store.integerForKey("udStatisticsValue"), 7);
        EXPECT_EQ(FindReplaceList::textOf(program.preferences.findReplaceList().items()[0], "find"),
                  u"<b>");
        program.preferences.checkBoxChanged("udRemoveAllTabs", true);
        program.queue.advance(1s);
        const PropertyArray after = profilesIn(program.paths);
        EXPECT_EQ(valueIn(after[0], "udRemoveAllTabs"), PropertyValue(1));
        for (const char *key : {"future", "sFindAndReplaceItemsProfile"}) {
            EXPECT_EQ(valueIn(after[0], key), valueIn(profiles[0], key));
        }
        const FileSettingsStore written(program.paths.store);
        EXPECT_EQ(written.stringForKey("NSNavLastRootDirectory"), u"~/Desktop");
    }
}

TEST_F(Saving, ThreeClicksAndATextEditGiveOneSaveTwoSecondsAfterTheEdit) {
    start();
    queue.advance(5s);
    const std::string before = bytesOf(paths.profiles);
    fills = 0;
    for (const char *key : {"udSort", "udAddPrefix", "udRemoveAllTabs"}) {
        preferences.checkBoxChanged(key, true);
        queue.advance(300ms);
    }
    queue.advance(200ms);
    preferences.controlTextDidChange("udPrefixTextField", u"> ");
    queue.advance(1999ms);
    EXPECT_EQ(bytesOf(paths.profiles), before);
    EXPECT_EQ(*engine.find("udPrefixTextField"), PropertyValue(u"> ")) << "no delay for the engine";
    queue.advance(1ms);
    EXPECT_EQ(fills, 4) << "one for each edit";
    EXPECT_EQ(saved("udPrefixTextField"), PropertyValue(u"> "));
    EXPECT_EQ(saved("udRemoveAllTabs"), PropertyValue(1));
    EXPECT_EQ(queue.delayedCount(), 0u);
}

TEST_F(Saving, AClickAfterATextEditShortensTheWait) {
    start();
    preferences.controlTextDidChange("udPrefixTextField", u"x");
    queue.advance(500ms);
    preferences.checkBoxChanged("udAddPrefix", true);
    queue.advance(1s);
    EXPECT_EQ(saved("udPrefixTextField"), PropertyValue(u"x"));
}

TEST_F(Saving, AChoiceOfNoItemIsTheFirstForTheEngineAndNoneInTheFile) {
    start();
    preferences.comboBoxSelectionDidChange("udSortOption", 4);
    preferences.comboBoxSelectionDidChange("udStatisticsDefaultPosition", 2);
    EXPECT_EQ(store.integerForKey("udStatisticsDefaultPosition"), 2);
    preferences.comboBoxSelectionDidChange("udChangeCaseOption", -1);
    EXPECT_EQ(*engine.find("udChangeCaseOption"), PropertyValue(0));
    queue.advance(1s);
    EXPECT_EQ(saved("udChangeCaseOption"), PropertyValue(-1));
    EXPECT_EQ(saved("udSortOption"), PropertyValue(4));
}

TEST_F(Profiles, SelectedPlaceBeyondTheListIsPulledBack) {
    struct Row {
        int stored;
        int selected;
    };
    putBytes(paths.profiles, writeXml(named({u"A", u"A", u"B"})));
    for (const Row &row : {Row{0, 0}, Row{2, 2}, Row{3, 0}, Row{4, 2}, Row{7, 2}, Row{-5, 0}}) {
        store.set("udSelectedProfileItem", row.stored);
        preferences.initProfilesItems();
        EXPECT_EQ(preferences.selectedItem(), row.selected) << row.stored;
        EXPECT_EQ(store.integerForKey("udSelectedProfileItem"), row.selected);
        EXPECT_EQ(names(), (std::vector<std::u16string>{u"A", u"A", u"B"}));
    }
}

TEST_F(Profiles, AddSelectAndRemove) {
    start();
    preferences.profilesAdd();
    preferences.checkBoxChanged("udSort", true);
    queue.advance(2s);
    EXPECT_EQ(saved("udSort"), PropertyValue(0)) << "nothing is saved while the name is asked for";
    preferences.profilesAddingCloseWindow(u"");
    EXPECT_EQ(names().size(), 1u);
    preferences.profilesAdd();
    preferences.profilesAddingCloseWindow(u"default");
    EXPECT_EQ(names(), (std::vector<std::u16string>{u"default", u"default"}));
    EXPECT_EQ(preferences.selectedItem(), 1);
    const PropertyArray saved = profilesIn(paths);
    ASSERT_EQ(saved.size(), 2u);
    // Every key but the list that all profiles share.
    EXPECT_EQ(saved[1].as<PropertyDictionary>()->size(), profileKeys().size() - 1);
    EXPECT_EQ(preferences.state("udChangeQuotes"), PropertyValue(0));
    preferences.profilesSelect(0);
    EXPECT_EQ(preferences.state("udChangeQuotes"), PropertyValue(1));
    EXPECT_EQ(store.integerForKey("udStatisticsValue"), 3);
    EXPECT_EQ(store.integerForKey("udStatisticsDelaySwitcher"), 1);
    EXPECT_EQ(store.integerForKey("udStatisticsDefaultPosition"), 5);

    preferences.profilesRemove();
    preferences.profilesRemove();
    EXPECT_EQ(profilesIn(paths), PropertyArray());
    EXPECT_EQ(preferences.profileName(), u"profile 1");
    preferences.checkBoxChanged("udSort", true);
    queue.advance(1s);
    const PropertyArray again = profilesIn(paths);
    ASSERT_EQ(again.size(), 1u);
    EXPECT_EQ(valueIn(again[0], "profileName"), PropertyValue(u"profile 1"));
    EXPECT_EQ(valueIn(again[0], "udSort"), PropertyValue(1));
    EXPECT_EQ(again[0].as<PropertyDictionary>()->size(), profileKeys().size() - 1);
}

TEST_F(Profiles, WhatWasDoneIsTakenBackAndDoneAgain) {
    start();
    const auto shown = [&] {
        return std::tuple(names(), preferences.selectedItem(), preferences.onlyOneProfile(),
                          preferences.state("udSort"), preferences.state("udPrefixTextField"),
                          preferences.findReplaceList().items(),
                          store.values().find(copyTableKey) ? *store.find(copyTableKey) : 0);
    };
    const RuleList list{u"", {{true, u"x", u"y", {{u"x", u"y"}}}, {true, u"z", u"", {}}}};
    const std::function<void()> gestures[] = {
        [&] { preferences.checkBoxChanged("udSort", true); },
        [&] {
            preferences.controlTextDidChange("udPrefixTextField", u"a");
            preferences.controlTextDidChange("udPrefixTextField", u"ab");
        },
        [&] { preferences.addNewFindReplace(); },
        [&] {
            preferences.saveCurrentFindReplace(u"x");
            preferences.saveCurrentFindReplace(u"xy");
        },
        [&] {
            preferences.setRuleSamples(0, {{u"xy", u""}});
        },
        [&] { preferences.importRules(list); },
        [&] { preferences.acceptDrop({0}, 2); },
        [&] {
            preferences.selectedRow(0);
            preferences.pasteRules(list);
        },
        [&] { preferences.deleteFindReplace(); },
        [&] { preferences.profilesAddingCloseWindow(u"B"); },
        [&] {
            for (const char16_t *typed : {u"default", u"B"}) {
                preferences.copyTableChanged(PropertyArray{PropertyDictionary{{"profile", typed}}},
                                             "copy");
            }
        },
        [&] { preferences.profilesRename(preferences.profilesItems()[1].id, u"B 2"); },
        [&] { preferences.profilesDuplicate(); },
        [&] { preferences.profilesMove(2, 0); },
        [&] {
            preferences.profilesImport({{{"profileName", u"C"}}});
        },
        [&] {
            preferences.profilesReset({{"udSort", 1}});
        },
        [&] { preferences.onlyOneProfileChanged(true); },
        [&] { preferences.pasteRules(list); },
        [&] { preferences.profilesRemove(); },
    };
    std::vector<decltype(shown())> states{shown()};
    for (const auto &gesture : gestures) {
        gesture();
        states.push_back(shown());
        ASSERT_FALSE(states.back() == states[states.size() - 2]) << states.size();
        queue.advance(5s); // saved, which ends what is typed
    }
    for (int round = 0; round < 2; ++round) {
        for (auto at = states.size() - 1; at-- > 0;) {
            preferences.undo();
            ASSERT_EQ(shown() == states[at], true) << at;
            queue.advance(round * 5s);
        }
        EXPECT_FALSE(preferences.canUndo());
        for (std::size_t at = 1; at < states.size(); ++at) {
            preferences.redo();
            ASSERT_EQ(shown() == states[at], true) << at;
        }
        EXPECT_FALSE(preferences.canRedo());
    }
    // What others have done meanwhile stays, and what is typed and taken back was nothing.
    preferences.checkBoxChanged("udAddSuffix", true);
    queue.advance(5s);
    elsewhere([](ProfilesFile &, ProfileItems &items) { items[0].record.set("udAddPrefix", 1); });
    preferences.profilesFileChanged();
    preferences.undo();
    EXPECT_EQ(preferences.state("udAddSuffix"), PropertyValue(0));
    EXPECT_EQ(preferences.state("udAddPrefix"), PropertyValue(1));
    preferences.controlTextDidChange("udPrefixTextField", u"c");
    preferences.controlTextDidChange("udPrefixTextField", u"ab");
    EXPECT_FALSE(preferences.canRedo());
    preferences.undo();
    EXPECT_EQ(names().size(), 4U) << "the removal of a profile was the last gesture";
    preferences.pasteRules(list);
    const int pasted = preferences.findReplaceList().lastClickedRow();
    preferences.deleteFindReplace();
    preferences.undo();
    EXPECT_EQ(preferences.findReplaceList().lastClickedRow(), pasted);
}

TEST_F(Profiles, WhatGoesIsKeptAndWhatRefersToAProfileFollowsIt) {
    putBytes(paths.profiles, writeXml(named({u"A", u"B", u"B"})));
    preferences.initProfilesItems();
    const auto removed = [&] {
        std::vector<std::u16string> names;
        for (const ProfileItem &item : preferences.removedProfiles()) {
            names.push_back(profileNameOf(item.record));
        }
        return names;
    };
    using Names = std::vector<std::u16string>;
    store.set(copyTableKey, PropertyArray{PropertyDictionary{{"profile", u"B"}}, 7});
    const auto meant = [&] {
        return valueIn((*store.find(copyTableKey)->as<PropertyArray>())[0], "profile");
    };
    preferences.profilesRename(preferences.profilesItems()[1].id, u"");
    preferences.profilesRename(preferences.profilesItems()[1].id, u"C");
    EXPECT_EQ(meant(), PropertyValue(u"B")) << "there is another one";
    preferences.profilesRename(preferences.profilesItems()[2].id, u"D");
    EXPECT_EQ(meant(), PropertyValue(u"D"));
    preferences.profilesMove(0, 3);
    EXPECT_EQ(names(), (Names{u"C", u"D", u"A"}));
    EXPECT_EQ(store.integerForKey(selectedProfileKey), 2) << "the same profile at another place";
    EXPECT_EQ(profilesIn(paths).size(), 3U);
    EXPECT_EQ(saved("profileName", 2), PropertyValue(u"A"));

    // An edit that waits goes with what is removed or reset.
    preferences.checkBoxChanged("udSort", true);
    EXPECT_TRUE(preferences.profilesReset({{"udAddPrefix", 1}}));
    EXPECT_EQ(preferences.state("udSort"), PropertyValue(0));
    EXPECT_EQ(saved("udAddPrefix", 2), PropertyValue(1));
    preferences.profilesRemove();
    EXPECT_EQ(removed(), (Names{u"A", u"A"}));
    preferences.undo();
    EXPECT_EQ(removed(), (Names{u"A"})) << "it is back";
    preferences.redo();
    EXPECT_EQ(removed().size(), 2U);
    preferences.profilesRestore(preferences.removedProfiles()[1].id);
    EXPECT_EQ(saved("udSort", 2), PropertyValue(1));
    EXPECT_EQ(removed().size(), 1U);
    EXPECT_EQ(preferences.profileName(), u"C") << "none is selected by it";

    // With no profile left, what is imported is not taken for the one that stands for none.
    while (preferences.profilesRemove()) {
    }
    preferences.profilesImport({{{"profileName", u"E"}, {"udSort", 1}}, {{"profileName", u"F"}}});
    EXPECT_EQ(preferences.profileName(), u"E");
    EXPECT_EQ(saved("udSort"), PropertyValue(1));

    // What cannot be kept stays.
    std::filesystem::remove(folder / "data/nerlo-pro/Data/.lock");
    std::filesystem::create_directories(folder / "data/nerlo-pro/Data/.lock");
    EXPECT_FALSE(preferences.profilesRemove());
    EXPECT_FALSE(preferences.profilesReset({}));
    EXPECT_NE(failure, "");
    EXPECT_EQ(preferences.state("udSort"), PropertyValue(1));
}

TEST_F(Profiles, AnotherProcessesProfileAppearsAndIsNotOverwritten) {
    start();
    queue.advance(5s);
    elsewhere([](ProfilesFile &other, ProfileItems &items) {
        items.push_back(other.newItem({{"profileName", u"imported"}}));
    });
    // An edit was under way: its save takes both.
    preferences.checkBoxChanged("udSort", true);
    preferences.profilesFileChanged();
    queue.advance(1s);
    EXPECT_EQ(names(), (std::vector<std::u16string>{u"default", u"imported"}));
    EXPECT_EQ(saved("udSort"), PropertyValue(1));

    // The selected profile is changed from outside: the controls follow.
    const auto switchesOn = [&](const char *key) {
        elsewhere([&](ProfilesFile &, ProfileItems &items) { items[0].record.set(key, 1); });
    };
    switchesOn("udAddPrefix");
    preferences.profilesFileChanged();
    EXPECT_EQ(preferences.state("udAddPrefix"), PropertyValue(1));
    EXPECT_EQ(*engine.find("udAddPrefix"), PropertyValue(1));

    // It is removed from outside.
    othersRemoveTheFirst();
    queue.advance(5s);
    preferences.profilesFileChanged();
    EXPECT_EQ(preferences.profileName(), u"imported");
}

TEST_F(Profiles, TheOneThatWasMeantIsSelectedAndRemovedWhateverOthersRemoveMeanwhile) {
    putBytes(paths.profiles, writeXml(named({u"A", u"B", u"C", u"D", u"E"})));
    preferences.initProfilesItems();
    queue.advance(5s);
    preferences.profilesSwitch(1);
    preferences.checkBoxChanged("udSort", true);
    othersRemoveTheFirst();
    preferences.profilesSwitch(2);
    EXPECT_EQ(preferences.profileName(), u"C");
    queue.advance(5s);
    othersRemoveTheFirst();
    store.set(selectedProfileKey, 1); // a place in a list that is only in the file yet
    preferences.selectedPlaceChanged();
    EXPECT_EQ(preferences.profileName(), u"D");

    othersRemoveTheFirst();
    EXPECT_TRUE(preferences.profilesRemove()); // nobody has told of the other process yet
    EXPECT_EQ(names(), (std::vector<std::u16string>{u"E"}));
}

TEST_F(Profiles, AFailedWriteIsReportedAndTriedAgainAtTheEnd) {
    start();
    queue.advance(5s);
    const std::string data = folder / "data";
    std::filesystem::rename(data, folder / "elsewhere");
    putBytes(data, "a file in the way");
    preferences.checkBoxChanged("udSort", true);
    queue.advance(1s);
    EXPECT_NE(failure, "");
    EXPECT_EQ(preferences.savePending(), failure);
    std::filesystem::remove(data);
    EXPECT_EQ(preferences.savePending(), "") << "tried again, though nothing has been edited";
    EXPECT_EQ(failure, "");
    EXPECT_EQ(saved("udSort"), PropertyValue(1));
}

TEST_F(Profiles, WhatCannotBeSavedStaysAndWhatOthersHaveSavedAppears) {
    const std::string lock = folder / "data/nerlo-pro/Data/.lock";
    std::filesystem::create_directories(lock); // cannot be held
    start();
    EXPECT_NE(failure, "");
    EXPECT_EQ(preferences.profileName(), u"default");
    putBytes(paths.profiles, writeXml(named({u"imported"})));
    preferences.checkBoxChanged("udSort", true);
    queue.advance(1s);
    EXPECT_EQ(names(), (std::vector<std::u16string>{u"imported", u"default"}));
    std::filesystem::remove(lock);
    preferences.checkBoxChanged("udAddPrefix", true);
    queue.advance(1s);
    EXPECT_EQ(failure, "");
    EXPECT_EQ(profilesIn(paths).size(), 2U);
    EXPECT_EQ(saved("udSort", 1), PropertyValue(1));
}

TEST_F(FindReplace, TheSharedListAndTheProfilesOwn) {
    std::vector<int> told;
    preferences.hooks().updateUI = [&](RulesUpdate update) {
        told.push_back(static_cast<int>(update));
    };
    start();
    const auto shared = [&] { return *parsePropertyList(bytesOf(paths.sharedFindReplace)).value; };
    const PropertyDictionary rule{
        {"checkbox", true}, {"find", u"sFindReplaceNewItem"}, {"replace", u""}};
    EXPECT_EQ(shared(), PropertyValue(PropertyArray{rule}));
    EXPECT_TRUE(preferences.findReplaceList().items().empty());
    EXPECT_EQ(told, (std::vector<int>{0, 3}));

    preferences.addNewFindReplace();
    preferences.saveCurrentFindReplace(u"mine");
    preferences.controlTextDidChangeReplace(u"yours");
    preferences.saveCurrentFindReplaceCheckbox(0, false);
    queue.advance(2s);
    const PropertyDictionary own{{"checkbox", 0}, {"find", u"mine"}, {"replace", u"yours"}};
    EXPECT_EQ(saved("sFindAndReplaceItemsProfile"), PropertyValue(PropertyArray{own}));
    EXPECT_EQ(saved("sFindReplaceBool"), PropertyValue(1)); // the first rule is wanted

    preferences.onlyOneProfileChanged(true);
    EXPECT_EQ(preferences.findReplaceList().items(), PropertyArray{rule});
    preferences.selectedRow(0);
    preferences.saveCurrentFindReplace(u"ours");
    queue.advance(2s);
    EXPECT_EQ(FindReplaceList::textOf((*shared().as<PropertyArray>())[0], "find"), u"ours");
    EXPECT_EQ(*engine.find("sFindAndReplaceItems"), shared());
    EXPECT_EQ(*engine.find("sOnlyOneProfile"), PropertyValue(1));

    // What was typed just before the box was switched is in its list.
    preferences.selectedRow(0);
    preferences.controlTextDidChangeReplace(u"typed");
    preferences.onlyOneProfileChanged(false);
    EXPECT_EQ(preferences.findReplaceList().items(), PropertyArray{own});
    preferences.selectedRow(0);
    preferences.controlTextDidChangeReplace(u"typed too");
    preferences.onlyOneProfileChanged(true);
    const auto typed = [&] {
        return FindReplaceList::textOf(preferences.findReplaceList().items()[0], "replace");
    };
    EXPECT_EQ(typed(), u"typed");
    preferences.onlyOneProfileChanged(false);
    EXPECT_EQ(typed(), u"typed too");
    preferences.onlyOneProfileChanged(true);

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

TEST(SharedRules, OfTwoProgramsAreMergedAndOutsideChangesSeen) {
    const TemporaryFolder folder;
    Program first(folder);
    first.start();
    Program second(folder);
    second.start();
    const auto finds = [](const Program &program) {
        std::u16string all;
        for (const PropertyValue &rule : program.preferences.findReplaceList().items()) {
            all += FindReplaceList::textOf(rule, "find") + u' ';
        }
        return all;
    };
    const auto add = [](Program &program, const char16_t *find) {
        program.preferences.addNewFindReplace();
        program.preferences.saveCurrentFindReplace(find);
    };
    const auto settle = [&] {
        for (Program *program : {&first, &second, &first}) {
            program->queue.advance(2s);
            program->preferences.profilesFileChanged();
        }
        EXPECT_EQ(finds(first), finds(second));
        for (const Program *program : {&first, &second}) {
            EXPECT_EQ(*program->engine.find("sFindAndReplaceItems"),
                      PropertyValue(program->preferences.findReplaceList().items()));
        }
        return finds(first);
    };
    for (Program *program : {&first, &second}) {
        program->preferences.onlyOneProfileChanged(true);
        program->queue.advance(2s);
    }
    first.preferences.selectedRow(0);
    first.preferences.saveCurrentFindReplace(u"a");
    settle();
    add(first, u"b");
    add(second, u"c");
    EXPECT_EQ(settle(), u"a b c ");

    // One moves a rule, the other changes it and adds another.
    first.preferences.acceptDrop({2}, 0);
    second.preferences.selectedRow(2);
    second.preferences.controlTextDidChangeReplace(u"new");
    add(second, u"d");
    EXPECT_EQ(settle(), u"c d a b ");
    EXPECT_EQ(FindReplaceList::textOf(first.preferences.findReplaceList().items()[0], "replace"),
              u"new");

    // One removes a rule while the other types into it; the selected rule stays selected.
    first.preferences.selectedRow(1);
    first.preferences.deleteFindReplace();
    second.preferences.selectedRow(1);
    second.preferences.controlTextDidChangeReplace(u"kept");
    second.queue.advance(2s);
    EXPECT_EQ(finds(second), u"c a b d ");
    EXPECT_EQ(second.preferences.findReplaceList().lastClickedRow(), 3);
    EXPECT_EQ(second.preferences.findReplaceList().field().text, u"kept");

    // A tool that knows no locks puts another file in its place.
    putBytes(first.paths.sharedFindReplace,
             writeXml(PropertyArray{PropertyDictionary{{"find", u"synced"}}}));
    EXPECT_EQ(settle(), u"synced ");
}

TEST(RuleList, RowsMoveAsTheyAreDropped) {
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

TEST(RuleList, HostileRulesAreEditedWithoutHarm) {
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
        EXPECT_EQ(std::prev(record.end())->first, "udInsertYourPatternOption");
        EXPECT_EQ(folder.count("profiles.nrp.replaced-"), 1) << "the file before is kept";
        EXPECT_EQ(program.store.find("stayOnTop"), nullptr);
        program.store.synchronize();
        before = allFiles(folder);
    }
    Program program(folder);
    setAllDefaultsInFirstRun(program.store, program.preferences);
    EXPECT_EQ(allFiles(folder), before);
}

TEST(Migration, EachStepIsDoneOnce) {
    const TemporaryFolder folder;
    std::vector<int> done;
    const auto step = [&](int number) {
        return MigrationStep{number, [&, number](auto &, auto &) { done.push_back(number); }};
    };
    const struct {
        const char *shows;
        PropertyDictionary store;
        int newest;
        std::vector<int> steps;
    } rows[] = {
        {"a first start has nothing to change", {}, 3, {}},
        {"before profiles", {{"firstRunPreferences", true}}, 3, {1, 2, 3}},
        {"no number yet",
         {{"firstRunPreferences", true}, {"firstRunPreferencesProfiles", true}},
         3,
         {2, 3}},
        {"half way", {{"firstRunPreferences", true}, {"settingsVersion", 2}}, 3, {3}},
        {"of a newer program", {{"firstRunPreferences", true}, {"settingsVersion", 9}}, 3, {}},
        {"the number is not needed yet", {}, 1, {}},
    };
    for (const auto &row : rows) {
        test::MemorySettingsStore store(row.store);
        MemoryMainQueue queue;
        nrPreferences preferences(store, queue, pathsIn(folder));
        std::vector<MigrationStep> steps;
        for (int number = 1; number <= row.newest; ++number) {
            steps.push_back(step(number));
        }
        done.clear();
        setAllDefaultsInFirstRun(store, preferences, steps);
        EXPECT_EQ(done, row.steps) << row.shows;
        EXPECT_EQ(store.find("settingsVersion") != nullptr, row.newest > 1) << row.shows;
        EXPECT_GE(std::max<std::int64_t>(store.integerForKey("settingsVersion"), 1), row.newest)
            << row.shows;
        store.set("firstRunPreferences", true);
        setAllDefaultsInFirstRun(store, preferences, steps);
        EXPECT_EQ(done, row.steps) << row.shows;
    }
}

TEST(Language, TheKeyOfTheStoreComesBeforeTheDesktop) {
    test::MemorySettingsStore store;
    EXPECT_EQ(firstLanguage(store), userLanguages().front());
    store.set("AppleLanguages", PropertyArray{});
    EXPECT_EQ(firstLanguage(store), userLanguages().front());
    store.set("AppleLanguages", PropertyArray{u"zh-Hant", u"en"});
    EXPECT_EQ(firstLanguage(store), "zh-Hant");
}

} // namespace
} // namespace nerlo::settings
