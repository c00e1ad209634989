#include "storage/PropertyList.h"
#include "tests/TemporaryFolder.h"
#include "tests/cli/RunNerlo.h"

#include <gtest/gtest.h>

namespace nerlo::test {
namespace {

using storage::PropertyArray;
using storage::PropertyDictionary;

class Profiles : public testing::Test {
  protected:
    Ended nerlo(std::vector<std::string> arguments, std::string input = {}) const {
        NerloRun run;
        run.arguments = std::move(arguments);
        run.input = std::move(input);
        run.environment = {{"XDG_CONFIG_HOME", folder / "config"},
                           {"XDG_DATA_HOME", folder / "data"},
                           {"LANG", "C.UTF-8"}};
        return run.toEnd();
    }
    void putProfiles(const std::string &bytes) const {
        putBytes(folder / "data/nerlo-pro/Data/profiles.nrp", bytes);
    }

    // What is listed in front of the ready ones.
    std::string stored() const {
        const std::string out = nerlo({"profiles"}).out;
        return out.substr(0, out.find("\nready:\n"));
    }

    const TemporaryFolder folder;
    // One profile makes upper case, the other lower case. "future" is a key that this version does
    // not know.
    const PropertyDictionary upper{{"profileName", u"Größe"},
                                   {"udChangeCaseTo", 1},
                                   {"udChangeCaseOption", 3},
                                   {"future", storage::PropertyDate{5}}};
    const PropertyDictionary lower{
        {"profileName", u"small"}, {"udChangeCaseTo", 1}, {"udChangeCaseOption", 2}};
};

TEST_F(Profiles, AreImportedListedShownAndExported) {
    EXPECT_TRUE(nerlo({"profiles"}).out.starts_with("ready:\n  gentle  "));
    EXPECT_EQ(nerlo({"profiles", "--json"}).out, "[]\n");
    EXPECT_EQ(nerlo({"profiles", "import", "-"}, writeBinary(upper)).status, 0);
    EXPECT_EQ(nerlo({"profiles", "import", "-"}, writeXml(PropertyArray{lower, upper})).status, 0);
    EXPECT_EQ(stored(), "* 0  Größe\n  1  small\n  2  Größe\n");
    EXPECT_EQ(nerlo({"profiles", "show", "small"}).out,
              "profileName = \"small\"\nudChangeCaseTo = 1\nudChangeCaseOption = 2\n");
    EXPECT_EQ(nerlo({"profiles", "export", "Größe", "-"}).out, writeXml(upper));
    EXPECT_EQ(nerlo({"profiles", "export", "1", folder / "out.plist"}).status, 0);
    EXPECT_EQ(bytesOf(folder / "out.plist"), writeXml(lower));
    putProfiles(writeBinary(PropertyArray{PropertyDictionary{{"profileName", u"a\n\x1b[2J"}}}));
    EXPECT_EQ(stored(), "* 0  a??[2J\n");
}

TEST_F(Profiles, ChooseHowTextsAreCleaned) {
    EXPECT_EQ(nerlo({"clean"}, "aB  c").out, "aB c") << "first-start values";
    putProfiles(writeXml(PropertyArray{upper, lower}));
    EXPECT_EQ(nerlo({"clean"}, "aB  c").out, "AB  C");
    putBytes(folder / "config/nerlo-pro/defaults.plist",
             writeXml(PropertyDictionary{{"udSelectedProfileItem", 1}}));
    EXPECT_EQ(nerlo({"clean"}, "aB").out, "ab");
    EXPECT_EQ(nerlo({"clean", "--profile", "Größe"}, "aB").out, "AB");
    EXPECT_EQ(nerlo({"clean", "--profile", "0", "--set", "udChangeCaseTo=off"}, "aB").out, "aB");
}

TEST_F(Profiles, AreChangedInPlaceAndComeBackWhenRemoved) {
    putProfiles(writeXml(PropertyArray{upper, lower, upper}));
    const struct {
        std::vector<std::string> arguments;
        const char *list;
    } steps[] = {
        {{"select", "2"}, "  0  Größe\n  1  small\n* 2  Größe\n"},
        {{"rename", "2", "big"}, "  0  Größe\n  1  small\n* 2  big\n"},
        {{"remove", "Größe"}, "  0  small\n* 1  big\n"},
        {{"duplicate", "gentle", "mine"}, "  0  small\n* 1  big\n  2  mine\n"},
        {{"remove", "big"}, "  0  small\n* 1  mine\n"},
        {{"restore", "Größe"}, "  0  small\n* 1  mine\n  2  Größe\n"},
        {{"restore"}, "  0  small\n* 1  mine\n  2  Größe\n  3  big\n"},
    };
    for (const auto &step : steps) {
        std::vector<std::string> arguments = step.arguments;
        arguments.insert(arguments.begin(), "profiles");
        EXPECT_EQ(nerlo(arguments).err, "");
        EXPECT_EQ(stored(), step.list) << step.arguments[0] << ' ' << step.arguments.back();
    }
    EXPECT_EQ(nerlo({"profiles", "export", "2", "-"}).out, writeXml(upper));
    EXPECT_EQ(nerlo({"profiles", "restore"}).status, 2) << "nothing is left";
    EXPECT_EQ(nerlo({"profiles", "rename", "gentle", "x"}).status, 2) << "a ready one";
    EXPECT_EQ(nerlo({"profiles", "rename", "0", ""}).status, 2);
}

TEST_F(Profiles, ReadyOnesNeedNoFileAndAStoredOneOfTheSameNameWins) {
    const struct {
        const char *id;
        const char *text;
        const char *cleaned;
    } rows[] = {
        {"gentle",
         " two  words, broken where the line was full, which is\nhow a mail goes on; see ls . ",
         "two words, broken where the line was full, which is how a mail goes on; see ls ."},
        {"pdf", "a hyphen-\nated  word\nbroken", "a hyphenated word broken"},
        {"mail", "> quoted  words", "quoted words"},
        {"web", " a  line \nnext", "a line\nnext"},
        {"terminal", "\x1b[1mbold\x1b[0m", "bold"},
        {"assistant", "He said\u2014\u201Cwell\u2026 don\u2019t\u201D **now**",
         "He said - \"well... don't\" **now**"},
        {"code", "if  (a) {\n\treturn  b ; }\n", "if  (a) {\n\treturn  b ; }\n"},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(nerlo({"clean", "--profile", row.id}, row.text).out, row.cleaned) << row.id;
        EXPECT_NE(nerlo({"profiles", "--ready"}).out.find(row.id), std::string::npos) << row.id;
    }
    EXPECT_EQ(nerlo({"clean", "--profile", "Gentle"}, "x").status, 2);
    EXPECT_EQ(nerlo({"profiles", "export", "mail", folder / "mail.plist"}).status, 0);
    EXPECT_EQ(nerlo({"clean", "--options", folder / "mail.plist"}, ">a  b").out, "a b");
    PropertyDictionary gentle = upper;
    gentle.set("profileName", u"gentle");
    putProfiles(writeXml(PropertyArray{gentle}));
    EXPECT_EQ(nerlo({"clean", "--profile", "gentle"}, "a  b").out, "A  B");
}

TEST_F(Profiles, ListOfRulesForAllIsReadFromItsFile) {
    const PropertyDictionary old{{"checkbox", true}, {"find", u"a"}, {"replace", u"old"}};
    const PropertyDictionary now{{"checkbox", true}, {"find", u"a"}, {"replace", u"now"}};
    putProfiles(
        writeXml(PropertyArray{PropertyDictionary{{"sFindReplaceBool", 1},
                                                  {"sOnlyOneProfile", 1},
                                                  {"sFindAndReplaceItems", PropertyArray{old}}}}));
    EXPECT_EQ(nerlo({"clean"}, "a").out, "old");
    putBytes(folder / "data/nerlo-pro/Data/profilesFR.nrp", writeXml(PropertyArray{now}));
    EXPECT_EQ(nerlo({"clean"}, "a").out, "now");
}

TEST_F(Profiles, WhatCannotBeUsedIsNamedAndNothingIsChanged) {
    putProfiles(writeXml(PropertyArray{upper}));
    struct Row {
        const char *shows;
        std::vector<std::string> arguments;
        std::string input;
        int status;
        const char *message;
    };
    const Row rows[] = {
        {"unknown profile", {"clean", "--profile", "nobody"}, "x", 2, "nobody"},
        {"a place beyond", {"profiles", "show", "1"}, "", 2, "\"1\""},
        {"options and profile", {"clean", "--options", "x", "--profile", "0"}, "", 2, "--profile"},
        {"no property list", {"profiles", "import", "-"}, "hello", 1, "standard input"},
        {"no profile",
         {"profiles", "import", "-"},
         writeXml(PropertyDictionary{{"a", 1}}),
         1,
         "settings keys"},
        {"an empty list",
         {"profiles", "import", "-"},
         writeXml(PropertyArray{}),
         1,
         "settings keys"},
        {"no file", {"profiles", "import", folder / "nothing"}, "", 1, "nothing"},
        {"a folder in the way", {"profiles", "export", "0", folder.path()}, "", 1, "regular"},
    };
    for (const Row &row : rows) {
        const Ended ended = nerlo(row.arguments, row.input);
        EXPECT_EQ(ended.status, row.status) << row.shows;
        EXPECT_EQ(ended.out, "") << row.shows;
        EXPECT_NE(ended.err.find(row.message), std::string::npos) << row.shows << ": " << ended.err;
    }
    EXPECT_EQ(bytesOf(folder / "data/nerlo-pro/Data/profiles.nrp"), writeXml(PropertyArray{upper}));
}

// Cleaning with other options than those asked for is worse than not cleaning.
TEST_F(Profiles, DamagedFilesThatAreNeededAreNamedAndStay) {
    const std::string profiles = folder / "data/nerlo-pro/Data/profiles.nrp";
    const std::string shared = folder / "data/nerlo-pro/Data/profilesFR.nrp";
    const std::string store = folder / "config/nerlo-pro/defaults.plist";
    const auto expectRefused = [&](const std::string &file, std::vector<std::string> arguments) {
        const std::string before = bytesOf(file);
        const Ended ended = nerlo(arguments, writeXml(upper));
        EXPECT_EQ(ended.status, 1) << arguments[0] << " without " << file;
        EXPECT_EQ(ended.out, "");
        EXPECT_NE(ended.err.find(file), std::string::npos) << ended.err;
        EXPECT_EQ(bytesOf(file), before);
    };
    putProfiles(writeXml(PropertyArray{PropertyDictionary{{"sOnlyOneProfile", 1}}, upper}));
    putBytes(store, "damaged");
    expectRefused(store, {"clean"});
    expectRefused(store, {"profiles"});
    EXPECT_EQ(nerlo({"clean", "--profile", "1"}, "x").out, "X") << "which needs no store";
    putBytes(store, writeXml(PropertyDictionary{{"udSelectedProfileItem", 0}}));
    putBytes(shared, writeXml(upper));
    expectRefused(shared, {"clean"});
    EXPECT_EQ(nerlo({"clean", "--profile", "1"}, "x").out, "X") << "which has its own rules";
    putProfiles("damaged");
    expectRefused(profiles, {"clean"});
    expectRefused(profiles, {"profiles", "import", "-"});
    expectRefused(profiles, {"profiles", "remove", "0"});
}

} // namespace
} // namespace nerlo::test
