#include "shell/ChooserItems.h"

#include "engine/Operations.h"
#include "shell/Strings.h"
#include "tests/shell/ProgramFixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace nerlo::shell {
namespace {

TEST(ChooserItems, ASearchFindsAllWordsTheBestFirst) {
    std::vector<ChooserItem> items;
    for (const auto &[title, keywords] :
         {std::pair("Trim both ends", "trim"), std::pair("Spaces at both ends", "space-ends"),
          std::pair("Backspaces", ""), std::pair("Strip tabs", "strip-tabs")}) {
        items.push_back({title, {}, keywords, {}});
    }
    const struct {
        const char *text;
        std::vector<std::size_t> places;
    } rows[] = {
        {"", {0, 1, 2, 3}},  {"  spaces ", {1, 2}}, {"ENDS both", {0, 1}}, {"space-ends", {1}},
        {"strip tabs", {3}}, {"space tabs", {}},    {"ends", {0, 1}},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(placesOf(items, row.text), row.places) << row.text;
    }
}

class ChooserItemsTest : public ProgramFixture {
  protected:
    const ChooserItem *find(const QString &title) {
        items = chooserItems(preferences);
        const auto item = std::ranges::find(items, title, &ChooserItem::title);
        return item == items.end() ? nullptr : &*item;
    }
    std::vector<ChooserItem> items;
};

TEST_F(ChooserItemsTest, TheSelectedProfileComesFirstWithItsUnsavedEdits) {
    preferences.profilesAdd();
    preferences.profilesAddingCloseWindow(u"mine");
    preferences.checkBoxChanged("udRemoveBullets", true);
    ASSERT_TRUE(find("mine"));
    EXPECT_EQ(items[0].title, "mine");
    EXPECT_TRUE(items[0].choice.options->udRemoveBullets);
}

TEST_F(ChooserItemsTest, RulesAreOfferedAloneAndWorkWithoutTheirSwitch) {
    preferences.addNewFindReplace();
    preferences.saveCurrentFindReplace(u"a");
    preferences.controlTextDidChangeReplace(u"b");
    const auto own = localized("sChooserRulesOf")
                         .replace("%@", QString::fromStdU16String(preferences.profileName()));
    const auto *item = find(own);
    ASSERT_TRUE(item);
    EXPECT_EQ(engine::runOperation(*item->choice.operation, u"a", {*item->choice.options, "en"}),
              u"b");
}

} // namespace
} // namespace nerlo::shell
